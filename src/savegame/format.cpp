#include "savegame/format.h"

#include <algorithm>
#include <array>

#include "system/basSystem.h"
#include "system/codepage.h"
#include "system/convert.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view LineBreak = "\r\n";

std::string Text(Int32 number)
{
    return Decimal(number);
}

std::string Text(TimeOfDay time)
{
    return TimeText(time);
}

std::string Text(Date date)
{
    return DateText(date);
}

/// A line break in a text would shift every line behind it.
std::string Text(const std::string& text)
{
    return ReplaceAll(text, LineBreak, " ");
}

void Read(Int16& field, std::string_view text)
{
    field = ReadInt16(text);
}

void Read(Int32& field, std::string_view text)
{
    field = ReadInt32(text);
}

void Read(TimeOfDay& field, std::string_view text)
{
    field = ReadTime(text);
}

void Read(Date& field, std::string_view text)
{
    field = ReadDate(text);
}

void Read(std::string& field, std::string_view text)
{
    field = text;
}

Int16 AsBoolean(Int16 number)
{
    return number == False ? False : True;
}

/// One line: how it is written and how it is read.
struct Row {
    std::string (*write)(const GameStateRecord& game);
    void (*read)(GameStateRecord& game, std::string_view text);
};

template <auto Field>
constexpr Row Value{
    [](const GameStateRecord& game) { return Text(game.*Field); },
    [](GameStateRecord& game, std::string_view text) { Read(game.*Field, text); },
};

/// Reads any number but 0 as True.
template <auto Field>
constexpr Row Boolean{
    [](const GameStateRecord& game) { return Text(AsBoolean(game.*Field)); },
    [](GameStateRecord& game, std::string_view text) {
        game.*Field = ReadInt32(text) == 0 ? False : True;
    },
};

/// Written as a Boolean, but keeps any number that it reads.
template <auto Field>
constexpr Row LooseBoolean{Boolean<Field>.write, Value<Field>.read};

constexpr Row Title{
    [](const GameStateRecord&) { return std::string(ApplicationTitle); },
    [](GameStateRecord&, std::string_view) {},
};

using Game = GameStateRecord;

// The order is the file's, and old games depend on it: the antivirus comes
// before programming, the wedding before the wife, daughters before sons.
constexpr std::array<Row, SavedLines> Rows{
    Title,
    Value<&Game::Money>,
    Value<&Game::Happy>,
    Value<&Game::GameTime>,
    Value<&Game::GameDate>,
    Value<&Game::PlayerName>,
    Value<&Game::WorkPay>,
    Value<&Game::CurrWork>,
    Value<&Game::WorkTitle>,
    Value<&Game::HardCPU>,
    Value<&Game::HardRAM>,
    Value<&Game::HardVideo>,
    Value<&Game::HardHDD>,
    Value<&Game::HardCDROM>,
    Value<&Game::HardComm>,
    Value<&Game::HardSound>,
    Value<&Game::HardScanner>,
    Value<&Game::HardPrinter>,
    Value<&Game::SoftOS>,
    Value<&Game::SoftAntivirus>,
    Value<&Game::SoftProgramming>,
    Value<&Game::SoftGraphic>,
    Value<&Game::SoftBrowser>,
    Value<&Game::SoftGames>,
    Value<&Game::Health>,
    Value<&Game::EatLevel>,
    Boolean<&Game::AttendCourses>,
    Boolean<&Game::AttendSchool>,
    Value<&Game::Education>,
    Value<&Game::Intelligence>,
    Value<&Game::GameLevel>,
    Value<&Game::GameSpeed>,
    Value<&Game::SoftSize>,
    LooseBoolean<&Game::Married>,
    LooseBoolean<&Game::WifeFound>,
    Value<&Game::Daughters>,
    Value<&Game::Sons>,
    Value<&Game::Alimony>,
};
static_assert(std::ranges::all_of(Rows, [](const Row& row) { return row.write && row.read; }));

} // namespace

std::string EncodeGame(const GameStateRecord& game)
{
    std::string text;
    for (const Row& row : Rows) {
        text += row.write(game);
        text += LineBreak;
    }
    text.resize(text.size() - LineBreak.size());
    return ShiftCharsDown(ToWindows1251(text));
}

SavedGame DecodeGame(std::string_view bytes)
{
    SavedGame lines = Split(ShiftCharsUp(std::string(bytes)), LineBreak);
    if (lines.size() > SavedLines) {
        throw RuntimeError{error::Subscript, {}};
    }
    std::ranges::transform(lines, lines.begin(), FromWindows1251);
    return lines;
}

void ReadField(GameStateRecord& game, std::size_t line, std::string_view text)
{
    Rows.at(line - 1).read(game, text);
}

} // namespace torvenhall
