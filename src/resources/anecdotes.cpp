#include "resources/anecdotes.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/traps.h"
#include "core/waits.h"
#include "system/basSystem.h"
#include "system/checked.h"
#include "system/codepage.h"
#include "system/convert.h"
#include "system/table.h"
#include "system/text.h"

namespace torvenhall
{

namespace
{

constexpr std::string_view Header = "**ANECDOT DATA FILE FOR TORVENHALL BY MARSHEND SOFTWARE**";

/// The boxes spell the name otherwise than the file system, on purpose.
void TellAboutFile(std::string_view trouble, std::string_view title)
{
    MsgBox("Файл анекдотов '" + ProgramDirectory() + "anecdot.dat' " + std::string(trouble), title,
           Icon::Critical);
}

/// The lines of a file. A break at its end begins no further line, and a
/// file that was edited elsewhere may break lines without CR.
std::vector<std::string> Lines(std::string_view bytes)
{
    std::vector<std::string> lines = Split(bytes, "\n");
    if (lines.back().empty()) {
        lines.pop_back();
    }
    for (std::string& line : lines) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
    }
    return lines;
}

std::string RandomLine(const std::string& path)
{
    const std::string bytes = ReadWholeFile(path);
    // Far too many lines are not even kept.
    static_cast<void>(Int16::From(std::ranges::count(bytes, '\n')));
    const std::vector<std::string> lines = Lines(bytes);
    const Int16 count = Int16::From(std::ssize(lines));
    if (lines.empty()) {
        throw RuntimeError{error::Subscript};
    }
    if (lines.front() != Header) {
        TellAboutFile("повреждён или имеет неверный формат", "Ошибка 745");
    }
    Randomize(count.value());
    // The header takes part in the draw, on purpose.
    const Int16 chosen = ToInt16(double{Rnd()} * (count.value() - 1) + 1);
    return ReplaceAll(FromWindows1251(At(lines, chosen - 1)), "<CRLF>", "\r\n");
}

} // namespace

std::string GetAnecdote()
{
    const std::string path = ProgramDirectory() + "ANECDOT.DAT";
    if (!FileExists(path)) {
        TellAboutFile("не найден", "Ошибка 541");
        return {};
    }
    std::string anecdote;
    const RuntimeError failure = ErrorOf([&] { anecdote = RandomLine(path); });
    if (failure.number != 0) {
        ReportError(failure.number, failure.path);
        throw failure;
    }
    return anecdote;
}

} // namespace torvenhall
