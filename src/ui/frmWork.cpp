#include "ui/frmWork.h"

#include "activities/work.h"
#include "game/entry.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

frmWork::frmWork(QWidget* parent) : ActivityWindow({"frmWork", "Работа", "WORK"}, parent)
{
    AddSlogan("Label2", "Label3", "Центр занятости населения", Sign::Office);
    std::vector<std::pair<QString, QString>> captions;
    captions.reserve(JobButtons);
    for (int i = 0; i < JobButtons; ++i) {
        captions.emplace_back(QString("cmdWork%1").arg(i),
                              Text(JobCaptions[static_cast<std::size_t>(i)]));
    }
    AddChoices({"Смена работы", "Label1", 440, 2}, captions);
    for (int i = 0; i < JobButtons; ++i) {
        connect(&Choice(static_cast<std::size_t>(i)), &QAbstractButton::clicked, this,
                [i] { EnterRules([i] { ApplyForJob(i); }); });
    }
    AddBack("Command8");
}

} // namespace torvenhall
