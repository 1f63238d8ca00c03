#include "ui/widgets/badge.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

#include "ui/widgets/colours.h"

namespace torvenhall
{

namespace
{

// On a grid of 16 by 16, as the glyphs are.

void Check(QPainter& painter)
{
    painter.setPen(QPen(colour::Gain, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{2.5, 8.5}, {6.5, 12.5}, {13.5, 4}}));
}

void Coin(QPainter& painter)
{
    const QColor gold(214, 168, 92);
    painter.setPen(QPen(gold, 1.3));
    painter.setBrush(QColor(88, 62, 26));
    painter.drawEllipse(QPointF(8, 8), 6.3, 6.3);
    QPainterPath dollar(QPointF(10.3, 6.1));
    dollar.cubicTo(9.6, 4.6, 5.8, 4.7, 5.8, 6.4);
    dollar.cubicTo(5.8, 8.4, 10.3, 7.5, 10.3, 9.6);
    dollar.cubicTo(10.3, 11.4, 6.4, 11.4, 5.7, 9.9);
    dollar.moveTo(8, 3.8);
    dollar.lineTo(8, 12.2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour::Warm, 1.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(dollar);
}

void Lock(QPainter& painter)
{
    const QColor iron(158, 178, 190);
    painter.setPen(QPen(iron, 1.6));
    painter.setBrush(Qt::NoBrush);
    QPainterPath shackle(QPointF(5, 8));
    shackle.lineTo(5, 5.2);
    shackle.cubicTo(5, 1.2, 11, 1.2, 11, 5.2);
    shackle.lineTo(11, 8);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(iron);
    painter.drawRoundedRect(QRectF(3, 7.4, 10, 6.8), 1.4, 1.4);
    painter.setBrush(QColor(24, 29, 38));
    painter.drawEllipse(QPointF(8, 10.2), 1.2, 1.2);
    painter.drawRect(QRectF(7.4, 10.2, 1.2, 2.4));
}

void Star(QPainter& painter)
{
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
        const double radius = i % 2 == 0 ? 7.2 : 3.1;
        const double angle = std::numbers::pi * (i / 5.0 - 0.5);
        points << QPointF(8 + radius * std::cos(angle), 8.4 + radius * std::sin(angle));
    }
    painter.setPen(QPen(colour::Warm, 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colour::Warm);
    painter.drawPolygon(points);
}

} // namespace

void DrawBadge(QPainter& painter, Badge badge, const QRectF& square)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 16, square.height() / 16);
    switch (badge) {
    case Badge::None:
        break;
    case Badge::Best:
        Check(painter);
        break;
    case Badge::TooDear:
        Coin(painter);
        break;
    case Badge::NotQualified:
        Lock(painter);
        break;
    case Badge::Present:
        Star(painter);
        break;
    }
    painter.restore();
}

} // namespace torvenhall
