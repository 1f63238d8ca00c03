#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace torvenhall
{

/// What one statistic has been since the game was started or loaded: a value
/// for a day, of a long life for every second day, and so on.
class Past
{
public:
    /// The value of the present game day.
    void Note(int value);
    /// A small curve as rich text for a tooltip, with a line where the life
    /// ends; empty before the second day.
    QString Curve(std::optional<int> fatal) const;

private:
    struct Day {
        int number;
        int value;
    };
    std::vector<Day> days;
    int life = 0;
};

} // namespace torvenhall
