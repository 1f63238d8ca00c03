// Builds the pieces, connects them and hands control to the game's own logic.

#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>

#include "app/application.h"
#include "app/commandline.h"
#include "app/recorder.h"
#include "app/tour.h"
#include "core/random.h"
#include "game/entry.h"
#include "game/newgame.h"
#include "system/basSystem.h"
#include "ui/QtFrontEnd.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/quietlife.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/theme.h"

namespace
{

/// The player's folder for this program's data. A relative one is to be
/// ignored, by the desktops' convention; the game changes the current directory.
QString UserDataFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (QDir::isAbsolutePath(data) ? data : QDir::homePath() + "/.local/share") + "/torvenhall";
}

void TellNoDisplay(QtMsgType kind, const QMessageLogContext&, const QString& message)
{
    if (kind == QtFatalMsg) {
        torvenhall::EndWithoutDisplay();
    }
    std::cerr << torvenhall::Utf8(message) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvenhall;

    SpeakToConsole();
    QStringList arguments;
    std::ranges::transform(ProgramArguments(argc, argv), std::back_inserter(arguments), Text);
    const CommandLine options = ReadCommandLine(arguments);
    if (options.ended) {
        return *options.ended;
    }
    Application::Prepare();
    // All that can fail so early is to find a display, which the toolkit would answer
    // with a core dump.
    const QtMessageHandler told = qInstallMessageHandler(TellNoDisplay);
    Application application(argc, argv);
    qInstallMessageHandler(told);
    SetDesktopFontPoints(options.fontPoints > 0 ? options.fontPoints : DesktopFontPoints());
    ApplyTheme(application);
    FindDirectories(Utf8(QCoreApplication::applicationDirPath()), "../share/torvenhall",
                    Utf8(UserDataFolder()));
    if (!options.dataFolder.isEmpty()) {
        SetDirectories(ProgramDirectory(), Utf8(options.dataFolder));
    }

    SetStillLife(options.still || !options.tourFolder.isEmpty() || DesktopIsStill());
    const bool touring = !options.tourFolder.isEmpty();
    touring ? ApplyScale(options.scale.value_or(1)) : ChooseScale(options.scale);
    constexpr double tourPace = 40; // its waits are not to be sat through
    QtWallClock clock(touring ? tourPace : 1);
    RandomDice dice(std::random_device{}());
    std::optional<Recording> recording;
    if (!options.recordFile.isEmpty()) {
        recording.emplace(options.recordFile);
        if (!recording->Trouble().isEmpty()) {
            std::cerr << Utf8(options.recordFile + ": " + recording->Trouble()) << '\n';
            return 1;
        }
        recording->Begin(std::random_device{}());
    }
    QtFrontEnd frontEnd(recording ? static_cast<GameClock&>(recording->clock) : clock);
    Connect({&frontEnd, recording ? &recording->dice : &dice,
             recording ? static_cast<WallClock*>(&recording->clock) : &clock});
    QTimer::singleShot(0, &application, [&] {
        if (touring) {
            QCoreApplication::exit(TakeTour(frontEnd, options.tourFolder, options.scale));
        } else {
            application.KeepLives();
            EnterRules([&] { MainWith(Utf8(options.savedGame)); });
        }
    });
    return application.exec();
}
