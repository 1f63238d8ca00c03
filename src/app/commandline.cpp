#include "app/commandline.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <cstdlib>
#include <iostream>

#include "core/traps.h"
#include "savegame/telling.h"
#include "system/basSystem.h"
#include "system/errors.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

constexpr double SmallestScale = 1, LargestScale = 4;
enum ExitCode { Done = 0, Failed = 1, Misused = 2, NoDisplay = 3 };

bool InRussian()
{
    return QLocale::system().language() == QLocale::Russian;
}

/// Of the two the one in the player's language.
const char* Said(const char* russian, const char* english)
{
    return InRussian() ? russian : english;
}

const char* Help()
{
    return Said(R"(Torvenhall 1.5 — жизнь, в которой можно стать боссом.

  torvenhall [ключи] [сохранённая игра]

С сохранённой игрой программа начинает с неё, на паузе.

  --scale N       крупнее во столько раз: от 1 до 4
  --still         ничто на экране не движется само
  --data DIR      папка, в которой лежит SAVE
  --tour DIR      нарисовать все окна в файлы PNG
  --show FILE     рассказать, что в сохранённой игре
  --font-size N   размер шрифта рабочего стола, в пунктах
  --record FILE   записать всё, что делает игрок
  --help          эта справка
  --version       версия
)",
                R"(Torvenhall 1.5, a life in which one may become the boss. The game is in Russian.

  torvenhall [options] [saved game]

With a saved game the program begins with it, paused.

  --scale N       so many times larger: 1 to 4
  --still         nothing on the screen moves by itself
  --data DIR      the folder with SAVE in it
  --tour DIR      draw every window into PNG files
  --show FILE     tell what is in a saved game
  --font-size N   size of the desktop's font, in points
  --record FILE   write down all that the player does
  --help          this help
  --version       the version
)");
}

CommandLine Ended(int code)
{
    CommandLine line;
    line.ended = code;
    return line;
}

CommandLine Refused(const QString& why)
{
    std::cerr << "torvenhall: " << Utf8(why) << '\n'
              << Said("Ключи перечислит torvenhall --help", "torvenhall --help lists the options")
              << '\n';
    return Ended(Misused);
}

int Show(const QString& file)
{
    Telling telling;
    const RuntimeError failure = ErrorOf([&] { telling = TellSavedGame(Utf8(file), InRussian()); });
    if (failure.number != 0) {
        std::cerr << "torvenhall: " << Utf8(file) << ": "
                  << Said("файл не читается", "the file cannot be read") << '\n';
        return Failed;
    }
    std::cout << telling.text;
    std::cerr << telling.troubles;
    return telling.troubles.empty() ? Done : Failed;
}

/// A number behind an option; nothing when it is none or out of range.
std::optional<double> NumberIn(const QString& text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

/// Makes the folder if it is missing.
bool CanWriteIn(const QString& folder)
{
    return QDir().mkpath(folder) && QFileInfo(folder).isWritable();
}

/// The game changes the current directory.
QString Absolute(const QString& path)
{
    return path.isEmpty() ? path : QDir::current().absoluteFilePath(path);
}

} // namespace

CommandLine ReadCommandLine(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption help(QStringList{"h", "help"}), version(QStringList{"v", "version"}),
        still("still");
    const QCommandLineOption font("font-size", {}, "N"), tour("tour", {}, "DIR"),
        data("data", {}, "DIR"), scale("scale", {}, "N"), record("record", {}, "FILE"),
        show("show", {}, "FILE");
    parser.addOptions({help, version, still, font, tour, data, scale, record, show});
    if (!parser.parse(arguments)) {
        const QStringList unknown = parser.unknownOptionNames();
        return Refused(unknown.isEmpty()
                           ? Said("за ключом чего-то не хватает", "an option lacks its value")
                           : QString(Said("нет такого ключа: %1", "there is no such option: %1"))
                                 .arg(unknown.join(", ")));
    }
    if (parser.isSet(help)) {
        std::cout << Help();
        return Ended(Done);
    }
    if (parser.isSet(version)) {
        std::cout << "torvenhall 1.5\n";
        return Ended(Done);
    }
    if (parser.isSet(show)) {
        return Ended(Show(parser.value(show)));
    }
    const QStringList games = parser.positionalArguments();
    if (games.size() > 1) {
        return Refused(Said("больше одной игры сразу не начать", "one game at a time"));
    }
    CommandLine line{.ended = {},
                     .tourFolder = Absolute(parser.value(tour)),
                     .dataFolder = Absolute(parser.value(data)),
                     .savedGame = Absolute(games.value(0)),
                     .recordFile = parser.value(record),
                     .scale = NumberIn(parser.value(scale), SmallestScale, LargestScale),
                     .still = parser.isSet(still)};
    if (parser.isSet(scale) && !line.scale) {
        return Refused(
            Said("--scale: нужно число от 1 до 4", "--scale wants a number from 1 to 4"));
    }
    for (const auto& [option, folder] :
         {std::pair(&data, &line.dataFolder), {&tour, &line.tourFolder}}) {
        if (parser.isSet(*option) && !CanWriteIn(*folder)) {
            std::cerr << "torvenhall: " << Utf8(*folder) << ": "
                      << Said("в такую папку не записать",
                              "nothing can be written into this folder")
                      << '\n';
            return Ended(Failed);
        }
    }
    if (parser.isSet(font)) {
        constexpr double smallest = 4, largest = 96;
        const auto points = NumberIn(parser.value(font), smallest, largest);
        if (!points) {
            return Refused(Said("--font-size: нужно число от 4 до 96",
                                "--font-size wants a number from 4 to 96"));
        }
        line.fontPoints = *points;
    }
    if (!line.savedGame.isEmpty()) {
        Telling telling;
        const RuntimeError failure =
            ErrorOf([&] { telling = TellSavedGame(Utf8(line.savedGame), InRussian()); });
        if (failure.number != 0 || !telling.troubles.empty()) {
            return Ended(Show(line.savedGame));
        }
    }
    return line;
}

void EndWithoutDisplay()
{
    std::cerr << "torvenhall: "
              << Said("здесь не на чем играть: экран не найден. Окна можно нарисовать в файлы: "
                      "QT_QPA_PLATFORM=offscreen torvenhall --tour DIR",
                      "there is no display to play on. The windows can be drawn into files: "
                      "QT_QPA_PLATFORM=offscreen torvenhall --tour DIR")
              << std::endl;
    std::_Exit(NoDisplay);
}

} // namespace torvenhall
