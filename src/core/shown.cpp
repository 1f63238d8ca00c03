#include "core/shown.h"

#include "core/port.h"
#include "core/remembered.h"

namespace torvenhall
{

namespace
{

Remembered<EnumArray<Label, ShownText>> shown;

} // namespace

void ShowLabel(Label label, std::string_view text, TextColour colour)
{
    // In place: a message is shown anew with each of its letters.
    ShownText& present = (*shown)[label];
    present.text = text;
    present.colour = colour;
    Windows().LabelChanged(label);
}

const ShownText& ShownAt(Label label)
{
    return (*shown)[label];
}

void ForgetShown()
{
    *shown = {};
}

} // namespace torvenhall
