#include "ui/frmMain.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include "core/GameState.h"
#include "core/basGame.h"
#include "equipment/catalogue.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "game/entry.h"
#include "ui/outlook.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

// In twips, of which 15 make a unit; frame excluded, menu bar included.
constexpr double Width = 7765 / 15.0;
constexpr double WholeHeight = 6630 / 15.0;
constexpr double MenuHeight = 22;
constexpr double Height = WholeHeight - MenuHeight;

constexpr int TickMilliseconds = 250;

/// Lies over the main window while the game is paused: everything is dimmed,
/// and a sign with two bars stands in the middle. Clicks go through.
class PauseVeil : public QWidget
{
public:
    explicit PauseVeil(QWidget* parent) : QWidget(parent)
    {
        setObjectName("PauseVeil");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        Place(*this, {0, 0, Width, Height});
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), QColor(3, 6, 12, 110));
        QRectF sign(0, 0, Px(72), Px(72));
        sign.moveCenter(QRectF(rect()).center());
        painter.setPen(QPen(colour::LightCyan, Px(2)));
        painter.setBrush(QColor(4, 8, 14, 235));
        painter.drawEllipse(sign);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour::LightCyan);
        for (const int side : {-1, 1}) {
            QRectF bar(0, 0, Px(10), Px(30));
            bar.moveCenter(sign.center() + QPointF(side * Px(10), 0));
            painter.drawRoundedRect(bar, Px(2), Px(2));
        }
    }
};

} // namespace

frmMain::frmMain() : scene(new RoomScene(Width, Height, this)), tmrTime(new QTimer(this))
{
    setObjectName("frmMain");
    setWindowTitle("Marshend Torvenhall 1.5");
    Place(*this, {0, 0, Width, WholeHeight});
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(scene);
    Place(*scene, {0, MenuHeight, Width, Height});
    menuBar()->setNativeMenuBar(false);
    menuBar()->setFixedHeight(Px(MenuHeight));
    ChangeScaleByKeys(this);
    StandWhereItStood(*this);

    BuildClock();
    BuildStatistics();
    BuildComputer();
    BuildMessageLine();
    BuildButtons();
    BuildFileMenu();
    BuildGameMenu();
    BuildSettingsMenus();
    BuildHelpMenu();

    pauseVeil = new PauseVeil(scene);
    quietLife = new QuietLife(this, [this] { scene->Step(); });

    tmrTime->setObjectName("tmrTime");
    tmrTime->setTimerType(Qt::PreciseTimer);
    tmrTime->setInterval(TickMilliseconds);
    connect(tmrTime, &QTimer::timeout, this, EnterTick);
    for (std::size_t i = 0; i < CountOf<Label>; ++i) {
        LabelChanged(static_cast<Label>(i));
    }
}

void frmMain::Load()
{
    ClockTick();
    scene->LoadBackground("MAIN");
    EnableTimer(true);
}

void frmMain::EnableTimer(bool enabled)
{
    if (enabled) {
        tmrTime->start();
    } else {
        tmrTime->stop();
    }
    pauseVeil->setVisible(!enabled);
    quietLife->SetPaused(!enabled);
}

void frmMain::LabelChanged(Label label)
{
    GameLabel& shown = *labels[label];
    const bool wasDanger = shown.Colour() == colour::Danger;
    shown.ShowLabel(label);
    if (shown.text() == Text(GetHardwareName(0, 0))) {
        shown.SetColour(colour::Faint); // an empty place of the computer
    }
    if (!wasDanger && shown.Colour() == colour::Danger) {
        AlertTo(label);
    }
    if (label == Label::lblMessage) {
        return;
    }
    scene->Refresh();
    NotePast(label);
    // The level, too, sets the sum that fills the bar of the money.
    if (label != Label::lblTime) {
        for (Gauge* gauge : gauges) {
            gauge->update();
        }
    }
}

/// A screen reader speaks up when a statistic turns red.
void frmMain::AlertTo(Label label)
{
    QAccessibleEvent alert(labels[label], QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void frmMain::NotePast(Label label)
{
    for (TileShown& tile : tiles) {
        // The time's label shows that a day has begun, the level's the sum that wins.
        const bool concerned = tile.label == label || label == Label::lblGameLevel;
        if (tile.value && (concerned || label == Label::lblTime)) {
            tile.past.Note(tile.value());
        }
        if (concerned) {
            labels[tile.label]->setAccessibleDescription(OutlookOf(tile.label));
        }
    }
}

/// Tells what a tile's number means and how it came about.
bool frmMain::ShowTileTip(const QWidget& tile)
{
    const int index = tile.property(TileOf).toInt();
    const TileShown& shown = tiles[static_cast<std::size_t>(index)];
    const bool mayKill = shown.label == Label::lblHappy || shown.label == Label::lblEat ||
                         shown.label == Label::lblHealth;
    const QString words = "<b>" + labels[shown.label]->accessibleName().toHtmlEscaped() +
                          "</b><br>" + OutlookOf(shown.label);
    const auto fatal = mayKill ? std::optional(BoundsOf(shown.label).fatal) : std::nullopt;
    QToolTip::showText(tile.mapToGlobal(QPoint(0, tile.height())), words + shown.past.Curve(fatal));
    return true;
}

void frmMain::closeEvent(QCloseEvent* event)
{
    // The rules end the program; until they do, nothing may vanish.
    event->ignore();
    if (GameState.Restarting != True) {
        EnterRules(CloseProgram);
    }
}

void frmMain::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) { // not minimised
        RememberPlace(*this);
    }
    QMainWindow::hideEvent(event);
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        menuBar()->setFixedHeight(Px(MenuHeight)); // the scale has changed
    }
    QMainWindow::changeEvent(event);
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (!HandleKey(*event)) {
        QMainWindow::keyPressEvent(event);
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    // The buttons' keys pass here first.
    if (event->type() == QEvent::KeyPress && HandleKey(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::ToolTip && widget && widget->property(TileOf).isValid()) {
        return ShowTileTip(*widget);
    }
    return QMainWindow::eventFilter(watched, event);
}

bool frmMain::HandleKey(const QKeyEvent& event)
{
    // A menu hands the keys that it has no use for on to its window.
    if (QApplication::activePopupWidget() || menuBar()->hasFocus()) {
        return false;
    }
    const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (event.isAutoRepeat() || (event.modifiers() & others)) {
        return false;
    }
    const QString key = event.text();
    if (key == "p" || key == "з") {
        EnterRules(PauseGame);
        return true;
    }
    if (key == "w" || key == "ц") {
        EnterRules(EnterCheat);
        return true;
    }
    return false;
}

} // namespace torvenhall
