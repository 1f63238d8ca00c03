#include "ui/widgets/sign.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <iterator>

#include "ui/widgets/fittext.h"
#include "ui/widgets/placing.h"

namespace torvenhall
{

namespace
{

constexpr double SidePadding = 16;

/// The colours of a sign: its plate from top to bottom, its letters and what
/// lies behind them.
struct Paint {
    QColor top, bottom, edge;
    QColor letters, shadow;
    double radius; ///< of the plate's corners, in units
};

/// In the order of Sign.
constexpr Paint Paints[] = {
    {{5, 9, 18, 225}, {4, 7, 14, 215}, {120, 240, 255, 0}, {206, 255, 255}, {0, 112, 168, 90}, 8},
    {{20, 42, 38, 250}, {15, 33, 30, 250}, {122, 84, 48}, {236, 240, 226}, {0, 0, 0, 60}, 2},
    {{26, 66, 138}, {17, 46, 102}, {226, 232, 240}, {250, 252, 255}, {4, 14, 44, 170}, 6},
    {{122, 28, 34}, {88, 18, 26}, {236, 214, 170}, {255, 240, 206}, {30, 4, 8, 190}, 3},
    {{176, 184, 186}, {128, 138, 142}, {70, 78, 82}, {18, 24, 30}, {255, 255, 255, 90}, 3},
    {{214, 178, 124}, {184, 146, 94}, {112, 82, 48}, {28, 20, 40}, {120, 84, 44, 90}, 2},
    {{44, 20, 22}, {26, 11, 13}, {206, 164, 84}, {246, 214, 140}, {0, 0, 0, 190}, 4},
};
static_assert(std::size(Paints) == static_cast<std::size_t>(Sign::Office) + 1);

const Paint& PaintOf(Sign sign)
{
    return Paints[static_cast<std::size_t>(sign)];
}

void PaintScrews(QPainter& painter, const QRectF& plate)
{
    const double in = Px(6), radius = Px(2) * 0.9;
    for (const double x : {plate.left() + in, plate.right() - in}) {
        for (const double y : {plate.top() + in, plate.bottom() - in}) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(20, 24, 28, 150));
            painter.drawEllipse(QPointF(x, y + radius * 0.35), radius, radius);
            painter.setBrush(QColor(206, 212, 214));
            painter.drawEllipse(QPointF(x, y), radius, radius);
            painter.setPen(QPen(QColor(70, 76, 80), radius * 0.4));
            painter.drawLine(QPointF(x - radius * 0.6, y - radius * 0.4),
                             QPointF(x + radius * 0.6, y + radius * 0.4));
        }
    }
}

/// A striped cloth that hangs down in scallops, behind the slogan's valance.
void PaintStripes(QPainter& painter, const QRectF& plate)
{
    const double scallop = Px(14);
    const int count = static_cast<int>(plate.width() / scallop);
    const double width = plate.width() / count;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < count; ++i) {
        QPainterPath cloth;
        const double left = plate.left() + i * width;
        cloth.addRect(left, plate.top() - plate.top(), width, plate.bottom() + Px(2));
        cloth.addEllipse(QPointF(left + width / 2, plate.bottom() + Px(2)), width / 2, Px(5));
        cloth.setFillRule(Qt::WindingFill);
        painter.setBrush(i % 2 == 0 ? QColor(150, 44, 44) : QColor(226, 206, 170));
        painter.drawPath(cloth);
    }
}

/// What a hand has left of the chalk that was wiped off.
void PaintWipes(QPainter& painter, const QRectF& plate)
{
    painter.save();
    painter.setClipRect(plate, Qt::IntersectClip);
    for (int i = 0; i < 7; ++i) {
        const double x = plate.left() + plate.width() * (0.07 + 0.14 * i);
        const double y = plate.top() + plate.height() * (i % 3 * 0.3 + 0.2);
        painter.setPen(
            QPen(QColor(220, 232, 222, 7 + i % 3 * 4), Px(9), Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x, y), QPointF(x + Px(70), y - Px(7)));
    }
    painter.restore();
}

