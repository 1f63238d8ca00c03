#pragma once

#include <optional>
#include <string>

#include "core/port.h"
#include "system/checked.h"

namespace torvenhall
{

/// What a shop's button for one category shows.
struct Offer {
    std::string caption;
    bool available = true;             ///< false once the list's last item is installed
    int price = 0;                     ///< dollars
    std::string installed;             ///< the present item's name
    std::string offered;               ///< the next one's, empty after the last
    std::optional<MessageBox> refusal; ///< what a click would bring at this moment
};

Offer HardwareOffer(Int16 category);
Offer SoftwareOffer(Int16 category);

/// The next item of the category: bought, or refused with a box. The shop's
/// window is loaded anew either way; errors are swallowed.
void BuyNextHardware(Int16 category);
void InstallNextSoftware(Int16 category);

} // namespace torvenhall
