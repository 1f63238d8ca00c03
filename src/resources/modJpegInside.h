#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace torvenhall
{

/// The JPEG file of a window's background picture by its key ("MAIN"). On the
/// way it passes through a file in TEMP, which leaves the folder there and
/// makes it the current directory if it was there before; that step may fail,
/// and costs no picture. Empty, after an error box, when there is no such
/// picture.
std::span<const std::byte> LoadFormPicture(std::string_view key);

/// False only if the folder does not exist. A folder that does becomes the
/// current directory, on purpose.
bool DirExists(const std::string& path);

} // namespace torvenhall
