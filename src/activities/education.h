#pragma once

#include <string_view>

namespace torvenhall
{

/// What a month of attendance brings and costs (events/ charges it).
struct Programme {
    int gain;  ///< percent of intelligence, or ranks
    int price; ///< dollars
};
inline constexpr Programme SchoolProgramme{10, 50};
inline constexpr Programme CoursesProgramme{1, 75};

/// What a loading of the education window makes of its two buttons.
struct EducationButtons {
    std::string_view school, courses;             ///< captions of Command1 and Command2
    bool schoolDone = false, coursesDone = false; ///< to be disabled
};
EducationButtons LoadEducation();

/// Begin or end the attendance and load the education window anew.
void ToggleSchool();
void ToggleCourses();

} // namespace torvenhall
