#include "ui/frmPlayerName.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

#include "ui/widgets/pictures.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

frmPlayerName::frmPlayerName(const NewPlayer& shown, QWidget* parent)
    : GameWindow("frmPlayerName", 500, 412, parent)
{
    setWindowTitle("Имя игрока");
    Surface().ShowPicture("TITLEPICTURE");
    Surface().AddPanel({14, 98, 286, 300});

    AddLabel("Label1", "Введите Ваше имя:", {28, 106, 258, 20}, TextType(14, true))
        ->SetColour(colour::Warm);
    name = new QLineEdit(Text(shown.name), &Surface());
    name->setObjectName("Text1");
    name->setAccessibleName("Имя");
    Dress(*name, TextType(14));
    Place(*name, {28, 130, 258, 30});
    name->installEventFilter(this);
    level = new QComboBox(&Surface());
    level->setObjectName("Combo1");
    level->setAccessibleName("Уровень сложности");
    // A combo box is named by its value on some platforms.
    level->setAccessibleDescription("Уровень сложности");
    level->view()->setAccessibleName("Уровень сложности");
    level->addItems({"Сложный", "Нормальный", "Простой"});
    level->setCurrentIndex(shown.level);
    AddLabel({}, "Сложность:", {28, 166, 74, 28}, TextType(13))->SetColour(colour::Caption);
    Place(*level, {104, 166, 182, 28});
    AddLabel("Label2",
             "Введите Ваше имя и выберите уровень сложности, нажмите ОК и играйте!\n"
             "\n"
             "У Вас $15 и ни одной железки.\n"
             "Начните с кнопки «Работа», а если впервые —\n"
             "с уровня «Простой».\n"
             "Пауза — клавиша «p» (русская «з»).\n"
             "Сохраняйтесь почаще: Ctrl+S.\n"
             "Советы на первую неделю — в справке, F1.",
             {28, 202, 258, 150}, TextType(13))
        ->setWordWrap(true);

    GameButton* accept = AddButton("Command1", "OK", {82, 358, 98, 30});
    accept->SetPrimary();
    GameButton* cancel = AddButton("Command2", "Отмена", {188, 358, 98, 30});
    connect(accept, &QAbstractButton::clicked, this, &QDialog::accept);
    connect(cancel, &QAbstractButton::clicked, this, &frmPlayerName::reject);
    connect(name, &QLineEdit::returnPressed, this, &QDialog::accept);
    TabThrough({name, level, accept, cancel});
    name->setFocus();
    name->selectAll();
}

NewPlayer frmPlayerName::Entered() const
{
    return {Utf8(name->text()), level->currentIndex()};
}

bool frmPlayerName::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == name && event->type() == QEvent::FocusIn) {
        name->selectAll();
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason) {
            // And after the click, which places the cursor. No later otherwise: what
            // a quick hand has typed by then would be replaced.
            QTimer::singleShot(0, name, &QLineEdit::selectAll);
        }
    }
    return GameWindow::eventFilter(watched, event);
}

} // namespace torvenhall
