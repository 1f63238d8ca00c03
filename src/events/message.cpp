#include "events/message.h"

#include <string>

#include "core/shown.h"
#include "core/waits.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr double SecondsPerCharacter = 0.1;
constexpr double SecondsToRead = 2;

} // namespace

void ShowMessage(std::string_view text)
{
    ShowLabel(Label::lblMessage, "");
    std::string typed;
    for (const std::string_view character : Characters(text)) {
        Pause(SecondsPerCharacter);
        typed += character;
        ShowLabel(Label::lblMessage, typed);
    }
    // One more step types nothing.
    Pause(SecondsPerCharacter);
    Pause(SecondsToRead);
    ShowLabel(Label::lblMessage, "");
}

} // namespace torvenhall
