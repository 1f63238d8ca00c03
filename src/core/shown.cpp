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
    (*shown)[label] = {std::string(text), colour};
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
