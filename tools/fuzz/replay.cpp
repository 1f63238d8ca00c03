// Feeds a target without libFuzzer: the seeds, what random but repeatable
// changes make of them, and files as long as the game reads and one byte
// longer. With --every-byte each seed also cut at every offset, and with every byte
// replaced by every other value, or by every STEPth.
//
//   replay [--every-byte STEP] COUNT SEED...

#include <cstdlib>
#include <iostream>
#include <new>
#include <random>

#include "target.h"

using namespace torvenhall;

void* operator new(std::size_t size)
{
    fuzz::largestAllocation = std::max(fuzz::largestAllocation, size);
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size);

static void Try(const std::string& input)
{
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

static void TryEveryByte(const std::string& seed, int step)
{
    for (std::size_t at = 0; at < seed.size(); ++at) {
        Try(seed.substr(0, at));
        std::string changed = seed;
        for (int by = 1; by < 256; by += step) {
            changed[at] = static_cast<char>(seed[at] + by);
            Try(changed);
        }
    }
}

/// As long as can be, of many short lines or of few long ones.
static void TryLongOnes(const std::string& seed)
{
    const std::pair<std::string, std::string> partsAndEnds[]{
        {seed, ""},       {"\n", ""},     {std::string("\0", 1), ""},
        {"\x0C\x09", ""}, {"<CRLF>", ""}, {"[\n", ""},
        {"[x", "]"},      {"x", "="},     {"x", ""}};
    for (const auto& [part, end] : partsAndEnds) {
        for (const std::size_t size : {LongestFile, LongestFile + 1}) {
            std::string longOne = seed.substr(0, seed.size() / 2);
            while (longOne.size() < size) {
                longOne += part;
            }
            longOne.replace(size - end.size(), std::string::npos, end);
            Try(longOne);
        }
    }
}

/// One to eight changes: a byte, a piece cut out, doubled or put elsewhere.
static std::string Changed(std::string input, std::mt19937& random)
{
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    for (std::size_t changes = 1 + upTo(7); changes > 0; --changes) {
        const std::size_t at = upTo(input.size()), length = upTo(input.size() - at) % 32;
        const std::string piece = input.substr(at, length);
        switch (random() % 5) {
        case 0:
            input.insert(at, 1, static_cast<char>(random()));
            break;
        case 1:
            input.erase(at, length);
            break;
        case 2:
            input.insert(at, piece);
            break;
        case 3:
            input.insert(upTo(input.size()), piece);
            break;
        default:
            input.replace(at, 1, 1, static_cast<char>(random()));
        }
    }
    return input;
}

int main(int count, char** arguments)
{
    std::vector<std::string> words(arguments + 1, arguments + count);
    int step = 0;
    if (words.size() > 2 && words.front() == "--every-byte") {
        step = std::stoi(words[1]);
        words.erase(words.begin(), words.begin() + 2);
    }
    if (words.size() < 2) {
        std::cerr << "Usage: " << *arguments << " [--every-byte STEP] COUNT SEED...\n";
        return 2;
    }
    const std::size_t changes = std::stoul(words.front()) / (words.size() - 1);
    std::mt19937 random; // the same ones each time
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string seed = fuzz::BytesOf(words[i]);
        fuzz::Require(!seed.empty(), "the seed " + words[i] + " is there");
        Try(seed);
        TryLongOnes(seed);
        if (step > 0) {
            TryEveryByte(seed, step);
        }
        for (std::size_t change = 0; change < changes; ++change) {
            Try(Changed(seed, random));
        }
    }
}
