#include "system/text.h"

#include <algorithm>
#include <array>

namespace torvenhall
{

namespace
{

constexpr char32_t StrayByte = 0xFFFD;

constexpr unsigned char Byte(char character)
{
    return static_cast<unsigned char>(character);
}

/// The number of bytes that a sequence with this first byte has, 0 for a
/// byte that begins none.
constexpr std::size_t SequenceLength(unsigned char first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return 2;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 3;
    }
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

/// The second byte of a long sequence is bounded further: no overlong form,
/// no surrogate, nothing above U+10FFFF.
constexpr bool SecondByteFits(unsigned char first, unsigned char second)
{
    switch (first) {
    case 0xE0:
        return second >= 0xA0;
    case 0xED:
        return second < 0xA0;
    case 0xF0:
        return second >= 0x90;
    case 0xF4:
        return second < 0x90;
    default:
        return true;
    }
}

bool IsSequence(std::string_view text)
{
    if (text.empty() || SequenceLength(Byte(text[0])) != text.size()) {
        return false;
    }
    const std::string_view rest = text.substr(1);
    return std::ranges::all_of(rest, [](char c) { return (Byte(c) & 0xC0) == 0x80; }) &&
           (rest.empty() || SecondByteFits(Byte(text[0]), Byte(rest[0])));
}

constexpr char32_t SmallLetter(char32_t letter)
{
    if ((letter >= U'A' && letter <= U'Z') || (letter >= U'А' && letter <= U'Я')) {
        return letter + 0x20;
    }
    if (letter >= U'Ѐ' && letter <= U'Џ') {
        return letter + 0x50;
    }
    return letter == U'Ґ' ? U'ґ' : letter;
}

} // namespace

std::string FoldCase(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    for (const std::string_view character : Characters(text)) {
        if (IsSequence(character)) {
            AppendCodePoint(folded, SmallLetter(CodePoint(character)));
        } else {
            folded += character;
        }
    }
    return folded;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part)
{
    return FoldCase(text).find(FoldCase(part)) != std::string::npos;
}

std::vector<std::string_view> Characters(std::string_view text)
{
    std::vector<std::string_view> characters;
    while (!text.empty()) {
        std::size_t length = std::min(SequenceLength(Byte(text[0])), text.size());
        if (!IsSequence(text.substr(0, length))) {
            length = 1;
        }
        characters.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

char32_t CodePoint(std::string_view character)
{
    if (!IsSequence(character)) {
        return StrayByte;
    }
    if (character.size() == 1) {
        return Byte(character[0]);
    }
    // A first byte of a sequence of n bytes carries 7 - n bits.
    char32_t codePoint = Byte(character[0]) & (0x7FU >> character.size());
    for (const char next : character.substr(1)) {
        codePoint = (codePoint << 6) | (Byte(next) & 0x3FU);
    }
    return codePoint;
}

void AppendCodePoint(std::string& text, char32_t codePoint)
{
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
        return;
    }
    constexpr std::array<unsigned, 3> lengthMarks{0xC0, 0xE0, 0xF0};
    const std::size_t following = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
    text += static_cast<char>(lengthMarks[following - 1] | codePoint >> 6 * following);
    for (std::size_t left = following; left > 0; --left) {
        text += static_cast<char>(0x80U | (codePoint >> 6 * (left - 1) & 0x3FU));
    }
}

bool IsUtf8(std::string_view text)
{
    return std::ranges::all_of(Characters(text), IsSequence);
}

std::string_view Trim(std::string_view text, std::string_view blanks)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string replaced;
    for (std::size_t at = text.find(from); at != std::string_view::npos && !from.empty();
         at = text.find(from)) {
        replaced += text.substr(0, at);
        replaced += to;
        text.remove_prefix(at + from.size());
    }
    replaced += text;
    return replaced;
}

std::vector<std::string> Split(std::string_view text, std::string_view separator)
{
    std::vector<std::string> parts;
    for (std::size_t at = text.find(separator); at != std::string_view::npos && !separator.empty();
         at = text.find(separator)) {
        parts.emplace_back(text.substr(0, at));
        text.remove_prefix(at + separator.size());
    }
    parts.emplace_back(text);
    return parts;
}

} // namespace torvenhall
