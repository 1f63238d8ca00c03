#include <map>

#include "core/basGame.h"
#include "core/entry.h"
#include "equipment/basEquipment.h"
#include "events/basEvents.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Journal = std::vector<std::string>;

class Days : public Life
{
protected:
    Days() { Begin(); }

    /// Statistics at zero, 1000 dollars, a wage of 7.
    void Prepare(int level, bool married, int sons)
    {
        GameState.GameLevel = level;
        GameState.WifeFound = GameState.Married = married ? True : False;
        GameState.Sons = sons;
        GameState.WorkPay = 7;
        SetHappy(0);
        SetHealth(0);
        SetEatLevel(0);
        SetMoney(1000);
        player.Forget();
    }

    /// A day whose event is drawn as `draw` and whose life table brings only
    /// the ordinary wear.
    void RunDay(int draw)
    {
        dice.values = {DrawOf(draw, 50), 0.5F, 0.5F, DrawOf(1, 25)};
        if (draw == 35 && GameState.Married == True && GameState.Sons > 0) {
            dice.values.insert(dice.values.begin() + 1, DrawOf(3, 8));
        }
        DailyEvents();
        EXPECT_TRUE(dice.values.empty()) << "draw " << draw;
    }
};

/// What a married father of one with 1000 dollars lives through before his
/// wage, by draw.
const std::map<int, Journal> FamilyDays{
    {10, {"message", "lblHappy=-15%", "lblEat=-15%", "lblHealth=-15%"}},
    {15, {"message", "lblHappy=-15%", "lblMoney=$997", "lblHealth=20%"}},
    {25, {"message", "lblHappy=-10%", "lblHealth=-10%", "lblEat=-5%"}},
    {29, {"message", "lblMoney=$990"}},
    {30, {"message", "lblMoney=$985"}},
    {32, {"message", "lblMoney=$950"}},
    {33, {"message", "lblMoney=$1150"}},
    {35, {"message", "lblhard3=Нет вооще"}},
};

/// The wage and the day's wear, from the statistics an event has left.
Journal AfterEvent(int level, int money, int happy, int eat, int health)
{
    const int wear[3][3]{{5, 10, 5}, {5, 5, 5}, {1, 5, 1}};
    return {"lblMoney=$" + std::to_string(money + 7),
            "lblHappy=" + std::to_string(happy - wear[level][0]) + "%",
            "lblEat=" + std::to_string(eat - wear[level][1]) + "%",
            "lblHealth=" + std::to_string(health - wear[level][2]) + "%"};
}

int Shown(const Journal& journal, const std::string& label, int otherwise)
{
    for (const std::string& line : journal) {
        if (line.starts_with(label + "=")) {
            const std::string value = line.substr(label.size() + 1);
            return std::stoi(value.starts_with("$") ? value.substr(1) : value);
        }
    }
    return otherwise;
}

TEST_F(Days, EveryDrawOnEveryLevelHasItsEffectsInOrder)
{
    for (int level = 0; level <= 2; ++level) {
        for (int draw = 0; draw <= 50; ++draw) {
            SCOPED_TRACE("level " + std::to_string(level) + ", draw " + std::to_string(draw));
            Prepare(level, true, 1);
            RunDay(draw);
            const auto event = FamilyDays.find(draw);
            Journal expected = event == FamilyDays.end() ? Journal{} : event->second;
            const Journal rest =
                AfterEvent(level, Shown(expected, "lblMoney", 1000), Shown(expected, "lblHappy", 0),
                           Shown(expected, "lblEat", 0), Shown(expected, "lblHealth", 0));
            expected.insert(expected.end(), rest.begin(), rest.end());
            EXPECT_EQ(player.journal, expected);
        }
    }
}

TEST_F(Days, TheUnmarriedHaveOnlyWageAndWear)
{
    for (int draw = 0; draw <= 50; ++draw) {
        Prepare(1, false, 1);
        RunDay(draw);
        EXPECT_EQ(player.journal, AfterEvent(1, 1000, 0, 0, 0)) << draw;
    }
}

