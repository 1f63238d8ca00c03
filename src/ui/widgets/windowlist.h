#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <vector>

namespace torvenhall
{

/// The open windows in the order of their opening, and the closed ones until
/// they can be deleted: only when no handler of theirs can still be running.
class WindowList : public QObject
{
public:
    WindowList();
    ~WindowList() override;

    void Opened(QWidget* window);
    /// Shows a dialog, waits for its end and takes it from the list; its
    /// answers can be read until the control returns to the event loop.
    int Run(QDialog* dialog);
    /// Hides a window and deletes it when that is safe.
    void Bury(QWidget* window);
    /// Closes all, the last opened first.
    void CloseAll();
    /// The last opened visible window, on which the next one stands.
    QWidget* Top() const;
    /// The last opened visible window of that name, if any.
    QWidget* Find(const QString& objectName) const;

private:
    void DeleteBuried();

    std::vector<QPointer<QWidget>> open;
    std::vector<QPointer<QWidget>> buried;
    QTimer deletion;
    int running = 0; ///< dialogs whose loop is on the stack
};

} // namespace torvenhall
