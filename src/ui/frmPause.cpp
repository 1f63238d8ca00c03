#include "ui/frmPause.h"

#include "game/clock.h"
#include "game/entry.h"
#include "savegame/savegame.h"
#include "ui/widgets/pictures.h"

namespace torvenhall
{

frmPause::frmPause(QWidget* parent) : GameWindow("frmPause", 320, 204, parent)
{
    setWindowTitle("Игра приостановлена");
    Surface().ShowPicture("MAINPICTURE");
    AddSlogan("Label1", "Label2", "Игра приостановлена", Sign::Neon, 20);
    Surface().AddPanel({36, 62, 248, 126});
    GameButton* resume = AddButton("Command1", "Продолжить", {50, 74, 220, 30});
    resume->SetGlyph(Glyph::Play);
    GameButton* save = AddButton("Command2", "Сохранить игру", {50, 110, 220, 30});
    save->SetGlyph(Glyph::Diskette);
    GameButton* minimise = AddButton("Command3", "Свернуть игру", {50, 146, 220, 30});
    minimise->SetGlyph(Glyph::Minimise);
    connect(resume, &QAbstractButton::clicked, this, &frmPause::reject);
    connect(save, &QAbstractButton::clicked, this, [] { EnterRules(SaveGame); });
    connect(minimise, &QAbstractButton::clicked, this, [this] {
        if (QWidget* main = parentWidget()) {
            main->showMinimized();
        }
    });
}

void frmPause::reject()
{
    EnterRules(ResumeGame);
}

} // namespace torvenhall
