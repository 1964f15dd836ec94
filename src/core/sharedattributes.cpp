#include "sharedattributes.h"

#include "settingsattributes.h"
#include "words.h"

namespace cabledoc {

const QStringList &contractorInfoAttributes()
{
    static const QStringList names{words::Tester, words::Company, words::Email, words::Phone, words::Logo};
    return names;
}

const AttributeTable<AddressFields> &addressAttributes()
{
    using F = AddressFields;
    static const AttributeTable<F> table{
        attribute<&F::address1>(QStringLiteral("address1")), attribute<&F::address2>(QStringLiteral("address2")),
        attribute<&F::city>(QStringLiteral("city")),         attribute<&F::state>(QStringLiteral("state")),
        attribute<&F::zipcode>(QStringLiteral("zipcode")),   attribute<&F::country>(QStringLiteral("country")),
    };
    return table;
}

const AttributeTable<TestDefFields> &testDefAttributes()
{
    using F = TestDefFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::expected>(words::Expected),
        attribute<&F::pairInUse>(QStringLiteral("in_use")),
        attribute<&F::dataRate>(QStringLiteral("data_rate")),
        attribute<&F::snr>(QStringLiteral("SNR")),
        attribute<&F::skew>(QStringLiteral("skew")),
        attribute<&F::shield>(QStringLiteral("shield")),
        truncatedNumber<&F::lengthConstant>(words::LengthConstant),
        truncatedNumber<&F::maxLength>(QStringLiteral("max_length")),
        attribute<&F::comment>(words::Comment),
        attribute<&F::cableCategory>(QStringLiteral("cable_category")),
        attribute<&F::defaultType>(words::DefaultType),
        attribute<&F::color>(words::Color),
    };
    return table;
}

xmlfile::AttributeOrder sharedAttributeOrder()
{
    xmlfile::AttributeOrder order;
    order.ofElement = {{words::ContractorInfo, contractorInfoAttributes()},
                       {words::Address, addressAttributes().names()}};
    order.inContainer = {{words::TestDefList, testDefAttributes().names()},
                         {words::BundledCableList, {words::Id, words::Color, words::DefaultType}},
                         {words::PrintSettingsList, printSettingsAttributes().names()},
                         {words::PageSettingsList, pageSettingsAttributes().names()},
                         {words::ScaleSettingsList, scaleSettingsAttributes().names()}};
    return order;
}

} // namespace cabledoc
