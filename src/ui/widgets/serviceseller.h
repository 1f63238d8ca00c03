#pragma once

#include <span>

#include "activities/services.h"
#include "ui/widgets/activitywindow.h"

namespace torvenhall
{

/// A window that sells relief, made of its table.
class ServiceSeller : public ActivityWindow
{
public:
    /// How the window looks: its sign, the width of its list, a glyph a row.
    struct Look {
        Sign sign;
        double width;
        std::span<const Glyph> glyphs;
    };
    ServiceSeller(const char* name, const ServiceWindow& newTable, const Look& look,
                  QWidget* parent);

protected:
    Standing StandingOf(std::size_t index) const override;

private:
    const ServiceWindow& table;
};

} // namespace torvenhall
