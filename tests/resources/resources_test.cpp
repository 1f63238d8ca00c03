#include <array>

#include "resources/anecdotes.h"
#include "resources/basLangMGR.h"
#include "resources/modJpegInside.h"
#include "support/life.h"
#include "system/codepage.h"
#include "system/text.h"

namespace fs = std::filesystem;
using namespace torvenhall;

static const std::string Header = "**ANECDOT DATA FILE FOR TORVENHALL BY MARSHEND SOFTWARE**";

class Resources : public Life
{
protected:
    std::string Write(const std::string& name, const std::string& utf8) const
    {
        ReplaceFile(folder + name, ToWindows1251(utf8));
        return folder + name;
    }
    std::string Drawn(float draw)
    {
        dice.values = {draw};
        dice.calls.clear();
        return TextOrError(GetAnecdote);
    }
};

TEST_F(Resources, AnAnecdoteIsALineDrawnAfterTheReseedByTheNumberOfLines)
{
    Write("ANECDOT.DAT", Header + "\r\nодин\r\nдва<CRLF>2<CRLF><crlf>\n\n");
    const std::pair<float, std::string> draws[]{{0.0F, Header},
                                                {0.166F, Header},
                                                {0.167F, "один"},
                                                {0.499F, "один"},
                                                {0.5F, "один"},
                                                {0.501F, "два\r\n2\r\n<crlf>"},
                                                {0.833F, "два\r\n2\r\n<crlf>"},
                                                {0.834F, ""},
                                                {0.999F, ""}};
    for (const auto& [draw, line] : draws) {
        EXPECT_EQ(Drawn(draw), line) << draw;
        EXPECT_EQ(dice.calls, " seed 4 draw");
    }
    EXPECT_EQ(Told(), Texts{});
}

TEST_F(Resources, ATroubleWithTheAnecdotesIsToldAndADamagedHeaderUsedAllTheSame)
{
    std::string most = Header + " ";
    for (int i = 1; i < 32767; ++i) {
        most += "\n" + std::to_string(i % 10);
    }
    const std::pair<std::string, std::string> files[]{
        {"?", ""}, {Header, Header}, {most, "6"}, {"", "error 9"}, {most + "\n1", "error 6"}};
    for (const auto& [text, drawn] : files) {
        if (text != "?") {
            Write("ANECDOT.DAT", text);
        }
        EXPECT_EQ(Drawn(1.0F), drawn);
        lines.push_back(drawn + ": " + ReplaceAll(Joined(Told()), folder, "FOLDER/"));
    }
    ExpectKept("anecdotes.txt", lines);
}

TEST_F(Resources, TheShippedAnecdotesAreEnoughAndWrittenAsTheReaderExpects)
{
    const std::string bytes = ReadWholeFile(TORVENHALL_ASSETS "ANECDOT.DAT");
    const Texts shipped = Split(FromWindows1251(bytes), "\r\n");
    EXPECT_EQ(shipped.front() + shipped.back(), Header) << "the last line is ended";
    EXPECT_GE(shipped.size(), 2U + 120U);
    EXPECT_EQ(std::set(shipped.begin(), shipped.end()).size(), shipped.size()) << "told twice";
    for (const std::string& line : shipped) {
        EXPECT_TRUE(Split(line, "<CRLF>").size() <= 6 && Split(line, "\n").size() == 1) << line;
    }
}

TEST_F(Resources, ALanguagesTextIsFoundAsAnIniFileHasIt)
{
    using namespace std::string_literals;
    // clang-format off
    const std::pair<std::string, std::string> files[]{ // behind "[General]"
        {"Description=Русский\r\n", "Русский"}, {"Description=Русский", "Русский"}, {"description=x", "x"},
        {"  Description  =x", "x"}, {"Descriptions=no\r\n", ""}, {"Description", ""}, {"Description=", ""},
        {"[Other]\r\nDescription=no\r\n  [ GENERAL ]  \r\nDescription=x", "x"}, {"[Other]\nDescription=no", ""},
        {";Description=no\r\nDescription=x", "x"}, {"Description=first\nDescription=second", "first"},
        {"Description=a=b;c", "a=b;c"}, {"Description=x \t ", "x"}, {"Description=  x", "  x"},
        {"Description=\" x y\"", " x y"}, {"Description= 'x'", "x"}, {"Description=\"x'", "\"x'"},
        {"Description=\"", "\""}, {"Description=x \0y"s, "x"},
        {"Description=" + std::string(1500, 'x'), std::string(1023, 'x')}};
    // clang-format on
    for (const auto& [text, value] : files) {
        const std::string file = Write("язык.LNG", "[General]\n" + text);
        EXPECT_EQ(ReadLangString(file, "General", "Description"), value) << text;
    }
    const std::string headless = Write("a.LNG", "Description=no\r\n[General]");
    EXPECT_EQ(ReadLangString(headless, "General", "Description"), "");
    EXPECT_EQ(CutAtNul("ab\0c\0"s) + CutAtNul("abc"), "ababc");

    LangFiles() = {folder + "none", Write("b.LNG", "[General]\nCopyright=я\nDescription=Русский")};
    for (const int index : {2, -1, 0, 3, 1}) {
        const int number = ErrorOf([&] { SelectLanguage(index); }).number;
        EXPECT_EQ(number, index == 1 || index == 2 ? 0 : error::Subscript);
        EXPECT_EQ(ErrorTold(), number);
        EXPECT_EQ(LangDescription + " " + LangCopyright, index == 1 ? " " : "Русский я");
    }
}

TEST_F(Resources, APictureIsItsBytesAndOnlyATempFolderThatWasThereBecomesTheCurrentOne)
{
    constexpr std::array jpeg{std::byte{0xFF}, std::byte{0xD8}};
    const fs::path temp = fs::path(folder) / "TEMP";
    EXPECT_FALSE(DirExists(folder + "none"));
    EXPECT_TRUE(DirExists(folder));
    for (const fs::path& current : {fs::path(folder), temp}) {
        EXPECT_TRUE(LoadFormPicture("HARD", jpeg));
        EXPECT_EQ(fs::current_path(), fs::canonical(current));
        EXPECT_TRUE(fs::is_empty(temp)) << "no file is left";
    }
    // A temporary folder or file that cannot be used costs no picture and no word.
    fs::create_directories(temp / "HARD.JPI" / "inner");
    EXPECT_TRUE(LoadFormPicture("HARD", jpeg));
    EXPECT_TRUE(fs::exists(temp / "HARD.JPI" / "inner"));
    fs::remove_all(temp);
    Write("TEMP", "a file in the folder's place");
    EXPECT_TRUE(LoadFormPicture("HARD", jpeg));
    EXPECT_EQ(Told(), Texts{});
    fs::remove(temp);
    for (const std::size_t bytes : {0U, 1U}) {
        EXPECT_FALSE(LoadFormPicture("XYZ", std::span(jpeg).first(bytes)));
        EXPECT_EQ(Told(), Texts{"x JPEGInside Critical Error: Error 48: Picture not Exist or Data "
                                "Damage Error"});
        EXPECT_TRUE(fs::is_empty(temp)) << "the folder's effects come all the same";
    }
}
