#include "session.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <unistd.h>

#include "core/random.h"
#include "core/remembered.h"
#include "core/unwinding.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "hands.h"
#include "savegame/format.h"
#include "system/basSystem.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::robot
{

namespace
{

constexpr unsigned Patience = 60;  ///< seconds for one action, or it hangs
constexpr int GivenUp = 99;        ///< the event loop's end without the game's
constexpr int RoundsUntilIdle = 3; ///< what is posted may post something

constexpr std::pair<const char*, const char*> Endings[]{
    {"deaths", "Вы скончались"},
    {"deaths", "Вы умерли голодной"},
    {"deaths", "Вы спрыгнули"},
    {"wins", "Вы прошли всю игру"},
    {"refused names", "Введите корректное имя"},
    {"damaged games", "Некорректная версия"},
    {"errors told", "Обратитесь к разработчику"},
};

} // namespace

/// One run of the program, from its start to its end.
class Session::Program
{
public:
    Program(Session& newSession, quint64 seed)
        : session(newSession), dice(seed), frontEnd(clock), hands(session.screen, clock),
          watch(session.screen, frontEnd)
    {
        if (session.record) {
            session.record->Restart();
            session.record->WriteAtOnce({"start", QString::number(seed)});
            recorder.emplace(*session.record, clock);
        }
        if (session.journal) {
            session.journal->Restart();
        }
        Connect({&frontEnd, &dice, &clock});
    }

    void Run()
    {
        QTimer idle;
        QObject::connect(&idle, &QTimer::timeout, [this] { Idle(); });
        idle.start(0);
        QTimer::singleShot(0, qApp, [] { EnterRules(Main); });
        const int code = QApplication::exec();
        idle.stop();
        Outcome& outcome = session.outcome;
        outcome.figures["quits"] += code == 0;
        outcome.figures["checked"] += watch.checks;
        outcome.figures["new games"] += watch.newGames;
        if (outcome.violation.isEmpty() && code != GivenUp) {
            outcome.violation = !ProgramHasEnded() || code != 0
                                    ? QString("the program ended with %1").arg(code)
                                    : watch.LeftAtTheEnd();
        }
    }

    int Lives() const { return LifeNumber(); }

private:
    void Idle()
    {
        if (++rounds % RoundsUntilIdle != 0 || ProgramHasEnded()) {
            return;
        }
        clock.MoveTo(clock.Milliseconds()); // which timers stand still
        if (const QString violation = watch.Violation(last); !violation.isEmpty()) {
            session.outcome.violation = violation + " (after: " + LineOf(last) + ')';
            QCoreApplication::exit(GivenUp);
            return;
        }
        const std::optional<Action> next = session.source.Next(session.screen);
        if (!next || next->first() == "start") {
            for (Journal* each : {session.journal, session.record}) {
                if (each) {
                    each->Write({"see", Sight()}, clock); // the last wait
                }
            }
            session.over = !next;
            session.ahead = next;
            QCoreApplication::exit(GivenUp);
            return;
        }
        Do(*next);
    }

    void Do(const Action& action)
    {
        alarm(Patience);
        last = action;
        if (action.first() == "see") {
            if (action.value(1) != Sight()) {
                session.outcome.differences << LineOf(action) + " but is " + Sight();
            }
            return;
        }
        ++session.outcome.figures["actions"];
        if (session.journal && action.first() != "wait") {
            session.journal->Write(action, clock);
        }
        if (session.record && action.first() == "game") {
            session.record->Write(action, clock); // nothing that windows see
        }
        if (!hands.Do(action)) {
            ++session.outcome.figures["not possible"];
            session.outcome.differences << "cannot " + LineOf(action);
            session.source.Refused();
        }
    }

    Session& session;
    SteppedClock clock;
    ReplayableDice dice;
    QtFrontEnd frontEnd;
    std::optional<Recorder> recorder;
    Hands hands;
    Watch watch;
    Action last;
    int rounds = 0;
};

Session::Session(Source& newSource, Journal* newJournal, Journal* newRecord)
    : source(newSource), journal(newJournal), record(newRecord)
{
    SetDirectories(TORVENHALL_ASSETS, Utf8(folder.path()) + '/');
}

Outcome Session::Play()
{
    while (!over && outcome.violation.isEmpty()) {
        const std::optional<Action> next =
            ahead ? std::exchange(ahead, std::nullopt) : source.Next(screen);
        if (!next) {
            break;
        }
        if (next->first() == "start") {
            if (journal) {
                journal->WriteAtOnce(*next);
            }
            RunProgram(next->value(1));
            source.ProgramEnded();
        } else if (next->first() == "game" || next->first() == "life") {
            WriteGameFile(*next);
        }
    }
    Finish();
    return outcome;
}

void Session::RunProgram(const QString& seed)
{
    ResetRules();
    ++outcome.figures["starts"];
    {
        Program program(*this, seed.toULongLong());
        program.Run();
        outcome.figures["lives"] += program.Lives();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (outcome.violation.isEmpty() && !screen.Windows().empty()) {
        outcome.violation = "after the end: " + screen.Windows().front()->objectName();
    }
}

void Session::Finish()
{
    alarm(0);
    QDir::setCurrent(QDir::tempPath()); // the game makes its own folder the current one
    QCryptographicHash hash(QCryptographicHash::Md5);
    // Each session has a folder of its own, which errors name.
    hash.addData(screen.boxes.join('\n').remove(folder.path()).toUtf8());
    hash.addData(Sight().toUtf8());
    hash.addData(QByteArray::fromStdString(EncodeGame(GameState)));
    const QDir saves(folder.path() + "/SAVE");
    for (const QString& name : saves.entryList(QDir::Files)) {
        QFile file(saves.filePath(name));
        hash.addData(file.open(QFile::ReadOnly) ? name.toUtf8() + file.readAll() : QByteArray());
    }
    outcome.digest = hash.result().toHex();
    auto& figures = outcome.figures;
    figures["boxes"] = static_cast<int>(screen.boxes.size());
    for (const QString& box : screen.boxes) {
        for (const auto& [figure, words] : Endings) {
            figures[figure] += box.contains(words);
        }
    }
    figures["loads"] =
        figures["lives"] - figures["new games"] - figures["deaths"] - figures["wins"];
    for (const auto& [window, times] : screen.opened) {
        figures[window.isEmpty() ? "menus" : window] = times;
    }
}

Replay::Replay(const QString& path)
{
    QFile file(path);
    if (file.open(QFile::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (const Action action = ActionOf(QString::fromUtf8(line)); !action.isEmpty()) {
                actions << action;
            }
        }
    }
}

std::optional<Action> Replay::Next(const Screen& /*screen*/)
{
    return actions.isEmpty() ? std::nullopt : std::optional(actions.takeFirst());
}

} // namespace torvenhall::robot
