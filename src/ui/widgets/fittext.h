#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;
class QTextLayout;

namespace torvenhall
{

/// A line of text made to fit a width: in its own face, in the condensed one,
/// in that one a little smaller, and only when that is not enough cut with an
/// ellipsis.
struct FittedText {
    QString text;
    QFont font;
    bool whole = true; ///< nothing was cut
};
FittedText FitText(const QString& text, const QFont& font, double width);

/// Draws one fitted line, aligned inside the rectangle, with the painter's
/// font and pen.
void DrawFitted(QPainter& painter, const QRectF& rect, Qt::Alignment alignment,
                const QString& text);

/// Breaks the layout's text into lines of a width; their common height.
double BreakLines(QTextLayout& layout, double width);

} // namespace torvenhall
