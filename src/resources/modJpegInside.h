#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace torvenhall
{

/// What the loading of a window's background picture, a JPEG file carried in
/// the program, does beside decoding it: the picture passes through a file in
/// TEMP named by its key ("MAIN"), which leaves the folder there and makes it
/// the current directory if it was there before; that step may fail, and costs
/// no picture. False, after an error box, when there is no such picture.
bool LoadFormPicture(std::string_view key, std::span<const std::byte> picture);

/// False only if the folder does not exist. A folder that does becomes the
/// current directory, on purpose.
bool DirExists(const std::string& path);

} // namespace torvenhall
