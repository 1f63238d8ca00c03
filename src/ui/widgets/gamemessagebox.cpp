#include "ui/widgets/gamemessagebox.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include "ui/widgets/colours.h"
#include "ui/widgets/face.h"
#include "ui/widgets/helpkey.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/scale.h"

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
    Arrange();
    OpenManualByKey(this);
    ChangeScaleByKeys(this);
}

void GameMessageBox::Arrange()
{
    setIcon(icon()); // in its size at this scale
    for (QAbstractButton* each : buttons()) {
        each->setIcon({});
        each->setMinimumSize(Px(84), Px(26));
    }
    // The toolkit's own width is the screen's matter, not the scale's, and some
    // titles are longer than their text.
    auto* label = findChild<QLabel*>("qt_msgbox_label");
    const QFontMetrics metrics(font());
    const int natural = metrics.boundingRect({}, Qt::AlignLeft, text()).width() + Px(4);
    const int title = metrics.horizontalAdvance(windowTitle()) + Px(40);
    const int width = std::max({Px(200), std::min(natural, Px(380)), title});
    label->setWordWrap(true);
    label->setMinimumHeight(0); // at another scale it was higher
    // What is told stands beside the middle of who tells it.
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setFixedSize(width, std::max(label->heightForWidth(width),
                                        style()->pixelMetric(QStyle::PM_MessageBoxIconSize)));
    // What the buttons need now must reach the box at once.
    auto* row = findChild<QDialogButtonBox*>();
    row->layout()->invalidate();
    row->layout()->activate();
    row->updateGeometry();
    TakeSize();
}

void GameMessageBox::TakeSize()
{
    findChild<QLabel*>("qt_msgbox_label")->setWordWrap(true);
    layout()->activate();
    setFixedSize(layout()->totalMinimumSize());
}

bool GameMessageBox::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        TakeSize(); // the base class would choose another width
        return QDialog::event(event);
    }
    const bool taken = QMessageBox::event(event);
    if (event->type() == QEvent::FontChange) {
        Arrange();
    }
    return taken;
}

void GameMessageBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintWall(painter, rect());
    const double margin = Px(7);
    PaintPanel(painter, QRectF(rect()).adjusted(margin, margin, -margin, -margin), colour::Panel);
}

void GameMessageBox::showEvent(QShowEvent* event)
{
    QMessageBox::showEvent(event);
    TakeSize();
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
