#include "jobattributes.h"

#include "attributeorder.h"
#include "jobwords.h"

namespace cabledoc {

const AttributeTable<FloorFields> &floorAttributes()
{
    using F = FloorFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::pic>(words::Picture),
        attribute<&F::ceilingHeight>(words::CeilingHeight),
        onDemand<F>(words::PictureX, QStringLiteral("0")),
        onDemand<F>(words::PictureY, QStringLiteral("0")),
        onDemand<F>(words::BackgroundOption, QStringLiteral("Center")),
    };
    return table;
}

const AttributeTable<SheetFields> &sheetAttributes()
{
    static const AttributeTable<SheetFields> table{attribute<&SheetFields::id>(words::Id)};
    return table;
}

const AttributeTable<RoomFields> &roomAttributes()
{
    using F = RoomFields;
    static const AttributeTable<F> table{
        wholeNumber<&F::x>(words::X),
        wholeNumber<&F::y>(words::Y),
        wholeNumber<&F::width>(words::Width),
        wholeNumber<&F::height>(words::Height),
        attribute<&F::id>(words::Id),
        wholeNumber<&F::roomNameX>(words::NameX),
        wholeNumber<&F::roomNameY>(words::NameY),
        attribute<&F::layer>(words::Layer, WhenMissing::AddDefault),
        attribute<&F::showRoomName>(words::ShowName, WhenMissing::AddDefault),
        attribute<&F::showDimensions>(words::ShowDimensions, WhenMissing::AddDefault),
    };
    return table;
}

const QStringList &siteInfoAttributes()
{
    static const QStringList names{QStringLiteral("phone"), QStringLiteral("jobid"), QStringLiteral("company"),
                                   QStringLiteral("email"), QStringLiteral("contact")};
    return names;
}

const xmlfile::AttributeOrder &jobAttributeOrder()
{
    static const xmlfile::AttributeOrder order = [] {
        xmlfile::AttributeOrder all = sharedAttributeOrder();
        all.inContainer.insert(words::FloorList, floorAttributes().names());
        all.inContainer.insert(words::SheetList, sheetAttributes().names());
        all.inContainer.insert(words::RoomList, roomAttributes().names());
        all.ofElement.insert(words::SiteInfo, siteInfoAttributes());
        return all;
    }();
    return order;
}

} // namespace cabledoc
