#include "ui/widgets/gamelabel.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>
#include <QToolTip>

#include "core/shown.h"
#include "ui/widgets/fittext.h"
#include "ui/widgets/glyphs.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/quietlife.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double SmallestUnits = 7.5;
constexpr int FlashMilliseconds = 250;

} // namespace

GameLabel::GameLabel(const QString& controlName, const Type& type, QWidget* parent)
    : QLabel(parent), colour(colour::Text)
{
    setObjectName(controlName);
    setTextFormat(Qt::PlainText);
    Dress(*this, type);
}

void GameLabel::SetColour(const QColor& newColour)
{
    if (colour != newColour) {
        colour = newColour;
        SetSpokenCaption(spokenCaption);
        update();
    }
}

void GameLabel::ShowText(const QString& newText)
{
    if (text() != newText) {
        const bool isChange = !text().isEmpty();
        setText(newText);
        SetSpokenCaption(spokenCaption);
        if (flashes && isChange) {
            Flash();
        }
    }
}

void GameLabel::ShowLabel(Label label)
{
    const ShownText& shown = ShownAt(label);
    ShowText(Text(shown.text));
    SetColour(shown.colour == TextColour::Red ? colour::Danger : colour::LightCyan);
}

bool GameLabel::event(QEvent* event)
{
    // Asked only now: most texts are never pointed at, and some change all day.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && (hovers || !TextFits())) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void GameLabel::Flash()
{
    if (StillLife()) {
        return;
    }
    lit = true;
    update();
    QTimer::singleShot(FlashMilliseconds, this, [this] {
        lit = false;
        update();
    });
}

void GameLabel::SetSpokenCaption(const QString& caption)
{
    spokenCaption = caption;
    if (!caption.isEmpty()) {
        // Not every screen reader hears an alert, but each hears a name change.
        const QString warning = colour == colour::Danger ? ", опасно" : QString();
        setAccessibleName(caption + ": " + text() + warning);
    }
}

bool GameLabel::TextFits() const
{
    if (wordWrap()) {
        bool fits = false;
        WrappedFont(&fits);
        return fits;
    }
    return FitText(text(), font(), contentsRect().width()).whole;
}

QFont GameLabel::WrappedFont(bool* fits) const
{
    QFont candidate = font();
    const int smallest = Px(SmallestUnits);
    for (;; candidate.setPixelSize(candidate.pixelSize() - 1)) {
        QTextLayout layout(text(), candidate);
        const bool room = BreakLines(layout, contentsRect().width()) <= contentsRect().height();
        if (room || candidate.pixelSize() <= smallest) {
            if (fits) {
                *fits = room;
            }
            return candidate;
        }
    }
}

/// Danger is not told by its colour alone.
void GameLabel::PaintWarning(QPainter& painter) const
{
    const double side = Px(12);
    const double left = QFontMetricsF(font()).horizontalAdvance(text()) + Px(3);
    if (left + side <= width()) {
        const QRectF sign(left, (height() - side) / 2.0, side, side);
        DrawGlyph(painter, Glyph::Exclamation, sign, colour::Warm);
    }
}

void GameLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (lit) {
        // Below the caption above it, which must stay readable.
        painter.fillRect(rect().adjusted(0, Px(3), 0, 0), QColor(192, 255, 255, 48));
    }
    painter.setPen(colour);
    painter.setFont(font());
    if (!wordWrap()) {
        DrawFitted(painter, contentsRect(), alignment(), text());
        if (colour == colour::Danger && !text().isEmpty()) {
            PaintWarning(painter);
        }
        return;
    }
    QTextLayout layout(text(), WrappedFont());
    const double height = BreakLines(layout, contentsRect().width());
    QPointF origin = contentsRect().topLeft();
    if (alignment() & Qt::AlignVCenter) {
        origin.ry() += (contentsRect().height() - height) / 2;
    }
    layout.draw(&painter, origin);
}

} // namespace torvenhall
