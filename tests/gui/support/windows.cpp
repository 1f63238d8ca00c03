#include "support/windows.h"

#include "activities/work.h"
#include "core/GameState.h"
#include "core/waits.h"
#include "equipment/catalogue.h"
#include "ui/frmAbout.h"
#include "ui/frmEducation.h"
#include "ui/frmHappy.h"
#include "ui/frmHard.h"
#include "ui/frmHospital.h"
#include "ui/frmLang.h"
#include "ui/frmLocGame.h"
#include "ui/frmNetwork.h"
#include "ui/frmPause.h"
#include "ui/frmPlayerName.h"
#include "ui/frmShop.h"
#include "ui/frmSoft.h"
#include "ui/frmVirus.h"
#include "ui/frmWork.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::test
{

namespace
{

template <class Window>
QWidget* Make([[maybe_unused]] LabelBoard& board)
{
    if constexpr (std::is_constructible_v<Window, LabelBoard&, QWidget*>) {
        return new Window(board, nullptr);
    } else {
        return new Window(nullptr);
    }
}

template <bool saving>
QWidget* MakeNames(LabelBoard&)
{
    return new frmLocGame({saving,
                           saving ? "Сохранение игры" : "Загрузка игры",
                           "Доступные игры:",
                           saving ? "Сохранить" : "Загрузить",
                           "",
                           {"Вечер", "Утро"}},
                          nullptr);
}

QWidget* MakePlayerName(LabelBoard&)
{
    return new frmPlayerName({"Введите Ваше имя", 1}, nullptr);
}

/// The longest name of a category.
template <class Name>
auto LongestOf(Name name, int category)
{
    auto longest = name(category, 0);
    for (int i = 1; i < 12; ++i) {
        const auto each = name(category, i);
        longest = Text(each).size() > Text(longest).size() ? each : longest;
    }
    return longest;
}

} // namespace

const std::vector<WindowRow>& AllWindows()
{
    static const std::vector<WindowRow> rows{
        {"frmMain", "Marshend Torvenhall 1.5", nullptr,
         "=Бюджет|=Настроение|=Сытость|=Здоровье|=Образование|=Статус|=Семья|=Компьютер "
         "(Hardware)|=Компьютер (Software)|cmdHard=Железо|cmdSoft=Программы|cmdHappy=Развлечения|"
         "cmdHealth=Больница|cmdShop=Магазин|cmdWork=Работа|cmdSchool=Школа|cmdInInet=Выход в "
         "свет"},
        {"frmPlayerName", "Имя игрока", MakePlayerName,
         "Label1=Введите Ваше имя:|Label2=*|Command1=OK|Command2=Отмена"},
        {"frmPause", "Игра приостановлена", Make<frmPause>,
         "Label1,Label2=Игра приостановлена|Command1=Продолжить|Command2=Сохранить игру|"
         "Command3=Свернуть игру"},
        {"frmAbout", "О Torvenhall 1.5", Make<frmAbout>,
         "=Torvenhall 1.5 full|=Версия 1.5 Full для Windows 98 SE/Me|Command1=OK|Command2=О "
         "системе..."},
        {"frmHard", "Железо", Make<frmHard>,
         "Label3,Label4=Железо оно и на Тайване железо|Command8=Назад"},
        {"frmSoft", "Софт", Make<frmSoft>,
         "Label4,cmdUpgraded=А Вы удалили MS DOS 1.0?|Command8=Назад"},
        {"frmHappy", "Развлечения", Make<frmHappy>,
         "Label1=Что желаете?|Label3,Label4=Безопастный отдых|Command1=В казино - +20% - $25|"
         "Command2=В ресторан - +25% - $50|Command3=В сауну - +50% - $75|Command4=5 мин. отдых - "
         "+5% - $5|Command5=Перерыв - +10% - $15|Command8=Назад"},
        {"frmHospital", "Госпиталь", Make<frmHospital>,
         "Label1=Без взяток:|Label3,Label4=Лечиться -- не учиться!|Command1=Полный курс - +50% - "
         "$250|Command2=Лекарства - +15% - $100|Command3=Вывих - +2% - $20|Command4=Осмотр - +0% "
         "- $2|Command5=Роды - + 75% - 50%h - $250|Command6=Выпить водки - +10 - $20|"
         "Command7=Выпить спирта+10+10h $25|Command8=Назад"},
        {"frmShop", "Магазин", Make<frmShop>,
         "Label1=Заправка|Label3,Label4=What are you wating for...|Command1=Биг-Мак с сыром - "
         "+10% - $15|Command2=Хэппи-Мил с детьми +20%-$45- -15%h|Command3=Альпен Гольд с Нескафе "
         "- +50 $120|Command4=Яичница с чесноком +15%-$10-20%h|Command5=Просто нормально пожрать "
         "+75%-$60|Command8=Назад"},
        {"frmWork", "Работа", Make<frmWork>,
         "Label1=Смена работы|Label2,Label3=Центр занятости населения|cmdWork0=Дворник - $10|"
         "cmdWork1=Сантехник -$15|cmdWork2=Инженер - $20|cmdWork3=Мененджер - $80|"
         "cmdWork4=Дизайнер $95|cmdWork5=Архитектор - $115|cmdWork6=Бухгалтер - $125|"
         "cmdWork7=Программист - $150|cmdWork8=Сисадмин - $175|cmdWork9=Спец. по комп. безоп. "
         "$200|cmdWork10=Хакер - $540|cmdWork11=Босс hakc-фирмы - $750|Command8=Назад"},
        {"frmEducation", "Повышение квалификации", Make<frmEducation>,
         "Label3,Label4=Школа... Без неё -- никуда...|Label1=Если вы начнёте ходить в школу, то "
         "Ваш уровень образования будет увеличиваться на 10% каждый месяц. Оплата за обучение "
         "взымается ежемесячно по $50.|Label2=Если Вы начнёте ходить на компьютерные курсы, то "
         "Ваш статус будет увеличиваться на один уровень каждый месяц. Оплата за курсы взымается "
         "ежемесячно по $75|Command1=Ходить в школу|Command2=Ходить на курсы|Command8=Назад"},
        {"frmNetwork", "Выход в свет", Make<frmNetwork>,
         "Label3,Label4,Label5=*|Label6,Label7=Всемирная паутина и один паук|Label9=Dial-Up "
         "Networking|Label10=Microsoft HyperTerminal|Label1,Label2=Status: Disconnected|"
         "Command1=Звонить ($1/час)|Command2=<<< HomePage >>>|Command5=Звонить|Command7=Get Last "
         "Antivirus Database|Command6=Download Cool, Necessary and Freeware Programs and "
         "Utilites for FREE!!!|Command8=Hang-Up|Command9=Назад|cmdRnd=Next Random Anecdot|"
         "cmdBBSDownload=Download Soft|cmdBBSUpload=Upload Soft"},
        {"frmVirus", "Внимание! Вирус!", Make<frmVirus>,
         "Image1=*|Label1=На Вашем компьютере обнаружен злой вирус!|Command1=Убить "
         "антивирусником|Command2=Отпустить на волю"},
        {"frmLocGame", "Сохранение игры", MakeNames<true>,
         "Label1=Доступные игры:|Command1=Сохранить|Command2=Отмена"},
        {"frmLocGame", "Загрузка игры", MakeNames<false>,
         "Label1=Доступные игры:|Command1=Загрузить|Command2=Отмена"},
        {"frmLang", "Select Language", Make<frmLang>,
         "Label1=Present Languages:|List1,Text1=*|Label2=Language Info:|Command1=Select|"
         "Command2=Cancel"},
    };
    return rows;
}

EveryWindow::EveryWindow()
{
    player.watches = false;
    frontEnd.MainWindow();
}

void EveryWindow::Show(const WindowRow& row, const Look& look)
{
    SCOPED_TRACE(row.name.toStdString() + " \"" + row.title.toStdString() + '"');
    const std::unique_ptr<QWidget> owned(row.make ? row.make(frontEnd.Board()) : nullptr);
    QWidget& window = owned ? *owned : Main();
    if (auto* loaded = qobject_cast<GameWindow*>(&window)) {
        loaded->Load();
    }
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    look(row, window);
    window.hide();
}

void EveryWindow::ForEach(const Look& look)
{
    for (const WindowRow& row : AllWindows()) {
        Show(row, look);
    }
}

void EveryWindow::ShowTheLongestTexts()
{
    EnterRules([] {
        for (const Label vital : {Label::lblHappy, Label::lblEat, Label::lblHealth}) {
            ShowLabel(vital, "-32767%", TextColour::Red);
        }
        SetMoney(-2147480000);
        SetEducation(5);
        SetIntelligence(-32767);
        Int16 level = 1;
        SetGameLevel(level);
        SetGameSpeed(30);
        SetWork(10);
        ShowLabel(Label::lblFamily, "PRST:10:10");
        ShowLabel(Label::lblTime, "28 сентября 2001 г. - 23:30");
        ShowLabel(Label::lblMessage,
                  "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты "
                  "вчера вывел свою жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы "
                  "ты её не убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!");
        for (int category = 0; category < HardwareCategories; ++category) {
            ShowLabel(static_cast<Label>(static_cast<int>(Label::lblhard0) + category),
                      LongestOf(GetHardwareName, category));
        }
        constexpr Label software[] = {Label::lblOs,      Label::lblAntiv, Label::lblProg,
                                      Label::lblGraphic, Label::lblInet,  Label::lblGames};
        for (int category = 0; category < SoftwareCategories; ++category) {
            ShowLabel(software[category], LongestOf(GetSoftwareName, category));
        }
        ShowLabel(Label::lblOther, "32767 Мб");
    });
}

} // namespace torvenhall::test
