#include "ui/widgets/label.h"

#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>

#include "ui/widgets/fittext.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double SmallestUnits = 7.5;
constexpr int FlashMilliseconds = 250;
constexpr int PastMessages = 10;

/// Breaks the text into lines of a width; their common height.
double LayOut(QTextLayout& layout, double width)
{
    layout.setText(layout.text().replace('\n', QChar::LineSeparator));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

GameLabel::GameLabel(const QString& controlName, const QFont& font, QWidget* parent)
    : QLabel(parent), colour(colour::Text)
{
    setObjectName(controlName);
    setTextFormat(Qt::PlainText);
    setFont(font);
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
        setToolTip(TextFits() && !hovers ? QString() : newText);
        SetSpokenCaption(spokenCaption);
        if (flashes && isChange) {
            Flash();
        }
    }
}

void GameLabel::ShowOnHover()
{
    hovers = true;
    setToolTip(text());
}

void GameLabel::Flash()
{
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
        const bool room = LayOut(layout, contentsRect().width()) <= contentsRect().height();
        if (room || candidate.pixelSize() <= smallest) {
            if (fits) {
                *fits = room;
            }
            return candidate;
        }
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
        return;
    }
    QTextLayout layout(text(), WrappedFont());
    const double height = LayOut(layout, contentsRect().width());
    QPointF origin = contentsRect().topLeft();
    if (alignment() & Qt::AlignVCenter) {
        origin.ry() += (contentsRect().height() - height) / 2;
    }
    layout.draw(&painter, origin);
}

void TerminalLabel::Type(const QString& newText)
{
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
    ShowText(newText);
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
        LayOut(layout, contentsRect().width());
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
