#include "core/basGame.h"

#include <algorithm>
#include <string>

#include "core/running.h"
#include "core/shown.h"
#include "core/unwinding.h"
#include "core/waits.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

/// One vital statistic; the bounds are meant to be uneven: a mood is shown
/// light down to -100 though it kills at -75.
struct Vital {
    Int16 Game::*field;
    Label label;
    Int16 warning; ///< red below
    Int16 fatal;   ///< the life ends at or below
    std::string_view lastWords, title;
    bool tellsTime = false; ///< of death, behind the last words
};

constexpr Vital HealthVital{&Game::Health,
                            Label::lblHealth,
                            -30,
                            -50,
                            "Вы скончались от полученных травм. Время смерти -- ",
                            "Дана Скали",
                            true};
constexpr Vital EatVital{&Game::EatLevel,
                         Label::lblEat,
                         -20,
                         -35,
                         "Вы умерли голодной смертью!",
                         "Желаю тебе быть большим и тольстым"};
constexpr Vital HappyVital{&Game::Happy,
                           Label::lblHappy,
                           -100,
                           -75,
                           "Вы спрыгнули с 15 этажа и разбились насмерть!!!",
                           "Критический уровень настроения"};

std::string Percent(Int16 value)
{
    return Decimal(value) + "%";
}

/// Shows the last box and ends the life; a person dies once.
void Die(const Vital& vital)
{
    if (Running::Now(Running::What::LastBox) || Running::Now(Running::What::NewGame)) {
        return;
    }
    std::string text(vital.lastWords);
    if (vital.tellsTime) {
        text += TimeText(GameState.GameTime);
    }
    LastBox(text, vital.title, Icon::Information);
}

void SetVital(const Vital& vital, Int16 value)
{
    GameState.*vital.field = value;
    ShowLabel(vital.label, Percent(value),
              value >= vital.warning ? TextColour::LightCyan : TextColour::Red);
    if (value <= vital.fatal) {
        Die(vital);
    }
}

constexpr const Vital* Vitals[]{&HealthVital, &EatVital, &HappyVital};

struct Level {
    int winMoney;
    std::string_view caption;
};

constexpr ByLevel<Level> Levels{{
    {30000, "Сложность: Сложная"},
    {10000, "Сложность: Нормальная"},
    {5000, "Сложность: Лёгкая"},
}};

struct Speed {
    int minutes;
    std::string_view caption;
};

constexpr std::array Speeds{
    Speed{15, "Скорость игры: Медленная"},
    Speed{30, "Скорость игры: Нормальная"},
    Speed{60, "Скорость игры: Быстрая"},
};

} // namespace

VitalBounds BoundsOf(Label vital)
{
    const Vital& found = **std::ranges::find(Vitals, vital, &Vital::label);
    return {found.warning.value(), found.fatal.value()};
}

void SetMoney(Int32 value)
{
    GameState.Money = value;
    ShowLabel(Label::lblMoney, '$' + Decimal(value));
}

void SetHealth(Int16 value)
{
    SetVital(HealthVital, value);
}

void SetEatLevel(Int16 value)
{
    SetVital(EatVital, value);
}

void SetHappy(Int16 value)
{
    SetVital(HappyVital, value);
}

void SetEducation(Int16 value)
{
    ShowLabel(Label::lblStatus, ShowStatus(value));
    GameState.Education = value;
}

void SetIntelligence(Int16 value)
{
    GameState.Intelligence = value;
    ShowLabel(Label::lblEducation, Percent(value));
}

std::string_view ShowStatus(Int16 rank)
{
    return FindOrEmpty(RankWords, Int32{rank} - 1);
}

void SetGameLevel(Int16& level)
{
    if (level == -1) {
        MsgBox("Вы не выбрали уровень сложности игры. Сложность будет установлена по-умелчанию "
               "(нормальная)",
               "Ты чё, ослеп???", Icon::Exclamation);
        level = 1;
    }
    if (const Level* chosen = Find(Levels, level)) {
        GameState.WinMoney = chosen->winMoney;
        GameState.GameLevel = level;
        ShowLabel(Label::lblGameLevel, chosen->caption);
    }
}

void SetGameSpeed(Int16 speed)
{
    GameState.GameSpeed = speed;
    for (const Speed& known : Speeds) {
        if (speed == known.minutes) {
            ShowLabel(Label::lblGameSpeed, known.caption);
        }
    }
}

} // namespace torvenhall
