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

constexpr double LineHeight = 15.5;
constexpr const char* Lines[] = {
    "Пишите нам: torvenhall@marshend.example",
    "Сайт игры: http://torvenhall.example/",
    "Ошибки и пожелания: http://torvenhall.example/bugs/",
    "Правила, картинки и анекдоты: Marshend Software",
    "Бета-тестирование:",
    "дворник из третьего подъезда и его модем",
    "Консультант по питанию: Шеф-Повор.",
    "Музыка: вентилятор процессора",
    "Свободная программа, лицензия MIT.",
    "Гарантии нет, зато есть пауза.",
};

} // namespace

frmAbout::frmAbout(QWidget* parent) : GameWindow("frmAbout", 460, 346, parent)
{
    setWindowTitle("О Torvenhall 1.5");
    setWindowModality(Qt::ApplicationModal);
    Surface().ShowPicture("TITLEPICTURE");
    Surface().AddPanel({14, 88, 274, 210});
    AddHeading("Label1", "Label2", "Torvenhall 1.5 full", {26, 92, 250, 26}, 19);
    AddLabel("Label3", "Версия 1.5 Full для Windows 98 SE/Me", {26, 118, 250, 18},
             TextType(13, true))
        ->SetColour(colour::Warm);
    double top = 138;
    for (const char* line : Lines) {
        AddLabel({}, line, {26, top, 252, LineHeight}, CondensedType(13));
        top += LineHeight;
    }
    GameButton* system = AddButton("Command2", "О системе...", {210, 304, 122, 30});
    system->SetGlyph(Glyph::Screen);
    GameButton* accept = AddButton("Command1", "OK", {342, 304, 104, 30});
    accept->SetPrimary();
    connect(system, &QAbstractButton::clicked, this, [] { EnterRules(StartSysInfo); });
    connect(accept, &QAbstractButton::clicked, this, &frmAbout::reject);
    accept->setFocus();
}

} // namespace torvenhall
