#include "ui/widgets/gamebutton.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

#include "ui/widgets/face.h"
#include "ui/widgets/fittext.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{
constexpr double SidePadding = 9;
constexpr double GlyphSize = 15;
constexpr double StackedGlyphSize = 17;
constexpr double GlyphGap = 7;
constexpr double TipInset = 30;
constexpr double TipWidth = 230; // at most, whatever the button's
/// The button under the mouse.
QPointer<GameButton> hovered;
} // namespace

GameButton::GameButton(const QString& controlName, const QString& caption, QWidget* parent)
    : QPushButton(caption, parent)
{
    setObjectName(controlName);
    setAutoDefault(false);
    setDefault(false);
    Dress(*this, TextType(12));
    setCursor(Qt::PointingHandCursor);
}

void GameButton::SetGlyph(Glyph newGlyph)
{
    glyph = newGlyph;
    update();
}

void GameButton::Stack()
{
    stacked = true;
    Dress(*this, CondensedType(12.5));
}

void GameButton::SetMuted(bool newMuted)
{
    if (muted != newMuted) {
        muted = newMuted;
        update();
    }
}

void GameButton::ShowText(const QString& caption)
{
    if (text() != caption) {
        setText(caption);
        RefreshTip();
    }
}

void GameButton::SetPrimary(bool newPrimary)
{
    if (primary != newPrimary) {
        primary = newPrimary;
        update();
    }
}

void GameButton::Explain(const QString& newExplanation)
{
    if (explanation != newExplanation) {
        explanation = newExplanation;
        setAccessibleDescription(explanation);
        RefreshTip();
    }
}

/// A caption that does not fit, and what the button is explained with.
void GameButton::RefreshTip()
{
    const QString tip = TextFits() ? explanation : text() + '\n' + explanation;
    if (tip.isEmpty()) {
        setToolTip({});
        return;
    }
    // No wider than the button: the picture beside it is worth seeing.
    QTextLayout layout(tip.trimmed(), QToolTip::font());
    BreakLines(layout, std::max(width() - Px(TipInset + 16), Px(TipWidth)));
    QStringList lines;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        lines << layout.text().mid(line.textStart(), line.textLength()).trimmed().toHtmlEscaped();
    }
    constexpr double around = 18; // the words, on both sides together
    tipSize = layout.boundingRect().toAlignedRect().size() + QSize(Px(around), Px(around));
    setToolTip("<p style='white-space:nowrap'>" + lines.join("<br>") + "</p>");
}

bool GameButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        // The toolkit adds what the usual arrow of a mouse needs.
        QToolTip::showText(mapToGlobal(TipPlace()) - QPoint(2, 16), toolTip(), this);
        return true;
    }
    return QPushButton::event(event);
}

QPoint GameButton::TipPlace() const
{
    return rect().bottomLeft() + QPoint(Px(TipInset), Px(3));
}

bool GameButton::TextFits() const
{
    return FitText(text(), font(), TextPlace().width()).whole;
}

QSize GameButton::sizeHint() const
{
    const double glyphWidth = glyph == Glyph::None ? 0 : Px(GlyphSize + GlyphGap);
    const double width = QFontMetricsF(font()).horizontalAdvance(text());
    return {static_cast<int>(width + glyphWidth) + Px(2 * SidePadding), Px(28)};
}

QRectF GameButton::TextPlace() const
{
    if (stacked) {
        return QRectF(rect()).adjusted(Px(2), height() * 0.55, -Px(2), -Px(2));
    }
    QRectF place = QRectF(rect()).adjusted(Px(SidePadding), 0, -Px(SidePadding), 0);
    if (glyph != Glyph::None) {
        place.setLeft(place.left() + Px(GlyphSize + GlyphGap));
    }
    return place;
}

QColor GameButton::Ink() const
{
    if (!isEnabled()) {
        return colour::Faint;
    }
    if (muted) {
        return underMouse() ? QColor(188, 200, 207) : QColor(150, 163, 170);
    }
    return underMouse() || isDown() ? colour::LightCyan : colour::Text;
}

void GameButton::PaintGround(QPainter& painter) const
{
    PaintFace(painter, rect(),
              {.usable = isEnabled(),
               .down = isDown(),
               .lit = underMouse(),
               .muted = muted,
               .primary = primary,
               .focused = hasFocus(),
               .rivalled = hovered && hovered != this && hovered->window() == window()});
}

void GameButton::PaintStacked(QPainter& painter) const
{
    const double down = isDown() ? Px(1) : 0;
    QRectF square(0, 0, Px(StackedGlyphSize), Px(StackedGlyphSize));
    square.moveCenter({rect().center().x() + 0.5, height() * 0.32 + down});
    DrawGlyph(painter, glyph, square, isEnabled() ? colour::Warm : Ink());
    DrawFitted(painter, TextPlace().translated(0, down), Qt::AlignCenter, text());
}

void GameButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);

    painter.setFont(font());
    painter.setPen(Ink());
    if (stacked) {
        PaintStacked(painter);
        return;
    }
    QRectF place = TextPlace();
    if (isDown()) {
        place.translate(0, Px(1));
    }
    if (glyph != Glyph::None) {
        const double textWidth =
            std::min(QFontMetricsF(font()).horizontalAdvance(text()), place.width());
        double left = place.left();
        if (alignment & Qt::AlignHCenter) {
            left += (place.width() - textWidth) / 2;
            place.setLeft(left);
        }
        const QRectF square(left - Px(GlyphSize + GlyphGap),
                            place.center().y() - Px(GlyphSize) / 2.0, Px(GlyphSize), Px(GlyphSize));
        const bool plain = isEnabled() && !muted;
        DrawGlyph(painter, glyph, square, plain ? colour::Warm : Ink());
        DrawFitted(painter, place, Qt::AlignLeft | Qt::AlignVCenter, text());
        return;
    }
    DrawFitted(painter, place, alignment | Qt::AlignVCenter, text());
}

void GameButton::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->isAutoRepeat() && (enter || event->key() == Qt::Key_Space)) {
        event->accept(); // a key held down presses once
        return;
    }
    if (enter) {
        if (enterPresses) {
            click();
        }
        event->accept();
        return;
    }
    QPushButton::keyPressEvent(event);
}

/// The focus steps back while the mouse is on another button.
void GameButton::Hover(GameButton* button)
{
    hovered = button;
    update();
    if (QWidget* focused = window()->focusWidget()) {
        focused->update();
    }
}

void GameButton::enterEvent(QEnterEvent* event)
{
    QPushButton::enterEvent(event);
    Hover(this);
}

void GameButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    Hover(nullptr);
}

void GameButton::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    RefreshTip();
}

} // namespace torvenhall
