#include "app/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEnterEvent>
#include <QEventLoop>
#include <QHelpEvent>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <iostream>

#include "app/samplelives.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "core/waits.h"
#include "game/clock.h"
#include "game/entry.h"
#include "network/network.h"
#include "ui/QtFrontEnd.h"
#include "ui/frmLang.h"
#include "ui/frmMain.h"
#include "ui/widgets/choicebutton.h"
#include "ui/widgets/colours.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/scale.h"
#include "ui/windows.h"

namespace torvenhall
{

namespace
{

constexpr int SettleMilliseconds = 60;

class Tour
{
public:
    Tour(QtFrontEnd& newFrontEnd, const QString& folder) : frontEnd(newFrontEnd), directory(folder)
    {
        directory.mkpath(".");
    }

    /// True if every picture was saved.
    bool Take()
    {
        VisitNameDialog();
        VisitMain();
        for (const WindowRow& row : WindowTable()) {
            Visit(row.name);
        }
        VisitSites();
        VisitGameNames();
        VisitBoxes();
        frmLang languages(nullptr);
        languages.show();
        Save("frmLang", &languages);
        return !failed;
    }

private:
    static void Settle(int milliseconds = SettleMilliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void Save(const QString& name, QWidget* window)
    {
        Settle();
        const QString file = directory.filePath(name + ".png");
        if (!window || !Photograph(*window).save(file)) {
            std::cerr << "torvenhall: " << Utf8(file) << ": "
                      << (window ? "cannot be written" : "the window did not open") << '\n';
            failed = true;
        }
    }

    /// A window with the tooltip that stands over it.
    static QPixmap Photograph(QWidget& window)
    {
        QWidget* tip = nullptr;
        for (QWidget* each : QApplication::topLevelWidgets()) {
            tip = each->isVisible() && each->inherits("QTipLabel") ? each : tip;
        }
        QPixmap picture = window.grab();
        if (tip) {
            const QRect place(tip->pos() - window.mapToGlobal(QPoint()), tip->size());
            QPixmap both(picture.rect().united(place).size());
            both.fill(colour::Night);
            QPainter painter(&both);
            painter.drawPixmap(0, 0, picture);
            painter.drawPixmap(place.topLeft(), tip->grab());
            painter.end();
            picture = both;
            QToolTip::hideText();
        }
        return picture;
    }

    /// Puts the mouse on a widget and waits for its tooltip.
    static void Hover(QWidget& widget)
    {
        const QPoint at(widget.width() / 2, widget.height() - 2);
        widget.setAttribute(Qt::WA_UnderMouse);
        QEnterEvent entered(at, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &entered);
        QHelpEvent asked(QEvent::ToolTip, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &asked);
    }

    /// Begins a call that waits, photographs what it opens and closes that.
    void VisitDialog(const QString& name, const std::function<void()>& call)
    {
        EnterRules(call);
        QWidget* opened = QApplication::activeModalWidget();
        Save(name, opened);
        if (auto* dialog = qobject_cast<QDialog*>(opened)) {
            dialog->done(QDialog::Rejected);
        }
    }

    void VisitNameDialog()
    {
        VisitDialog("frmPlayerName", [] { AskName({"Введите Ваше имя", 1}); });
    }

    void VisitMain()
    {
        EnterRules([this] {
            Int16 level = 1;
            SetGameLevel(level);
            SetGameSpeed(30);
            GameState.GameSpeed = 0; // the time stands still for the pictures
            frontEnd.SetMainTitle("Marshend Torvenhall 1.5 - Игрок");
            frontEnd.ShowMainWindow();
        });
        frmMain& main = frontEnd.MainWindow();
        for (const Life& life : SampleLives()) {
            EnterRules([&life] { Live(life); });
            Save(QString("frmMain-") + life.name, &main);
        }
        EnterRules([] {
            for (int day = 1; day < 28; ++day) { // some of them hard
                GameState.GameDate = MakeDate(day, 10, 2001);
                SetHealth(60 - 3 * (day % 9) - 3 * day);
            }
            Live(SampleLives()[2]);
        });
        Hover(*main.findChild<QLabel*>("lblHealth"));
        Save("frmMain-past", &main);
        EnterRules([] { Live(SampleLives()[1]); });
        GameState.GameSpeed = 30; // whose mark the menu shows
        for (QAction* action : main.menuBar()->actions()) {
            QMenu* menu = action->menu();
            menu->popup(
                main.menuBar()->mapToGlobal(main.menuBar()->actionGeometry(action).bottomLeft()));
            Save("menu-" + menu->actions().first()->objectName(), menu);
            menu->close();
        }
        GameState.GameSpeed = 0;
    }

    /// A window, and a place in town also with one of its rows under the mouse.
    void Visit(std::string_view window)
    {
        EnterRules([this, window] { frontEnd.OpenWindow(window); });
        const QString name = Text(window);
        GameWindow* opened = Opened(name);
        Save(name, opened);
        if (QWidget* row = opened ? RowOf(*opened) : nullptr) {
            Hover(*row);
            Save(name + "-hovered", opened);
        }
        frontEnd.CloseWindow(window);
    }

    /// The first choice of a place in town that something stands in the way of,
    /// else the second; null elsewhere.
    static QWidget* RowOf(const GameWindow& window)
    {
        const auto rows = window.findChildren<ChoiceButton*>();
        const auto muted = std::ranges::find_if(rows, &GameButton::IsMuted);
        return muted != rows.end() ? *muted : rows.size() > 1 ? rows[1] : nullptr;
    }

    static GameWindow* Opened(const QString& name)
    {
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && each->objectName() == name) {
                return dynamic_cast<GameWindow*>(each);
            }
        }
        return nullptr;
    }

