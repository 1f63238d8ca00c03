#include "activities/work.h"

#include <string>

#include "core/GameState.h"
#include "core/traps.h"
#include "core/waits.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

/// What a job pays and what it really asks; the refusals name more, and
/// partly other things, on purpose.
struct Job {
    std::string_view title;
    int pay = 0;                                                 ///< dollars a day
    int education = 0, intelligence = 0, scanner = 0, modem = 0; ///< at least; 0 asks nothing
    std::string_view refusal = {};
};

constexpr Job Jobs[]{
    {"Безработный", 0},
    {"Дворник", 10},
    {.title = "Сантехник", .pay = 15, .intelligence = 25, .refusal = "Поумнейте до 25%"},
    {.title = "Инженер",
     .pay = 20,
     .education = 2,
     .intelligence = 35,
     .refusal = "Поумнейте до 35% и станьте Юзером с Windows 3.1"},
    {.title = "Мененджер",
     .pay = 80,
     .education = 2,
     .intelligence = 45,
     .refusal = "Поумнейте до 45% и станьте Юзером с Windows 95"},
    {.title = "Дизайнер",
     .pay = 95,
     .education = 3,
     .intelligence = 60,
     .scanner = 2,
     .refusal = "Приобретите компьютер с Windows 98 и Adobe Photoshop 6 и сканером Mustek 600 CP, "
                "станьте Ламером и поумнейте до 60%"},
    {.title = "Архитектор",
     .pay = 115,
     .education = 4,
     .intelligence = 65,
     .refusal = "Приобретите компьютер с Windows 98 и Adobe Photoshop 6, станьте Ламером и "
                "поумнейте до 65%"},
    {.title = "Бухгалтер",
     .pay = 125,
     .education = 2,
     .intelligence = 70,
     .refusal = "Приобретите компьютер с Windows 98, станьте Юзером и поумнейте до 70%"},
    {.title = "Программист",
     .pay = 150,
     .education = 5,
     .intelligence = 85,
     .refusal = "Приобретите компьютер с Windows NT4, станьте Программером и поумнейте до 85%"},
    {.title = "Сисадмин",
     .pay = 175,
     .education = 6,
     .intelligence = 85,
     .modem = 4,
     .refusal = "Приобретите компьютер с Windows 2000 с 56000 bps V.90 модемом, станьте Сисадмином "
                "и поумнейте до 85%"},
    {.title = "Спец. по комп. безоп.",
     .pay = 200,
     .education = 6,
     .intelligence = 90,
     .refusal = "Приобретите компьютер с Windows Millenium, станьте Сисадмином и поумнейте до 90%"},
    {.title = "Хакер",
     .pay = 540,
     .education = 7,
     .intelligence = 98,
     .modem = 6,
     .refusal = "Приобретите компьютер с Linux с DVB 2 Mb/s Satelette Device за $600, станьте "
                "Хакером и поумнейте до 98"},
    {.title = "Босс hack-фирмы",
     .pay = 750,
     .education = 8,
     .intelligence = 100,
     .modem = 6,
     .refusal = "Приобретите компьютер с Unix с DVB 2 Mb/s Satelette Device за $600, станьте Профи "
                "и поумнейте до 100"},
};
static_assert(std::size(Jobs) == JobButtons + 1);

bool Qualifies(const Job& job)
{
    const auto reaches = [](Int16 value, int least) { return least == 0 || value >= least; };
    return reaches(GameState.Education, job.education) &&
           reaches(GameState.Intelligence, job.intelligence) &&
           reaches(GameState.HardScanner, job.scanner) && reaches(GameState.HardComm, job.modem);
}

} // namespace

const std::array<std::string_view, JobButtons> JobCaptions{
    "Дворник - $10",    "Сантехник -$15",
    "Инженер - $20",    "Мененджер - $80",
    "Дизайнер $95",     "Архитектор - $115",
    "Бухгалтер - $125", "Программист - $150",
    "Сисадмин - $175",  "Спец. по комп. безоп. $200",
    "Хакер - $540",     "Босс hakc-фирмы - $750",
};

void SetWork(Int16 index)
{
    if (index >= 0 && index <= JobButtons) {
        const Job& job = Jobs[static_cast<std::size_t>(index.value())];
        GameState.CurrWork = index;
        GameState.WorkPay = job.pay;
        GameState.WorkTitle = job.title;
    }
    ShowLabel(Label::lblCurrWork,
              "Работа: " + GameState.WorkTitle + " ($" + Decimal(GameState.WorkPay) + "/день)");
}

void ApplyForJob(int button)
{
    if (button < 0 || button >= JobButtons) {
        return;
    }
    const Job& job = Jobs[static_cast<std::size_t>(button) + 1];
    if (Qualifies(job)) {
        SetWork(button + 1);
    } else {
        MsgBox(job.refusal, "Нифига!", Icon::Information);
    }
}

} // namespace torvenhall
