#include "ui/widgets/gamemessagebox.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "ui/widgets/helpkey.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

QMessageBox::Icon Sign(Icon icon)
{
    switch (icon) {
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Information:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

GameMessageBox::GameMessageBox(const MessageBox& box, QWidget* parent)
    : QMessageBox(parent), mustAnswer(box.buttons == Buttons::YesNo)
{
    setObjectName("MessageBox");
    setWindowTitle(Text(box.title));
    setTextFormat(Qt::PlainText);
    setText(Text(box.text));
    setIcon(Sign(box.icon));
    setStandardButtons(mustAnswer ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    // The words do not depend on whether the toolkit's translation is there.
    if (mustAnswer) {
        button(QMessageBox::Yes)->setText("Да");
        button(QMessageBox::No)->setText("Нет");
    } else {
        button(QMessageBox::Ok)->setText("OK");
    }
    for (QAbstractButton* each : buttons()) {
        each->setIcon({});
        each->setMinimumSize(Px(84), Px(26));
    }
    WidenForTitle();
    OpenManualByKey(this);
}

void GameMessageBox::WidenForTitle()
{
    // The box is as wide as its text, and some titles are longer than that.
    if (auto* label = findChild<QLabel*>("qt_msgbox_label")) {
        const int wanted =
            std::max(Px(200), fontMetrics().horizontalAdvance(windowTitle()) + Px(40));
        if (label->sizeHint().width() < wanted) {
            label->setMinimumWidth(wanted);
        }
    }
}

Answer GameMessageBox::PressedAnswer() const
{
    if (!mustAnswer) {
        return Answer::Ok;
    }
    return clickedButton() == button(QMessageBox::Yes) ? Answer::Yes : Answer::No;
}

void GameMessageBox::keyPressEvent(QKeyEvent* event)
{
    if (mustAnswer && event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QMessageBox::keyPressEvent(event);
}

void GameMessageBox::closeEvent(QCloseEvent* event)
{
    if (mustAnswer) {
        event->ignore();
        return;
    }
    QMessageBox::closeEvent(event);
}

void GameMessageBox::reject()
{
    if (!mustAnswer) {
        QMessageBox::reject();
    }
}

} // namespace torvenhall
