#include "activities/work.h"

#include "support/life.h"

namespace torvenhall::test
{
namespace
{

using Work = BegunLife;

TEST_F(Work, AnUnknownJobKeepsTheFieldsAndStillRewritesTheLabelAndOtherButtonsDoNothing)
{
    SetWork(11);
    EXPECT_EQ(LabelShown(lblCurrWork), "Работа: Хакер ($540/день)");
    GameState.WorkPay = 7;
    for (const int index : {13, -1}) {
        SetWork(index);
        EXPECT_EQ(GameState.CurrWork, 11);
        EXPECT_EQ(LabelShown(lblCurrWork), "Работа: Хакер ($7/день)");
    }
    player.Forget();
    ApplyForJob(-1);
    ApplyForJob(12);
    EXPECT_TRUE(player.journal.empty());
}

/// What a job asks: education, intelligence, scanner, modem.
struct Asked {
    const char* title;
    int pay;
    int least[4];
    const char* refusal;
};
// clang-format off
const Asked Jobs[]{
    {"Дворник", 10, {0, 0, 0, 0}, ""},
    {"Сантехник", 15, {0, 25, 0, 0}, "Поумнейте до 25%"},
    {"Инженер", 20, {2, 35, 0, 0}, "Поумнейте до 35% и станьте Юзером с Windows 3.1"},
    {"Мененджер", 80, {2, 45, 0, 0}, "Поумнейте до 45% и станьте Юзером с Windows 95"},
    {"Дизайнер", 95, {3, 60, 2, 0}, "Приобретите компьютер с Windows 98 и Adobe Photoshop 6 и сканером Mustek 600 CP, станьте Ламером и поумнейте до 60%"},
    {"Архитектор", 115, {4, 65, 0, 0}, "Приобретите компьютер с Windows 98 и Adobe Photoshop 6, станьте Ламером и поумнейте до 65%"},
    {"Бухгалтер", 125, {2, 70, 0, 0}, "Приобретите компьютер с Windows 98, станьте Юзером и поумнейте до 70%"},
    {"Программист", 150, {5, 85, 0, 0}, "Приобретите компьютер с Windows NT4, станьте Программером и поумнейте до 85%"},
    {"Сисадмин", 175, {6, 85, 0, 4}, "Приобретите компьютер с Windows 2000 с 56000 bps V.90 модемом, станьте Сисадмином и поумнейте до 85%"},
    {"Спец. по комп. безоп.", 200, {6, 90, 0, 0}, "Приобретите компьютер с Windows Millenium, станьте Сисадмином и поумнейте до 90%"},
    {"Хакер", 540, {7, 98, 0, 6}, "Приобретите компьютер с Linux с DVB 2 Mb/s Satelette Device за $600, станьте Хакером и поумнейте до 98"},
    {"Босс hack-фирмы", 750, {8, 100, 0, 6}, "Приобретите компьютер с Unix с DVB 2 Mb/s Satelette Device за $600, станьте Профи и поумнейте до 100"},
};
// clang-format on

constexpr Int16 GameStateRecord::*AskedFields[]{
    &GameStateRecord::Education, &GameStateRecord::Intelligence, &GameStateRecord::HardScanner,
    &GameStateRecord::HardComm};

TEST_F(Work, EveryJobIsGivenAtItsBoundsAndRefusedOneBelowAnyOfThem)
{
    for (int button = 0; button < JobButtons; ++button) {
        const Asked& job = Jobs[button];
        SCOPED_TRACE(job.title);
        for (int lacking = -1; lacking < 4; ++lacking) {
            if (lacking >= 0 && job.least[lacking] == 0) {
                continue;
            }
            for (int i = 0; i < 4; ++i) {
                GameState.*AskedFields[i] = job.least[i] - (i == lacking ? 1 : 0);
            }
            SetWork(0);
            ApplyForJob(button);
            if (lacking < 0) {
                EXPECT_EQ(GameState.CurrWork, button + 1);
                EXPECT_EQ(GameState.WorkTitle, job.title);
                EXPECT_EQ(GameState.WorkPay, job.pay);
                EXPECT_EQ(Told(), Texts{});
            } else {
                EXPECT_EQ(GameState.CurrWork, 0);
                EXPECT_EQ(Told(), Texts{std::string("i Нифига!: ") + job.refusal});
            }
        }
    }
}

} // namespace
} // namespace torvenhall::test
