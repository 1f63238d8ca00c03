// The floor that the game is measured against: a bare window of the toolkit with
// as much on it as the main window has, and nothing of the game. What a start,
// a second of the clock or a click costs here, no program of this kind avoids.
//
//   floor            a window with a picture, a menu bar, 25 labels of which one
//                    changes every 250 ms, and 8 buttons, the first of which
//                    opens an empty dialog
//   floor --dialog   the empty dialog alone
//   floor --still    the window, without the changing label

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

namespace
{

// The main window's at scale 1, and that of the dialog for a name.
constexpr QSize WindowSize(518, 442);
constexpr QSize DialogSize(500, 412);
constexpr QSize ClockSize(241, 24);
constexpr int MenuHeight = 22;
constexpr int Labels = 25;
constexpr int Buttons = 8;
constexpr int TickMilliseconds = 250;

class Picture : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, picture); }

private:
    const QPixmap picture{":/floor.jpg"};
};

class Window : public QMainWindow
{
public:
    explicit Window(bool ticks)
    {
        setWindowTitle("Floor");
        setFixedSize(WindowSize);
        auto* surface = new Picture(this);
        setCentralWidget(surface);
        for (const char* title : {"File", "Game", "Settings", "Speed", "Help"}) {
            QMenu* menu = menuBar()->addMenu(title);
            for (const char* action : {"First", "Second", "Third", "Fourth"}) {
                menu->addAction(action);
            }
        }
        menuBar()->setFixedHeight(MenuHeight);
        for (int i = 0; i < Labels; ++i) {
            auto* label = new QLabel(QString("Label %1").arg(i), surface);
            label->setGeometry(12 + 128 * (i % 3), 12 + 30 * (i / 3), 120, 22);
            changing = label;
        }
        changing->resize(ClockSize);
        for (int i = 0; i < Buttons; ++i) {
            auto* button = new QPushButton(QString("Button %1").arg(i), surface);
            button->setGeometry(396, 12 + 36 * i, 110, 28);
            if (i == 0) {
                connect(button, &QPushButton::clicked, this, &Window::OpenDialog);
            }
        }
        if (ticks) {
            auto* timer = new QTimer(this);
            timer->setTimerType(Qt::PreciseTimer);
            connect(timer, &QTimer::timeout, this,
                    [this] { changing->setText(QString("1 - %1").arg(++tick)); });
            timer->start(TickMilliseconds);
        }
    }

private:
    void OpenDialog()
    {
        auto* dialog = new QDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setWindowTitle("Dialog");
        dialog->setFixedSize(DialogSize);
        dialog->open();
    }

    QLabel* changing = nullptr;
    int tick = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QString mode = QApplication::arguments().value(1);
    QDialog dialog;
    dialog.setFixedSize(DialogSize);
    if (mode == "--dialog") {
        dialog.show();
        return QApplication::exec();
    }
    Window window(mode != "--still");
    window.show();
    return QApplication::exec();
}
