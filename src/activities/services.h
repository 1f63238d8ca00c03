#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "core/changes.h"
#include "core/port.h"

namespace torvenhall
{

struct Service {
    std::string_view caption;
    int price = 0;
    /// In the order of the calls; the change of money is the price.
    std::array<Change, 3> changes;
};

/// A window that sells relief: its texts and its purchases, Command1 first.
struct ServiceWindow {
    std::string_view caption, pictureKey, group, slogan;
    std::string_view refusal, refusalTitle;
    bool needsMoreThanPrice = false; ///< else exactly the price is enough
    std::span<const Service> services;
};

extern const ServiceWindow Entertainment, Hospital, FoodShop;

/// Whether the player's money reaches, by the window's own test.
bool CanAfford(const ServiceWindow& window, const Service& service);
/// The box that a purchase would bring when the player's money does not reach;
/// nothing where it does.
std::optional<MessageBox> ServiceRefusal(const ServiceWindow& window, const Service& service);
/// Buys, or refuses with a box. A setter call that fails is reported and
/// skipped; the next one runs.
void BuyService(const ServiceWindow& window, std::size_t index);

} // namespace torvenhall
