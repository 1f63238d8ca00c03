#pragma once

#include <QStringList>

#include "ui/widgets/gamelabel.h"

namespace torvenhall
{

/// The message line: a terminal with a block cursor behind what is typed. Its
/// last messages can be read in its tooltip and accessible description.
class TerminalLabel : public GameLabel
{
public:
    using GameLabel::GameLabel;

    /// A text that does not go on with the last one is another message.
    void ShowLabel(Label label) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowPastMessages();

    QStringList messages;
};

} // namespace torvenhall
