// Builds the pieces, connects them and hands control to the game's own logic.

#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>

#include "app/application.h"
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

struct Options {
    double fontPoints;
    std::optional<double> scale; ///< the player's or the fitting one
    QString tourFolder;          ///< empty: play
    QString recordFile;          ///< empty: the game is not recorded
    bool still = false;
};

Options ReadOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Torvenhall 1.5");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption font("font-size", "Size of the desktop font in points.", "points");
    const QCommandLineOption tour("tour", "Save a picture of every window in a folder.", "folder");
    const QCommandLineOption scale("scale", "Size of everything: 1 to 4 times.", "factor");
    const QCommandLineOption still("still", "Nothing moves by itself.");
    const QCommandLineOption record("record", "Write down what the player does.", "file");
    parser.addOptions({font, scale, tour, still, record});
    parser.process(application);
    const double points = parser.value(font).toDouble();
    // The tour runs from wherever its pictures are wanted.
    const QString folder = parser.value(tour);
    const double factor = parser.value(scale).toDouble();
    if (parser.isSet(scale) && !(factor >= 1 && factor <= 4)) {
        std::cerr << "torvenhall: --scale wants a number from 1 to 4\n";
        std::exit(2);
    }
    return {points > 0 ? points : torvenhall::DesktopFontPoints(),
            parser.isSet(scale) ? std::optional(factor) : std::nullopt,
            folder.isEmpty() ? folder : QDir::current().absoluteFilePath(folder),
            parser.value(record), parser.isSet(still)};
}

/// The player's folder for this program's data. A relative one is to be
/// ignored, by the desktops' convention; the game changes the current directory.
QString UserDataFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (QDir::isAbsolutePath(data) ? data : QDir::homePath() + "/.local/share") + "/torvenhall";
}

} // namespace

int main(int argc, char** argv)
{
    using namespace torvenhall;

    Application::Prepare();
    Application application(argc, argv);
    const Options options = ReadOptions(application);
    SetDesktopFontPoints(options.fontPoints);
    ApplyTheme(application);
    FindDirectories(Utf8(QCoreApplication::applicationDirPath()), "../share/torvenhall",
                    Utf8(UserDataFolder()));

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
            EnterRules(Main);
        }
    });
    return application.exec();
}
