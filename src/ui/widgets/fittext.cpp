#include "ui/widgets/fittext.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

// A smaller text than this share of its neighbours would look like another kind.
constexpr double SmallestShare = 0.8;

bool Fits(const QString& text, const QFont& font, double width)
{
    return QFontMetricsF(font).horizontalAdvance(text) <= width;
}

} // namespace

FittedText FitText(const QString& text, const QFont& font, double width)
{
    if (Fits(text, font, width)) {
        return {text, font, true};
    }
    QFont fitting = Condensed(font);
    const int smallest = static_cast<int>(font.pixelSize() * SmallestShare);
    for (; fitting.pixelSize() > smallest; fitting.setPixelSize(fitting.pixelSize() - 1)) {
        if (Fits(text, fitting, width)) {
            return {text, fitting, true};
        }
    }
    return {QFontMetricsF(fitting).elidedText(text, Qt::ElideRight, width), fitting,
            Fits(text, fitting, width)};
}

void DrawFitted(QPainter& painter, const QRectF& rect, Qt::Alignment alignment, const QString& text)
{
    const FittedText fitted = FitText(text, painter.font(), rect.width());
    const QFont before = painter.font();
    painter.setFont(fitted.font);
    painter.drawText(rect, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     fitted.text);
    painter.setFont(before);
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
