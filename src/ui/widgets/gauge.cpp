#include "ui/widgets/gauge.h"

#include <QPainter>

#include <algorithm>

#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

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

void Gauge::PaintBar(QPainter& painter, const QColor& ink, double from, double to) const
{
    const double radius = height() / 2.0;
    painter.setBrush(QColor(255, 255, 255, 30));
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

void Gauge::PaintSteps(QPainter& painter, const Reading& shown) const
{
    const int steps = std::max(1, shown.steps);
    const double gap = height() * 0.6;
    const double step = (width() - gap * (steps - 1)) / steps;
    for (int i = 0; i < steps; ++i) {
        painter.setBrush(i < shown.share * steps - 0.5 ? Ink(shown) : QColor(255, 255, 255, 30));
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
        break;
    case Kind::AroundZero:
        PaintBar(painter, Ink(shown), 0.5, 0.5 + share / 2);
        painter.fillRect(QRectF(width() / 2.0 - 0.5, 0, 1, height()), QColor(255, 255, 255, 150));
        break;
    case Kind::Steps:
        PaintSteps(painter, shown);
        break;
    }
}

} // namespace torvenhall
