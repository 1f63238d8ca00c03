#include "lives/player.h"

#include <algorithm>
#include <chrono>

#include "activities/virus.h"
#include "core/basGame.h"
#include "core/remembered.h"
#include "core/shown.h"
#include "core/unwinding.h"
#include "game/clock.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "savegame/savegame.h"
#include "system/basSystem.h"

namespace torvenhall::lives
{

namespace
{

constexpr double TickSeconds = 0.25;
constexpr int FastSpeed = 60;
constexpr TimeOfDay LastHour{23, 0};
constexpr double TimeToRead = 1; ///< a wait longer than that is for reading, not for typing
constexpr std::string_view EveningGame = "evening";

int DaysSinceBirth()
{
    return static_cast<int>(
        (std::chrono::sys_days{GameState.GameDate} - std::chrono::sys_days{FirstDay}).count());
}

/// What a box tells of the end of a life; Alive where it tells something else.
End EndTold(const MessageBox& box)
{
    const struct {
        std::string_view words;
        End end;
    } lastWords[]{{"Вы скончались", End::Illness},
                  {"Вы умерли", End::Hunger},
                  {"Вы спрыгнули", End::Leap},
                  {"Вы прошли", End::Won}};
    const auto* told = std::ranges::find_if(
        lastWords, [&](const auto& one) { return box.text.starts_with(one.words); });
    return told != std::end(lastWords) ? told->end : End::Alive;
}

} // namespace

Player::Player(const Policy& policyPlayed, int difficulty, std::uint64_t seed,
               const std::string& folder)
    : policy(policyPlayed), level(difficulty), dice(seed, clock)
{
    ResetRules();
    Connect({this, &dice, &clock});
    SetDirectories(folder, folder);
    story.dayOfJob.fill(Never);
}

Player::~Player()
{
    Connect({});
}

Story Player::Live(int mostDays)
{
    EnterRules(NewGame);
    EnterRules([] { SetGameSpeed(FastSpeed); });
    Act(policy.begin);
    while (!ProgramHasEnded() && story.days < mostDays) {
        Tick();
        if (isDead) {
            Load();
        } else if (!ProgramHasEnded() && GameState.GameDate != dateSeen) {
            SeeTheDay();
        }
        // A message may have taken the whole day, but there is time to act first.
        if (policy.loadsPerNight > 0 && GameState.GameTime == LastHour && !ProgramHasEnded()) {
            SaveTheEvening();
        }
    }
    return story;
}

void Player::Tick()
{
    nextTick += TickSeconds;
    clock.seconds = std::max(clock.seconds, nextTick);
    EnterTick();
}

/// The player pauses the game and acts; the clock stands still meanwhile.
void Player::Act(void (*deed)())
{
    const bool isWatched = static_cast<bool>(afterActing);
    const Game before = isWatched ? GameState : Game{};
    EnterRules(PauseGame);
    EnterRules(deed);
    EnterRules(ResumeGame);
    for (int job = 0; job <= GameState.CurrWork.value(); ++job) {
        auto& day = story.dayOfJob[static_cast<std::size_t>(job)];
        day = day == Never ? DaysSinceBirth() : day;
    }
    if (isWatched) {
        afterActing(before);
    }
}

void Player::SeeTheDay()
{
    ++story.daysPlayed;
    if (MayLoad() && policy.wasBad(evening, loadsThisNight)) {
        Load();
        return;
    }
    loadsThisNight = 0;
    dateSeen = GameState.GameDate;
    story.days = DaysSinceBirth();
    story.money = GameState.Money.value();
    RememberMonth();
    Act(policy.morning);
}

void Player::RememberMonth()
{
    if (GameState.GameDate.day() == std::chrono::day{1} && story.months < MonthsRemembered) {
        story.moneyByMonth[static_cast<std::size_t>(story.months++)] = GameState.Money.value();
    }
}

bool Player::MayLoad() const
{
    return hasSaved && loadsThisNight < policy.loadsPerNight;
}

void Player::SaveTheEvening()
{
    if (hasSaved && evening.GameDate == GameState.GameDate) {
        return; // the night is lived through again
    }
    EnterRules(PauseGame);
    EnterRules([] { SaveGame(); });
    EnterRules(ResumeGame);
    evening = GameState;
    hasSaved = true;
}

void Player::Load()
{
    ++story.loads;
    ++loadsThisNight;
    isDead = false;
    EnterRules(LoadGame);
    dateSeen = GameState.GameDate;
}

Answer Player::ShowMessageBox(const MessageBox& box)
{
    const End end = EndTold(box);
    if (end != End::Alive) {
        const bool won = end == End::Won;
        isDead = !won && MayLoad();
        story.end = isDead ? End::Alive : end;
        story.days = DaysSinceBirth() + (won ? 0 : 1); // the date moves after the day's events
        story.money = GameState.Money.value();
    }
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}

/// Cancelling the dialog after the end of the life ends the program.
std::optional<NewPlayer> Player::AskName(const NewPlayer& /*shown*/)
{
    if (story.end != End::Alive) {
        return std::nullopt;
    }
    return NewPlayer{"Иван", level};
}

std::optional<std::string> Player::AskGameName(const GameNameQuestion& /*question*/)
{
    return std::string(EveningGame);
}

/// Ticks go on while a message is being typed. When it can be read, the player
/// does what there is time for.
void Player::Wait(double seconds)
{
    constexpr double least = 1e-6; // what is left may be too little to move the clock at all
    const double until = clock.seconds + std::max(seconds, least);
    if (seconds > TimeToRead && !ShownAt(Label::lblMessage).text.empty()) {
        Act(policy.warned);
    }
    while (nextTick + TickSeconds <= until && !ProgramHasEnded() && !isDead) {
        Tick();
    }
    clock.seconds = std::max(clock.seconds, until);
}

void Player::OpenWindow(std::string_view window)
{
    if (window == window::frmVirus) {
        EnterRules(FightVirus);
    }
}

} // namespace torvenhall::lives
