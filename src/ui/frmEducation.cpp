#include "ui/frmEducation.h"

#include "activities/education.h"
#include "core/GameState.h"
#include "core/basGame.h"
#include "ui/choiceglyphs.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

constexpr double SchoolTop = 104;
constexpr double CoursesTop = 238;
constexpr double PanelHeight = 124;
constexpr double PanelWidth = 282;
constexpr double Padding = 10;
constexpr double ButtonHeight = 29;

enum Index : std::size_t { School, Courses };

/// What is learnt in a month, and that it is paid for every month.
QString Monthly(const QString& learnt, const Programme& programme)
{
    return QString("Каждый месяц %1, плата $%2").arg(learnt).arg(programme.price);
}

QString LearntInCourses()
{
    const QString next = Text(ShowStatus(GameState.Education.value() + CoursesProgramme.gain));
    return next.isEmpty() ? "статус +1" : "статус +1 (" + next + ")";
}

} // namespace

frmEducation::frmEducation(QWidget* parent)
    : ActivityWindow({.name = "frmEducation",
                      .caption = "Повышение квалификации",
                      .pictureKey = "EDUC",
                      .learning = true},
                     parent)
{
    AddSlogan("Label3", "Label4", "Школа... Без неё -- никуда...", Sign::Chalk);
    AddProgramme(
        "Label1",
        "Если вы начнёте ходить в школу, то Ваш уровень образования будет увеличиваться на "
        "10% каждый месяц. Оплата за обучение взымается ежемесячно по $50.",
        {"Command1", "Ходить в школу - +10 к обр.  - $50", SchoolGlyph}, SchoolTop, ToggleSchool);
    AddProgramme(
        "Label2",
        "Если Вы начнёте ходить на компьютерные курсы, то Ваш статус будет увеличиваться на "
        "один уровень каждый месяц. Оплата за курсы взымается ежемесячно по $75",
        {"Command2", "Ходить на комп. курсы - +1 к комп. зн. - $75", CoursesGlyph}, CoursesTop,
        ToggleCourses);
    AddBack("Command8");
}

void frmEducation::AddProgramme(const QString& labelName, const QString& text, const Row& row,
                                double top, void (*toggle)())
{
    const QRectF panel(Margin, top, PanelWidth, PanelHeight);
    Surface().AddPanel(panel);
    const QRectF inside = panel.adjusted(Padding, Padding - 4, -Padding, -Padding);
    AddLabel(labelName, text, inside.adjusted(1, 0, 0, -ButtonHeight - 4), TextType(13))
        ->setWordWrap(true);
    AddChoice(row, {inside.left(), inside.bottom() - ButtonHeight, inside.width(), ButtonHeight});
    SetDeed(Choices() - 1, toggle);
}

void frmEducation::Load()
{
    const EducationButtons buttons = LoadEducation();
    Choice(School).ShowText(Text(buttons.school));
    Choice(Courses).ShowText(Text(buttons.courses));
    if (buttons.schoolDone) {
        SetUsable(Choice(School), false);
    }
    if (buttons.coursesDone) {
        SetUsable(Choice(Courses), false);
    }
    ActivityWindow::Load();
}

ActivityWindow::Standing frmEducation::StandingOf(std::size_t index) const
{
    const bool school = index == School;
    const EducationButtons buttons = LoadEducation();
    if (school ? buttons.schoolDone : buttons.coursesDone) {
        return {Badge::Best, school ? "Школа закончена." : "Курсы закончены.", {}};
    }
    const Programme& programme = school ? SchoolProgramme : CoursesProgramme;
    const QString learnt =
        school ? QString("образование +%1%").arg(programme.gain) : LearntInCourses();
    const bool attends = (school ? GameState.AttendSchool : GameState.AttendCourses) != False;
    if (attends) {
        return {Badge::Present, Monthly(learnt, programme) + ", пока Вы не бросите.", {}};
    }
    return {Badge::None,
            Monthly(learnt, programme) + '.',
            {{Label::lblMoney, -programme.price},
             {school ? Label::lblEducation : Label::lblStatus, programme.gain}}};
}

} // namespace torvenhall
