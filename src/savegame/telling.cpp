#include "savegame/telling.h"

#include <array>
#include <string_view>

#include "core/title.h"
#include "core/traps.h"
#include "equipment/catalogue.h"
#include "equipment/hardware.h"
#include "equipment/software.h"
#include "savegame/format.h"
#include "system/convert.h"
#include "system/files.h"

namespace torvenhall
{

namespace
{

struct Caption {
    std::string_view russian, english;
};

// In the order of the file.
constexpr std::array<Caption, SavedLines> Captions{{
    {"Версия", "Version"},
    {"Бюджет, $", "Money, $"},
    {"Настроение, %", "Mood, %"},
    {"Время", "Time"},
    {"Дата", "Date"},
    {"Имя", "Name"},
    {"Оплата, $/день", "Pay, $ a day"},
    {"Работа, номер", "Job, number"},
    {"Работа", "Job"},
    {"Процессор", "Processor"},
    {"ОЗУ", "Memory"},
    {"Видеокарта", "Video card"},
    {"Винчестер", "Hard disk"},
    {"CD-ROM", "CD-ROM"},
    {"Модем", "Modem"},
    {"Звук", "Sound"},
    {"Сканер", "Scanner"},
    {"Принтер", "Printer"},
    {"ОС", "Operating system"},
    {"Антивирус", "Antivirus"},
    {"Программирование", "Programming"},
    {"Графика", "Graphics"},
    {"Интернет", "Internet"},
    {"Игра", "Game"},
    {"Здоровье, %", "Health, %"},
    {"Сытость, %", "Satiety, %"},
    {"Ходит на курсы", "Attends courses"},
    {"Ходит в школу", "Attends school"},
    {"Статус, ступень", "Status, rank"},
    {"Образование, %", "Education, %"},
    {"Сложность", "Difficulty"},
    {"Минут в такте", "Minutes a tick"},
    {"Прочие программы, Мб", "Other software, MB"},
    {"Женат", "Married"},
    {"Жена найдена", "Wife found"},
    {"Дочери", "Daughters"},
    {"Сыновья", "Sons"},
    {"Алименты, $/месяц", "Alimony, $ a month"},
}};

// Where the lines of the computer stand, counted from 0, and which category of
// software each is: the antivirus comes before programming.
constexpr std::size_t FirstHardware = 9;
constexpr std::size_t FirstSoftware = FirstHardware + HardwareCategories;
constexpr Int16 SoftwareOrder[]{0, 2, 1, 3, 4, 5};
constexpr std::size_t FirstBehind = FirstSoftware + SoftwareCategories;

/// What a line of the computer means; empty for other lines and unknown things.
std::string EquipmentName(std::size_t line, std::string_view text)
{
    if (line < FirstHardware || line >= FirstBehind) {
        return {};
    }
    const Int16 index = ReadInt16(text);
    return line < FirstSoftware
               ? GetHardwareName(Int16(static_cast<int>(line - FirstHardware)), index)
               : std::string(GetSoftwareName(SoftwareOrder[line - FirstSoftware], index));
}

std::string Trouble(std::size_t line, std::string_view what)
{
    return std::to_string(line) + ": " + std::string(what) + '\n';
}

} // namespace

Telling TellSavedGame(const std::string& path, bool inRussian)
{
    const auto said = [inRussian](const Caption& text) {
        return inRussian ? text.russian : text.english;
    };
    Telling telling;
    SavedGame lines;
    const std::string bytes = ReadWholeFile(path);
    if (ErrorOf([&] { lines = DecodeGame(bytes); }).number != 0) {
        telling.troubles = said(
            {"Строк больше, чем в сохранённой игре.\n", "More lines than a saved game has.\n"});
        return telling;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool possible = IsLine(i + 1, lines[i]);
        const std::string name = possible ? EquipmentName(i, lines[i]) : std::string();
        telling.text += std::string(said(Captions[i])) + ": " + lines[i] +
                        (name.empty() ? name : ", " + name) + '\n';
        if (!possible || (name.empty() && i >= FirstHardware && i < FirstBehind)) {
            telling.troubles += Trouble(
                i + 1, said({"здесь такого быть не может", "no such value can stand here"}));
        }
    }
    if (lines.size() < SavedLines) {
        telling.troubles +=
            Trouble(lines.size() + 1, said({"файл обрывается", "the file ends too soon"}));
    }
    return telling;
}

} // namespace torvenhall
