#include "ui/outlook.h"

#include "core/GameState.h"
#include "core/basGame.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

QString OfMoney()
{
    const auto missing = qint64{GameState.WinMoney.value()} - GameState.Money.value();
    return QString("для победы нужно больше $%1%2")
        .arg(GameState.WinMoney.value())
        .arg(missing >= 0 ? QString(", не хватает $%1").arg(missing + 1) : ", хватает");
}

QString OfRank()
{
    const int rank = GameState.Education.value();
    const QString next = Text(ShowStatus(rank + 1));
    return QString("ступень %1 из %2").arg(rank).arg(TopRank) +
           (next.isEmpty() ? "" : ", следующая — " + next);
}

QString OfFamily()
{
    if (GameState.WifeFound != True) {
        return "жены нет";
    }
    const QString children = QString("сыновей: %1, дочерей: %2")
                                 .arg(GameState.Sons.value())
                                 .arg(GameState.Daughters.value());
    if (GameState.Married == True) {
        return "есть жена, " + children;
    }
    const int alimony = GameState.Alimony.value();
    return "жена ушла, " + children +
           (alimony > 0 ? QString(", алименты $%1 в месяц").arg(alimony) : QString());
}

QString OfIntelligence()
{
    return QString("полное — %1%").arg(FullIntelligence);
}

} // namespace

QString OutlookOf(Label statistic)
{
    switch (statistic) {
    case Label::lblMoney:
        return OfMoney();
    case Label::lblStatus:
        return OfRank();
    case Label::lblFamily:
        return OfFamily();
    case Label::lblHappy:
    case Label::lblEat:
    case Label::lblHealth:
        return QString("смерть при %1%").arg(BoundsOf(statistic).fatal).replace('-', "−");
    case Label::lblEducation:
        return OfIntelligence();
    default:
        return {};
    }
}

} // namespace torvenhall
