#include "resources/anecdotes.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "core/traps.h"
#include "core/waits.h"
#include "system/basSystem.h"
#include "system/checked.h"
#include "system/codepage.h"
#include "system/convert.h"
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

/// Counts in single bytes, as many as cannot overflow: a processor takes sixteen
/// of them at once.
std::int64_t CountBreaks(std::string_view bytes)
{
    std::int64_t breaks = 0;
    while (!bytes.empty()) {
        constexpr std::size_t stride = 240;
        unsigned char few = 0;
        for (const char byte : bytes.substr(0, stride)) {
            few = static_cast<unsigned char>(few + (byte == '\n' ? 1 : 0));
        }
        breaks += few;
        bytes.remove_prefix(std::min(stride, bytes.size()));
    }
    return breaks;
}

/// How many lines a file has. A break at its end begins no further line.
Int16 CountLines(std::string_view bytes)
{
    return Int16::From(CountBreaks(bytes) + (bytes.empty() || bytes.ends_with('\n') ? 0 : 1));
}

/// The line with that number, counted from 0. A file that was edited elsewhere
/// may break lines without CR.
std::string_view LineAt(std::string_view bytes, std::int64_t number)
{
    // In strides, since counting is quicker than finding.
    constexpr std::size_t stride = 4096;
    while (bytes.size() > stride) {
        const std::int64_t breaks = CountBreaks(bytes.substr(0, stride));
        if (breaks >= number) {
            break;
        }
        number -= breaks;
        bytes.remove_prefix(stride);
    }
    for (; number > 0; --number) {
        bytes.remove_prefix(bytes.find('\n') + 1);
    }
    bytes = bytes.substr(0, bytes.find('\n'));
    if (bytes.ends_with('\r')) {
        bytes.remove_suffix(1);
    }
    return bytes;
}

std::string RandomLine(const std::string& path)
{
    const std::string bytes = ReadWholeFile(path);
    const Int16 count = CountLines(bytes);
    if (count == 0) {
        throw RuntimeError{error::Subscript};
    }
    if (LineAt(bytes, 0) != Header) {
        TellAboutFile("повреждён или имеет неверный формат", "Ошибка 745");
    }
    Randomize(count.value());
    // The header takes part in the draw, on purpose.
    const Int16 chosen = ToInt16(double{Rnd()} * (count.value() - 1) + 1);
    return ReplaceAll(FromWindows1251(LineAt(bytes, chosen.value() - 1)), "<CRLF>", "\r\n");
}

} // namespace

std::string GetAnecdote()
{
    const std::string path = ProgramDirectory() + "ANECDOT.DAT";
    std::string anecdote;
    const RuntimeError failure = ErrorOf([&] { anecdote = RandomLine(path); });
    if (failure.number == 0) {
        return anecdote;
    }
    // Looked for only now: on the way to a joke the file is opened once.
    if (!FileExists(path)) {
        TellAboutFile("не найден", "Ошибка 541");
        return {};
    }
    ReportError(failure.number, failure.path);
    throw failure;
}

} // namespace torvenhall
