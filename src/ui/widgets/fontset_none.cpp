#include "ui/widgets/fontset.h"

namespace torvenhall
{

void FindFontsQuickly() {}

} // namespace torvenhall
