#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

#include "support/life.h"
#include "system/codepage.h"
#include "system/text.h"

using namespace torvenhall;

using System = Life;

/// The bytes of the code page in UTF-8, as the platform has it.
static std::string AsThePlatformHasIt(std::string bytes)
{
    std::string utf8(4 * bytes.size(), '\0');
#ifdef _WIN32
    std::wstring wide(bytes.size(), L'\0');
    const int length = static_cast<int>(bytes.size());
    EXPECT_EQ(MultiByteToWideChar(1251, 0, bytes.data(), length, wide.data(), length), length);
    utf8.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(),
                            static_cast<int>(utf8.size()), nullptr, nullptr)));
#else
    char *input = bytes.data(), *output = utf8.data();
    std::size_t inputLeft = bytes.size(), outputLeft = utf8.size();
    const iconv_t converter = iconv_open("UTF-8", "CP1251");
    EXPECT_EQ(iconv(converter, &input, &inputLeft, &output, &outputLeft), 0U);
    iconv_close(converter);
    utf8.resize(utf8.size() - outputLeft);
#endif
    return utf8;
}

TEST_F(System, NumbersDatesAndTimesConvertAsTheTablesSay)
{
    ExpectEach("numbers.txt", [](const std::string& text) {
        const double number = std::strtod(text.c_str(), nullptr);
        return Joined({DecimalOf(Round(number)),
                       TextOrError([=] { return Decimal(ToInt16(number)); }),
                       TextOrError([=] { return Decimal(ToInt32(number)); }),
                       TextOrError([=] { return DecimalOf(SquareRoot(number)); })});
    });
    ExpectEach("texts.txt", [](const std::string& quoted) {
        const std::string text = quoted.substr(1, quoted.size() - 2);
        return Joined({TextOrError([&] { return Decimal(ReadInt16(text)); }),
                       TextOrError([&] { return Decimal(ReadInt32(text)); }),
                       TextOrError([&] { return TimeText(ReadTime(text)); }),
                       TextOrError([&] { return DateText(ReadDate(text)); })});
    });
    for (int month = -1; month <= 13; ++month) {
        const auto dayOf2000 = [=](int day) {
            return TextOrError([=] {
                const std::string text = LongDateText(MakeDate(day, month, 2000));
                return text.substr(text.find(' ') + 1);
            });
        };
        lines.push_back(Joined(Grouped(-1, 257, dayOf2000)));
    }
    ExpectKept("days.txt", lines);
}

TEST_F(System, EveryByteOfTheCodePageConvertsAsThePlatformHasItAndBack)
{
    std::string bytes(256, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i == 0x98 ? 0 : i); // 0x98 is unassigned there
        const std::string byte(1, static_cast<char>(i)), lower(1, static_cast<char>(i + 255));
        EXPECT_EQ(ShiftCharsDown(byte) + ShiftCharsUp(lower), lower + byte);
    }
    const std::string expected = AsThePlatformHasIt(bytes);
    EXPECT_EQ(FromWindows1251(bytes), expected);
    EXPECT_EQ(ToWindows1251(expected), bytes);
    EXPECT_EQ(FromWindows1251("\x98"), "\u0098");
    EXPECT_EQ(ToWindows1251("\u0098é😀\xFFz"), "\x98???z");
}

TEST_F(System, TextIsFoldedCutReplacedAndCheckedCharacterByCharacter)
{
    EXPECT_EQ(FoldCase("@AZ[ az АЯРП аярп ЀЁЏҐ 19_É\xD0"), "@az[ az аярп аярп ѐёџґ 19_É\xD0");
    EXPECT_EQ(
        Characters("aё€😀\xD1z\x80\xE2\x82"),
        (std::vector<std::string_view>{"a", "ё", "€", "😀", "\xD1", "z", "\x80", "\xE2", "\x82"}));
    EXPECT_EQ(ReplaceAll("<a><a><A>", "<a>", "<a><a>") + ReplaceAll("bc", "", "x"),
              "<a><a><a><a><A>bc");
    EXPECT_EQ(Split("a\r\n\r\nb\r\n", "\r\n"), (Texts{"a", "", "b", ""}));
    EXPECT_EQ(Split("", "|"), Texts{""});
    for (const char32_t codePoint : {U'\0', U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uD7FF',
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

TEST_F(System, PathsAndNamesLoseOrGainOnlyTheirEnds)
{
    EXPECT_EQ(AddBackslash("C:\\", '\\') + AddBackslash("C:\\GAME", '\\'), "C:\\C:\\GAME\\");
    EXPECT_EQ(StripBackslash("C:\\GAME\\\\", '\\') + StripBackslash("C:", '\\'), "C:\\GAME\\C:");
    EXPECT_EQ(Joined({StripExtension("save.one.qvs"), StripExtension("save"),
                      StripExtension(".qvs"), StripExtension("b.")}),
              "save.one, save, b");
    // Everything lies beside the program unless a share folder is there.
    const std::string program = folder + "bin", data = folder + "data", end = AddBackslash("");
    FindDirectories(program, "../share", data);
    EXPECT_EQ(ProgramDirectory() + DataDirectory(), program + end + program + end);
    EXPECT_FALSE(IsDirectory(data));
    std::filesystem::create_directory(folder + "share");
    FindDirectories(program, "../share", data);
    EXPECT_EQ(ProgramDirectory() + DataDirectory(), folder + "share" + end + data + end);
    EXPECT_TRUE(IsDirectory(data));
}
