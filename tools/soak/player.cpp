#include "player.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "activities/education.h"
#include "activities/services.h"
#include "activities/work.h"
#include "core/basGame.h"
#include "core/demands.h"
#include "core/remembered.h"
#include "core/running.h"
#include "core/traps.h"
#include "core/unwinding.h"
#include "equipment/catalogue.h"
#include "equipment/shops.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "game/programs.h"
#include "invariants.h"
#include "network/network.h"
#include "resources/anecdotes.h"
#include "resources/modJpegInside.h"
#include "savegame/format.h"
#include "savegame/savegame.h"
#include "system/basSystem.h"

namespace torvenhall::soak
{

namespace
{

constexpr std::size_t ActionsKept = 40;
constexpr int DeepestAct = 3; ///< routines within another one's waits

/// What a player can do in some window, how often, and when its button works.
struct Action {
    std::string_view name;
    int weight;
    void (*handler)(Chance& chance);
    bool (*isOffered)() = [] { return true; };
};

const ServiceWindow& SomeService(Chance& chance)
{
    const ServiceWindow* const all[]{&Entertainment, &Hospital, &FoodShop};
    return *chance.In(all);
}

void BuyAnyService(Chance& chance)
{
    const ServiceWindow& window = SomeService(chance);
    BuyService(window,
               static_cast<std::size_t>(chance.Of(static_cast<int>(window.services.size()))));
}

void BuyAnyHardware(Chance& chance)
{
    const int category = chance.Of(HardwareCategories);
    if (HardwareOffer(category).available) {
        BuyNextHardware(category);
    }
}

void InstallAnySoftware(Chance& chance)
{
    const int category = chance.Of(SoftwareCategories);
    if (SoftwareOffer(category).available) {
        InstallNextSoftware(category);
    }
}

void OpenAnyWindow(Chance& chance)
{
    constexpr std::array<std::string_view, 4> pictures{"HARD", "SOFT", "NET", "WORK"};
    constexpr std::array<std::byte, 4> bytes{};
    LoadFormPicture(chance.In(pictures), bytes);
}

void ChooseSpeed(Chance& chance)
{
    constexpr std::array speeds{15, 30, 60, 60, 60, 60};
    SetGameSpeed(chance.In(speeds));
}

void ChooseLevel(Chance&)
{
    Int16 same = GameState.GameLevel;
    SetGameLevel(same);
}

template <auto* procedure>
void Do(Chance&)
{
    procedure();
}

bool IsOnline()
{
    return Network().InetConnected == True;
}
bool IsOnBoard()
{
    return Network().BbsConnected == True;
}

constexpr std::array Actions{
    Action{"apply for a job", 60, [](Chance& chance) { ApplyForJob(chance.Of(JobButtons)); }},
    Action{"buy a service", 100, BuyAnyService},
    Action{"buy hardware", 100, BuyAnyHardware},
    Action{"install software", 80, InstallAnySoftware},
    Action{"school", 10, Do<ToggleSchool>, [] { return !LoadEducation().schoolDone; }},
    Action{"courses", 10, Do<ToggleCourses>, [] { return !LoadEducation().coursesDone; }},
    Action{"go online", 20, Do<GoOnline>},
    Action{"dial the Internet", 40, Do<DialInternet>, [] { return Network().inetDialEnabled; }},
    Action{"dial the board", 30, Do<DialBoard>, [] { return Network().bbsDialEnabled; }},
    Action{"hang up", 10, Do<DialBoard>},
    Action{"receive", 40, Do<ReceiveFromBoard>, IsOnBoard},
    Action{"send", 20, Do<SendToBoard>, IsOnBoard},
    Action{"download", 40, Do<DownloadSoftware>,
           [] { return IsOnline() && Network().downloadEnabled; }},
    Action{"download the antivirus", 20, Do<DownloadAntivirus>, IsOnline},
    Action{"read an anecdote", 20, [](Chance&) { GetAnecdote(); }, IsOnline},
    Action{"open a window", 5, OpenAnyWindow},
    Action{"pause", 10, Do<PauseGame>},
    Action{"choose the speed", 20, ChooseSpeed},
    Action{"choose the level", 5, ChooseLevel},
    Action{"read the manual", 5, Do<ShowReadme>},
    Action{"read the licence", 5, Do<ShowLicence>},
    Action{"system information", 5, Do<StartSysInfo>},
    Action{"enter a code word", 4, Do<EnterCheat>},
    Action{"save", 6, Do<SaveGame>},
    Action{"load", 5, Do<LoadGame>},
    Action{"new game", 1, Do<NewGame>},
    Action{"close the program", 1, Do<CloseProgram>},
};

const Action& AnyAction(Chance& chance)
{
    static const int all = [] {
        int sum = 0;
        for (const Action& action : Actions) {
            sum += action.weight;
        }
        return sum;
    }();
    int drawn = chance.Of(all);
    for (const Action& action : Actions) {
        drawn -= action.weight;
        if (drawn < 0) {
            return action;
        }
    }
    return Actions.front();
}

/// Buys the dearest service that leaves something of the money and changes a
/// statistic for the better.
void Restore(const ServiceWindow& window, Stat stat)
{
    const Service* best = nullptr;
    std::size_t index = 0;
    for (std::size_t i = 0; i < window.services.size(); ++i) {
        const Service& service = window.services[i];
        const bool helps = std::ranges::any_of(service.changes, [&](const Change& change) {
            return change.stat == stat && change.amount > 0;
        });
        if (helps && !ServiceRefusal(window, service) &&
            (best == nullptr || best->price < service.price)) {
            best = &service;
            index = i;
        }
    }
    if (best != nullptr) {
        BuyService(window, index);
    }
}

} // namespace

Player::Player(int playedLevel, std::uint64_t seed, std::string folderOfGames)
    : window(chance, playedLevel), chance(seed), dice(seed), level(playedLevel),
      folder(std::move(folderOfGames))
{
    window.tick = [this] { Tick(); };
    window.act = [this] { Act(); };
}

void Player::Play(std::int64_t moreDays)
{
    const std::int64_t until = days + moreDays;
    while (days < until) {
        if (starts == 0 || window.ended) {
            StartProgram();
        } else {
            window.Pass(1);
        }
    }
}

void Player::StartProgram()
{
    ++starts;
    window.Reset();
    lifeSeen = -1; // each program counts its lives anew
    ResetRules();
    Connect({&window, &dice, &window});
    SetDirectories(TORVENHALL_ASSETS, folder);
    Enter("start", Main);
}

void Player::Tick()
{
    ++depth;
    EnterTick();
    --depth;
    // Most ticks change nothing but the time.
    Check(GameState.GameDate != dateSeen || LifeNumber() != lifeSeen);
}

void Player::Act()
{
    if (window.paused) {
        if (chance.Once(4)) {
            Enter("go on", ResumeGame);
        }
    } else if (depth < DeepestAct && chance.Once(depth == 0 ? 16 : 40)) {
        const Action& action = AnyAction(chance);
        if (action.isOffered()) {
            Enter(action.name, [this, &action] { action.handler(chance); });
        }
    } else if (depth == 0 && style != Style::Careless && chance.Once(10)) {
        Enter("look after oneself", [this] { LookAfterOneself(); });
        if (style == Style::Spoilt) {
            Spoil();
        }
    }
}

/// What keeps a person alive and, in the end, wins.
void Player::LookAfterOneself()
{
    for (int job = TopJob; GameState.CurrWork < job; --job) {
        if (AreMet(At(Jobs, job).demands)) {
            ApplyForJob(job - 1);
        }
    }
    if (GameState.EatLevel < 20) {
        Restore(FoodShop, Stat::EatLevel);
    }
    if (GameState.Health < 20) {
        Restore(Hospital, Stat::Health);
    }
    if (GameState.Happy < 0) {
        Restore(Entertainment, Stat::Happy);
    }
    if (GameState.AttendSchool == False) {
        ToggleSchool();
    }
    if (GameState.AttendCourses == False && GameState.Money > 300) {
        ToggleCourses();
    }
    for (int category = 0; category < HardwareCategories; ++category) {
        const Offer offer = HardwareOffer(category);
        if (offer.available && GameState.Money > offer.price + 300) {
            BuyNextHardware(category);
        }
    }
}

/// Whatever is short is had for a word.
void Player::Spoil()
{
    const struct {
        bool isShort;
        std::string_view word;
    } needs[]{
        {GameState.Money < 50000, "QUOKKAFOX"},
        {GameState.Happy < 50, "ZEPHR"},
        {GameState.EatLevel < 50, "MARLIN"},
        {GameState.Health < 50, "WOMBAT"},
    };
    for (const auto& [isShort, word] : needs) {
        if (isShort) {
            window.word = word;
            Enter(word, EnterCheat);
        }
    }
}

void Player::Enter(std::string_view action, const std::function<void()>& handler)
{
    ++actions;
    last.push_back(DateText(GameState.GameDate) + " " + TimeText(GameState.GameTime) + " " +
                   std::string(2 * static_cast<std::size_t>(depth), ' ') + std::string(action));
    if (last.size() > ActionsKept) {
        last.pop_front();
    }
    ++depth;
    EnterRules(handler);
    --depth;
    CheckLoaded();
    Check(true);
}

/// A game that has just been loaded would be saved as the same file.
void Player::CheckLoaded()
{
    const auto name = std::exchange(window.loaded, {});
    if (name && ReadWholeFile(folder + "SAVE/" + *name + ".QVS") != EncodeGame(GameState)) {
        throw Violation{"\"" + *name + "\" is not the game that was loaded"};
    }
}

/// Holds what must hold after each tick; the whole of it on demand.
void Player::Check(bool whole)
{
    if (window.ended != ProgramHasEnded()) {
        throw Violation{"the windows and the rules disagree about the program's end"};
    }
    using enum Running::What;
    if (window.ended || Running::Now(LastBox) || Running::Now(NewGame) || Running::Now(Load)) {
        return;
    }
    CheckTime();
    if (!whole) {
        return;
    }
    if (window.begun) {
        CheckFreshLife(window);
        window.begun.reset();
        style = static_cast<Style>(chance.Of(3));
        ++lives;
    }
    CheckState(window, level, !window.cheats);
    if (depth == 0) {
        CheckIdle(window);
    }
}

void Player::CheckTime()
{
    const std::chrono::sys_days date{GameState.GameDate};
    const auto [hour, minute] = GameState.GameTime;
    const std::chrono::days begun{Running::Now(Running::What::Day) ? 1 : 0};
    const auto time = std::chrono::minutes{(date + begun).time_since_epoch()} +
                      std::chrono::minutes{60 * hour + minute};
    const auto passed = date - std::chrono::sys_days{dateSeen};
    if (lifeSeen == LifeNumber() && starts > 0 && !window.begun) {
        if (passed.count() != 0 && passed.count() != 1) {
            throw Violation{"the date went from " + DateText(dateSeen) + " to " +
                            DateText(GameState.GameDate)};
        }
        if (time < timeSeen) {
            throw Violation{"the clock went back"};
        }
        days += passed.count();
    }
    lifeSeen = LifeNumber();
    dateSeen = GameState.GameDate;
    timeSeen = time;
}

std::string Player::LastActions() const
{
    std::string lines;
    for (const std::string& line : last) {
        lines += "    " + line + "\n";
    }
    return lines;
}

} // namespace torvenhall::soak
