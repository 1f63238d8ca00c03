#include "ui/widgets/serviceseller.h"

#include <QStringList>

#include "core/GameState.h"
#include "core/basGame.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

namespace
{

struct Vital {
    const char* word;
    Label label;
    Int16 Game::*field;
};

constexpr EnumArray<Stat, Vital> Vitals{{{
    {},
    {},
    {"настроение", Label::lblHappy, &Game::Happy},
    {"здоровье", Label::lblHealth, &Game::Health},
    {"сытость", Label::lblEat, &Game::EatLevel},
}}};

bool IsVital(const Change& change)
{
    return Vitals[change.stat].word != nullptr;
}

QString Signed(int amount)
{
    return (amount < 0 ? "−" : "+") + QString::number(std::abs(amount));
}

/// "Здоровье +75, настроение −50, цена $250."
QString Words(const Service& service)
{
    QStringList words;
    for (const Change& change : service.changes) {
        if (IsVital(change)) {
            words << Vitals[change.stat].word + (' ' + Signed(change.amount));
        }
    }
    words << QString("цена $%1").arg(service.price);
    QString line = words.join(", ") + '.';
    line[0] = line[0].toUpper();
    return line;
}

/// What the player would not live through.
QString Warning(const Service& service)
{
    for (const Change& change : service.changes) {
        const Vital& vital = Vitals[change.stat];
        if (IsVital(change) && change.amount < 0) {
            const int then = (GameState.*vital.field).value() + change.amount;
            if (then <= BoundsOf(vital.label).fatal) {
                return QString("\nСмертельно: %1 станет %2%!")
                    .arg(vital.word)
                    .arg(then)
                    .replace('-', "−");
            }
        }
    }
    return {};
}

std::vector<Effect> EffectsOf(const Service& service)
{
    std::vector<Effect> effects{{Label::lblMoney, -service.price}};
    for (const Change& change : service.changes) {
        if (IsVital(change)) {
            effects.push_back({Vitals[change.stat].label, change.amount});
        }
    }
    return effects;
}

} // namespace

ServiceSeller::ServiceSeller(const char* name, const ServiceWindow& newTable, const Look& look,
                             QWidget* parent)
    : ActivityWindow({name, Text(newTable.caption), newTable.pictureKey}, parent), table(newTable)
{
    AddSlogan("Label3", "Label4", Text(table.slogan), look.sign);
    std::vector<Row> rows;
    for (std::size_t i = 0; i < table.services.size(); ++i) {
        rows.push_back(
            {QString("Command%1").arg(i + 1), Text(table.services[i].caption), look.glyphs[i]});
    }
    AddChoices({Text(table.group), "Label1", look.width, 31}, rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SetDeed(i, [&sold = table, i] { BuyService(sold, i); });
    }
    AddBack("Command8");
}

ActivityWindow::Standing ServiceSeller::StandingOf(std::size_t index) const
{
    const Service& service = table.services[index];
    Standing standing{Badge::None, Words(service), EffectsOf(service)};
    if (service.caption.find("h ") != std::string_view::npos || service.caption.ends_with('h')) {
        standing.explanation += " h — это настроение.";
    }
    standing.explanation += Warning(service);
    if (const auto refusal = ServiceRefusal(table, service)) {
        standing.badge = Badge::TooDear;
        standing.explanation = Text(refusal->text) + '\n' + standing.explanation;
    }
    return standing;
}

} // namespace torvenhall
