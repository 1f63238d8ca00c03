#pragma once

#include <QMainWindow>

#include <functional>
#include <vector>

#include "core/GameState.h"
#include "core/labels.h"
#include "ui/past.h"
#include "ui/roomscene.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/gauge.h"
#include "ui/widgets/quietlife.h"

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
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Command = std::function<void()>;
    /// The property of a tile's labels that tells the tile's number.
    static constexpr const char* TileOf = "tile";

    /// A statistic, its width in units; without a reading it has no gauge.
    struct Tile {
        const char* caption;
        Label label;
        double width;
        Gauge::Kind kind = Gauge::Kind::Share;
        Gauge::Reading (*reading)() = nullptr;
        int (*value)() = nullptr; ///< whose past is remembered
    };
    struct TileShown {
        Label label;
        QString caption;
        int (*value)();
        Past past;
    };

    /// One of a menu's choices, which stands for a value of the game.
    struct MenuChoice {
        const char* name;
        const char* text;
        int value;
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
    /// A menu of which one item is the game's present setting and marked.
    void AddChoices(const QString& title, Int16 Game::*present,
                    const std::vector<MenuChoice>& choices, void (*choose)(int));
    static void AddSeparator(QMenu* menu, const char* name);

    void AlertTo(Label label);
    void NotePast(Label label);
    bool ShowTileTip(const QWidget& tile);
    bool HandleKey(const QKeyEvent& event);

    RoomScene* scene;
    QTimer* tmrTime;
    EnumArray<Label, GameLabel*> labels{};
    std::vector<Gauge*> gauges;
    std::vector<TileShown> tiles;
    QWidget* pauseVeil;
    QuietLife* quietLife;
};

} // namespace torvenhall
