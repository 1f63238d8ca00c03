#include "activities/work.h"

#include "core/shown.h"
#include "core/waits.h"
#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

void SetWork(Int16 index)
{
    if (const Job* job = Find(Jobs, index)) {
        GameState.CurrWork = index;
        GameState.WorkPay = job->pay;
        GameState.WorkTitle = job->title;
    }
    ShowLabel(Label::lblCurrWork,
              "Работа: " + GameState.WorkTitle + " ($" + Decimal(GameState.WorkPay) + "/день)");
}

void ApplyForJob(int button)
{
    const Job* job = Find(std::span(Jobs).subspan(1), button);
    if (job == nullptr) {
        return;
    }
    if (AreMet(job->demands)) {
        SetWork(button + 1);
    } else {
        MsgBox(job->refusal, "Нифига!", Icon::Information);
    }
}

} // namespace torvenhall
