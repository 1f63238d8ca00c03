// The input is the file of the anecdotes.

#include "resources/anecdotes.h"
#include "core/traps.h"
#include "system/codepage.h"
#include "system/text.h"
#include "target.h"

namespace torvenhall::fuzz
{

std::size_t LongestInput()
{
    return LongestFile + 1;
}

void Check(std::string_view input)
{
    Rules& rules = TheRules();
    const std::string path = rules.folder + "ANECDOT.DAT";
    WriteBytes(path, input);
    rules.player.journal = rules.player.boxes = {};
    rules.dice.calls.clear();
    // The last line is the long one.
    rules.dice.otherwise = input.size() % 2 == 0 && input.size() < 4096 ? 0.3F : 0.999F;
    std::string anecdote;
    int failure = 0;
    Limited([&] { failure = ErrorOf([&] { anecdote = GetAnecdote(); }).number; });
    Require(BytesOf(path) == input, "the file stays as it was");
    if (failure != 0) {
        Require(failure == error::Subscript || failure == error::Overflow ||
                    failure == error::BadRecordLength,
                "an error is one of those that are announced");
        Require(rules.player.boxes.back().find(std::to_string(failure)) != std::string::npos,
                "an error is told");
        return Count("refused");
    }
    Require(IsUtf8(anecdote), "an anecdote is UTF-8");
    Require(ReplaceAll(std::string(input), "<CRLF>", "\r\n").find(ToWindows1251(anecdote)) !=
                std::string::npos,
            "an anecdote is part of the file");
    Count("drawn");
}

} // namespace torvenhall::fuzz
