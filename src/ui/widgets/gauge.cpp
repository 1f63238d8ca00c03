#include "ui/widgets/gauge.h"

#include <QPainter>

#include <algorithm>

#include "ui/widgets/theme.h"

namespace torvenhall
{

Gauge::Gauge(Kind newKind, QWidget* parent) : QWidget(parent), kind(newKind)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Gauge::Show(double newValue, double newFull, bool newDanger)
{
    if (value != newValue || full != newFull || danger != newDanger) {
        value = newValue;
        full = newFull;
        danger = newDanger;
        update();
    }
}

QColor Gauge::Ink() const
{
    if (danger) {
        return colour::Danger;
    }
    return value < 0 ? QColor(255, 176, 92) : QColor(112, 226, 236);
}

void Gauge::PaintBar(QPainter& painter, double from, double to) const
{
    const double radius = height() / 2.0;
    painter.setBrush(QColor(255, 255, 255, 30));
    painter.drawRoundedRect(rect(), radius, radius);
    const QRectF bar(std::min(from, to) * width(), 0, std::abs(to - from) * width(), height());
    if (bar.width() > 0) {
        QLinearGradient fill(bar.topLeft(), bar.topRight());
        fill.setColorAt(0, Ink().darker(to > from ? 170 : 100));
        fill.setColorAt(1, Ink().darker(to > from ? 100 : 170));
        painter.setBrush(fill);
        painter.drawRoundedRect(bar, radius, radius);
    }
}

void Gauge::PaintSteps(QPainter& painter) const
{
    const int steps = std::max(1, static_cast<int>(full));
    const double gap = height() * 0.6;
    const double step = (width() - gap * (steps - 1)) / steps;
    for (int i = 0; i < steps; ++i) {
        painter.setBrush(i < value ? Ink() : QColor(255, 255, 255, 30));
        painter.drawRoundedRect(QRectF(i * (step + gap), 0, step, height()), height() / 3.0,
                                height() / 3.0);
    }
}

void Gauge::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double share = full > 0 ? std::clamp(value / full, -1.0, 1.0) : 0;
    switch (kind) {
    case Kind::Share:
        PaintBar(painter, 0, std::max(share, 0.0));
        break;
    case Kind::AroundZero:
        PaintBar(painter, 0.5, 0.5 + share / 2);
        painter.fillRect(QRectF(width() / 2.0 - 0.5, 0, 1, height()), QColor(255, 255, 255, 150));
        break;
    case Kind::Steps:
        PaintSteps(painter);
        break;
    }
}

} // namespace torvenhall
