#pragma once

#include <string>

namespace torvenhall
{

/// A random line of ANECDOT.DAT with its line breaks (CR LF), UTF-8; empty,
/// after a box, when the file is missing. A damaged header is told and the
/// file still used. Error 9 for an empty file and error 6 for more than
/// 32767 lines; an error is reported first and then raised, so that its
/// caller keeps what it shows.
std::string GetAnecdote();

} // namespace torvenhall
