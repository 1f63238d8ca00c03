#include "ui/widgets/scale.h"

#include <QApplication>
#include <QScreen>
#include <QShortcut>
#include <QToolTip>
#include <QWidget>

#include <algorithm>
#include <array>

#include "ui/widgets/metrics.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/settings.h"

namespace torvenhall
{

namespace
{

constexpr std::array Steps{1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0};
constexpr double ShareOfScreen = 0.85;

// The network's window and the main one; a window manager's frame in pixels.
constexpr double WidestUnits = 640;
constexpr double TallestUnits = 442;
constexpr int FrameWidth = 8;
constexpr int FrameHeight = 32;

QRect FreeArea()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

constexpr const char* Remembered = "scale";
constexpr const char* RememberedPlace = "place";

bool Fits(double scale, const QRect& area, double share)
{
    const double pixels = UnitScale() / PlayerScale() * scale;
    return WidestUnits * pixels + FrameWidth <= area.width() * share &&
           TallestUnits * pixels + FrameHeight <= area.height() * share;
}

/// A window that has grown must not stand outside the screen.
void KeepOnScreen(QWidget& window)
{
    const QScreen* screen = window.screen();
    if (!screen || !window.isVisible()) {
        return;
    }
    const QRect area = screen->availableGeometry();
    const QRect frame = window.frameGeometry();
    const QPoint outside(std::max(0, frame.right() - area.right()),
                         std::max(0, frame.bottom() - area.bottom()));
    const QPoint wanted = window.pos() - outside;
    const QPoint place(std::max(wanted.x(), area.left()), std::max(wanted.y(), area.top()));
    if (place != window.pos()) {
        window.move(place);
    }
}

void Choose(double scale)
{
    if (scale != PlayerScale()) {
        ApplyScale(scale);
    }
    PlayerSettings().setValue(Remembered, scale);
}

void Larger()
{
    const auto* const next = std::ranges::upper_bound(Steps, PlayerScale());
    Choose(next == Steps.end() ? PlayerScale() : *next);
}

void Smaller()
{
    const auto* const present = std::ranges::lower_bound(Steps, PlayerScale());
    Choose(present == Steps.begin() ? PlayerScale() : *(present - 1));
}

void Fitting()
{
    Choose(FittingScale(FreeArea()));
    PlayerSettings().remove(Remembered); // on another screen something else fits
}

} // namespace

double FittingScale(const QRect& freeArea)
{
    double fitting = Steps.front();
    for (const double step : Steps) {
        fitting = Fits(step, freeArea, ShareOfScreen) ? step : fitting;
    }
    return fitting;
}

void ChooseScale(std::optional<double> given)
{
    const double remembered = PlayerSettings().value(Remembered).toDouble();
    const bool usable = remembered >= Steps.front() && remembered <= Steps.back() &&
                        Fits(remembered, FreeArea(), 1);
    ApplyScale(given.value_or(usable ? remembered : FittingScale(FreeArea())));
}

void ApplyScale(double scale)
{
    SetPlayerScale(scale);
    QApplication::setFont(TextType(13).Font());
    QToolTip::setFont(TextType(12.5).Font());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        FollowScale(*window);
        KeepOnScreen(*window);
    }
}

void RememberPlace(const QWidget& window)
{
    if (QGuiApplication::platformName() != "offscreen") { // where nobody sees it
        PlayerSettings().setValue(RememberedPlace, window.pos());
    }
}

void StandWhereItStood(QWidget& window)
{
    const QVariant place = PlayerSettings().value(RememberedPlace);
    const QRect frame(place.toPoint(), window.size() + QSize(FrameWidth, FrameHeight));
    const auto holds = [&frame](const QScreen* screen) {
        return screen->availableGeometry().contains(frame);
    };
    if (place.isValid() && std::ranges::any_of(QGuiApplication::screens(), holds)) {
        window.move(place.toPoint());
    }
}

void ChangeScaleByKeys(QWidget* window)
{
    struct {
        QList<QKeySequence> keys;
        void (*change)();
    } const changes[]{{{QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, Larger},
                      {{QKeySequence("Ctrl+-")}, Smaller},
                      {{QKeySequence("Ctrl+0")}, Fitting}};
    for (const auto& [keys, change] : changes) {
        auto* shortcut = new QShortcut(window);
        shortcut->setKeys(keys);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, window, change);
    }
}

} // namespace torvenhall
