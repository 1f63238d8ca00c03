#include "resources/modJpegInside.h"

#include "core/traps.h"
#include "core/waits.h"
#include "system/basSystem.h"

namespace torvenhall
{

namespace
{

/// A resource of one byte counts as missing.
constexpr std::size_t SmallestPicture = 2;

/// The windows decode the picture from memory; the file is there for what it
/// leaves behind, the folder and the current directory. Each step fails by
/// itself.
void PassThroughTemp(std::string_view key, std::span<const std::byte> picture)
{
    const std::string folder = AddBackslash(DataDirectory() + "TEMP");
    if (!DirExists(folder)) {
        TrappedSilently([&] { MakeDirectory(StripBackslash(folder)); });
    }
    const std::string file = folder + std::string(key) + ".JPI";
    const std::string_view bytes(reinterpret_cast<const char*>(picture.data()), picture.size());
    TrappedSilently([&] { WriteNewFile(file, bytes); });
    TrappedSilently([&] { DeleteFile(file); });
}

} // namespace

bool LoadFormPicture(std::string_view key, std::span<const std::byte> picture)
{
    const bool isThere = picture.size() >= SmallestPicture;
    if (!isThere) {
        MsgBox("Error 48: Picture not Exist or Data Damage Error", "JPEGInside Critical Error",
               Icon::Critical);
    }
    PassThroughTemp(key, picture);
    return isThere;
}

bool DirExists(const std::string& path)
{
    const RuntimeError failure = ErrorOf([&] { ChangeDirectory(StripBackslash(path)); });
    return failure.number != error::PathNotFound;
}

} // namespace torvenhall
