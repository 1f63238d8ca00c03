#pragma once

#include <QSettings>

namespace torvenhall
{

/// What the program remembers for a player from one start to the next: how large
/// the windows are to be, and where the main one stood.
inline QSettings PlayerSettings()
{
    return {QSettings::IniFormat, QSettings::UserScope, "torvenhall", "torvenhall"};
}

} // namespace torvenhall
