#include "ui/widgets/windowlist.h"

#include <QApplication>
#include <QThread>

#include <algorithm>

#include "core/life.h"

namespace torvenhall
{

namespace
{
constexpr int DeletionPause = 200; // ms
}

WindowList::WindowList()
{
    deletion.setInterval(DeletionPause);
    connect(&deletion, &QTimer::timeout, this, &WindowList::DeleteBuried);
}

WindowList::~WindowList()
{
    for (const QPointer<QWidget>& window : open) {
        delete window;
    }
    for (const QPointer<QWidget>& window : buried) {
        delete window;
    }
}

void WindowList::Opened(QWidget* window)
{
    // An open menu holds the mouse and would lie over the new window.
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    open.emplace_back(window);
}

int WindowList::Run(QDialog* dialog)
{
    Opened(dialog);
    ++running;
    const int result = dialog->exec();
    --running;
    Bury(dialog);
    if (QWidget* beneath = Top()) {
        beneath->activateWindow(); // some desktops leave no window active
    }
    return result;
}

void WindowList::Bury(QWidget* window)
{
    std::erase_if(open, [&](const QPointer<QWidget>& each) { return !each || each == window; });
    const bool known = std::find(buried.begin(), buried.end(), window) != buried.end();
    if (window && !known) {
        buried.emplace_back(window);
        window->hide();
        deletion.start();
    }
}

void WindowList::CloseAll()
{
    const auto windows = open;
    for (auto each = windows.rbegin(); each != windows.rend(); ++each) {
        if (auto* dialog = qobject_cast<QDialog*>(each->data())) {
            dialog->done(QDialog::Rejected);
        }
        if (*each) {
            Bury(*each);
        }
    }
}

QWidget* WindowList::Top() const
{
    const auto top = std::find_if(open.rbegin(), open.rend(), [](const QPointer<QWidget>& each) {
        return each && each->isVisible();
    });
    return top == open.rend() ? nullptr : top->data();
}

QWidget* WindowList::Find(const QString& objectName) const
{
    const auto found = std::find_if(open.rbegin(), open.rend(), [&](const QPointer<QWidget>& each) {
        return each && each->isVisible() && each->objectName() == objectName;
    });
    return found == open.rend() ? nullptr : found->data();
}

void WindowList::DeleteBuried()
{
    if (EntryDepth() > 0 || running > 0 || QThread::currentThread()->loopLevel() > 1) {
        return;
    }
    deletion.stop();
    const auto windows = std::exchange(buried, {});
    for (const QPointer<QWidget>& window : windows) {
        delete window;
    }
}

} // namespace torvenhall
