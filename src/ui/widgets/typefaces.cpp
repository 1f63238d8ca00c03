// The typefaces of the game.

#include <QFontDatabase>
#include <QResource>

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

constexpr const char* TextFamily = "PT Sans";
constexpr const char* CondensedFamily = "PT Sans Narrow";
constexpr const char* TerminalFamily = "PT Mono";

bool LoadTypefaces()
{
    RegisterTypefaces();
    for (const char* face : {"text", "text-bold", "condensed", "condensed-bold", "terminal"}) {
        const QResource resource(QString(":/typefaces/") + face);
        QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
            reinterpret_cast<const char*>(resource.data()), resource.size()));
    }
    return true;
}

} // namespace

QFont Type::Font() const
{
    static const bool loaded = LoadTypefaces();
    Q_UNUSED(loaded);
    QFont font(terminal ? TerminalFamily : TextFamily);
    font.setPixelSize(FontPx(height));
    font.setBold(bold);
    return condensed ? Condensed(font) : font;
}

QFont Condensed(const QFont& font)
{
    QFont condensed(font);
    if (font.family() == TextFamily) {
        condensed.setFamily(CondensedFamily);
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
