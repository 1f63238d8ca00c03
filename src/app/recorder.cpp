#include "app/recorder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

#include "core/traps.h"
#include "savegame/recovery.h"
#include "savegame/savegame.h"
#include "system/basSystem.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

/// The name of the window that the player would say it is in.
QString WindowName(const QWidget& widget)
{
    const QWidget* window = widget.window();
    while (window->windowType() == Qt::Popup && window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    return window->objectName();
}

void TellOfRow(const QString& deed, const QWidget& viewport, const QPoint& place,
               const std::function<void(const Action&)>& write)
{
    const auto* list = qobject_cast<QAbstractItemView*>(viewport.parent());
    const QModelIndex row = list->indexAt(place);
    if (row.isValid()) {
        write({deed, WindowName(*list), list->objectName(), QString::number(row.row())});
    }
}

/// Not of the list that a combo box opens.
bool IsRowOf(const QWidget& widget)
{
    const auto* list = qobject_cast<QAbstractItemView*>(widget.parent());
    return list && list->viewport() == &widget && !list->objectName().isEmpty();
}

/// The title of a menu at a place of the screen, for a press on the bar or
/// beside an open menu.
QString TitleAt(const QWidget& pressed, const QPoint& place)
{
    const QWidget* window = pressed.window();
    while (window->windowType() == Qt::Popup && window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    for (const auto* bar : window->findChildren<QMenuBar*>()) {
        const QPoint local = bar->mapFromGlobal(place);
        const QAction* title = bar->rect().contains(local) ? bar->actionAt(local) : nullptr;
        const bool isPressed = &pressed == bar || qobject_cast<const QMenu*>(&pressed);
        if (title && isPressed) {
            return title->text().remove('&');
        }
    }
    return {};
}

} // namespace

QString ControlName(const QWidget& control)
{
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const bool named = !control.objectName().isEmpty();
    return named || !button ? control.objectName() : button->text().remove('&');
}

Recorder::Recorder(Journal& newJournal, const SteppedClock& newClock)
    : journal(newJournal), clock(newClock), closeBoxes(*this)
{
    qApp->installEventFilter(this);
}

bool Recorder::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (widget) {
            Pressed(*widget, *static_cast<QMouseEvent*>(event));
        }
        break;
    case QEvent::MouseButtonRelease:
        titlePressed = false;
        if (widget) {
            Released(*widget, *static_cast<QMouseEvent*>(event));
        }
        break;
    case QEvent::MouseButtonDblClick:
        if (widget && IsRowOf(*widget)) {
            TellOfRow("open", *widget, static_cast<QMouseEvent*>(event)->pos(),
                      [this](const Action& action) { Write(action); });
        }
        break;
    // It comes first, whether the key is a shortcut or not; the windows of the
    // system get it before their widgets.
    case QEvent::ShortcutOverride:
        if (watched->isWindowType()) {
            Key(*watched, *static_cast<QKeyEvent*>(event));
        }
        break;
    case QEvent::WindowStateChange:
        if (widget && !widget->isMinimized() &&
            static_cast<QWindowStateChangeEvent*>(event)->oldState() & Qt::WindowMinimized) {
            Write({"restore", widget->objectName()});
        }
        break;
    case QEvent::Show:
        if (widget) {
            Shown(*widget);
        }
        break;
    default:
        break;
    }
    return false;
}

bool Recorder::CloseBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        owner.Write({"close", watched->objectName()});
    }
    return false;
}

void Recorder::Shown(QWidget& widget)
{
    if (widget.isWindow() && !widget.objectName().isEmpty()) {
        widget.installEventFilter(&closeBoxes); // once, however often it is shown
    }
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        // By the mouse; by a key it is told once more.
        connect(combo, &QComboBox::activated, this, [this, combo](int row) {
            Write({"choose", WindowName(*combo), combo->objectName(), QString::number(row)});
        });
    }
}

void Recorder::Pressed(QWidget& widget, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !widget.isEnabled()) {
        return;
    }
    const QWidget& window = *widget.window();
    const bool beside = window.windowType() == Qt::Popup &&
                        !window.rect().contains(widget.mapTo(&window, event.pos()));
    if (const QString title = TitleAt(widget, event.globalPosition().toPoint()); !title.isEmpty()) {
        // An open menu hands the press on to the bar.
        if (!std::exchange(titlePressed, true)) {
            Write({"click", WindowName(widget), title});
        }
    } else if (beside) {
        Write({"dismiss", WindowName(widget)});
    } else if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QComboBox*>(&widget)) {
        Write({"click", WindowName(widget), ControlName(widget)});
    } else if (IsRowOf(widget)) {
        TellOfRow("choose", widget, event.pos(), [this](const Action& action) { Write(action); });
    }
}

void Recorder::Released(QWidget& widget, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !widget.isEnabled()) {
        return;
    }
    const auto* button = qobject_cast<QAbstractButton*>(&widget);
    if (button && button->isDown()) {
        Write({"click", WindowName(widget), ControlName(widget)});
    } else if (const auto* menu = qobject_cast<QMenu*>(&widget)) {
        const QAction* item = menu->actionAt(event.pos());
        if (item && item->isEnabled() && !item->isSeparator()) {
            Write({"menu", WindowName(widget), item->objectName()});
        }
    }
}

void Recorder::Key(const QObject& window, const QKeyEvent& event)
{
    constexpr int modifiers[]{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta,
                              Qt::Key_AltGr};
    QString name;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        name = each->windowHandle() == &window ? WindowName(*each) : name;
    }
    if (name.isEmpty() || std::ranges::find(modifiers, event.key()) != std::end(modifiers)) {
        return;
    }
    const bool shortcut = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const QList<uint> text = event.text().toUcs4();
    if (!event.isAutoRepeat() && !shortcut && !text.isEmpty() &&
        QChar::category(text.front()) != QChar::Other_Control) {
        Write({"type", name, event.text()});
        return;
    }
    const QKeySequence keys(event.keyCombination());
    Write({event.isAutoRepeat() ? "hold" : "key", name, keys.toString(QKeySequence::PortableText)});
}

Recording::Recording(const QString& path) : journal(path), recorder(journal, clock) {}

void Recording::Embed(const char* deed, const std::string& name, const std::string& path)
{
    const QByteArray bytes = QByteArray::fromStdString(ReadWholeFile(path));
    journal.WriteAtOnce({deed, Text(name), bytes.toBase64()});
}

void Recording::Begin(quint64 seed)
{
    dice = ReplayableDice(seed);
    TrappedSilently([this] {
        for (const std::string& name : ListSavedGames()) {
            Embed("game", name, DataDirectory() + "SAVE/" + name + ".QVS");
        }
        for (const KeptLife& kept : FindKeptLives()) {
            Embed("life", Utf8(QFileInfo(Text(kept.path)).completeBaseName()), kept.path);
        }
    });
    journal.WriteAtOnce({"start", QString::number(seed)});
    clock.Follow();
}

} // namespace torvenhall
