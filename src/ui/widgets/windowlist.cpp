#include "ui/widgets/windowlist.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace torvenhall
{

WindowList::~WindowList()
{
    for (const QPointer<QWidget>& window : open) {
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

void WindowList::Closed(QWidget* window)
{
    std::erase_if(open, [&](const QPointer<QWidget>& each) { return !each || each == window; });
    window->hide();
    Delete(window);
}

void WindowList::Delete(QWidget* window)
{
    const auto child = std::find_if(open.begin(), open.end(), [&](const QPointer<QWidget>& each) {
        return each && each->parentWidget() == window;
    });
    if (child == open.end()) {
        window->deleteLater();
    } else {
        QObject::connect(child->data(), &QObject::destroyed, window,
                         [this, window] { Delete(window); });
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
            Closed(*each);
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

} // namespace torvenhall
