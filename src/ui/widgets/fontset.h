#pragma once

namespace torvenhall
{

/// Lets the toolkit find the machine's fonts, for the letters that the game's own
/// faces lack, without the desktop's long rules about families, which would be
/// read for as long as all the rest of a start takes. To be called before the
/// toolkit begins; does nothing where fonts are found in another way.
void FindFontsQuickly();

} // namespace torvenhall
