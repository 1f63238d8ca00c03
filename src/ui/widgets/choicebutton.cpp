#include "ui/widgets/choicebutton.h"

#include <QFocusEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

#include "ui/widgets/colours.h"
#include "ui/widgets/fittext.h"
#include "ui/widgets/placing.h"

namespace torvenhall
{

namespace
{

constexpr double GlyphLeft = 8;
constexpr double GlyphSize = 16;
constexpr double TextLeft = 31;
constexpr double BadgeSize = 13;
constexpr double BadgeRight = 7;
constexpr double TextRight = BadgeSize + BadgeRight + 4;
constexpr int GlowMilliseconds = 450;

/// A colour on its way to another.
QColor Mixed(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](int one, int other) {
        return static_cast<int>(one + (other - one) * share);
    };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

} // namespace

ChoiceButton::ChoiceButton(const QString& controlName, const QString& caption, QWidget* parent)
    : GameButton(controlName, caption, parent), glow(*this)
{
    SetAlignment(Qt::AlignLeft);
    SetEnterPresses(false);
    Dress(*this, TextType(13));
}

void ChoiceButton::SetBadge(Badge newBadge)
{
    SetMuted(newBadge == Badge::TooDear || newBadge == Badge::NotQualified);
    if (badge != newBadge) {
        badge = newBadge;
        update();
    }
}

void ChoiceButton::LightUp()
{
    glow.Begin(GlowMilliseconds);
    update();
}

QPoint ChoiceButton::TipPlace() const
{
    const bool low = mapTo(window(), rect().center()).y() > window()->height() / 2;
    const QPoint place(width() + Px(8), low ? height() - TipSize().height() : 0);
    const int right = mapToGlobal(place).x() + TipSize().width();
    return right < screen()->availableGeometry().right() ? place : GameButton::TipPlace();
}

QRectF ChoiceButton::TextPlace() const
{
    return QRectF(rect()).adjusted(Px(TextLeft), 0, -Px(TextRight), 0);
}

QColor ChoiceButton::InkOf(Tone tone) const
{
    const QColor plain = Ink();
    const bool quiet = !isEnabled() || IsMuted();
    const bool lit = underMouse() || isDown(); // on a lighter face
    const auto toned = [&](const QColor& colour) {
        return quiet ? Mixed(colour, plain, 0.6) : lit ? Mixed(colour, Qt::white, 0.35) : colour;
    };
    switch (tone) {
    case Tone::Gain:
        return toned(colour::Gain);
    case Tone::Loss:
        return toned(colour::Loss);
    case Tone::Price:
        return toned(colour::Warm);
    case Tone::Plain:
        break;
    }
    return plain;
}

/// What one is already: a warm ground and a bar at the left edge, which the
/// focus, an outline, cannot be taken for.
void ChoiceButton::PaintPresent(QPainter& painter) const
{
    const double radius = Px(5);
    QPainterPath shape;
    shape.addRoundedRect(rect(), radius, radius);
    painter.save();
    painter.setClipPath(shape);
    QLinearGradient ground(rect().topLeft(), rect().topRight());
    ground.setColorAt(0, QColor(255, 190, 104, 48));
    ground.setColorAt(1, QColor(255, 190, 104, 8));
    painter.fillRect(rect(), ground);
    painter.fillRect(QRectF(0, 0, Px(4), height()), colour::Warm);
    painter.restore();
}

void ChoiceButton::PaintGlow(QPainter& painter) const
{
    const double line = std::max(1.0, 2 * UnitScale());
    QColor light = colour::Gain;
    light.setAlphaF(static_cast<float>(0.85 * glow.Left()));
    painter.setPen(QPen(light, line));
    light.setAlphaF(static_cast<float>(0.3 * glow.Left())); // the caption stays readable on it
    painter.setBrush(light);
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            Px(5), Px(5));
}

void ChoiceButton::PaintCaption(QPainter& painter) const
{
    const QRectF place = TextPlace();
    const FittedText fitted = FitText(text(), font(), place.width());
    QTextLayout layout(fitted.text, fitted.font);
    QList<QTextLayout::FormatRange> pieces;
    int start = 0;
    for (const CaptionPart& part : SplitCaption(fitted.text, wages)) {
        QTextCharFormat format;
        format.setForeground(InkOf(part.tone));
        const int length = static_cast<int>(part.text.size());
        pieces.append({start, length, format});
        start += length;
    }
    layout.setFormats(pieces);
    const double high = BreakLines(layout, place.width() * 2);
    layout.draw(&painter, place.topLeft() + QPointF(0, (place.height() - high) / 2));
}

void ChoiceButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    if (badge == Badge::Present) {
        PaintPresent(painter);
    }
    if (glow.Left() > 0) {
        PaintGlow(painter);
    }
    if (isDown()) {
        painter.translate(0, Px(1));
    }
    const bool quiet = !isEnabled() || IsMuted();
    const double middle = height() / 2.0;
    const QRectF square(Px(GlyphLeft), middle - Px(GlyphSize) / 2.0, Px(GlyphSize), Px(GlyphSize));
    DrawGlyph(painter, Sign(), square, quiet ? Ink() : colour::Warm);
    PaintCaption(painter);
    DrawBadge(painter, badge,
              {width() - Px(BadgeRight + BadgeSize) * 1.0, middle - Px(BadgeSize) / 2.0,
               Px(BadgeSize) * 1.0, Px(BadgeSize) * 1.0});
}

void ChoiceButton::TellAttention(bool attended)
{
    if (attention) {
        attention(attended);
    }
}

void ChoiceButton::enterEvent(QEnterEvent* event)
{
    GameButton::enterEvent(event);
    TellAttention(true);
}

void ChoiceButton::leaveEvent(QEvent* event)
{
    GameButton::leaveEvent(event);
    TellAttention(false);
}

void ChoiceButton::focusInEvent(QFocusEvent* event)
{
    GameButton::focusInEvent(event);
    // A window that opens, or becomes the active one, has focused a row without
    // the player; a dialog even says so before it has the focus.
    if (hasFocus() && event->reason() != Qt::ActiveWindowFocusReason) {
        TellAttention(true);
    }
}

void ChoiceButton::focusOutEvent(QFocusEvent* event)
{
    GameButton::focusOutEvent(event);
    if (!underMouse()) {
        TellAttention(false);
    }
}

} // namespace torvenhall
