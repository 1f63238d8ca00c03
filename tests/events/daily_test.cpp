#include <algorithm>

#include "core/basGame.h"
#include "equipment/basEquipment.h"
#include "events/basEvents.h"
#include "support/life.h"

namespace torvenhall::test
{
namespace
{

class Days : public BegunLife
{
protected:
    /// Statistics at zero, 1000 dollars, a wage of 7.
    void Prepare(int level, int married, int sons)
    {
        GameState.GameLevel = level;
        GameState.WifeFound = GameState.Married = married;
        GameState.Sons = sons;
        GameState.WorkPay = 7;
        Set(0, 0, 0, 1000);
    }

    /// A day whose event is drawn as `draw`, its milk spilt over `part`, and
    /// whose life table brings only the ordinary wear.
    void RunDay(int draw, int part = 3)
    {
        dice.values = {DrawOf(draw, 50), 0.5F, 0.5F, DrawOf(1, 25)};
        if (draw == 35 && GameState.Married == True && GameState.Sons + GameState.Daughters != 0) {
            dice.values.insert(dice.values.begin() + 1, DrawOf(part, 8));
        }
        DailyEvents();
        EXPECT_TRUE(dice.values.empty()) << "draw " << draw;
    }
};

/// What a married father of one with 1000 dollars lives through before his
/// wage, by draw.
struct FamilyDay {
    int draw;
    const char* message;
    Changes changes;
};
// clang-format off
const FamilyDay FamilyDays[]{
    {10, "Сообщение от бомжа в мусорке: Твоя жена тебя выгнала на улицу!!!", {{lblHappy, -15}, {lblEat, -15}, {lblHealth, -15}}},
    {15, "Сообщение от твоей жены: Ты напился, милый, у тебя украли кошелёк с 10 баксами!!!", {{lblHappy, -15}, {lblMoney, -3}, {lblHealth, 20}}},
    {25, "Сообщение от твоей жены: Сволочь!!! Где все деньги, всё на своё барахло от интел копишь!!!", {{lblHappy, -10}, {lblHealth, -10}, {lblEat, -5}}},
    {29, "Сообщение от уборщицы: Старый дурак, ты посмотри что ты на полу сделал, пьяница!!! С тебя $10!!!", {{lblMoney, -10}}},
    {30, "Сообщение от контролёра в трамвае: Ну что браток, помнишь заветную фразу: ''за безбилетный проезд штраф $15!!!''!!! Плати, сынок!!!", {{lblMoney, -15}}},
    {32, "Сообщение от твоей жены: Сволочь!!!! Подонок!!!!! Кусок безобразный!!!! Ты изменил мне с этой.... с этой.... с этой нехорошей женщиной!!!! "
         "Плати мне $50, а если нету, то я тебя убью!!!", {{lblMoney, -50}}},
    {33, "Сообщение от майора милиции Treivaib: Сынок, ты попал на такие налоги!!!! Ты вчера вывел свою жену под Ниогарский Водопад, т.к. она тебе "
         "изменила, но чтобы ты её не убил вооще, она тебе дала $150 (какая жена твоя богатая)!!!", {{lblMoney, 150}}},
    {35, "Сообщение от Вашего ребёнка: Папа, я тут на твой открытый компьютер уранила кружку парного молока!!! И искры посыпались с Винчестер!!!", {}},
};
// clang-format on

TEST_F(Days, EveryDrawOnEveryLevelHasItsMessageAndItsEffectsInOrder)
{
    const Changes wageAndWear[]{{{lblMoney, 7}, {lblHappy, -5}, {lblEat, -10}, {lblHealth, -5}},
                                {{lblMoney, 7}, {lblHappy, -5}, {lblEat, -5}, {lblHealth, -5}},
                                {{lblMoney, 7}, {lblHappy, -1}, {lblEat, -5}, {lblHealth, -1}}};
    for (const int married : {-1, 0, 1}) { // only -1 is true
        for (int level = 0; level <= 2; ++level) {
            for (int draw = 0; draw <= 50; ++draw) {
                SCOPED_TRACE("level " + std::to_string(level) + ", draw " + std::to_string(draw));
                Prepare(level, married, 1);
                Changes changes = wageAndWear[level];
                Texts messages, journal;
                const auto* event =
                    std::find_if(std::begin(FamilyDays), std::end(FamilyDays),
                                 [draw](const FamilyDay& day) { return day.draw == draw; });
                if (married == -1 && event != std::end(FamilyDays)) {
                    messages = {event->message};
                    journal = {"message"};
                    changes.insert(changes.begin(), event->changes.begin(), event->changes.end());
                    if (draw == 35) {
                        journal.emplace_back("lblhard3=Нет вооще");
                    }
                }
                const Texts labels = ShownBy(changes);
                journal.insert(journal.end(), labels.begin(), labels.end());
                RunDay(draw);
                EXPECT_EQ(player.messages, messages);
                EXPECT_EQ(player.journal, journal);
            }
        }
    }
}

TEST_F(Days, AMessageIsTypedAtTenCharactersASecondHeldForTwoAndCleared)
{
    Prepare(1, -1, 0);
    PayTaxes(); // leaves its message standing
    player.duringWait.emplace_back(
        [&] { EXPECT_EQ(LabelShown(lblMessage), "") << "0.1 s before the first character"; });
    const double start = player.seconds;
    RunDay(10);
    EXPECT_TRUE(player.duringWait.empty());
    const double characters = 64;
    EXPECT_NEAR(player.seconds - start, (characters + 1) * 0.1 + 2, 0.001);
    EXPECT_EQ(LabelShown(lblMessage), "");
}

TEST_F(Days, AlmsAreThankedForOnlyInALowMood)
{
    for (const auto& [mood, money] : {std::pair{-14, 1007}, {-15, 992}, {-16, 992}}) {
        Prepare(1, -1, 0);
        SetHappy(mood);
        RunDay(31);
        EXPECT_EQ(player.messages,
                  money == 1007 ? Texts{}
                                : Texts{"Сообщение от твоего любимого бомжа: Спасибо, что дал мне "
                                        "$15, я вижу ты несчастен и неконтролируешь свои "
                                        "поступки!!!"});
        EXPECT_EQ(GameState.Money, money);
    }
}

TEST_F(Days, TheWalletTakesTheRootOfTheHundredthItNames)
{
    struct {
        int money, left;
        const char* named;
    } const cases[]{{50, 50, "с 0 бак"},   {49, 49, "с 0 бак"},        {150, 149, "с 2 бак"},
                    {-50, -50, "с 0 бак"}, {10000, 9990, "с 100 бак"}, {-100, -107, "с 1 бак"}};
    for (const auto& row : cases) {
        Prepare(1, -1, 0);
        SetMoney(row.money);
        player.Forget();
        dice.values = {DrawOf(15, 50), 0.5F, 0.5F, DrawOf(1, 25)};
        DailyEvents();
        EXPECT_NE(player.messages.at(0).find(row.named), std::string::npos) << row.money;
        EXPECT_EQ(GameState.Money, row.left + 7);
    }
    // There is no root of the debt: the day ends after the mood, and nobody is told.
    EXPECT_EQ(player.journal, (Texts{"message", "lblHappy=-15%"}));
}

TEST_F(Days, MilkRemovesTheDrawnPartAndRefreshesTheOpenShop)
{
    const char* names[]{"Процессор", "ОЗУ",  "Видеокарта", "Винчестер", "CD-ROM",
                        "Модем",     "Звук", "Сканер",     "Принтер"};
    player.open = {Window::frmHard};
    GameState.Daughters = 1;
    for (int part = 0; part <= 8; ++part) {
        Prepare(1, -1, 0);
        HardwareField(part) = 3;
        RunDay(35, part);
        EXPECT_TRUE(player.messages.at(0).ends_with(std::string(" с ") + names[part] + "!!!"));
        EXPECT_EQ(HardwareField(part), 0);
        EXPECT_EQ(player.journal.at(2), "reload frmHard");
    }
    Prepare(1, -1, 0);
    GameState.Daughters = 0;
    RunDay(35);
    EXPECT_TRUE(player.messages.empty()) << "no children, no milk";
}

TEST_F(Days, AVirusNeedsAnOperatingSystemAndComesFirst)
{
    for (const int system : {0, 1}) {
        Prepare(1, -1, 1);
        GameState.SoftOS = system;
        RunDay(21);
        EXPECT_EQ(player.journal.front() == "open frmVirus", system > 0);
        EXPECT_EQ(GameState.Money, 1007);
    }
}

TEST_F(Days, TheYearsTaxesFollowTheLevelAndTheMessageStands)
{
    struct {
        int level, money, tax, mood;
    } const cases[]{{0, 1001, 500, -20}, {1, 1001, 250, -10}, {2, 1005, 100, -5},
                    {0, -100, -50, -20}, {1, 2, 0, -10},      {1, 6, 2, -10}};
    for (const auto& row : cases) {
        Prepare(row.level, 0, 0);
        Set(0, 0, 0, row.money);
        Texts expected = ShownBy({{lblHappy, row.mood}, {lblMoney, -row.tax}});
        expected.insert(expected.begin(), "message");
        PayTaxes();
        EXPECT_EQ(LabelShown(lblMessage),
                  "Сообщение от Налогового Инспектора: Пора платить налоги!!! Вы заплатили " +
                      std::to_string(row.tax) + " долларов");
        EXPECT_EQ(player.journal, expected);
    }
}

TEST_F(Days, AnOverflowSkipsTheRestAndNobodyIsTold)
{
    Prepare(0, 0, 0);
    GameState.Happy = -32768;
    EXPECT_NO_THROW(PayTaxes());
    EXPECT_EQ(player.journal, Texts{"message"}) << "the mood overflows, no tax is taken";

    Set(0, 0, 0, 2147483647);
    dice.values = {DrawOf(1, 50)};
    DailyEvents();
    EXPECT_EQ(player.journal, Texts{}) << "the wage overflows, no wear comes";
}

TEST_F(Days, TheDayReseedsFromTheSystemTimerAndTheLifeTableFromItsDraws)
{
    Prepare(1, 0, 0);
    dice.reseeds.clear();
    dice.values = {DrawOf(1, 50), 0.5F, 0.25F, DrawOf(1, 25)};
    DailyEvents();
    EXPECT_EQ(dice.reseeds, (std::vector<std::optional<double>>{std::nullopt, 0.125}));
}

} // namespace
} // namespace torvenhall::test
