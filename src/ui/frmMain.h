#pragma once

#include <QMainWindow>

#include <functional>
#include <vector>

#include "core/labels.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/gauge.h"
#include "ui/widgets/scene.h"

class QMenu;
class QTimer;

namespace torvenhall
{

/// The player's dashboard: every statistic, the computer, the clock and the
/// message line, and the buttons and menus that open everything else. It
/// holds the clock's timer.
class frmMain : public QMainWindow
{
public:
    frmMain();

    /// The load routine: one tick for the time label, the picture, the timer.
    void Load();
    void LabelChanged(Label label);
    /// tmrTime.
    void EnableTimer(bool enabled);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Command = std::function<void()>;

    /// A statistic, its width in units; without a reading it has no gauge.
    struct Tile {
        const char* caption;
        Label label;
        double width;
        Gauge::Kind kind = Gauge::Kind::Share;
        Gauge::Reading (*reading)() = nullptr;
    };

    void BuildClock();
    void BuildStatistics();
    void BuildComputer();
    void BuildMessageLine();
    void BuildButtons();
    void BuildFileMenu();
    void BuildGameMenu();
    void BuildSettingsMenus();
    void BuildHelpMenu();

    GameLabel* AddLabel(Label label, const QRectF& place, const Type& type);
    GameLabel* AddCaption(const QString& text, const QRectF& place, const Type& type);
    void AddTile(const Tile& tile, const QRectF& place);
    void AddRow(const QString& caption, Label label, const QRectF& place);
    QMenu* AddMenu(const QString& title);
    QAction* AddItem(QMenu* menu, const char* name, const QString& text, const Command& command);
    static void AddSeparator(QMenu* menu, const char* name);

    void AlertTo(Label label);
    bool HandleKey(const QKeyEvent& event);

    Scene* scene;
    QTimer* tmrTime;
    EnumArray<Label, GameLabel*> labels{};
    std::vector<Gauge*> gauges;
    QWidget* pauseVeil;
};

} // namespace torvenhall