    void VisitSites()
    {
        EnterRules([this] { frontEnd.OpenWindow(window::frmNetwork); });
        EnterRules(DialInternet);
        while (Network().InetConnected != True) {
            Settle();
        }
        GameWindow* window = Opened("frmNetwork");
        for (int i = 0; window && i < 3; ++i) {
            window->findChild<QAbstractButton*>(QString("cmdChangeLocation%1").arg(i))->click();
            if (i == 2) {
                window->findChild<QAbstractButton*>("cmdRnd")->click();
            }
            Save(QString("frmNetwork-site%1").arg(i), window);
        }
        frontEnd.CloseWindow(window::frmNetwork);
    }

    void VisitGameNames()
    {
        GameNameQuestion question{
            true, "Сохранение игры", "Доступные игры:", "Сохранить", "вечер", {}};
        for (int i = 1; i <= 12; ++i) {
            question.games.push_back("игра " + std::to_string(i));
        }
        VisitDialog("frmLocGame-save", [&] { AskGameName(question); });
        question.trouble = "В названии не должно быть знака «/».";
        VisitDialog("frmLocGame-trouble", [&] { AskGameName(question); });
        question = {false, "Загрузка игры", "Доступные игры:", "Загрузить", "", question.games};
        VisitDialog("frmLocGame-load", [&] { AskGameName(question); });
    }

    void VisitBoxes()
    {
        VisitDialog("InputBox", [] { InputBox("Введите чит:", "Torvenhall 1.5"); });
        VisitDialog("box-question", [] {
            MsgBox("Сохранить игру сейчас???", "Вопрос", Icon::Question, Buttons::YesNo);
        });
        VisitDialog("box-information",
                    [] { MsgBox("Вам это не по карману", "Тонкий кошелёк", Icon::Information); });
        VisitDialog("box-long", [] {
            MsgBox(
                "Приобретите компьютер с Windows 98 и Adobe Photoshop 6 и сканером Mustek 600 CP, "
                "станьте Ламером и поумнейте до 60%",
                "Нифига!", Icon::Information);
        });
        VisitDialog("box-exclamation",
                    [] { MsgBox("Введите корректное имя", "Внимание", Icon::Exclamation); });
        VisitDialog("box-critical", [] {
            MsgBox("Error 48: Picture not Exist or Data Damage Error", "JPEGInside Critical Error",
                   Icon::Critical);
        });
    }

    QtFrontEnd& frontEnd;
    QDir directory;
    bool failed = false;
};

} // namespace

int TakeTour(QtFrontEnd& frontEnd, const QString& folder, std::optional<double> scale)
{
    if (scale) {
        return Tour(frontEnd, folder).Take() ? 0 : 1;
    }
    bool taken = true;
    for (const double each : {1.0, 1.5, 2.0}) {
        ApplyScale(each);
        taken &= Tour(frontEnd, folder + QString("/%1x").arg(each)).Take();
    }
    return taken ? 0 : 1;
}

} // namespace torvenhall
