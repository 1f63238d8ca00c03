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
    Surface().ShowPicture("PAUSEPICTURE");
    Surface().AddPanel({36, 66, 248, 128});
    AddHeading("Label1", "Label2", "Игра приостановлена", {50, 68, 220, 24}, 16);
    GameButton* resume = AddButton("Command1", "Продолжить", {50, 95, 220, 28});
    resume->SetPrimary();
    resume->SetGlyph(Glyph::Play);
    GameButton* save = AddButton("Command2", "Сохранить игру", {50, 127, 220, 28});
    save->SetGlyph(Glyph::Diskette);
    GameButton* minimise = AddButton("Command3", "Свернуть игру", {50, 159, 220, 28});
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
