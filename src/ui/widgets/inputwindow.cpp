#include "ui/widgets/inputwindow.h"

#include <QLineEdit>

#include "ui/widgets/cats.h"
#include "ui/widgets/placing.h"

namespace torvenhall
{

InputWindow::InputWindow(const QString& prompt, const QString& title, QWidget* parent)
    : GameWindow("InputBox", 330, 124, parent)
{
    setWindowTitle(title);
    Surface().AddPanel({10, 10, 310, 104}, Scene::Panel::Deep);
    AddLabel("Prompt", prompt, {22, 16, 226, 24}, TextType(12));
    auto* cat = new CatPicture(Cat::Typing, &Surface());
    Place(*cat, {256, 3, 42, 42});
    entry = new QLineEdit(&Surface());
    entry->setObjectName("Text1");
    entry->setAccessibleName(prompt);
    Place(*entry, {22, 42, 286, 26});
    GameButton* accept = AddButton("Command1", "OK", {112, 78, 94, 28});
    accept->SetPrimary();
    GameButton* cancel = AddButton("Command2", "Отмена", {214, 78, 94, 28});
    connect(accept, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(cancel, &QAbstractButton::clicked, this, &InputWindow::reject);
    connect(entry, &QLineEdit::returnPressed, this, &QDialog::accept);
    entry->setFocus();
}

QString InputWindow::EnteredText() const
{
    return entry->text();
}

} // namespace torvenhall
