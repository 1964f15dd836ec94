#include "attributeorder.h"

#include "settingsattributes.h"
#include "words.h"

namespace cabledoc {

const QStringList &contractorInfoAttributes()
{
    static const QStringList names{QStringLiteral("tester"), QStringLiteral("company"), QStringLiteral("email"),
                                   QStringLiteral("phone"), QStringLiteral("logo")};
    return names;
}

const QStringList &addressAttributes()
{
    static const QStringList names{QStringLiteral("address1"), QStringLiteral("address2"), QStringLiteral("city"),
                                   QStringLiteral("state"),    QStringLiteral("zipcode"),  QStringLiteral("country")};
    return names;
}

xmlfile::AttributeOrder sharedAttributeOrder()
{
    xmlfile::AttributeOrder order;
    order.ofElement = {{words::ContractorInfo, contractorInfoAttributes()}, {words::Address, addressAttributes()}};
    order.inContainer = {{words::PrintSettingsList, printSettingsAttributes().names()},
                         {words::PageSettingsList, pageSettingsAttributes().names()},
                         {words::ScaleSettingsList, scaleSettingsAttributes().names()}};
    return order;
}

} // namespace cabledoc
