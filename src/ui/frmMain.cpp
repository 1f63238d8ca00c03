#include "ui/frmMain.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>

#include "core/GameState.h"
#include "core/basGame.h"
#include "game/cheats.h"
#include "game/clock.h"
#include "game/commands.h"
#include "game/entry.h"
#include "ui/widgets/button.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

// Frame excluded, menu bar included.
constexpr int WidthTwips = 7765;
constexpr int HeightTwips = 6630;
constexpr double MenuHeight = 22;
constexpr double Width = WidthTwips / 15.0;
constexpr double Height = HeightTwips / 15.0 - MenuHeight;

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
        setGeometry(parent->rect());
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

/// The whole number in a label's text ("$15", "-3%").
double NumberIn(QString text)
{
    return text.remove('$').remove('%').toDouble();
}

int RankOf(const QString& word)
{
    for (int rank = 1; rank <= 8; ++rank) {
        if (Text(ShowStatus(rank)) == word) {
            return rank;
        }
    }
    return 0;
}

} // namespace

frmMain::frmMain(LabelBoard& newBoard)
    : board(newBoard), scene(new Scene(Width, Height, this)), tmrTime(new QTimer(this))
{
    setObjectName("frmMain");
    setWindowTitle("Marshend Torvenhall 1.5");
    setFixedSize(TwipsPx(WidthTwips), TwipsPx(HeightTwips));
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(scene);
    menuBar()->setNativeMenuBar(false);
    menuBar()->setFixedHeight(Px(MenuHeight));

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

    tmrTime->setObjectName("tmrTime");
    tmrTime->setTimerType(Qt::PreciseTimer);
    tmrTime->setInterval(TickMilliseconds);
    connect(tmrTime, &QTimer::timeout, this, &frmMain::QueueTick);
    connect(&board, &LabelBoard::Shown, this, &frmMain::ShowLabel);
    for (std::size_t i = 0; i < LabelCount; ++i) {
        ShowLabel(static_cast<Label>(i));
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
    ++timerRun;
    tickQueued = false;
    if (enabled) {
        tmrTime->start();
    } else {
        tmrTime->stop();
    }
    pauseVeil->setVisible(!enabled);
}

/// A timer does not fire while its own slot is on the stack, and a tick may
/// wait for seconds in the message line; so the tick runs from the event
/// queue instead. One at most waits there.
void frmMain::QueueTick()
{
    if (tickQueued) {
        return;
    }
    tickQueued = true;
    const auto tick = [this, run = timerRun] {
        if (run == timerRun) {
            tickQueued = false;
            EnterTick();
        }
    };
    QMetaObject::invokeMethod(this, tick, Qt::QueuedConnection);
}

void frmMain::ShowLabel(Label label)
{
    const auto index = static_cast<std::size_t>(label);
    const bool wasDanger = labels[index]->Colour() == colour::Danger;
    if (label == Label::lblMessage) {
        messageLine->Type(board.ShownText(label));
    } else {
        labels[index]->ShowText(board.ShownText(label));
    }
    labels[index]->SetColour(board.Colour(label));
    if (board.IsDanger(label) && !wasDanger) {
        AlertTo(label);
    }
    if (gauges[index]) {
        ShowGauge(label);
    } else if (label == Label::lblGameLevel) {
        ShowGauge(Label::lblMoney); // the level sets the sum that fills it
    }
}

/// A screen reader speaks up when a statistic turns red.
void frmMain::AlertTo(Label label)
{
    QAccessibleEvent alert(labels[static_cast<std::size_t>(label)], QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void frmMain::ShowGauge(Label label)
{
    Gauge& gauge = *gauges[static_cast<std::size_t>(label)];
    const QString& text = board.ShownText(label);
    if (label == Label::lblMoney) {
        gauge.Show(NumberIn(text), GameState.WinMoney.value());
    } else if (label == Label::lblStatus) {
        gauge.Show(RankOf(text), 8);
    } else {
        gauge.Show(NumberIn(text), 100, board.IsDanger(label));
    }
}

void frmMain::closeEvent(QCloseEvent* event)
{
    // The rules end the program; until they do, nothing may vanish.
    event->ignore();
    if (GameState.Restarting != True) {
        EnterRules(CloseProgram);
    }
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
