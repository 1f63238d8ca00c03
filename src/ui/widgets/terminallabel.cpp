#include "ui/widgets/terminallabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

#include "core/shown.h"
#include "ui/widgets/fittext.h"
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

void TerminalLabel::paintEvent(QPaintEvent* event)
{
    GameLabel::paintEvent(event);
    const QFont shown = WrappedFont();
    const QFontMetricsF metrics(shown);
    const double width = metrics.horizontalAdvance('M');
    QPointF place(0, 0);
    if (!text().isEmpty()) {
        QTextLayout layout(text(), shown);
        BreakLines(layout, contentsRect().width());
        const QTextLine last = layout.lineAt(layout.lineCount() - 1);
        place = {last.cursorToX(static_cast<int>(text().size())) + width * 0.15, last.y()};
    }
    if (place.x() + width > contentsRect().width()) {
        return;
    }
    QColor ink = Colour();
    ink.setAlpha(text().isEmpty() ? 70 : 255);
    const QRectF block(contentsRect().topLeft() + place + QPointF(0, metrics.height() * 0.12),
                       QSizeF(width * 0.85, metrics.height() * 0.76));
    QPainter(this).fillRect(block, ink);
}

} // namespace torvenhall
