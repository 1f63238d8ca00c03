#include "ui/widgets/gamelist.h"

#include <QPainter>

#include "ui/widgets/colours.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

GameList::GameList(const QString& emptiness, QWidget* parent)
    : QListWidget(parent), emptiness(emptiness)
{
    setSpacing(Px(2));
}

void GameList::KeepRowsWhole()
{
    if (spacing() != Px(2)) {
        setSpacing(Px(2)); // the scale has changed
    }
    const int row = sizeHintForRow(0) + 2 * spacing();
    const int inside = height() - 2 * frameWidth();
    setViewportMargins(0, 0, 0, count() > 0 && inside > row ? inside % row : 0);
}

void GameList::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    KeepRowsWhole();
}

void GameList::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QListWidget::rowsInserted(parent, start, end);
    KeepRowsWhole();
}

void GameList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (count() == 0) {
        QPainter painter(viewport());
        painter.setPen(colour::Caption);
        const int air = Px(16);
        painter.drawText(viewport()->rect().adjusted(air, 0, -air, 0),
                         Qt::AlignCenter | Qt::TextWordWrap, emptiness);
    }
}

} // namespace torvenhall
