#pragma once

#include <QStringList>

#include "ui/widgets/gamelabel.h"

class QTextLayout;

namespace torvenhall
{

/// The message line: a terminal with a block cursor behind what is typed, on a
/// panel that grows from its foot with the lines; without a text there is
/// nothing to see. Its last messages can be read in its tooltip and accessible
/// description.
class TerminalLabel : public GameLabel
{
public:
    using GameLabel::GameLabel;

    /// A text that does not go on with the last one is another message.
    void ShowLabel(Label label) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintCursor(QPainter& painter, const QTextLayout& layout, const QPointF& origin) const;
    void ShowPastMessages();

    QStringList messages;
};

} // namespace torvenhall
