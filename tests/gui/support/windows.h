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
    /// "name=text|name,name=text": its controls and their exact texts; a bare
    /// caption has no name, a text that depends on the game is "*".
    /// Controls of such texts that other tests use are left out.
    QString controls;
};
const std::vector<WindowRow>& AllWindows();

/// A test that opens every window of the table, without the rules having
/// opened it, and looks at it; the main window is the game's own.
class EveryWindow : public Play
{
protected:
    using Look = std::function<void(const WindowRow& row, QWidget& window)>;

    EveryWindow();
    /// Calls with one window on screen, its name in every failure's trace.
    void Show(const WindowRow& row, const Look& look);
    void ForEach(const Look& look);
    /// The longest text in every label of the main window, in red where one
    /// may turn red.
    void ShowTheLongestTexts();
};

} // namespace torvenhall::test
