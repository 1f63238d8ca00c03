#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "ui/widgets/gamewindow.h"

namespace torvenhall
{

/// A window that is opened by its name, which is its class's, and how the main
/// window offers it.
struct WindowRow {
    std::string_view name;
    std::unique_ptr<GameWindow> (*make)(QWidget* owner);
    // The main window's button and its item in the menu "Игра"; a row without
    // a button has none.
    const char* button = nullptr;
    const char* caption = nullptr;
    Glyph glyph = Glyph::None;
    const char* item = nullptr;
    const char* itemText = nullptr;
    bool itemOpens = true;
    /// What opens it, if that takes more than the opening.
    void (*open)() = nullptr;
};

/// Every such window; those with a button in the order of the buttons.
std::span<const WindowRow> WindowTable();
const WindowRow* FindWindow(std::string_view name);

/// Opens the row's window from the main window.
void Open(const WindowRow& row);

} // namespace torvenhall
