#include "ui/frmWork.h"

#include "activities/work.h"
#include "ui/choiceglyphs.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

static_assert(std::size(JobGlyphs) == JobButtons);

frmWork::frmWork(QWidget* parent) : ActivityWindow({"frmWork", "Работа", "WORK"}, parent)
{
    AddSlogan("Label2", "Label3", "Центр занятости населения", Sign::Office);
    std::vector<Row> rows;
    for (std::size_t i = 0; i < JobButtons; ++i) {
        rows.push_back({QString("cmdWork%1").arg(i), Text(JobCaptions[i]), JobGlyphs[i]});
    }
    AddChoices({"Смена работы", "Label1", 232, 22, 1.3}, rows);
    for (std::size_t i = 0; i < JobButtons; ++i) {
        Choice(i).ShowWages();
        SetDeed(i, [i] { ApplyForJob(static_cast<int>(i)); });
    }
    AddBack("Command8");
}

ActivityWindow::Standing frmWork::StandingOf(std::size_t index) const
{
    const Job& job = Jobs[index + 1];
    const QString wage = QString("$%1 в день").arg(job.pay);
    if (GameState.CurrWork == static_cast<int>(index) + 1) {
        return {Badge::Present, "Это Ваша работа: " + wage + '.', {}};
    }
    const int more = job.pay - GameState.WorkPay.value();
    Standing standing{Badge::None,
                      wage + QString(", сейчас $%1.").arg(GameState.WorkPay.value()),
                      {{Label::lblMoney, more, "/день"}}};
    if (const auto refusal = JobRefusal(static_cast<int>(index))) {
        standing.badge = Badge::NotQualified;
        standing.explanation = Text(refusal->text) + '\n' + standing.explanation;
    }
    return standing;
}

} // namespace torvenhall
