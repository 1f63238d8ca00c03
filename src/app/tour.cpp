#include "app/tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEnterEvent>
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
#include "equipment/catalogue.h"
#include "events/family.h"
#include "game/clock.h"
#include "game/entry.h"
#include "network/network.h"
#include "ui/QtFrontEnd.h"
#include "ui/frmLang.h"
#include "ui/frmMain.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/scale.h"
#include "ui/windows.h"

namespace torvenhall
{

namespace
{

constexpr int SettleMilliseconds = 60;

constexpr std::string_view LongMessage =
    "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера вывел свою "
    "жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не убил вооще, она тебе "
    "дала $150 (какая жена твоя богатая)!!!";

/// A life to be photographed in the main window.
struct Life {
    const char* name;
    int money, happy, eat, health, intelligence, rank, job;
    bool married;
    int sons, daughters;
    int hardware, software; ///< how many of each list are there, at most
    int day, month, year, hour;
    std::string_view message;
};

constexpr Life Lives[]{
    {"beginner", 15, 25, 75, 40, 20, 1, 0, false, 0, 0, 0, 0, 1, 1, 2001, 9, ""},
    {"programmer", 4210, 62, 48, 70, 90, 5, 8, true, 1, 1, 4, 3, 18, 1, 2002, 23,
     "Вам пришла зарплата"},
    {"danger", 38, -60, -24, -34, 45, 2, 4, false, 0, 0, 2, 2, 28, 10, 2001, 18, LongMessage},
    {"owner", 12450, 90, 95, 85, 100, 8, 12, true, 1, 2, 11, 9, 12, 7, 2004, 13, ""},
};

void Live(const Life& life)
{
    SetMoney(life.money);
    SetHappy(life.happy);
    SetEatLevel(life.eat);
    SetHealth(life.health);
    SetIntelligence(life.intelligence);
    SetEducation(life.rank);
    SetWork(life.job);
    GameState.WifeFound = GameState.Married = life.married ? True : False;
    GameState.Sons = life.sons;
    GameState.Daughters = life.daughters;
    ShowFamily();
    for (int category = 0; category < HardwareCategories; ++category) {
        int part = life.hardware;
        while (GetHardwareName(category, part).empty()) {
            --part;
        }
        InstallHardware(category, part, false);
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        int program = life.software;
        while (GetSoftwareName(category, program).empty()) {
            --program;
        }
        SoftwareField(category) = program;
        ShowSoftware(category);
    }
    GameState.GameDate = MakeDate(life.day, life.month, life.year);
    GameState.GameTime = MakeTime(life.hour, 30);
    ShowTime();
    ShowLabel(Label::lblMessage, life.message);
}

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

    void VisitMain()
    {
        EnterRules([this] {
            Int16 level = 1;
            SetGameLevel(level);
            SetGameSpeed(30);
            SetSoftSize(127);
            GameState.GameSpeed = 0; // the time stands still for the pictures
            frontEnd.SetMainTitle("Marshend Torvenhall 1.5 - Игрок");
            frontEnd.ShowMainWindow();
        });
        frmMain& main = frontEnd.MainWindow();
        for (const Life& life : Lives) {
            EnterRules([&life] { Live(life); });
            Save(QString("frmMain-") + life.name, &main);
        }
        EnterRules([] { Live(Lives[1]); });
        for (QAction* action : main.menuBar()->actions()) {
            QMenu* menu = action->menu();
            menu->popup(
                main.menuBar()->mapToGlobal(main.menuBar()->actionGeometry(action).bottomLeft()));
            Save("menu-" + menu->actions().first()->objectName(), menu);
            menu->close();
        }
    }

    /// A window, and a place in town also with one of its rows under the mouse.
    void Visit(std::string_view window)
    {
        EnterRules([this, window] { frontEnd.OpenWindow(window); });
        const QString name = Text(window);
        GameWindow* opened = Opened(name);
        Save(name, opened);
        if (QWidget* row = opened ? RowOf(*opened) : nullptr) {
            row->setAttribute(Qt::WA_UnderMouse);
            QEnterEvent entered(QPointF(1, 1), QPointF(1, 1), row->mapToGlobal(QPointF(1, 1)));
            QCoreApplication::sendEvent(row, &entered);
            Save(name + "-hovered", opened);
        }
        frontEnd.CloseWindow(window);
    }

    /// The second choice of a place in town; null elsewhere.
    static QWidget* RowOf(const GameWindow& window)
    {
        const auto rows = window.findChildren<GameButton*>();
        return rows.size() > 1 ? rows[1] : nullptr;
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
