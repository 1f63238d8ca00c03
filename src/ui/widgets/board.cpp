#include "ui/widgets/board.h"

#include "ui/widgets/theme.h"

namespace torvenhall
{

LabelBoard::LabelBoard()
{
    Reset();
}

void LabelBoard::Reset()
{
    entries = {};
    entries[static_cast<std::size_t>(Label::lblFamily)].text = "NO WIFE";
}

void LabelBoard::Show(Label label, const QString& text, TextColour colour)
{
    Entry& entry = entries[static_cast<std::size_t>(label)];
    if (entry.text != text || entry.colour != colour) {
        entry = {text, colour};
        emit Shown(label);
    }
}

QColor LabelBoard::Colour(Label label) const
{
    return IsDanger(label) ? colour::Danger : colour::LightCyan;
}

} // namespace torvenhall
