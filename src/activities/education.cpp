#include "activities/education.h"

#include "core/basGame.h"
#include "core/port.h"

namespace torvenhall
{

namespace
{

void Toggle(Int16& attendance)
{
    attendance = attendance == False ? True : False;
    Windows().ReloadWindow(window::frmEducation);
}

} // namespace

EducationButtons LoadEducation()
{
    EducationButtons buttons;
    buttons.courses = GameState.AttendCourses == False ? "Ходить на курсы" : "Бросить эти курсы";
    buttons.school = GameState.AttendSchool == False ? "Ходить в школу" : "Бросить эту школу";
    // Only the top itself is told; a higher rank or intelligence is not.
    if (GameState.Education == TopRank) {
        buttons.coursesDone = true;
        buttons.courses = "Закончил эти курсы!";
    }
    if (GameState.Intelligence == FullIntelligence) {
        buttons.schoolDone = true;
        // The courses button announces the finished school, on purpose.
        buttons.courses = "Закончил эту школу!";
    }
    return buttons;
}

void ToggleSchool()
{
    Toggle(GameState.AttendSchool);
}

void ToggleCourses()
{
    Toggle(GameState.AttendCourses);
}

} // namespace torvenhall
