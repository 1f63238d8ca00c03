#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace torvenhall::bench
{

// What the rules are measured against: the same arithmetic, written by hand
// for this one purpose, without the rules' structure.

/// A label's text that is written in place.
class FloorLabel
{
public:
    void Clear() { length = 0; }
    void Add(std::string_view text)
    {
        std::memcpy(text_.data() + length, text.data(), text.size());
        length += text.size();
    }
    void AddNumber(unsigned number, int digits)
    {
        for (int i = digits - 1; i >= 0; --i) {
            text_[length + static_cast<unsigned>(i)] = static_cast<char>('0' + number % 10);
            number /= 10;
        }
        length += static_cast<unsigned>(digits);
    }
    const char* Text() const { return text_.data(); }

private:
    std::array<char, 96> text_{};
    std::size_t length = 0;
};

/// The clock of a life: one reading of the system's for the dice, the minutes,
/// the hour, the test for the win, the label.
class FloorClock
{
public:
    explicit FloorClock(int minutes) : speed(minutes) {}

    void Tick()
    {
        state = Mixed(state ^ static_cast<std::uint64_t>(
                                  std::chrono::steady_clock::now().time_since_epoch().count()));
        Advance();
        Show();
    }
    /// The same without dice and label.
    void Advance()
    {
        minute += speed;
        if (minute >= 60) {
            minute -= 60;
            hour = hour == 22 ? 0 : hour + 1;
            hoursOnline += online ? 1 : 0;
        }
        won = money > winMoney && work == 12 && score >= 60;
    }
    std::uint64_t Draw() { return state = Mixed(state + 0x9E3779B97F4A7C15ULL); }
    const char* Shown() const { return label.Text(); }

    int money = 1000, happy = 100, health = 100, food = 100, pay = 10;

private:
    static std::uint64_t Mixed(std::uint64_t bits)
    {
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBULL;
        return bits ^ (bits >> 31U);
    }
    void Show()
    {
        label.Clear();
        label.AddNumber(15, 2);
        label.Add(" июня ");
        label.AddNumber(2001, 4);
        label.Add(" г. - ");
        label.AddNumber(static_cast<unsigned>(hour), 2);
        label.Add(":");
        label.AddNumber(static_cast<unsigned>(minute), 2);
    }

    int speed, hour = 0, minute = 0;
    int hoursOnline = 0, winMoney = 5000, work = 1, score = 3;
    bool online = false, won = false;
    std::uint64_t state = 2001;
    FloorLabel label;
};

} // namespace torvenhall::bench
