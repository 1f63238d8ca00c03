#include "lives/policy.h"

#include <algorithm>
#include <array>

namespace torvenhall::lives
{

std::span<const Policy* const> Policies()
{
    static constexpr std::array all{&Manual,  &Saver,    &Student, &Gambler,
                                    &Careful, &Reloader, &Patient, &Climber};
    return all;
}

const Policy* PolicyOf(std::string_view name)
{
    const auto found =
        std::ranges::find(Policies(), name, [](const Policy* policy) { return policy->name; });
    return found != Policies().end() ? *found : nullptr;
}

} // namespace torvenhall::lives
