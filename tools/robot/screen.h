#pragma once

#include <QAbstractButton>
#include <QObject>
#include <QStringList>
#include <QWidget>

#include <map>
#include <vector>

namespace torvenhall::robot
{

/// What a player sees of the game: its windows in the order of their opening.
class Screen final : public QObject
{
public:
    Screen();

    /// The visible windows of the game, menus and the like left out.
    std::vector<QWidget*> Windows() const;
    /// Those that no other window blocks.
    std::vector<QWidget*> Usable() const;
    /// Of several windows of that name the one that can be used, or the last.
    QWidget* Find(const QString& name) const;
    /// Shown later than the other one.
    static bool IsNewer(const QWidget& window, const QWidget& other);
    /// The number of the life in which the window was opened.
    static int LifeOf(const QWidget& window);
    static bool IsBlocked(const QWidget& window);

    /// "title: text" of each box that has opened, and its number so far.
    QStringList boxes;
    std::map<QString, int> opened; ///< how often each window was

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int count = 0;
};

/// The child that an action calls by this name, visible and enabled, with its
/// middle in sight; or none.
QWidget* FindControl(const QWidget& window, const QString& name);
/// All buttons of a window that can be clicked.
std::vector<QAbstractButton*> ButtonsOf(const QWidget& window);

} // namespace torvenhall::robot
