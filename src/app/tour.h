#pragma once

#include <QString>

#include <optional>

namespace torvenhall
{

class QtFrontEnd;

/// Opens every window of the game - the main window in four lives, each place
/// in town also with a row under the mouse - and saves each as a PNG in the
/// folder, for looking at them: at the given scale, which is the present one, or
/// at 1, 1.5 and 2, each in a folder of its own. The program's exit code: 0 when
/// every picture was written.
int TakeTour(QtFrontEnd& frontEnd, const QString& folder, std::optional<double> scale);

} // namespace torvenhall
