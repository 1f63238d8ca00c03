#include "system/codepage.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <optional>

namespace torvenhall::test
{
namespace
{

/// The C library's own conversion; nothing where it knows none.
std::optional<std::string> Reference(const char* to, const char* from, std::string text)
{
    const iconv_t converter = iconv_open(to, from);
    std::string result(8, '\0');
    char* input = text.data();
    char* output = result.data();
    std::size_t inputLeft = text.size();
    std::size_t outputLeft = result.size();
    const bool converted = iconv(converter, &input, &inputLeft, &output, &outputLeft) == 0;
    iconv_close(converter);
    result.resize(result.size() - outputLeft);
    return converted ? std::optional(result) : std::nullopt;
}

constexpr int Unassigned = 0x98;

TEST(CodePage, EveryByteConvertsAsTheCLibraryHasItAndBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const std::string utf8 = FromWindows1251(text);
        if (byte != Unassigned) {
            EXPECT_EQ(utf8, Reference("UTF-8", "CP1251", text)) << byte;
        }
        EXPECT_EQ(ToWindows1251(utf8), text) << byte;
    }
    EXPECT_EQ(FromWindows1251("\x98"), "\u0098");
}

TEST(CodePage, EveryOtherCharacterBecomesAQuestionMark)
{
    for (char16_t codePoint = 0x80; codePoint < 0xD800; ++codePoint) {
        std::string utf8{static_cast<char>(0xE0 | codePoint >> 12),
                         static_cast<char>(0x80 | (codePoint >> 6 & 0x3F)),
                         static_cast<char>(0x80 | (codePoint & 0x3F))};
        if (codePoint < 0x800) {
            utf8 = {static_cast<char>(0xC0 | codePoint >> 6),
                    static_cast<char>(0x80 | (codePoint & 0x3F))};
        }
        const auto expected = Reference("CP1251", "UTF-8", utf8);
        if (codePoint != Unassigned) {
            ASSERT_EQ(ToWindows1251(utf8), expected.value_or("?")) << unsigned{codePoint};
        }
    }
    EXPECT_EQ(ToWindows1251("😀\xFFz"), "??z");
}

} // namespace
} // namespace torvenhall::test
