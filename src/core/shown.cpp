#include "core/shown.h"

#include <optional>

#include "core/port.h"
#include "core/remembered.h"

namespace torvenhall
{

namespace
{

Remembered<EnumArray<Label, ShownText>> shown;

struct Moment {
    Date date;
    TimeOfDay time;
};
/// Of the labels whose text nobody has looked at yet.
Remembered<EnumArray<Label, std::optional<Moment>>> unwritten;

} // namespace

void ShowLabel(Label label, std::string_view text, TextColour colour)
{
    (*unwritten)[label].reset();
    // In place: a message is shown anew with each of its letters.
    ShownText& present = (*shown)[label];
    present.text = text;
    present.colour = colour;
    Windows().LabelChanged(label);
}

void ShowMoment(Label label, Date date, TimeOfDay time)
{
    (*unwritten)[label] = {date, time};
    (*shown)[label].colour = TextColour::LightCyan;
    Windows().LabelChanged(label);
}

const ShownText& ShownAt(Label label)
{
    ShownText& present = (*shown)[label];
    if (auto& moment = (*unwritten)[label]) {
        present.text.clear();
        AppendLongDate(present.text, moment->date);
        present.text += " г. - ";
        AppendTime(present.text, moment->time);
        moment.reset();
    }
    return present;
}

void ForgetShown()
{
    *shown = {};
    *unwritten = {};
}

} // namespace torvenhall
