#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace torvenhall
{

/// The open windows in the order of their opening.
class WindowList
{
public:
    ~WindowList();

    void Opened(QWidget* window);
    /// Hides a window and deletes it as soon as the event loop runs and none
    /// stands on it any more.
    void Closed(QWidget* window);
    /// Closes all, the last opened first.
    void CloseAll();
    /// The last opened visible window, on which the next one stands.
    QWidget* Top() const;
    /// The last opened visible window of that name, if any.
    QWidget* Find(const QString& objectName) const;
    const std::vector<QPointer<QWidget>>& All() const { return open; }

private:
    void Delete(QWidget* window);

    std::vector<QPointer<QWidget>> open;
};

} // namespace torvenhall
