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

TEST_F(Resources, AnAnecdoteIsALineDrawnByTheNumberOfLinesAndATroubleIsTold)
{
    Write("ANECDOT.DAT", Header + "\r\nодин\r\nдва<CRLF>2<CRLF><crlf>\n\n");
    for (const float draw : {0.0F, 0.166F, 0.167F, 0.499F, 0.5F, 0.501F, 0.833F, 0.834F, 0.999F}) {
        lines.push_back(std::to_string(draw) + ": " + ReplaceAll(Drawn(draw), "\r\n", "/"));
        EXPECT_EQ(dice.calls, " seed 4 draw");
    }
    EXPECT_EQ(Told(), Texts{});
    fs::remove(folder + "ANECDOT.DAT");
    std::string most = Header + " ";
    for (int i = 1; i < 32767; ++i) {
        most += "\n" + std::to_string(i % 10);
    }
    for (const std::string& text : Texts{"?", Header, most, "", most + "\n1"}) {
        if (text != "?") {
            Write("ANECDOT.DAT", text);
        }
        const std::string drawn = Drawn(1.0F);
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
    // In the file's lines | stands for CR LF and / for LF.
    ExpectEach("languages.txt", [this](const std::string& line) {
        std::string text = ReplaceAll(ReplaceAll(line, "|", "\r\n"), "/", "\n");
        text = ReplaceAll(ReplaceAll(text, "NUL", "\0"s), "LONG", std::string(1500, 'x'));
        const std::string found = ReadLangString(Write("язык.LNG", text), "General", "Description");
        return '"' + ReplaceAll(found, std::string(1023, 'x'), "1023 characters") + '"';
    });
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
