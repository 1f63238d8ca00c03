// The input is a saved game that is loaded through the real dialog.

#include <algorithm>

#include "core/title.h"
#include "core/traps.h"
#include "savegame/format.h"
#include "system/calendar.h"
#include "system/codepage.h"
#include "system/text.h"
#include "target.h"

namespace torvenhall::fuzz
{

namespace
{

constexpr std::size_t LineOfTime = 4, LineOfDate = 5, LineOfName = 6, LineOfPay = 7,
                      LineOfWorkTitle = 9, LineOfGames = 24, LineOfLevel = 31;
constexpr std::size_t LinesOfBooleans[]{27, 28, 34, 35};

/// A life that differs from the sample in most of its lines.
const Game& Begun()
{
    static const Game begun = BegunLife();
    return begun;
}

const std::string& BegunBytes()
{
    static const std::string bytes = EncodeGame(Begun());
    return bytes;
}

const SavedGame& BegunLines()
{
    static const SavedGame lines = DecodeGame(BegunBytes());
    return lines;
}

/// How a saved game writes the value that a line of a file stands for; a line
/// that stands for none stays as it is.
std::string Canonical(std::size_t line, const std::string& text)
{
    std::string canonical = text;
    static_cast<void>(ErrorOf([&] {
        if (line == LineOfTime) {
            canonical = TimeText(ReadTime(text));
        } else if (line == LineOfDate) {
            canonical = DateText(ReadDate(text));
        } else if (std::ranges::find(LinesOfBooleans, line) != std::end(LinesOfBooleans)) {
            canonical = ReadInt32(text) == 0 ? "0" : "-1";
        } else if (line != LineOfName && line != LineOfWorkTitle) {
            canonical = Decimal(ReadInt32(text));
        }
    }));
    return canonical;
}

/// Whether the end of a load may change a line's field (pay and title follow
/// the job, the first game is kept as the second), or a value without a meaning
/// changes nothing.
bool IsDerived(std::size_t line)
{
    return line == LineOfPay || line == LineOfWorkTitle || line == LineOfGames ||
           line == LineOfLevel;
}

bool TellsAnError(const std::string& box)
{
    return box.starts_with("x Torvenhall: ");
}

/// The lines up to some one have come from the file, the others are as they
/// were; of a load without an error, all have come from the file.
void RequireAPrefix(const SavedGame& now, const SavedGame& file, bool failed)
{
    std::size_t line = 2;
    const auto isFromFile = [&] {
        return line <= file.size() &&
               (IsDerived(line) || now[line - 1] == Canonical(line, file[line - 1]));
    };
    while (line <= SavedLines && isFromFile()) {
        ++line;
    }
    Require(failed || line > SavedLines,
            "without an error line " + std::to_string(line) + " is taken");
    for (; line <= SavedLines; ++line) {
        Require(now[line - 1] == BegunLines()[line - 1], "no line is applied behind a bad one");
    }
}

/// Saved and loaded again it is the same game.
void RequireASoundCopy(const std::string& bytes)
{
    const SavedGame once = DecodeGame(bytes);
    WriteBytes(TheRules().folder + "SAVE/game.QVS", bytes);
    GameState = Begun();
    TheRules().Load("game");
    const SavedGame twice = DecodeGame(EncodeGame(GameState));
    for (std::size_t line = 1; line <= SavedLines; ++line) {
        Require(once[line - 1] == twice[line - 1] || IsDerived(line), "a copy is the same game");
    }
}

} // namespace

std::size_t LongestInput()
{
    return LongestFile + 1;
}

void Check(std::string_view input)
{
    ScriptedFrontEnd& player = TheRules().player;
    const std::string path = TheRules().folder + "SAVE/game.QVS";
    WriteBytes(path, input);
    GameState = Begun();
    TheRules().Load("game");
    Require(BytesOf(path) == input, "the file stays as it was");

    const SavedGame file = Split(FromWindows1251(ShiftCharsUp(std::string(input))), "\r\n");
    const std::string now = EncodeGame(GameState);
    const bool untouched = now == BegunBytes();
    if (input.size() > LongestFile || file.size() > SavedLines ||
        file.front() != ApplicationTitle) {
        Require(untouched && player.boxes.size() == 1, "a refusal is told and changes nothing");
        return Count("refused");
    }
    if (player.names.empty()) {
        Require(untouched && player.boxes.size() == 1, "one death, and then a fresh life");
        return Count("died");
    }
    Require(ShownAt(Label::lblTime).text ==
                LongDateText(GameState.GameDate) + " г. - " + TimeText(GameState.GameTime),
            "the clock shows the loaded time");
    const bool failed = std::ranges::any_of(player.boxes, TellsAnError);
    RequireAPrefix(DecodeGame(now), file, failed);
    RequireASoundCopy(now);
    Count(failed ? "stopped at a line" : "loaded");
}

} // namespace torvenhall::fuzz