TEST_F(Days, FamilyMessagesAreTypedAsTheyStand)
{
    const std::pair<int, const char*> messages[]{
        {10, "Сообщение от бомжа в мусорке: Твоя жена тебя выгнала на улицу!!!"},
        {15, "Сообщение от твоей жены: Ты напился, милый, у тебя украли кошелёк с 10 баксами!!!"},
        {25, "Сообщение от твоей жены: Сволочь!!! Где все деньги, всё на своё барахло от интел "
             "копишь!!!"},
        {29, "Сообщение от уборщицы: Старый дурак, ты посмотри что ты на полу сделал, пьяница!!! С "
             "тебя $10!!!"},
        {30, "Сообщение от контролёра в трамвае: Ну что браток, помнишь заветную фразу: ''за "
             "безбилетный проезд штраф $15!!!''!!! Плати, сынок!!!"},
        {31, "Сообщение от твоего любимого бомжа: Спасибо, что дал мне $15, я вижу ты несчастен и "
             "неконтролируешь свои поступки!!!"},
        {32, "Сообщение от твоей жены: Сволочь!!!! Подонок!!!!! Кусок безобразный!!!! Ты изменил "
             "мне с этой.... с этой.... с этой нехорошей женщиной!!!! Плати мне $50, а если нету, "
             "то я тебя убью!!!"},
        {33, "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера "
             "вывел свою жену под Ниогарский Водопад, т.к. она тебе изменила, но чтобы ты её не "
             "убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!"},
        {35, "Сообщение от Вашего ребёнка: Папа, я тут на твой открытый компьютер уранила кружку "
             "парного молока!!! И искры посыпались с Винчестер!!!"},
    };
    for (const auto& [draw, text] : messages) {
        Prepare(1, true, 1);
        SetHappy(-15);
        player.Forget();
        RunDay(draw);
        EXPECT_EQ(player.messages, Journal{text});
        EXPECT_EQ(LabelShown(Label::lblMessage), "") << "cleared afterwards";
    }
}

TEST_F(Days, AMessageIsTypedAtTenCharactersASecondAndHeldForTwo)
{
    Prepare(1, true, 1);
    const double start = player.seconds;
    RunDay(10);
    const double characters = 64;
    EXPECT_NEAR(player.seconds - start, (characters + 1) * 0.1 + 2, 0.001);
}

TEST_F(Days, AlmsAreThankedForOnlyInALowMood)
{
    for (const auto& [mood, money] : {std::pair{-14, 1007}, {-15, 992}, {-16, 992}}) {
        Prepare(1, true, 0);
        SetHappy(mood);
        RunDay(31);
        EXPECT_EQ(GameState.Money, money);
    }
}

TEST_F(Days, TheWalletTakesTheRootOfTheHundredthItNames)
{
    struct {
        int money, left;
        const char* named;
    } const cases[]{{1000, 997, "10"}, {50, 50, "0"},        {49, 49, "0"},
                    {150, 149, "2"},   {10000, 9990, "100"}, {-50, -50, "0"}};
    for (const auto& row : cases) {
        Prepare(1, true, 0);
        SetMoney(row.money);
        RunDay(15);
        EXPECT_EQ(player.messages.at(0),
                  std::string("Сообщение от твоей жены: Ты напился, милый, у "
                              "тебя украли кошелёк с ") +
                      row.named + " баксами!!!");
        EXPECT_EQ(GameState.Money, row.left + 7);
    }
}

TEST_F(Days, AWalletInDebtAbandonsTheDayAfterTheMoodAndNobodyIsTold)
{
    Prepare(1, true, 0);
    SetMoney(-100);
    player.Forget();
    dice.values = {DrawOf(15, 50)};
    DailyEvents();
    EXPECT_EQ(player.messages.at(0),
              "Сообщение от твоей жены: Ты напился, милый, у тебя украли кошелёк с 1 баксами!!!");
    EXPECT_EQ(player.journal, (Journal{"message", "lblHappy=-15%"}));
}

