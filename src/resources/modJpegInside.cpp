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
    TrappedSilently([&] { OverwriteFile(file, bytes); });
    TrappedSilently([&] { DeleteFile(file); });
}

} // namespace

std::span<const std::byte> LoadFormPicture(std::string_view key)
{
    const auto picture = Windows().FindPicture(std::string(key) + "PICTURE");
    const bool isMissing = picture.size() < SmallestPicture;
    if (isMissing) {
        MsgBox("Error 48: Picture not Exist or Data Damage Error", "JPEGInside Critical Error",
               Icon::Critical);
    }
    PassThroughTemp(key, picture);
    return isMissing ? std::span<const std::byte>{} : picture;
}

bool DirExists(const std::string& path)
{
    const RuntimeError failure = ErrorOf([&] { ChangeDirectory(StripBackslash(path)); });
    return failure.number != error::PathNotFound;
}

} // namespace torvenhall
