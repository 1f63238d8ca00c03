#include "ui/frmAbout.h"

#include "game/entry.h"
#include "game/programs.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/pictures.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double LineHeight = 15;
constexpr const char* Lines[] = {
    "Пишите нам: torvenhall@marshend.example",
    "Сайт игры: http://torvenhall.example/",
    "Ошибки и пожелания: http://torvenhall.example/bugs/",
    "Правила, картинки и анекдоты: Marshend Software",
    "Бета-тестирование: дворник из третьего подъезда и его модем",
    "Консультант по питанию: Шеф-Повор. Музыка: вентилятор процессора",
    "Свободная программа, лицензия MIT. Гарантии нет, зато есть пауза.",
};

} // namespace

frmAbout::frmAbout(QWidget* parent) : GameWindow("frmAbout", 460, 346, parent)
{
    setWindowTitle("О Torvenhall 1.5");
    setWindowModality(Qt::ApplicationModal);
    Surface().ShowPicture("MAINPICTURE");
    AddSlogan("Label1", "Label2", "Torvenhall 1.5 full", Sign::Neon, 26);
    Surface().AddPanel({14, 152, 432, 142});
    AddLabel("Label3", "Версия 1.5 Full для Windows 98 SE/Me", {26, 158, 408, 20},
             TextType(13.5, true))
        ->SetColour(colour::Warm);
    double top = 180;
    for (const char* line : Lines) {
        AddLabel({}, line, {26, top, 408, LineHeight}, TextType(12.5));
        top += LineHeight;
    }
    GameButton* system = AddButton("Command2", "О системе...", {210, 302, 122, 32});
    system->SetGlyph(Glyph::Screen);
    GameButton* accept = AddButton("Command1", "OK", {342, 302, 104, 32});
    connect(system, &QAbstractButton::clicked, this, [] { EnterRules(StartSysInfo); });
    connect(accept, &QAbstractButton::clicked, this, &frmAbout::reject);
    accept->setFocus();
}

} // namespace torvenhall
