// The robot plays the game through its real windows, without a screen and in a
// time of its own, and looks after each action whether all that must hold does.
//
//   robot [--seed N] [--actions N] [--out FILE]   a clumsy player, by chance
//   robot --replay FILE                           what a file says, the robot's
//                                                 or torvenhall --record's
//   robot --twice                                 then plays what the game's own
//                                                 recorder wrote, to the same end
//
// Exit code 1: something does not hold; the file of the actions is kept.

#include <QCommandLineParser>
#include <QFileInfo>

#include <csignal>
#include <iostream>

#include <unistd.h>

#include "app/application.h"
#include "session.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace
{

using namespace torvenhall;
using namespace torvenhall::robot;

constexpr int ShortRun = 2000;
constexpr int LongRun = 20000;

struct Options {
    quint64 seed = 1;
    int actions = ShortRun;
    bool twice = false;
    QString replay, out;
};

Options ReadOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    const QCommandLineOption seed("seed", "What the chances begin with.", "n", "1");
    const QCommandLineOption actions("actions", "How many.", "n");
    const QCommandLineOption longRun("long", "As many as the long check does.");
    const QCommandLineOption twice("twice", "Replays what was recorded and compares.");
    const QCommandLineOption replay("replay", "Plays this file.", "file");
    const QCommandLineOption out("out", "Where the actions are written.", "file");
    parser.addHelpOption();
    parser.addOptions({seed, actions, longRun, twice, replay, out});
    parser.process(application);
    Options options{.seed = parser.value(seed).toULongLong(),
                    .actions = parser.isSet(longRun) ? LongRun : ShortRun,
                    .twice = parser.isSet(twice),
                    .replay = parser.value(replay),
                    .out = parser.value(out)};
    if (parser.isSet(actions)) {
        options.actions = parser.value(actions).toInt();
    }
    if (options.out.isEmpty()) {
        options.out = QString("robot-%1.actions").arg(options.seed);
    }
    options.out = QFileInfo(options.out).absoluteFilePath(); // the game changes the folder
    return options;
}

void Hangs(int)
{
    constexpr char text[] = "robot: hangs\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, text, sizeof text - 1);
    _exit(1);
}

/// The platform without a screen says all the time what it cannot do.
void TellUnlessOfPlatform(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support")) {
        std::cerr << Utf8(message) << std::endl;
    }
}

void Tell(const QString& text)
{
    std::cout << Utf8(text) << std::endl;
}

void TellOutcome(const QString& what, const Outcome& outcome)
{
    QStringList figures;
    for (const auto& [figure, number] : outcome.figures) {
        figures << QString("%1 %2").arg(figure).arg(number);
    }
    Tell(what + ": " + figures.join(", ") + "; digest " + outcome.digest);
    if (!outcome.violation.isEmpty()) {
        Tell("VIOLATION: " + outcome.violation);
    }
}

int PlayFile(const QString& file, const QString& wanted)
{
    Replay replay(file);
    const Outcome outcome = Session(replay, nullptr, nullptr).Play();
    TellOutcome("replay", outcome);
    for (const QString& each : outcome.differences.mid(0, 10)) {
        Tell("differs: " + each);
    }
    const bool same = wanted.isEmpty() || outcome.digest == wanted;
    if (!same) {
        Tell("another end than " + wanted);
    }
    return outcome.violation.isEmpty() && outcome.differences.isEmpty() && same ? 0 : 1;
}

int PlayByChance(const Options& options)
{
    const QString recorded = options.out + ".recorded";
    Tell(QString("seed %1, actions in %2").arg(options.seed).arg(options.out));
    Outcome outcome;
    {
        Journal journal(options.out), record(recorded);
        if (const QString trouble = journal.Trouble() + record.Trouble(); !trouble.isEmpty()) {
            Tell(options.out + ": " + trouble);
            return 1;
        }
        Monkey monkey(options.seed, options.actions);
        outcome = Session(monkey, &journal, &record).Play();
    }
    TellOutcome("play", outcome);
    int code = outcome.violation.isEmpty() ? 0 : 1;
    if (code == 0 && options.twice) {
        code = PlayFile(recorded, outcome.digest);
    }
    if (code == 0) {
        QFile::remove(options.out);
        QFile::remove(recorded);
    }
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PATH", ""); // no editor is started
    qInstallMessageHandler(TellUnlessOfPlatform);
    std::signal(SIGALRM, Hangs);
    Application::Prepare();
    Application application(argc, argv);
    const Options options = ReadOptions(application);
    QApplication::setKeyboardInputInterval(1000000); // nothing goes by the real time
    ApplyTheme(application);
    return options.replay.isEmpty() ? PlayByChance(options)
                                    : PlayFile(QFileInfo(options.replay).absoluteFilePath(), {});
}
