#include "ui/widgets/gauge.h"

#include <QPainter>

#include <algorithm>

#include "ui/widgets/metrics.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr QColor Track(255, 255, 255, 40);
// A change too small for the bar is still seen.
constexpr double LeastGhost = 2.5;

QColor Ink(const Gauge::Reading& shown)
{
    if (shown.danger) {
        return colour::Danger;
    }
    return shown.share < 0 ? QColor(255, 176, 92) : QColor(112, 226, 236);
}

} // namespace

Gauge::Gauge(Kind newKind, Reading (*newReading)(), QWidget* parent)
    : QWidget(parent), kind(newKind), reading(newReading)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Gauge::SetGhost(double newGhost)
{
    if (ghost != newGhost) {
        ghost = newGhost;
        update();
    }
}

void Gauge::PaintBar(QPainter& painter, const QColor& ink, double from, double to) const
{
    const double radius = height() / 2.0;
    painter.setBrush(Track);
    painter.drawRoundedRect(rect(), radius, radius);
    const QRectF bar(std::min(from, to) * width(), 0, std::abs(to - from) * width(), height());
    if (bar.width() > 0) {
        QLinearGradient fill(bar.topLeft(), bar.topRight());
        fill.setColorAt(0, ink.darker(to > from ? 170 : 100));
        fill.setColorAt(1, ink.darker(to > from ? 100 : 170));
        painter.setBrush(fill);
        painter.drawRoundedRect(bar, radius, radius);
    }
}

/// From the present end of the bar to the one that it would have.
void Gauge::PaintGhost(QPainter& painter, double from, double to) const
{
    if (ghost == 0) {
        return;
    }
    const double whole = width();
    const double start = std::clamp(from, 0.0, 1.0) * whole;
    const double end = std::clamp(to, 0.0, 1.0) * whole;
    const double room = std::max(std::abs(end - start), 1.0 * Px(LeastGhost));
    QRectF bar(ghost > 0 ? start : start - room, 0, room, height());
    bar.moveLeft(std::clamp(bar.left(), 0.0, whole - room));
    const double line = std::max(1.0, UnitScale());
    painter.setBrush(ghost > 0 ? colour::LightCyan : colour::Loss);
    painter.setPen(QPen(colour::PanelDeep, line)); // apart from the bar itself
    painter.drawRoundedRect(bar, height() / 3.0, height() / 3.0);
    painter.setPen(Qt::NoPen);
}

void Gauge::PaintSteps(QPainter& painter, const Reading& shown) const
{
    const int steps = std::max(1, shown.steps);
    const double gap = height() * 0.6;
    const double step = (width() - gap * (steps - 1)) / steps;
    for (int i = 0; i < steps; ++i) {
        const bool reached = i < shown.share * steps - 0.5;
        const bool comes = !reached && i < (shown.share + ghost) * steps - 0.5;
        painter.setBrush(reached ? Ink(shown) : comes ? colour::LightCyan : Track);
        painter.drawRoundedRect(QRectF(i * (step + gap), 0, step, height()), height() / 3.0,
                                height() / 3.0);
    }
}

void Gauge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const Reading shown = reading();
    const double share = std::clamp(shown.share, -1.0, 1.0);
    switch (kind) {
    case Kind::Share:
        PaintBar(painter, Ink(shown), 0, std::max(share, 0.0));
        PaintGhost(painter, shown.share, shown.share + ghost);
        break;
    case Kind::AroundZero: {
        PaintBar(painter, Ink(shown), 0.5, 0.5 + share / 2);
        PaintGhost(painter, 0.5 + shown.share / 2, 0.5 + (shown.share + ghost) / 2);
        const double line = std::max(1.0, UnitScale());
        painter.fillRect(QRectF((width() - line) / 2, 0, line, height()),
                         QColor(255, 255, 255, 190));
        break;
    }
    case Kind::Steps:
        PaintSteps(painter, shown);
        break;
    }
}

} // namespace torvenhall
