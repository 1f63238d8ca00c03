#include "ui/widgets/terminallabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

#include "core/shown.h"
#include "ui/widgets/colours.h"
#include "ui/widgets/face.h"
#include "ui/widgets/fittext.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{
constexpr int PastMessages = 10;
} // namespace

void TerminalLabel::ShowLabel(Label label)
{
    const QString newText = Text(ShownAt(label).text);
    if (!newText.isEmpty()) {
        const bool goesOn = !text().isEmpty() && newText.startsWith(text());
        if (goesOn) {
            messages.removeLast();
        }
        messages.append(newText);
        if (messages.size() > PastMessages) {
            messages.removeFirst();
        }
    }
    GameLabel::ShowLabel(label);
    ShowPastMessages();
}

void TerminalLabel::ShowPastMessages()
{
    const QString past = messages.join('\n');
    // As rich text a tooltip breaks its long lines.
    setToolTip(past.isEmpty() ? QString() : Qt::convertFromPlainText(past));
    setAccessibleDescription(past);
}

void TerminalLabel::resizeEvent(QResizeEvent* event)
{
    // A unit of the panel's border and the air within it.
    setContentsMargins(Px(8), Px(2), Px(6), Px(2));
    GameLabel::resizeEvent(event);
}

void TerminalLabel::paintEvent(QPaintEvent*)
{
    if (text().isEmpty()) {
        return; // what lies behind is worth seeing
    }
    const QFont shown = WrappedFont();
    QTextLayout layout(text(), shown);
    const QRectF inside = contentsRect();
    const double height = BreakLines(layout, inside.width());
    const QPointF origin(inside.left(), inside.bottom() - height);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPanel(painter, QRectF(rect()).adjusted(0, origin.y() - inside.top(), 0, 0),
               colour::PanelDeep);
    painter.setPen(Colour());
    layout.draw(&painter, origin);
    PaintCursor(painter, layout, origin);
}

void TerminalLabel::PaintCursor(QPainter& painter, const QTextLayout& layout,
                                const QPointF& origin) const
{
    const QFontMetricsF metrics(layout.font());
    const double width = metrics.horizontalAdvance('M');
    const QTextLine last = layout.lineAt(layout.lineCount() - 1);
    const QPointF place(last.cursorToX(static_cast<int>(text().size())) + width * 0.15,
                        last.y() + metrics.height() * 0.12);
    if (place.x() + width <= contentsRect().width()) {
        painter.fillRect(QRectF(origin + place, QSizeF(width * 0.85, metrics.height() * 0.76)),
                         Colour());
    }
}

} // namespace torvenhall
