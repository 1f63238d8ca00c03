#pragma once

#include <QString>

namespace torvenhall
{

class QtFrontEnd;

/// Opens every window of the game with a sample life and saves each as a PNG
/// in the folder, at the present scale; for looking at them. The program's
/// exit code: 0 when every picture was written.
int TakeTour(QtFrontEnd& frontEnd, const QString& folder);

} // namespace torvenhall
