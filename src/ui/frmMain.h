#pragma once

#include <QMainWindow>

#include <array>
#include <functional>

#include "core/port.h"
#include "ui/widgets/board.h"
#include "ui/widgets/gauge.h"
#include "ui/widgets/glyphs.h"
#include "ui/widgets/label.h"
#include "ui/widgets/scene.h"

class QMenu;
class QTimer;

namespace torvenhall
{

class GameButton;

/// The player's dashboard: every statistic, the computer, the clock and the
/// message line, and the buttons and menus that open everything else. It
/// holds the clock's timer.
class frmMain : public QMainWindow
{
    Q_OBJECT

public:
    explicit frmMain(LabelBoard& newBoard);

    /// The load routine: one tick for the time label, the picture, the timer.
    void Load();
    /// tmrTime; a tick that waits in the event queue when it is disabled is
    /// dropped.
    void EnableTimer(bool enabled);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Command = std::function<void()>;

    void BuildClock();
    void BuildStatistics();
    void BuildComputer();
    void BuildMessageLine();
    void BuildButtons();
    void BuildFileMenu();
    void BuildGameMenu();
    void BuildSettingsMenus();
    void BuildHelpMenu();

    GameLabel* AddLabel(Label label, const QRectF& place, const QFont& font);
    GameLabel* AddCaption(const QString& text, const QRectF& place, double height);
    void AddTile(const QString& caption, Label label, const QRectF& place, Gauge::Kind kind);
    void AddRow(const QString& caption, Label label, const QRectF& place);
    QMenu* AddMenu(const QString& title);
    QAction* AddItem(QMenu* menu, const char* name, const QString& text, const Command& command);
    static void AddSeparator(QMenu* menu, const char* name);

    void ShowLabel(Label label);
    void ShowGauge(Label label);
    void AlertTo(Label label);
    void QueueTick();
    bool HandleKey(const QKeyEvent& event);

    LabelBoard& board;
    Scene* scene;
    QTimer* tmrTime;
    std::array<GameLabel*, LabelCount> labels{};
    std::array<Gauge*, LabelCount> gauges{};
    TerminalLabel* messageLine = nullptr;
    QWidget* pauseVeil;
    bool tickQueued = false;
    int timerRun = 0; ///< tells the ticks of a disabled timer from new ones
};

} // namespace torvenhall
