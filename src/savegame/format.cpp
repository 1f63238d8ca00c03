#include "savegame/format.h"

#include <algorithm>
#include <array>

#include "core/basGame.h"
#include "core/title.h"
#include "core/traps.h"
#include "equipment/basEquipment.h"
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

/// One line: how it is written, how it is read and, if its value is shown as
/// soon as it is read, the setter through which a load applies it.
struct Row {
    std::string (*write)(const Game& game);
    void (*read)(Game& game, std::string_view text);
    void (*set)(Game& read) = nullptr;
};

template <auto Field>
constexpr auto WriteValue = [](const Game& game) { return Text(game.*Field); };

template <auto Field>
constexpr auto ReadValue = [](Game& game, std::string_view text) { Read(game.*Field, text); };

template <auto Field>
constexpr auto WriteBoolean = [](const Game& game) { return Text(AsBoolean(game.*Field)); };

/// Reads any number but 0 as True.
template <auto Field>
constexpr auto ReadBoolean =
    [](Game& game, std::string_view text) { game.*Field = ReadInt32(text) == 0 ? False : True; };

template <auto Field>
constexpr Row Value{WriteValue<Field>, ReadValue<Field>};

template <auto Field, auto Setter>
constexpr Row Shown{WriteValue<Field>, ReadValue<Field>, [](Game& read) { Setter(read.*Field); }};

template <auto Field>
constexpr Row Boolean{WriteBoolean<Field>, ReadBoolean<Field>};

/// Written as a Boolean, but keeps any number that it reads.
template <auto Field>
constexpr Row LooseBoolean{WriteBoolean<Field>, ReadValue<Field>};

constexpr Row Title{
    [](const Game&) { return std::string(ApplicationTitle); },
    [](Game&, std::string_view) {},
};

// The order is the file's, and old games depend on it: the antivirus comes
// before programming, the wedding before the wife, daughters before sons.
constexpr std::array<Row, SavedLines> Rows{
    Title,
    Shown<&Game::Money, SetMoney>,
    Shown<&Game::Happy, SetHappy>,
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
    Shown<&Game::Health, SetHealth>,
    Shown<&Game::EatLevel, SetEatLevel>,
    Boolean<&Game::AttendCourses>,
    Boolean<&Game::AttendSchool>,
    Shown<&Game::Education, SetEducation>,
    Shown<&Game::Intelligence, SetIntelligence>,
    Shown<&Game::GameLevel, SetGameLevel>,
    Shown<&Game::GameSpeed, SetGameSpeed>,
    Shown<&Game::SoftSize, SetSoftSize>,
    LooseBoolean<&Game::Married>,
    LooseBoolean<&Game::WifeFound>,
    Value<&Game::Daughters>,
    Value<&Game::Sons>,
    Value<&Game::Alimony>,
};
static_assert(std::ranges::all_of(Rows, [](const Row& row) { return row.write && row.read; }));

} // namespace

std::string EncodeGame(const Game& game)
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
        throw RuntimeError{error::Subscript};
    }
    std::ranges::transform(lines, lines.begin(), FromWindows1251);
    return lines;
}

bool IsLine(std::size_t line, std::string_view text)
{
    if (line == 1) {
        return text == ApplicationTitle;
    }
    Game read;
    return ErrorOf([&] { Rows[line - 1].read(read, text); }).number == 0;
}

std::optional<Game> WholeGame(const SavedGame& lines)
{
    if (lines.size() != SavedLines || lines.front() != ApplicationTitle) {
        return std::nullopt;
    }
    try {
        Game read;
        for (std::size_t i = 0; i < SavedLines; ++i) {
            Rows[i].read(read, lines[i]);
        }
        return read;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

void ApplyLine(std::size_t line, std::string_view text)
{
    const Row& row = Rows[line - 1];
    if (row.set == nullptr) {
        row.read(GameState, text);
        return;
    }
    Game read;
    row.read(read, text);
    row.set(read);
}

} // namespace torvenhall
