#include "ui/widgets/countinglabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>

#include <cmath>
#include <optional>

#include "ui/widgets/colours.h"
#include "ui/widgets/fittext.h"

namespace torvenhall
{

namespace
{

constexpr int CountMilliseconds = 280;
constexpr double NoteHeight = 11;

QRegularExpressionMatch NumberIn(const QString& text)
{
    static const QRegularExpression number(R"(-?\d+)");
    return number.match(text);
}

} // namespace

CountingLabel::CountingLabel(const Type& type, QWidget* parent)
    : GameLabel({}, type, parent), counting(*this)
{
}

void CountingLabel::ShowLabel(Label label)
{
    const QString before = text();
    const QRegularExpressionMatch old = NumberIn(Drawn());
    GameLabel::ShowLabel(label);
    if (old.hasMatch() && before != text() && NumberIn(text()).hasMatch()) {
        from = old.captured().toDouble();
        counting.Begin(CountMilliseconds);
    }
}

void CountingLabel::SetNote(const QString& newNote, const QColor& newInk)
{
    if (note != newNote || noteInk != newInk) {
        note = newNote;
        noteInk = newInk;
        update();
    }
}

/// What is drawn of the text at this moment.
QString CountingLabel::Drawn() const
{
    const double left = counting.Left();
    const QRegularExpressionMatch number = NumberIn(text());
    if (left <= 0 || !number.hasMatch()) {
        return text();
    }
    const double to = number.captured().toDouble();
    const auto present = static_cast<qint64>(std::lround(to + (from - to) * left));
    return QString(text()).replace(number.capturedStart(), number.capturedLength(),
                                   QString::number(present));
}

void CountingLabel::PaintNote(QPainter& painter) const
{
    const QFont small = CondensedType(NoteHeight, true).Font();
    const double sign = Colour() == colour::Danger ? Px(15) : 0; // the warning's
    const double left = QFontMetricsF(font()).horizontalAdvance(text()) + sign + Px(5);
    if (left + QFontMetricsF(small).horizontalAdvance(note) > width()) {
        return;
    }
    painter.setFont(small);
    painter.setPen(noteInk);
    painter.drawText(QRectF(left, Px(1), width() - left, height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, note);
}

void CountingLabel::paintEvent(QPaintEvent* event)
{
    if (counting.Left() <= 0) {
        GameLabel::paintEvent(event);
    }
    QPainter painter(this);
    if (counting.Left() > 0) {
        painter.setPen(Colour());
        painter.setFont(font());
        DrawFitted(painter, contentsRect(), alignment(), Drawn());
    }
    if (!note.isEmpty()) {
        PaintNote(painter);
    }
}

} // namespace torvenhall
