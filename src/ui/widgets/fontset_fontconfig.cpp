#include "ui/widgets/fontset.h"

#include <fontconfig/fontconfig.h>

namespace torvenhall
{

namespace
{

// The usual folders, the distribution's usual looks, and what the machine's
// owner and the player have wished for themselves.
constexpr const char* Rules = R"(<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <dir prefix="xdg">fonts</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <match target="pattern">
    <edit name="hintstyle" mode="append"><const>hintslight</const></edit>
    <edit name="lcdfilter" mode="append"><const>lcddefault</const></edit>
  </match>
  <include ignore_missing="yes">/etc/fonts/local.conf</include>
  <include ignore_missing="yes" prefix="xdg">fontconfig/conf.d</include>
  <include ignore_missing="yes" prefix="xdg">fontconfig/fonts.conf</include>
</fontconfig>
)";

} // namespace

void FindFontsQuickly()
{
    FcConfig* fonts = FcConfigCreate();
    if (!fonts) {
        return;
    }
    const auto* rules = reinterpret_cast<const FcChar8*>(Rules);
    if (FcConfigParseAndLoadFromMemory(fonts, rules, FcFalse)) {
        FcConfigSetCurrent(fonts); // which reads the list of the fonts
    }
    FcConfigDestroy(fonts); // the current one is kept
}

} // namespace torvenhall