TEST_F(Days, MilkRemovesTheDrawnPartAndRefreshesTheOpenShop)
{
    const char* names[]{"Процессор", "ОЗУ",  "Видеокарта", "Винчестер", "CD-ROM",
                        "Модем",     "Звук", "Сканер",     "Принтер"};
    for (int part = 0; part <= 8; ++part) {
        Prepare(1, true, 0);
        GameState.Daughters = 1;
        GameState.Sons = 0;
        HardwareField(part) = 3;
        player.open = {Window::frmHard};
        player.Forget();
        dice.values = {DrawOf(35, 50), DrawOf(part, 8), 0.5F, 0.5F, DrawOf(1, 25)};
        DailyEvents();
        EXPECT_TRUE(
            player.messages.at(0).ends_with(std::string("посыпались с ") + names[part] + "!!!"));
        EXPECT_EQ(HardwareField(part), 0);
        EXPECT_EQ(player.journal.at(2), "reload frmHard");
    }
    Prepare(1, true, 0);
    GameState.Daughters = 0;
    RunDay(35);
    EXPECT_TRUE(player.messages.empty()) << "no children, no milk";
}

TEST_F(Days, AVirusNeedsAnOperatingSystemAndComesFirst)
{
    for (const int system : {0, 1}) {
        Prepare(1, true, 1);
        GameState.SoftOS = system;
        RunDay(21);
        EXPECT_EQ(player.journal.front() == "open frmVirus", system > 0);
        EXPECT_EQ(GameState.Money, 1007);
    }
}

TEST_F(Days, TrueIsMinusOneAndNothingElse)
{
    Prepare(1, true, 1);
    GameState.Married = 1;
    RunDay(10);
    EXPECT_TRUE(player.messages.empty());
}

TEST_F(Days, TheYearsTaxesFollowTheLevelAndTheMessageStands)
{
    struct {
        int level, money, tax, left, mood;
    } const cases[]{{0, 1001, 500, 501, -20}, {1, 1001, 250, 751, -10}, {2, 1005, 100, 905, -5},
                    {0, -100, -50, -50, -20}, {1, 2, 0, 2, -10},        {1, 6, 2, 4, -10}};
    for (const auto& row : cases) {
        Prepare(row.level, false, 0);
        SetMoney(row.money);
        player.Forget();
        PayTaxes();
        EXPECT_EQ(LabelShown(Label::lblMessage),
                  "Сообщение от Налогового Инспектора: Пора платить налоги!!! Вы заплатили " +
                      std::to_string(row.tax) + " долларов");
        EXPECT_EQ(player.journal, (Journal{"message", "lblHappy=" + std::to_string(row.mood) + "%",
                                           "lblMoney=$" + std::to_string(row.left)}));
    }
}

TEST_F(Days, TaxesThatOverflowTellNobody)
{
    Prepare(0, false, 0);
    SetHappy(-60);
    GameState.Happy = -32768;
    player.Forget();
    EXPECT_NO_THROW(PayTaxes());
    EXPECT_TRUE(player.boxes.empty());
    EXPECT_EQ(GameState.Money, 1000);
}

TEST_F(Days, TheDayReseedsFromTheSystemTimerAndTheLifeTableFromItsDraws)
{
    Prepare(1, false, 0);
    dice.reseeds.clear();
    RunDay(1);
    EXPECT_EQ(dice.reseeds, (std::vector<std::optional<double>>{std::nullopt, 0.25}));
}

TEST_F(Days, AMessageClearsTheLineBeforeItsFirstCharacter)
{
    Prepare(1, true, 0);
    PayTaxes(); // leaves its message standing
    player.duringWait.emplace_back(
        [&] { EXPECT_EQ(LabelShown(Label::lblMessage), "") << "0.1 s before the first one"; });
    RunDay(29);
    EXPECT_TRUE(player.duringWait.empty());
}

TEST_F(Days, AnOverflowingWageSkipsTheWearAndNobodyIsTold)
{
    Prepare(1, false, 0);
    SetMoney(2147483647);
    player.Forget();
    dice.values = {DrawOf(1, 50)};
    DailyEvents();
    EXPECT_TRUE(player.journal.empty());
}

} // namespace
} // namespace torvenhall::test
