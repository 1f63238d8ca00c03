#include "invariants.h"

#include <algorithm>
#include <array>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/playclock.h"
#include "core/running.h"
#include "core/title.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "network/network.h"
#include "savegame/format.h"
#include "system/convert.h"

namespace torvenhall::soak
{

namespace
{

using enum Label;

void Hold(bool holds, std::string_view what)
{
    if (!holds) {
        throw Violation{std::string(what)};
    }
}

void HoldRange(std::string_view name, Int32 value, int least, int most)
{
    if (value < least || value > most) {
        throw Violation{std::string(name) + " is " + Decimal(value) + ", not " +
                        std::to_string(least) + ".." + std::to_string(most)};
    }
}

void HoldLabel(const Window& window, Label label, std::string_view text, bool red = false)
{
    const auto& [shown, colour] = window.told[label];
    if (shown != text || (colour == TextColour::Red) != red) {
        throw Violation{std::string(LabelNames[label]) + " shows \"" + shown + "\"" +
                        (colour == TextColour::Red ? " in red" : "") + " for \"" +
                        std::string(text) + "\""};
    }
}

constexpr int Largest = 32767, Smallest = -32768;

void CheckPerson(int level, bool honest)
{
    const Game& game = GameState;
    HoldRange("Happy", game.Happy, -74, Largest);
    HoldRange("Health", game.Health, -49, Largest);
    HoldRange("EatLevel", game.EatLevel, -34, Largest);
    HoldRange("Education", game.Education, 1, honest ? TopRank : Largest);
    HoldRange("Intelligence", game.Intelligence, 20, honest ? FullIntelligence : Largest);
    HoldRange("GameLevel", game.GameLevel, level, level);
    HoldRange("WinMoney", game.WinMoney, std::array{30000, 10000, 5000}.at(level),
              std::array{30000, 10000, 5000}.at(level));
    Hold(game.GameSpeed == 15 || game.GameSpeed == 30 || game.GameSpeed == 60, "GameSpeed");
    for (const Int16 flag : {game.Married, game.WifeFound, game.AttendCourses, game.AttendSchool}) {
        HoldRange("a Boolean", flag, -1, 0);
    }
    HoldRange("Restarting", game.Restarting, 0, 0);
    HoldRange("Sons", game.Sons, 0, 3);
    HoldRange("Daughters", game.Daughters, 0, 3);
    HoldRange("the children", game.Sons + game.Daughters, 0, 3);
    HoldRange("Alimony", game.Alimony, 0, 3 * 50);
    Hold(game.Married == False || game.WifeFound == True, "married to nobody");
    Hold(game.Alimony == 0 || (game.Married == False && game.WifeFound == True),
         "alimony without a divorce");
    Hold(game.GameDate.ok() && game.GameDate >= FirstDay && game.GameTime.ok(), "the date");
    HoldRange("CurrWork", game.CurrWork, 0, TopJob);
    const Job& job = At(Jobs, game.CurrWork);
    Hold(game.WorkPay == job.pay && game.WorkTitle == job.title, "another job's pay or title");
}

void CheckComputer(const Window& window)
{
    HoldRange("SoftSize", GameState.SoftSize, 0, Largest);
    HoldLabel(window, lblOther, Decimal(GameState.SoftSize) + " Мб");
    for (int category = 0; category < HardwareCategories; ++category) {
        const Int16 part = HardwareField(category);
        Hold(!GetHardwareName(category, part).empty(), "no such part");
        HoldLabel(window, At(Hardware, category).label, GetHardwareName(category, part));
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        const SoftwareCategory& row = At(Software, category);
        const Int16 program = SoftwareField(category);
        Hold(ProgramOf(category, program) != nullptr, "no such program");
        // A program that is stored as another one is shown by its own name.
        const std::string& shown = window.told[row.label].text;
        const bool isStandIn = std::ranges::any_of(row.programs, [&](const Program& other) {
            return other.storedAs != 0 && other.storedAs == program && other.name == shown;
        });
        if (!isStandIn) {
            HoldLabel(window, row.label, std::string(GetSoftwareName(category, program)));
        }
    }
    HoldRange("the computer", HardwareScore(), 0, CompleteComputer);
}

std::string Family()
{
    if (GameState.WifeFound == False) {
        return "NO WIFE";
    }
    return (GameState.Married == True ? "PRST:" : "LEFT:") + Decimal(GameState.Sons) + ":" +
           Decimal(GameState.Daughters);
}

void CheckLabels(const Window& window)
{
    for (std::size_t i = 0; i < CountOf<Label>; ++i) {
        const auto label = static_cast<Label>(i);
        HoldLabel(window, label, ShownAt(label).text, ShownAt(label).colour == TextColour::Red);
    }
    const Game& game = GameState;
    HoldLabel(window, lblMoney, "$" + Decimal(game.Money));
    HoldLabel(window, lblHappy, Decimal(game.Happy) + "%", game.Happy < -100);
    HoldLabel(window, lblHealth, Decimal(game.Health) + "%", game.Health < -30);
    HoldLabel(window, lblEat, Decimal(game.EatLevel) + "%", game.EatLevel < -20);
    HoldLabel(window, lblEducation, Decimal(game.Intelligence) + "%");
    HoldLabel(window, lblStatus, std::string(ShowStatus(game.Education)));
    HoldLabel(window, lblFamily, Family());
    HoldLabel(window, lblCurrWork,
              "Работа: " + game.WorkTitle + " ($" + Decimal(game.WorkPay) + "/день)");
    constexpr std::array levels{"Сложная", "Нормальная", "Лёгкая"};
    HoldLabel(window, lblGameLevel, std::string("Сложность: ") + At(levels, game.GameLevel));
    HoldLabel(window, lblGameSpeed,
              std::string("Скорость игры: ") + (game.GameSpeed == 15   ? "Медленная"
                                                : game.GameSpeed == 30 ? "Нормальная"
                                                                       : "Быстрая"));
    // While a day's events run, the day that has begun.
    const std::chrono::sys_days date{game.GameDate};
    const Date shown{date + std::chrono::days{Running::Now(Running::What::Day) ? 1 : 0}};
    HoldLabel(window, lblTime, LongDateText(shown) + " г. - " + TimeText(game.GameTime));
    Hold(window.title == std::string(ApplicationTitle) + " - " + game.PlayerName, "the title");
}

} // namespace

void CheckState(const Window& window, int level, bool honest)
{
    Hold(window.isThere && window.isShown, "no main window is shown");
    HoldRange("Money", GameState.Money, -1'000'000'000, 1'000'000'000);
    CheckPerson(level, honest);
    CheckComputer(window);
    CheckLabels(window);
}

void CheckFreshLife(const Window& window)
{
    Game fresh;
    fresh.PlayerName = window.begun->name;
    fresh.Money = 15;
    fresh.Happy = 25;
    fresh.Health = 40;
    fresh.EatLevel = 75;
    fresh.Education = 1;
    fresh.Intelligence = 20;
    fresh.WorkTitle = "Безработный";
    fresh.GameLevel = GameState.GameLevel;
    fresh.AttendCourses = GameState.AttendCourses; // a new game leaves the attendance
    fresh.AttendSchool = GameState.AttendSchool;
    Hold(EncodeGame(GameState) == EncodeGame(fresh), "a new life keeps something of another");
    HoldLabel(window, lblMessage, "");
    Hold(window.timerRuns && !window.paused, "a new life with a stopped clock");
}

void CheckIdle(const Window& window)
{
    for (std::size_t i = 0; i < CountOf<Running::What>; ++i) {
        Hold(!Running::Now(static_cast<Running::What>(i)),
             "something is believed to run: " + std::to_string(i));
    }
    Hold(PlayStandsStill() == window.paused && window.timerRuns != window.paused,
         "the clock and the pause disagree");
    const NetworkState& network = Network();
    Hold(network.inetWaits == 0 && network.bbsWaits == 0 && network.transfers == 0 &&
             network.calls == 0,
         "the network is believed to be busy");
    Hold(network.inetDialEnabled && network.bbsDialEnabled, "a call cannot be made any more");
    for (const auto& [isUp, status] : {std::pair(network.InetConnected, network.inetStatus),
                                       std::pair(network.BbsConnected, network.bbsStatus)}) {
        HoldRange("a line", isUp, -1, 0);
        Hold(status == (isUp == True ? "Status: Connected" : "Status: Disconnected"),
             "a line's status says " + status);
    }
}

} // namespace torvenhall::soak
