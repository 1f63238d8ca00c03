#include "watch.h"

#include <QDir>
#include <QThread>

#include <array>

#include "core/playclock.h"
#include "core/running.h"
#include "core/shown.h"
#include "core/unwinding.h"
#include "labels.h"
#include "network/network.h"
#include "savegame/format.h"
#include "system/basSystem.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::robot
{

namespace
{

using What = Running::What;

/// For these a routine waits.
bool IsWaitedFor(const QWidget& window)
{
    static const QStringList names{"MessageBox", "InputBox", "frmPlayerName", "frmLocGame",
                                   "frmVirus"};
    return names.contains(window.objectName());
}

} // namespace

QString Watch::Violation(const Action& last)
{
    before = begun ? now : Now();
    now = Now();
    begun = true;
    newGames += now.newGame && (!before.newGame || newGames == 0);
    const bool closes = Running::Now(What::Closing);
    if (ProgramHasEnded()) {
        return {};
    }
    ++checks;
    constexpr std::array<Rule, 10> rules{
        &Watch::WrongWindows, &Watch::WrongLabels, &Watch::OldWindow, &Watch::LeftWaiting,
        &Watch::NestedLoop,   &Watch::OverLastBox, &Watch::Reopened,  &Watch::NotFresh,
        &Watch::RanBack,      &Watch::StrayFile,
    };
    for (const Rule rule : rules) {
        if (QString violation = (this->*rule)(); !violation.isEmpty()) {
            return violation;
        }
    }
    closing = closing || closes;
    return WentOnWhileStill(last);
}

Watch::Moment Watch::Now() const
{
    // Not what the rules think of it.
    const bool still =
        screen.Find("frmPause") || Running::Now(What::Closing) || Running::Now(What::LastBox);
    return {.newGame = Running::Now(What::NewGame),
            .still = still,
            .day = Running::Now(What::Day),
            .life = LifeNumber(),
            .date = GameState.GameDate,
            .time = GameState.GameTime,
            .game = GameState,
            .message = ShownAt(Label::lblMessage).text};
}

int Watch::Count(const QString& name) const
{
    const auto windows = screen.Windows();
    return static_cast<int>(
        std::ranges::count(windows, name, [](auto* each) { return each->objectName(); }));
}

QString Watch::WrongWindows() const
{
    const auto all = static_cast<int>(screen.Windows().size());
    const int main = Count("frmMain"), name = Count("frmPlayerName"), boxes = Count("MessageBox");
    // A life that is offered, or whose lines are applied behind the boxes.
    const bool offered = main == 0 && all == boxes && (now.life == 0 || Running::Now(What::Load));
    const bool right = offered       ? true
                       : now.newGame ? main == 0 && name <= 1 && all >= 1 && all == name + boxes
                                     : main == 1 && name == 0;
    QStringList names;
    for (const QWidget* each : screen.Windows()) {
        names << each->objectName();
    }
    if (!right) {
        return (now.newGame ? "in a new game: " : "windows: ") + names.join(' ');
    }
    return screen.Usable().empty() ? "no window can be used: " + names.join(' ') : QString();
}

QString Watch::WrongLabels() const
{
    const QWidget* main = screen.Find("frmMain");
    if (!main || now.newGame) {
        return {};
    }
    const QString title = "Marshend Torvenhall 1.5 - " + Text(GameState.PlayerName);
    // A load that kills stops half way, too.
    const bool half = Running::Now(What::Load) || Running::Now(What::LastBox);
    if (main->windowTitle() != title && !half) {
        return "title: " + main->windowTitle();
    }
    return WrongLabel(*main);
}

QString Watch::OldWindow() const
{
    const bool between = Running::Now(What::LastBox) || Running::Now(What::Load) || now.newGame;
    for (const QWidget* each : screen.Windows()) {
        if (!between && IsWaitedFor(*each) && Screen::LifeOf(*each) != now.life) {
            return each->objectName() + " of another life: " + each->windowTitle();
        }
    }
    return {};
}

QString Watch::LeftWaiting() const
{
    std::size_t windows = 0;
    for (const QWidget* each : screen.Windows()) {
        windows += IsWaitedFor(*each);
    }
    const NetworkState& network = Network();
    const std::size_t forTime = frontEnd.WaitingForTime();
    const int transfers = network.inetWaits + network.bbsWaits;
    const auto typing = static_cast<int>(forTime) - transfers;
    const bool appears = PlayStandsStill() && !screen.Find("frmPause"); // a life that goes on
    if (frontEnd.Waiting() != windows + forTime || typing < 0 ||
        typing > (now.day || appears ? 1 : 0)) {
        return QString("%1 routines wait: %2 for a window, %3 for a time, %4 of these for a line")
            .arg(frontEnd.Waiting())
            .arg(windows)
            .arg(forTime)
            .arg(transfers);
    }
    return {};
}

QString Watch::NestedLoop() const
{
    const int level = QThread::currentThread()->loopLevel();
    return level == 1 ? QString() : QString("event loops: %1").arg(level);
}

/// A person who has died does nothing any more.
QString Watch::OverLastBox() const
{
    if (!Running::Now(What::LastBox)) {
        return {};
    }
    return now.day || frontEnd.WaitingForTime() > 0 ? "the dead person's day goes on" : "";
}

/// Whoever closes the program is not asked for the next life's name.
QString Watch::Reopened() const
{
    const bool another = now.newGame || Running::Now(What::LastBox);
    return closing && another ? "another life after the closing question" : "";
}

QString Watch::NotFresh() const
{
    if (!before.newGame || now.newGame) {
        return {};
    }
    Game fresh;
    fresh.Money = 15;
    fresh.Happy = 25;
    fresh.EatLevel = 75;
    fresh.Health = 40;
    fresh.Education = 1;
    fresh.Intelligence = 20;
    fresh.WorkTitle = "Безработный";
    fresh.PlayerName = GameState.PlayerName;
    fresh.GameLevel = GameState.GameLevel;
    fresh.AttendCourses = GameState.AttendCourses; // a new game leaves them
    fresh.AttendSchool = GameState.AttendSchool;
    const bool same = EncodeGame(fresh) == EncodeGame(GameState) && now.message.empty();
    return same ? QString() : "a new life that is not new: " + Sight();
}

/// The clock that one sees.
QString Watch::RanBack() const
{
    if (before.life != now.life || before.newGame || now.date == LastDay) {
        return {};
    }
    const auto seen = [](const Moment& moment) {
        const auto day = std::chrono::sys_days{moment.date} + std::chrono::days{moment.day};
        return std::tuple(day, moment.time.hour, moment.time.minute);
    };
    return seen(now) < seen(before) && !now.newGame ? "the clock runs back: " + Sight() : "";
}

QString Watch::WentOnWhileStill(const Action& last) const
{
    if (last.value(0) != "wait" || !before.still || !now.still || before.life != now.life) {
        return {};
    }
    const bool same = before.message == now.message && before.time == now.time &&
                      before.date == now.date && before.game.Happy == now.game.Happy;
    return same ? QString() : "time passed that stands still: " + Sight();
}

QString Watch::StrayFile() const
{
    for (const QString& file : QDir(Text(DataDirectory()) + "SAVE").entryList(QDir::Files)) {
        if (!file.endsWith(".QVS")) {
            return "a stray file: " + file;
        }
    }
    return {};
}

QString Watch::LeftAtTheEnd() const
{
    const auto windows = screen.Windows();
    return windows.empty() ? QString() : "after the end: " + windows.front()->objectName();
}

} // namespace torvenhall::robot
