#include "ui/widgets/waitmark.h"

#include <QPainter>

#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{
constexpr int Steps = 12;
} // namespace

WaitMark::WaitMark(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WaitMark::Step(bool waits)
{
    if (waits || waiting != waits) {
        waiting = waits;
        step = waits ? (step + 1) % Steps : 0;
        update();
    }
}

void WaitMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(255, 255, 255, 22));
    if (!waiting) {
        return;
    }
    const double block = width() / 4.0;
    const double left = (width() + block) * step / Steps - block;
    QLinearGradient light(left, 0, left + block, 0);
    light.setColorAt(0, QColor(192, 255, 255, 0));
    light.setColorAt(1, colour::LightCyan);
    painter.fillRect(QRectF(left, 0, block, height()), light);
}

} // namespace torvenhall
