#include "app/application.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <exception>

#include "core/traps.h"
#include "core/unwinding.h"
#include "game/commands.h"
#include "game/entry.h"
#include "savegame/recovery.h"
#include "system/basSystem.h"
#include "ui/widgets/fontset.h"
#include "ui/widgets/pictures.h"

// A library's resources are registered by name, which must be in the global
// namespace. Among these are the toolkit's words, where it is built in.
static void RegisterWords()
{
    Q_INIT_RESOURCE(typefaces);
}

namespace torvenhall
{

namespace
{

void ShowIcon()
{
    EmbeddedPicture({}); // registers the resources, the icons among them
    QIcon icon;
    for (const char* size : {"16", "32", "48", "128"}) {
        // By a name alone the icon would ask what kind of file it is, and read the
        // desktop's table of kinds for that.
        icon.addPixmap(QPixmap(QString(":/icon/") + size, "PNG"));
    }
    QApplication::setWindowIcon(icon);
}

} // namespace

void Application::Prepare()
{
    // The desktop's own toolkit would be loaded for its look, and take longer
    // than the whole game; the player's font size is read elsewhere.
    setDesktopSettingsAware(false);
    FindFontsQuickly();
    GiveMemoryBack();
    setAttribute(Qt::AA_DontUseNativeDialogs);
    setAttribute(Qt::AA_DontUseNativeMenuBar);
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("torvenhall");
    setApplicationVersion("1.5");
    setDesktopFileName("torvenhall");
    setQuitOnLastWindowClosed(false); // a new game closes every window
    installEventFilter(this);         // until the first window is painted
    // The toolkit's own words, in the menus of text fields.
    RegisterWords();
    if (words.load(":/words/qtbase_ru.qm") ||
        words.load("qtbase_ru", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&words);
    }
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    // Reported after the exception is gone: the box suspends its routine.
    RuntimeError failure;
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& caught) {
        failure = caught;
    } catch (const std::bad_alloc&) {
        failure.number = error::OutOfMemory;
    } catch (const std::exception&) {
        failure.number = error::InvalidCall;
    } catch (const LifeEnd&) {
    } catch (const Abandoned&) {
    }
    if (failure.number != 0) {
        EnterRules([failure] { ReportError(failure.number, failure.path); });
    }
    return true;
}

void Application::KeepLives()
{
    const auto keep = [] { EnterRules(KeepLife); };
    connect(&keeping, &QTimer::timeout, this, keep);
    keeping.start(std::chrono::minutes(1));
    std::atexit(KeepLife); // a lost display ends the program so
    connect(this, &QGuiApplication::commitDataRequest, this, [this, keep] {
        sessionEnds = true;
        keep();
    });
    if (const int requests = WatchEndRequests(); requests >= 0) {
        auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [notifier] {
            notifier->setEnabled(false);
            EnterRules(EndFromOutside);
        });
    }
}

bool Application::eventFilter(QObject* watched, QEvent* event)
{
    // The icon is decoded when the first window stands, which it would delay.
    if (event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint) {
        removeEventFilter(this);
        QTimer::singleShot(0, this, ShowIcon);
    }
    return QApplication::eventFilter(watched, event);
}

bool Application::event(QEvent* event)
{
    if (event->type() == QEvent::Quit && sessionEnds) {
        EnterRules(EndFromOutside);
        return true;
    }
    return QApplication::event(event);
}

} // namespace torvenhall
