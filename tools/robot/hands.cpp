#include "hands.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QListWidget>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include "system/basSystem.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::robot
{

namespace
{

/// Presses and releases the button at a place of the widget's. The event loop
/// does not run meanwhile.
void ClickAt(const QWidget& widget, const QPoint& place, bool twice = false)
{
    static int timestamp = 0;
    timestamp += 10000; // never a double click by mistake
    const QPointer<QWindow> window = widget.window()->windowHandle();
    const QPoint local = widget.mapTo(widget.window(), place);
    const QPoint global = widget.mapToGlobal(place);
    for (int i = 0; i < (twice ? 4 : 2) && window; ++i) {
        const bool press = i % 2 == 0;
        qt_handleMouseEvent(
            window, local, global, press ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton,
            press ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, {}, timestamp + i);
    }
}

void Stroke(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text,
            bool repeats)
{
    const QPointer<QWindow> there = window;
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text, repeats);
    if (there && !repeats) {
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
    }
}

QString TextOfKey(const QKeyCombination& keys)
{
    switch (keys.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return "\r";
    case Qt::Key_Escape:
        return "\x1b";
    case Qt::Key_Tab:
        return "\t";
    case Qt::Key_Backspace:
        return "\b";
    default:
        return {};
    }
}

} // namespace

QWidget* Hands::UsableWindow(const Action& action) const
{
    QWidget* window = screen.Find(action.value(1));
    return window && !Screen::IsBlocked(*window) ? window : nullptr;
}

bool Hands::Do(const Action& action)
{
    struct {
        const char* deed;
        qsizetype words;
        bool (Hands::*does)(const Action&);
    } const deeds[]{
        {"wait", 2, &Hands::Wait},       {"click", 3, &Hands::Click},
        {"choose", 4, &Hands::ClickRow}, {"open", 4, &Hands::ClickRow},
        {"menu", 3, &Hands::ChooseItem}, {"key", 3, &Hands::PressKeys},
        {"hold", 3, &Hands::PressKeys},  {"type", 3, &Hands::Type},
        {"dismiss", 2, &Hands::Dismiss}, {"close", 2, &Hands::Close},
        {"restore", 2, &Hands::Restore},
    };
    if (action.value(0) == "game") {
        return WriteGameFile(action);
    }
    for (const auto& each : deeds) {
        if (action.value(0) == each.deed && action.size() == each.words) {
            return (this->*each.does)(action);
        }
    }
    return false;
}

bool Hands::Wait(const Action& action)
{
    clock.MoveTo(clock.Milliseconds() + qRound64(action[1].toDouble() * 1000));
    return true;
}

bool Hands::Click(const Action& action)
{
    QWidget* window = UsableWindow(action);
    if (!window) {
        return false;
    }
    for (auto* bar : window->findChildren<QMenuBar*>()) {
        for (QAction* title : bar->actions()) {
            if (title->text().remove('&') == action[2]) {
                ClickAt(*bar, bar->actionGeometry(title).center());
                return true;
            }
        }
    }
    const QWidget* control = FindControl(*window, action[2]);
    if (control) {
        window->activateWindow(); // as a desktop does
        ClickAt(*control, control->rect().center());
    }
    return control;
}

bool Hands::ClickRow(const Action& action)
{
    const QWidget* window = UsableWindow(action);
    QWidget* control = window ? FindControl(*window, action[2]) : nullptr;
    const int row = action[3].toInt();
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentIndex(row);
        combo->hidePopup();
        return row < combo->count();
    }
    auto* list = qobject_cast<QListWidget*>(control);
    if (!list || row >= list->count()) {
        return false;
    }
    list->scrollToItem(list->item(row));
    ClickAt(*list->viewport(), list->visualItemRect(list->item(row)).center(), action[0] == "open");
    return true;
}

bool Hands::ChooseItem(const Action& action)
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* item : UsableWindow(action) && menu ? menu->actions() : QList<QAction*>()) {
        if (item->objectName() == action[2] && item->isEnabled()) {
            ClickAt(*menu, menu->actionGeometry(item).center());
            return true;
        }
    }
    return false;
}

bool Hands::Dismiss(const Action& action)
{
    const QWidget* window = UsableWindow(action);
    const bool open = QApplication::activePopupWidget();
    if (window && open) {
        ClickAt(*window, window->rect().bottomRight() - QPoint(1, 1));
    }
    return window && open;
}

bool Hands::PressKeys(const Action& action)
{
    const QWidget* window = UsableWindow(action);
    const QKeySequence keys(action[2], QKeySequence::PortableText);
    if (window && !keys.isEmpty()) {
        Stroke(window->windowHandle(), keys[0].key(), keys[0].keyboardModifiers(),
               TextOfKey(keys[0]), action[0] == "hold");
    }
    return window && !keys.isEmpty();
}

bool Hands::Type(const Action& action)
{
    const QPointer<QWidget> window = UsableWindow(action);
    for (const uint letter : action[2].toUcs4()) {
        if (!window || !window->isVisible()) {
            return false;
        }
        const char32_t text[]{letter, 0};
        Stroke(window->windowHandle(), static_cast<int>(QChar::toUpper(letter)), {},
               QString::fromUcs4(text), false);
    }
    return window;
}

bool Hands::Close(const Action& action)
{
    const QWidget* window = UsableWindow(action);
    if (window) {
        window->windowHandle()->close();
    }
    return window;
}

bool Hands::Restore(const Action& action)
{
    QWidget* window = screen.Find(action[1]);
    if (window) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    return window;
}

bool WriteGameFile(const Action& action)
{
    const QString folder = Text(DataDirectory()) + (action[0] == "life" ? "RECOVERY" : "SAVE");
    QFile file(folder + '/' + action.value(1) + ".QVS");
    return QDir().mkpath(folder) && file.open(QFile::WriteOnly) &&
           file.write(QByteArray::fromBase64(action.value(2).toLatin1())) >= 0;
}

} // namespace torvenhall::robot
