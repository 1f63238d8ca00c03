// The typefaces of the game.

#include <QFontDatabase>
#include <QResource>

#include <initializer_list>

#include "ui/widgets/metrics.h"

// A library's resources are registered by name, which must be in the global
// namespace.
static void RegisterTypefaces()
{
    Q_INIT_RESOURCE(typefaces);
}

namespace torvenhall
{

namespace
{

/// The toolkit reads every letter of a face that it is given, so each comes when
/// it is first wanted.
bool LoadFaces(std::initializer_list<const char*> faces)
{
    RegisterTypefaces();
    for (const char* face : faces) {
        const QResource resource(QString(":/typefaces/") + face);
        QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
            reinterpret_cast<const char*>(resource.data()), resource.size()));
    }
    return true;
}

const char* TextFaces()
{
    [[maybe_unused]] static const bool loaded = LoadFaces({"text", "text-bold"});
    return "PT Sans";
}

const char* CondensedFaces()
{
    [[maybe_unused]] static const bool loaded = LoadFaces({"condensed", "condensed-bold"});
    return "PT Sans Narrow";
}

const char* TerminalFace()
{
    [[maybe_unused]] static const bool loaded = LoadFaces({"terminal"});
    return "PT Mono";
}

} // namespace

QFont Type::Font() const
{
    QFont font(terminal ? TerminalFace() : TextFaces());
    font.setPixelSize(FontPx(height));
    font.setBold(bold);
    return condensed ? Condensed(font) : font;
}

QFont Condensed(const QFont& font)
{
    QFont condensed(font);
    if (font.family() == TextFaces()) {
        condensed.setFamily(CondensedFaces());
    }
    return condensed;
}

Type TextType(double height, bool bold)
{
    return {height, bold};
}

Type CondensedType(double height, bool bold)
{
    return {height, bold, false, true};
}

Type TerminalType(double height)
{
    return {height, false, true};
}

} // namespace torvenhall
