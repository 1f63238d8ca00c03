#include "activities/work.h"

#include "core/shown.h"
#include "core/waits.h"
#include "system/convert.h"
#include "system/table.h"

namespace torvenhall
{

namespace
{

const Job* JobOf(int button)
{
    return Find(std::span(Jobs).subspan(1), button);
}

} // namespace

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

std::optional<MessageBox> JobRefusal(int button)
{
    const Job* job = JobOf(button);
    return job != nullptr ? RefusalOf(job->demands, job->refusal, "Нифига!") : std::nullopt;
}

void ApplyForJob(int button)
{
    if (JobOf(button) == nullptr) {
        return;
    }
    if (const auto refusal = JobRefusal(button)) {
        MsgBox(refusal->text, refusal->title, refusal->icon);
    } else {
        SetWork(button + 1);
    }
}

} // namespace torvenhall
