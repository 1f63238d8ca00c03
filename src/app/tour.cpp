#include "app/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "activities/work.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "core/timelabel.h"
#include "core/waits.h"
#include "equipment/basEquipment.h"
#include "events/family.h"
#include "game/clock.h"
#include "game/entry.h"
#include "network/network.h"
#include "ui/QtFrontEnd.h"
#include "ui/frmLang.h"
#include "ui/frmMain.h"
#include "ui/widgets/qtext.h"
#include "ui/windows.h"

namespace torvenhall
{

namespace
{

constexpr int SettleMilliseconds = 120;

constexpr std::string_view LongMessage =
    "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера вывел свою "
    "жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не убил вооще, она тебе "
    "дала $150 (какая жена твоя богатая)!!!";

class Tour
{
public:
    Tour(QtFrontEnd& newFrontEnd, const QString& folder) : frontEnd(newFrontEnd), directory(folder)
    {
        directory.mkpath(".");
    }

    int Take()
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
        return failed ? 1 : 0;
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
        if (!window || !window->grab().save(directory.filePath(name + ".png"))) {
            failed = true;
        }
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

    static void LiveAwhile()
    {
        SetMoney(4210);
        SetHappy(62);
        SetEatLevel(-24);
        SetHealth(-12);
        SetIntelligence(80);
        SetEducation(5);
        SetWork(10);
        Int16 level = 1;
        SetGameLevel(level);
        SetGameSpeed(30);
        SetSoftSize(127);
        GameState.WifeFound = GameState.Married = True;
        GameState.Sons = 1;
        GameState.Daughters = 2;
        ShowFamily();
        constexpr int hardware[] = {9, 7, 7, 7, 5, 6, 6, 6, 2};
        for (int category = 0; category < 9; ++category) {
            InstallHardware(category, hardware[category], false);
        }
        constexpr int software[] = {4, 2, 3, 4, 3, 6};
        for (int category = 0; category < 6; ++category) {
            InstallSoftware(category, software[category]);
        }
        GameState.GameDate = MakeDate(28, 9, 2001);
        GameState.GameTime = MakeTime(23, 30);
        ShowTime();
    }

    void VisitMain()
    {
        EnterRules([this] {
            LiveAwhile();
            GameState.GameSpeed = 0; // the time stands still for the pictures
            ShowLabel(Label::lblMessage, LongMessage);
            frontEnd.SetMainTitle("Marshend Torvenhall 1.5 - Игрок");
            frontEnd.ShowMainWindow();
        });
        frmMain& main = frontEnd.MainWindow();
        Save("frmMain", &main);
        for (QAction* action : main.menuBar()->actions()) {
            QMenu* menu = action->menu();
            menu->popup(
                main.menuBar()->mapToGlobal(main.menuBar()->actionGeometry(action).bottomLeft()));
            Save("menu-" + menu->actions().first()->objectName(), menu);
            menu->close();
        }
    }

    void Visit(std::string_view window)
    {
        EnterRules([this, window] { frontEnd.OpenWindow(window); });
        const QString name = Text(window);
        Save(name, Opened(name));
        frontEnd.CloseWindow(window);
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

int TakeTour(QtFrontEnd& frontEnd, const QString& folder)
{
    return Tour(frontEnd, folder).Take();
}

} // namespace torvenhall
