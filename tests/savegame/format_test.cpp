#include "savegame/format.h"

#include <gtest/gtest.h>

#include "core/errors.h"
#include "savegame/known_life.h"
#include "system/basSystem.h"

namespace torvenhall::test
{
namespace
{

TEST(SavedGameFormat, AKnownLifeHasTheBytesOfTheKeptFile)
{
    EXPECT_EQ(EncodeGame(KnownLife()), ReadWholeFile(KnownLifeFile));
}

TEST(SavedGameFormat, TheKeptFileReadsBackAsTheKnownLife)
{
    const SavedGame lines = DecodeGame(ReadWholeFile(KnownLifeFile));
    EXPECT_EQ(lines.front(), ApplicationTitle);
    GameStateRecord read;
    for (std::size_t line = 1; line <= SavedLines; ++line) {
        ReadField(read, line, lines[line - 1]);
    }
    EXPECT_EQ(EncodeGame(read), EncodeGame(KnownLife()));
}

TEST(SavedGameFormat, FewerLinesAreReadAsTheyAreAndMoreAreAnError)
{
    EXPECT_EQ(DecodeGame(ShiftCharsDown("a\r\nb")), (SavedGame{"a", "b"}));
    EXPECT_EQ(DecodeGame(""), SavedGame{""});
    const std::string full = EncodeGame(KnownLife());
    EXPECT_EQ(ErrorOf([&] { DecodeGame(full + ShiftCharsDown("\r\n")); }).number, error::Subscript);
}

TEST(SavedGameFormat, OnlyTrueAndFalseAreEverWrittenForABoolean)
{
    GameStateRecord life = KnownLife();
    life.AttendCourses = life.AttendSchool = life.Married = life.WifeFound = 5;
    const SavedGame lines = DecodeGame(EncodeGame(life));
    for (const std::size_t line : {27U, 28U, 34U, 35U}) {
        EXPECT_EQ(lines[line - 1], "-1") << line;
    }
}

TEST(SavedGameFormat, AnyNumberInAnAttendanceLineIsTrueWhileTheFamilysStaysItself)
{
    GameStateRecord life;
    for (const std::size_t line : {27U, 28U, 34U, 35U}) {
        ReadField(life, line, "5");
    }
    EXPECT_EQ(life.AttendCourses, True);
    EXPECT_EQ(life.AttendSchool, True);
    EXPECT_EQ(life.Married, 5);
    EXPECT_EQ(life.WifeFound, 5);
}

TEST(SavedGameFormat, ALineBreakInANameShiftsNoLine)
{
    GameStateRecord life = KnownLife();
    life.PlayerName = "a\r\nb";
    EXPECT_EQ(DecodeGame(EncodeGame(life))[5], "a b");
}

} // namespace
} // namespace torvenhall::test
