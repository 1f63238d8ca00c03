#include "ui/widgets/quietlife.h"

#include <QEvent>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

#include <utility>

#include "system/basSystem.h"

namespace torvenhall
{

namespace
{

constexpr int StepMilliseconds = 250;

bool still = false;

} // namespace

bool StillLife()
{
    return still;
}

void SetStillLife(bool newStill)
{
    still = newStill;
}

bool DesktopIsStill()
{
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QSettings kde(config + "/kdeglobals", QSettings::IniFormat);
    const QSettings gtk(config + "/gtk-3.0/settings.ini", QSettings::IniFormat);
    return kde.value("KDE/AnimationDurationFactor", 1).toDouble() == 0 ||
           !gtk.value("Settings/gtk-enable-animations", true).toBool();
}

QuietLife::QuietLife(QWidget* newWindow, std::function<void()> newStep)
    : QObject(newWindow), step(std::move(newStep)), window(newWindow)
{
    timer.setInterval(StepMilliseconds);
    connect(&timer, &QTimer::timeout, this, [this] { step(); });
    window->installEventFilter(this);
}

void QuietLife::SetPaused(bool newPaused)
{
    paused = newPaused;
    Decide();
}

void QuietLife::Decide()
{
    const bool lives = window->isVisible() && window->isActiveWindow() && !paused && !StillLife();
    if (lives == timer.isActive()) {
        return;
    }
    if (lives && !OnBattery()) {
        timer.start();
    } else {
        timer.stop();
    }
}

bool QuietLife::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Show:
    case QEvent::Hide:
        Decide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace torvenhall
