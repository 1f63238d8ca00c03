#include "savegame/format.h"

#include <gtest/gtest.h>

#include "core/traps.h"
#include "savegame/known_life.h"
#include "system/basSystem.h"

namespace torvenhall::test
{
namespace
{

TEST(SavedGameFormat, AKnownLifeHasTheBytesOfTheKeptFileAndReadsBackFromThem)
{
    const std::string kept = ReadWholeFile(KnownLifeFile);
    EXPECT_EQ(EncodeGame(KnownLife()), kept);
    const SavedGame lines = DecodeGame(kept);
    EXPECT_EQ(lines.front(), ApplicationTitle);
    GameStateRecord read;
    for (std::size_t line = 1; line <= SavedLines; ++line) {
        ReadField(read, line, lines[line - 1]);
    }
    EXPECT_EQ(EncodeGame(read), kept);
}

TEST(SavedGameFormat, FewerLinesAreReadAsTheyAreAndMoreAreAnError)
{
    EXPECT_EQ(DecodeGame(ShiftCharsDown("a\r\nb")), (SavedGame{"a", "b"}));
    EXPECT_EQ(DecodeGame(""), SavedGame{""});
    const std::string full = EncodeGame(KnownLife());
    EXPECT_EQ(ErrorOf([&] { DecodeGame(full + ShiftCharsDown("\r\n")); }).number, error::Subscript);
}

TEST(SavedGameFormat, AnyNumberIsTrueInAnAttendanceLineAndOnlyTrueAndFalseAreEverWritten)
{
    GameStateRecord life = KnownLife();
    for (const std::size_t line : {27U, 28U, 34U, 35U}) {
        ReadField(life, line, "5");
    }
    EXPECT_EQ(life.AttendCourses, True);
    EXPECT_EQ(life.AttendSchool, True);
    EXPECT_EQ(life.Married, 5);
    EXPECT_EQ(life.WifeFound, 5);
    life.AttendCourses = life.AttendSchool = 5;
    life.PlayerName = "a\r\nb";
    const SavedGame lines = DecodeGame(EncodeGame(life));
    for (const std::size_t line : {27U, 28U, 34U, 35U}) {
        EXPECT_EQ(lines[line - 1], "-1") << line;
    }
    EXPECT_EQ(lines[5], "a b") << "a line break in a name shifts no line";
}

} // namespace
} // namespace torvenhall::test
