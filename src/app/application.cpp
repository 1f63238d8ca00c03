#include "app/application.h"

#include <QIcon>

#include <exception>

#include "core/life.h"
#include "core/traps.h"
#include "game/entry.h"
#include "ui/widgets/pictures.h"

namespace torvenhall
{

void Application::Prepare()
{
    // The desktop's own toolkit would be loaded for its look, and take longer
    // than the whole game; the player's font size is read elsewhere.
    setDesktopSettingsAware(false);
    setAttribute(Qt::AA_DontUseNativeDialogs);
    setAttribute(Qt::AA_DontUseNativeMenuBar);
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("torvenhall");
    setApplicationVersion("1.5");
    setDesktopFileName("torvenhall");
    setQuitOnLastWindowClosed(false); // a new game closes every window
    EmbeddedPicture({});              // registers the resources, the icons among them
    QIcon icon;
    for (const char* size : {"16", "32", "48", "128"}) {
        icon.addFile(QString(":/icon/") + size);
    }
    setWindowIcon(icon);
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    const auto report = [](int number, const std::string& what) {
        EnterRules([&] { ReportError(number, what); });
    };
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& caught) {
        report(caught.number, caught.what);
    } catch (const std::bad_alloc&) {
        report(error::OutOfMemory, {});
    } catch (const std::exception& caught) {
        report(error::InvalidCall, caught.what());
    } catch (const LifeEnd&) {
    } catch (const LifeAbandoned&) {
    } catch (const ProgramEnd&) {
    }
    return true;
}

} // namespace torvenhall
