#include "resources/anecdotes.h"

#include <array>
#include <filesystem>
#include <map>
#include <set>

#include "core/random.h"
#include "core/traps.h"
#include "support/life.h"
#include "system/basSystem.h"
#include "system/codepage.h"
#include "system/text.h"

namespace torvenhall::test
{
namespace
{

const std::string Header = "**ANECDOT DATA FILE FOR TORVENHALL BY MARSHEND SOFTWARE**";

class Anecdotes : public Life
{
protected:
    void WriteFile(const std::string& utf8)
    {
        ReplaceFile(Folder() + "ANECDOT.DAT", ToWindows1251(utf8));
    }
    std::string Drawn(float draw)
    {
        dice.values = {draw};
        return GetAnecdote();
    }
};

TEST_F(Anecdotes, GivenFourLinesTheDrawChoosesByItsSixths)
{
    WriteFile(Header + "\r\nодин\r\nдва\r\nтри\r\n");
    const std::pair<float, std::string> draws[]{
        {0.0F, Header},  {0.166F, Header}, {0.167F, "один"}, {0.499F, "один"}, {0.501F, "два"},
        {0.833F, "два"}, {0.834F, "три"},  {0.999F, "три"},  {0.5F, "один"}};
    for (const auto& [draw, line] : draws) {
        EXPECT_EQ(Drawn(draw), line) << draw;
    }
    EXPECT_EQ(dice.reseeds.front(), 4) << "the number of lines is the seed";
}

TEST_F(Anecdotes, GivenTheRealDiceEveryLineComesWithItsShare)
{
    WriteFile(Header + "\r\nодин\r\nдва\r\nтри");
    RandomDice real(1);
    Connect({&player, &real, &clock});
    constexpr int draws = 6000;
    std::map<std::string, int> counts;
    for (int i = 0; i < draws; ++i) {
        ++counts[GetAnecdote()];
    }
    const std::pair<std::string, int> shares[]{
        {Header, draws / 6}, {"один", draws / 3}, {"два", draws / 3}, {"три", draws / 6}};
    for (const auto& [line, share] : shares) {
        EXPECT_NEAR(counts[line], share, 200) << line;
    }
}

TEST_F(Anecdotes, EveryBreakMarkBecomesALineBreakAndLinesNeedNoCarriageReturn)
{
    WriteFile(Header);
    EXPECT_EQ(Drawn(0.9F), Header) << "a header alone";
    WriteFile(Header + "\nодин\n\nА<CRLF>Б<CRLF><crlf>\n");
    EXPECT_EQ(Drawn(0.99F), "А\r\nБ\r\n<crlf>");
    EXPECT_EQ(Drawn(0.6F), "");
    EXPECT_EQ(Told(), Texts{});
}

TEST_F(Anecdotes, AMissingFileOrADamagedHeaderIsToldAndTheFileUsedAllTheSame)
{
    const std::string file = "Файл анекдотов '" + Folder() + "anecdot.dat' ";
    EXPECT_EQ(GetAnecdote(), "");
    EXPECT_EQ(Told(), Texts{"x Ошибка 541: " + file + "не найден"});
    WriteFile(Header + " \r\nодин\r\n");
    EXPECT_EQ(Drawn(0.9F), "один");
    EXPECT_EQ(Told(), Texts{"x Ошибка 745: " + file + "повреждён или имеет неверный формат"});
}

TEST_F(Anecdotes, AnEmptyFileOrTooManyLinesAreReportedAndRaised)
{
    std::string endless = Header;
    for (int i = 0; i < 32767; ++i) {
        endless += "\r\n1";
    }
    const std::pair<std::string, int> files[]{{"", error::Subscript}, {endless, error::Overflow}};
    for (const auto& [text, number] : files) {
        WriteFile(text);
        EXPECT_EQ(ErrorOf([] { GetAnecdote(); }).number, number);
        EXPECT_EQ(ErrorTold(), number);
    }
}

TEST(ShippedAnecdotes, AreEnoughAndWrittenAsTheReaderExpects)
{
    const std::string bytes = ReadWholeFile(TORVENHALL_ASSETS "ANECDOT.DAT");
    std::vector<std::string> lines = Split(FromWindows1251(bytes), "\r\n");
    EXPECT_EQ(lines.back(), "") << "the last line is ended";
    lines.pop_back();
    EXPECT_EQ(lines.front(), Header);
    EXPECT_GE(lines.size(), 1U + 120U);
    EXPECT_EQ(std::set(lines.begin(), lines.end()).size(), lines.size()) << "told twice";
    for (const std::string& line : lines) {
        EXPECT_FALSE(line.empty());
        EXPECT_LE(Split(line, "<CRLF>").size(), 6U) << line;
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
    }
}

} // namespace
} // namespace torvenhall::test
