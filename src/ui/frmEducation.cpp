#include "ui/frmEducation.h"

#include "activities/education.h"
#include "game/entry.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{
constexpr double SchoolTop = 146;
constexpr double CoursesTop = 260;
constexpr double PanelHeight = 106;
constexpr double PanelWidth = 346;
constexpr double ButtonTop = 70;
} // namespace

frmEducation::frmEducation(QWidget* parent)
    : ActivityWindow({"frmEducation", "Повышение квалификации", "EDUC"}, parent)
{
    AddSlogan("Label3", "Label4", "Школа... Без неё -- никуда...", Sign::Chalk);
    AddProgramme(
        "Label1",
        "Если вы начнёте ходить в школу, то Ваш уровень образования будет увеличиваться на "
        "10% каждый месяц. Оплата за обучение взымается ежемесячно по $50.",
        SchoolTop);
    school = AddToggle("Command1", "Ходить в школу - +10 к обр.  - $50", SchoolTop, ToggleSchool);
    AddProgramme(
        "Label2",
        "Если Вы начнёте ходить на компьютерные курсы, то Ваш статус будет увеличиваться на "
        "один уровень каждый месяц. Оплата за курсы взымается ежемесячно по $75",
        CoursesTop);
    courses = AddToggle("Command2", "Ходить на комп. курсы - +1 к комп. зн. - $75", CoursesTop,
                        ToggleCourses);
    AddBack("Command8");
}

void frmEducation::AddProgramme(const QString& labelName, const QString& text, double top)
{
    Surface().AddPanel({14, top, PanelWidth, PanelHeight});
    AddLabel(labelName, text, {26, top + 7, PanelWidth - 24, ButtonTop - 12}, TextType(11.5))
        ->setWordWrap(true);
}

GameButton* frmEducation::AddToggle(const char* name, const QString& caption, double top,
                                    void (*toggle)())
{
    GameButton* button = AddButton(name, caption, {26, top + ButtonTop, PanelWidth - 24, 27});
    button->SetEnterPresses(false);
    connect(button, &QAbstractButton::clicked, this, [toggle] { EnterRules(toggle); });
    return button;
}

void frmEducation::Load()
{
    const EducationButtons buttons = LoadEducation();
    school->ShowText(Text(buttons.school));
    courses->ShowText(Text(buttons.courses));
    if (buttons.schoolDone) {
        SetUsable(*school, false);
    }
    if (buttons.coursesDone) {
        SetUsable(*courses, false);
    }
    ActivityWindow::Load();
}

} // namespace torvenhall
