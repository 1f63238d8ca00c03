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
    Surface().ShowPicture("MAINPICTURE");
    Surface().AddPanel({14, 152, 472, 246});

    AddLabel("Label1", "Введите Ваше имя:", {30, 164, 240, 20}, TextType(13, true))
        ->SetColour(colour::LightCyan);
    name = new QLineEdit(Text(shown.name), &Surface());
    name->setObjectName("Text1");
    name->setAccessibleName("Имя");
    Dress(*name, TextType(13));
    Place(*name, {30, 188, 282, 28});
    name->installEventFilter(this);
    level = new QComboBox(&Surface());
    level->setObjectName("Combo1");
    level->setAccessibleName("Уровень сложности");
    // A combo box is named by its value on some platforms.
    level->setAccessibleDescription("Уровень сложности");
    level->view()->setAccessibleName("Уровень сложности");
    level->addItems({"Сложный", "Нормальный", "Простой"});
    level->setCurrentIndex(shown.level);
    Place(*level, {322, 188, 148, 28});
    AddLabel("Label2",
             "Введите Ваше имя и выберите уровень сложности, нажмите ОК и играйте!\n"
             "\n"
             "У Вас $15 и ни одной железки. Начните с кнопки «Работа».\n"
             "Впервые здесь? Начните с уровня «Простой».\n"
             "Пауза — клавиша «p» (русская «з»): часы ждать не станут.\n"
             "Сохраняйтесь почаще: Ctrl+S.\n"
             "Советы на первую неделю — в справке, F1.",
             {30, 224, 440, 126}, TextType(11.5))
        ->setWordWrap(true);

    GameButton* accept = AddButton("Command1", "OK", {262, 356, 100, 30});
    GameButton* cancel = AddButton("Command2", "Отмена", {370, 356, 100, 30});
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
