#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "support/play.h"

namespace torvenhall::test
{

/// One row for each window of the game.
struct WindowRow {
    QString name, title;
    QWidget* (*make)(LabelBoard& board);
    /// "name=text|name=text": its controls and their exact texts; the name of
    /// a bare caption is empty, a text that depends on the game "*".
    QString controls;
};
const std::vector<WindowRow>& AllWindows();

/// A window of the table on screen, without the rules having opened it; the
/// main window is the game's own.
class Shown
{
public:
    Shown(const WindowRow& row, QtFrontEnd& frontEnd);
    ~Shown() { window->hide(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    QWidget& operator*() const { return *window; }
    QWidget* operator->() const { return window; }

private:
    std::unique_ptr<QWidget> owned;
    QWidget* window;
};

/// A test that opens every window of the table and looks at it.
class EveryWindow : public Play
{
protected:
    EveryWindow();
    /// Calls with each window, its name in every failure's trace.
    void ForEach(const std::function<void(const WindowRow& row, QWidget& window)>& look);
    /// The longest text in every label of the main window.
    void ShowTheLongestTexts();
    /// A life near its end, in red.
    void ShowDanger();
};

} // namespace torvenhall::test
