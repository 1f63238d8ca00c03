#include <QFont>

#include <iterator>
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
        const QRectF shade = thing.adjusted(1 - grown, 1.2 - grown, 1.6 + grown, 2 + grown);
        painter.fillRect(shade, QColor(40, 22, 14, 46));
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

/// The string of lamps hangs in swags from nail to nail, and behind the panel
/// where the hero's head is.
constexpr struct {
    double left, right, top, dip;
    int lamps;
} Swags[]{
    {161, 199, 58, 7, 4}, {232, 304, 56, 10, 7}, {346, 433, 56, 11, 8}, {433, 521, 57, 11, 8}};

constexpr QRgb LampColours[]{0xFFFFC860, 0xFFFF7A5C, 0xFF7FD8C0, 0xFFFFE09A, 0xFFE88AB0};

/// Calls use(place, colour) for each lamp.
template <typename Use>
void EachLamp(Use use)
{
    int number = 0;
    for (const auto& [left, right, top, dip, lamps] : Swags) {
        for (int i = 0; i < lamps; ++i, ++number) {
            const double part = (i + 0.5) / lamps;
            use(QPointF(left + (right - left) * part, top + 4 * dip * part * (1 - part) + 2.4),
                QColor(LampColours[number % std::size(LampColours)]));
        }
    }
}

void PaintLamps(QPainter& painter)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x2A, 0x3A, 0x2C), 0.7));
    for (const auto& [left, right, top, dip, lamps] : Swags) {
        QPainterPath wire(QPointF(left, top));
        wire.quadTo((left + right) / 2, top + 2 * dip, right, top);
        painter.drawPath(wire);
    }
    painter.setPen(Qt::NoPen);
    EachLamp([&](QPointF place, QColor colour) {
        painter.setBrush(QColor(0x24, 0x32, 0x28));
        painter.drawRect(QRectF(place.x() - 0.8, place.y() - 2.6, 1.6, 1.8));
        painter.setBrush(colour.darker(115));
        painter.drawEllipse(place + QPointF(0, 0.6), 1.4, 2);
        painter.setBrush(QColor(255, 255, 255, 150));
        painter.drawEllipse(place + QPointF(-0.4, 0), 0.4, 0.7);
    });
}

} // namespace

void PaintLampsGlow(QPainter& painter, const RoomLook& look, double strength)
{
    if (look.Part(Slot::Case) < LampsFromCase) {
        return;
    }
    constexpr double Reach = 8;
    painter.save();
    painter.setPen(Qt::NoPen);
    EachLamp([&](QPointF place, QColor colour) {
        QRadialGradient halo(place, Reach);
        colour.setAlphaF(static_cast<float>(0.8 * strength));
        halo.setColorAt(0, colour);
        colour.setAlphaF(static_cast<float>(0.3 * strength));
        halo.setColorAt(0.3, colour);
        colour.setAlphaF(0);
        halo.setColorAt(1, colour);
        painter.fillRect(QRectF(place.x() - Reach, place.y() - Reach, 2 * Reach, 2 * Reach), halo);
        painter.setBrush(QColor(255, 246, 220, static_cast<int>(230 * strength)));
        painter.drawEllipse(place + QPointF(0, 0.5), 1, 1.5);
    });
    painter.restore();
}

void PaintWall(QPainter& painter, const RoomLook& look)
{
    painter.save();
    PaintLeaf(painter, look);
    if (look.Part(Slot::Case) >= LampsFromCase) {
        PaintLamps(painter);
    }
    for (int i = 0; i < look.diplomas; ++i) {
        PaintDiploma(painter, Diplomas[i], i);
    }
    painter.restore();
}

} // namespace torvenhall
