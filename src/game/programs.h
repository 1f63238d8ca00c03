#pragma once

namespace torvenhall
{

// Other programs that the game starts and does not wait for.

/// Opens License.txt or Readme.txt in the desktop's editor, or tells what is
/// missing.
void ShowLicence();
void ShowReadme();

/// Starts the desktop's system-information tool, or tells that there is none.
void StartSysInfo();

} // namespace torvenhall
