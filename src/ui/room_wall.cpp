#include <QFont>

#include <string_view>

#include "ui/roomparts.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

constexpr QRectF Leaf(160, 79, 28, 28);
constexpr QRectF Diplomas[]{
    {394, 76, 25, 18.5}, {422.5, 75.5, 25, 18.5}, {451, 76, 25, 18.5}, {479.5, 75.5, 25, 18.5}};

constexpr std::string_view Months[]{"январь",   "февраль", "март",   "апрель",
                                    "май",      "июнь",    "июль",   "август",
                                    "сентябрь", "октябрь", "ноябрь", "декабрь"};

void Shadow(QPainter& painter, const QRectF& thing)
{
    for (int i = 0; i < 3; ++i) {
        const double grown = 0.6 - 0.6 * i;
        painter.fillRect(thing.adjusted(1 - grown, 1.2 - grown, 1.6 + grown, 2 + grown),
                         QColor(40, 22, 14, 46));
    }
}

/// Text as wide as its place at most, drawn in units.
void Print(QPainter& painter, const QRectF& place, Type type, QColor colour, const QString& text)
{
    QFont font = type.Font();
    // Laid out large and shrunk: a small font would be rounded to whole pixels.
    constexpr int Fine = 8;
    font.setPixelSize(static_cast<int>(type.height * Fine));
    painter.save();
    painter.setFont(Condensed(font));
    painter.setPen(colour);
    painter.translate(place.topLeft());
    painter.scale(1.0 / Fine, 1.0 / Fine);
    painter.drawText(QRectF(0, 0, place.width() * Fine, place.height() * Fine), Qt::AlignCenter,
                     text);
    painter.restore();
}

void PaintLeaf(QPainter& painter, const RoomLook& look)
{
    Shadow(painter, Leaf.adjusted(0, -3, 0, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x5A, 0x2A, 0x24));
    painter.drawRoundedRect(Leaf.adjusted(-1.2, -4, 1.2, -Leaf.height() + 5), 1, 1);
    for (int i = 2; i >= 0; --i) { // the days to come, below the leaf
        painter.fillRect(Leaf.translated(0.5 * i, 0.7 * i),
                         QColor(236 - 22 * i, 226 - 24 * i, 204 - 26 * i));
    }
    painter.fillRect(QRectF(Leaf.topLeft(), QSizeF(Leaf.width(), 7.5)), QColor(0xB4, 0x3A, 0x30));
    painter.fillRect(QRectF(Leaf.left(), Leaf.top() + 7.5, Leaf.width(), 0.6),
                     QColor(0x7A, 0x22, 0x1E));
    painter.setBrush(QColor(0xC9, 0xB1, 0x84));
    painter.drawEllipse(QPointF(Leaf.center().x(), Leaf.top() - 1.6), 1, 1);
    Print(painter, {Leaf.left(), Leaf.top(), Leaf.width(), 7.5}, TextType(7, true),
          QColor(0xFF, 0xF1, 0xD8), Text(Months[look.month - 1]));
    Print(painter, {Leaf.left(), Leaf.top() + 7.5, Leaf.width(), 20.5}, TextType(20, true),
          QColor(0x2A, 0x20, 0x26), QString::number(look.day));
}

void PaintDiploma(QPainter& painter, const QRectF& place, int number)
{
    Shadow(painter, place);
    constexpr QRgb Frames[]{0xFF7A5230, 0xFF5A3A2C, 0xFF8C6A2E, 0xFFB8892F};
    constexpr QRgb Seals[]{0xFFB03A34, 0xFF2F6F9A, 0xFF3E7A48, 0xFFC23A50};
    painter.fillRect(place, QColor(Frames[number]));
    painter.fillRect(QRectF(place.topLeft(), QSizeF(place.width(), 0.7)),
                     QColor(255, 226, 170, 150));
    const QRectF paper = place.adjusted(1.6, 1.6, -1.6, -1.6);
    painter.fillRect(paper, QColor(0xF4, 0xEA, 0xCF));
    painter.fillRect(paper.adjusted(0, 0, 0, -paper.height() + 0.8), QColor(90, 70, 40, 70));
    const QColor ink(0x8A, 0x7A, 0x60);
    painter.fillRect(QRectF(paper.center().x() - 6, paper.top() + 2.4, 12, 1.8),
                     QColor(0x6A, 0x32, 0x2C));
    for (int i = 0; i < 3; ++i) {
        const double half = 7.5 - i * 1.2;
        painter.fillRect(QRectF(paper.center().x() - half, paper.top() + 6 + i * 2, half * 2, 0.7),
                         ink);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Seals[number]));
    const QPointF seal(paper.right() - 4.2, paper.bottom() - 3.2);
    QPainterPath ribbon;
    ribbon.addPolygon(
        QPolygonF{seal, seal + QPointF(-1.8, 4), seal + QPointF(0, 3), seal + QPointF(1.8, 4)});
    painter.drawPath(ribbon);
    painter.drawEllipse(seal, 2.2, 2.2);
    painter.setBrush(QColor(255, 230, 170, 120));
    painter.drawEllipse(seal - QPointF(0.3, 0.3), 1.1, 1.1);
}

} // namespace

void PaintWall(QPainter& painter, const RoomLook& look)
{
    painter.save();
    PaintLeaf(painter, look);
    for (int i = 0; i < look.diplomas; ++i) {
        PaintDiploma(painter, Diplomas[i], i);
    }
    painter.restore();
}

} // namespace torvenhall