void PaintTubeGlow(QPainter& painter, const QPainterPath& letters, const QColor& ink)
{
    for (const auto& [width, alpha] : {std::pair{9.0, 30}, {6.0, 50}, {3.5, 80}, {1.8, 140}}) {
        QColor glow = ink;
        glow.setAlpha(alpha);
        painter.strokePath(
            letters, QPen(glow, width * UnitScale(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

/// Chalk leaves the roughness of the board free.
void PaintChalkGaps(QPainter& painter, const QPainterPath& letters, const QColor& board)
{
    painter.save();
    painter.setClipPath(letters, Qt::IntersectClip);
    QRectF place = letters.boundingRect();
    unsigned seed = 12345;
    const double grain = std::max(1.0, UnitScale() * 0.75);
    QPainterPath gaps;
    for (double x = place.left(); x < place.right(); x += grain) {
        for (double y = place.top(); y < place.bottom(); y += grain) {
            seed = seed * 1664525U + 1013904223U;
            if (seed >> 24U < 34) {
                gaps.addRect(x, y, grain, grain);
            }
        }
    }
    painter.fillPath(gaps, board);
    painter.restore();
}

} // namespace

void PaintSignPlate(QPainter& painter, Sign sign, const QRectF& plate)
{
    const Paint& paint = PaintOf(sign);
    const double line = std::max(1.0, UnitScale());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (sign == Sign::Awning) {
        PaintStripes(painter, plate);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    if (sign != Sign::Neon) { // it hangs a little before the wall
        painter.drawRoundedRect(plate.translated(Px(1), Px(3)), Px(paint.radius), Px(paint.radius));
    }
    QLinearGradient face(plate.topLeft(), plate.bottomLeft());
    face.setColorAt(0, paint.top);
    face.setColorAt(1, paint.bottom);
    painter.setBrush(face);
    const bool framed = paint.edge.alpha() > 0;
    painter.setPen(framed ? QPen(paint.edge, line * 1.5) : QPen(Qt::NoPen));
    painter.drawRoundedRect(plate, Px(paint.radius), Px(paint.radius));
    if (sign == Sign::Enamel || sign == Sign::Tin) {
        PaintScrews(painter, plate);
    } else if (sign == Sign::Chalk) {
        PaintWipes(painter, plate);
    }
    painter.restore();
}

double SignWidth(const QString& slogan, double height)
{
    constexpr double fine = 8; // the width does not depend on how a scale rounds
    QFont font = TextType(height, true).Font();
    font.setPixelSize(static_cast<int>(height * fine));
    return QFontMetricsF(font).horizontalAdvance(slogan) / fine + 2 * SidePadding;
}

SignLabel::SignLabel(const QString& controlName, Sign newSign, Part newPart, const Type& type,
                     QWidget* parent)
    : GameLabel(controlName, type, parent), sign(newSign), part(newPart)
{
    SetColour(part == Part::Letters ? PaintOf(sign).letters : PaintOf(sign).shadow);
}

QPainterPath SignLabel::LettersIn(const QRectF& place) const
{
    // Taken from large letters: those of a size are fitted to its pixels.
    constexpr int large = 200;
    const FittedText fitted = FitText(text(), font(), place.width());
    QFont face = fitted.font;
    face.setPixelSize(large);
    face.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(face);
    const double shrink = fitted.font.pixelSize() / static_cast<double>(large);
    QPainterPath letters;
    letters.addText(0, (metrics.ascent() - metrics.descent()) / 2, face, fitted.text);
    return QTransform::fromTranslate(place.left(), place.center().y())
        .scale(shrink, shrink)
        .map(letters);
}

void SignLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath letters = LettersIn(contentsRect());
    const bool isNeon = sign == Sign::Neon;
    if (isNeon && part == Part::Letters) { // a tube throws light, no shadow
        PaintTubeGlow(painter, letters, PaintOf(sign).shadow);
    }
    if (part == Part::Letters || !isNeon) {
        painter.fillPath(letters, Colour());
    }
    if (part == Part::Letters && sign == Sign::Chalk) {
        PaintChalkGaps(painter, letters, QColor(24, 46, 42, 120));
    }
}

} // namespace torvenhall
