#include "ui/widgets/fittext.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace torvenhall
{

namespace
{
// Narrower than this Cyrillic capitals run together.
constexpr double NarrowestStretch = 0.7;
} // namespace

FittedText FitText(const QString& text, const QFont& font, double width)
{
    const QFontMetricsF metrics(font);
    const double natural = metrics.horizontalAdvance(text);
    if (natural <= width || natural <= 0) {
        return {text, 1, true};
    }
    const double stretch = width / natural;
    if (stretch >= NarrowestStretch) {
        return {text, stretch, true};
    }
    return {metrics.elidedText(text, Qt::ElideRight, width / NarrowestStretch), NarrowestStretch,
            false};
}

void DrawFitted(QPainter& painter, const QRectF& rect, Qt::Alignment alignment, const QString& text)
{
    const FittedText fitted = FitText(text, painter.font(), rect.width());
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(fitted.stretch, 1);
    const QRectF stretched(0, 0, rect.width() / fitted.stretch, rect.height());
    painter.drawText(stretched, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     fitted.text);
    painter.restore();
}

double BreakLines(QTextLayout& layout, double width)
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

} // namespace torvenhall
