#include "screen.h"

#include <QApplication>
#include <QMessageBox>
#include <QVariant>
#include <QWindow>

#include <algorithm>

#include "app/recorder.h"
#include "core/unwinding.h"

namespace torvenhall::robot
{

namespace
{

constexpr const char* Number = "robotNumber";
constexpr const char* Life = "robotLife";
constexpr const char* Blocked = "robotBlocked";

bool IsOfGame(const QWidget& window)
{
    const QString name = window.objectName();
    return name.startsWith("frm") || name == "MessageBox" || name == "InputBox";
}

bool InSight(const QWidget& control)
{
    const QWidget* window = control.window();
    const QWidget* there = window->childAt(control.mapTo(window, control.rect().center()));
    return there && (there == &control || control.isAncestorOf(there));
}

} // namespace

Screen::Screen()
{
    qApp->installEventFilter(this);
}

std::vector<QWidget*> Screen::Windows() const
{
    std::vector<QWidget*> windows;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && IsOfGame(*each)) {
            windows.push_back(each);
        }
    }
    std::ranges::sort(windows, [](auto* one, auto* other) { return IsNewer(*other, *one); });
    return windows;
}

std::vector<QWidget*> Screen::Usable() const
{
    std::vector<QWidget*> windows = Windows();
    std::erase_if(windows, [](const QWidget* each) { return IsBlocked(*each); });
    return windows;
}

QWidget* Screen::Find(const QString& name) const
{
    QWidget* found = nullptr;
    for (QWidget* each : Windows()) {
        const bool better = !found || !IsBlocked(*each) || IsBlocked(*found);
        found = each->objectName() == name && better ? each : found;
    }
    return found;
}

bool Screen::IsNewer(const QWidget& window, const QWidget& other)
{
    return window.property(Number).toInt() > other.property(Number).toInt();
}

int Screen::LifeOf(const QWidget& window)
{
    return window.property(Life).toInt();
}

bool Screen::IsBlocked(const QWidget& window)
{
    return !window.windowHandle() || window.windowHandle()->property(Blocked).toBool();
}

bool Screen::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::WindowBlocked:
    case QEvent::WindowUnblocked:
        if (watched->isWindowType()) {
            watched->setProperty(Blocked, event->type() == QEvent::WindowBlocked);
        }
        break;
    case QEvent::Show:
        if (auto* window = qobject_cast<QWidget*>(watched);
            window && window->isWindow() && !window->property(Number).isValid()) {
            window->setProperty(Number, ++count);
            window->setProperty(Life, LifeNumber());
            ++opened[window->objectName()];
            if (const auto* box = qobject_cast<QMessageBox*>(window)) {
                boxes << box->windowTitle() + ": " + box->text();
            }
        }
        break;
    case QEvent::ToolTip: // by the real time
        return true;
    default:
        break;
    }
    return false;
}

QWidget* FindControl(const QWidget& window, const QString& name)
{
    for (QWidget* each : window.findChildren<QWidget*>()) {
        if (each->window() == &window && each->isVisible() && each->isEnabled() &&
            ControlName(*each) == name && InSight(*each)) {
            return each;
        }
    }
    return nullptr;
}

std::vector<QAbstractButton*> ButtonsOf(const QWidget& window)
{
    std::vector<QAbstractButton*> buttons;
    for (auto* each : window.findChildren<QAbstractButton*>()) {
        if (each->window() == &window && FindControl(window, ControlName(*each)) == each) {
            buttons.push_back(each);
        }
    }
    return buttons;
}

} // namespace torvenhall::robot
