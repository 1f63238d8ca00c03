#include "system/text.h"

#include <gtest/gtest.h>

namespace torvenhall::test
{
namespace
{

TEST(Text, CaseIsFoldedInLatinAndCyrillicOnly)
{
    EXPECT_EQ(FoldCase("AZ az АЯРП аярп ЁЇҐ 19_É"), "az az аярп аярп ёїґ 19_É");
    EXPECT_TRUE(ContainsIgnoringCase("о ВВЕДИТЕ ваше имя!", "Введите Ваше имя"));
    EXPECT_FALSE(ContainsIgnoringCase("Введите Ваше", "Введите Ваше имя"));
}

TEST(Text, CharactersAreWholeSequencesAndStrayBytesStandAlone)
{
    using Cut = std::vector<std::string_view>;
    EXPECT_EQ(Characters("aё€😀"), (Cut{"a", "ё", "€", "😀"}));
    EXPECT_EQ(Characters("a\xD1z\x80\xE2\x82"), (Cut{"a", "\xD1", "z", "\x80", "\xE2", "\x82"}));
    EXPECT_EQ(Characters(""), Cut{});
}

TEST(Text, OnlyTheShortestFormOfAnAssignableCodePointIsUtf8)
{
    EXPECT_TRUE(IsUtf8(""));
    for (const char32_t codePoint : {U'\0', U'z', U'\u0080', U'\u07FF', U'\u0800', U'\uD7FF',
                                     U'\uE000', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        std::string text;
        AppendCodePoint(text, codePoint);
        EXPECT_TRUE(IsUtf8(text)) << text;
        EXPECT_EQ(CodePoint(text), codePoint);
    }
    for (const char* text :
         {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xD0", "z\xFF"}) {
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

TEST(Text, ReplacingAndSplittingTakeEveryOccurrenceOnce)
{
    EXPECT_EQ(ReplaceAll("<a><a><A>", "<a>", "<a><a>"), "<a><a><a><a><A>");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    using Parts = std::vector<std::string>;
    EXPECT_EQ(Split("a\r\n\r\nb\r\n", "\r\n"), (Parts{"a", "", "b", ""}));
    EXPECT_EQ(Split("", "|"), Parts{""});
}

} // namespace
} // namespace torvenhall::test
