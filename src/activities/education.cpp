#include "activities/education.h"

#include "core/GameState.h"

namespace torvenhall
{

EducationButtons LoadEducation()
{
    EducationButtons buttons;
    buttons.courses = GameState.AttendCourses == False ? "Ходить на курсы" : "Бросить эти курсы";
    buttons.school = GameState.AttendSchool == False ? "Ходить в школу" : "Бросить эту школу";
    if (GameState.Education == 8) {
        buttons.coursesDone = true;
        buttons.courses = "Закончил эти курсы!";
    }
    if (GameState.Intelligence == 100) {
        buttons.schoolDone = true;
        // The courses button announces the finished school, on purpose.
        buttons.courses = "Закончил эту школу!";
    }
    return buttons;
}

void ToggleSchool()
{
    GameState.AttendSchool = GameState.AttendSchool == False ? True : False;
}

void ToggleCourses()
{
    GameState.AttendCourses = GameState.AttendCourses == False ? True : False;
}

} // namespace torvenhall
