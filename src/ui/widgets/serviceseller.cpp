#include "ui/widgets/serviceseller.h"

#include "game/entry.h"
#include "ui/widgets/qtext.h"

namespace torvenhall
{

ServiceSeller::ServiceSeller(const char* name, const ServiceWindow& newTable, Sign sign,
                             QWidget* parent)
    : ActivityWindow({name, Text(newTable.caption), newTable.pictureKey}, parent), table(newTable)
{
    AddSlogan("Label3", "Label4", Text(table.slogan), sign);
    std::vector<std::pair<QString, QString>> captions;
    for (std::size_t i = 0; i < table.services.size(); ++i) {
        captions.emplace_back(QString("Command%1").arg(i + 1), Text(table.services[i].caption));
    }
    AddChoices({Text(table.group), "Label1", 304, 1}, captions);
    for (std::size_t i = 0; i < table.services.size(); ++i) {
        connect(&Choice(i), &QAbstractButton::clicked, this,
                [this, i] { EnterRules([&sold = table, i] { BuyService(sold, i); }); });
    }
    AddBack("Command8");
}

void ServiceSeller::RefreshChoices()
{
    for (std::size_t i = 0; i < table.services.size(); ++i) {
        Choice(i).SetMuted(ServiceRefusal(table, table.services[i]).has_value());
    }
}

} // namespace torvenhall
