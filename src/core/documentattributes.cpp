#include "documentattributes.h"

#include "words.h"

namespace cabledoc {

const AttributeTable<ContractorDataFields> &contractorInfoAttributes()
{
    using F = ContractorDataFields;
    static const AttributeTable<F> table{
        attribute<&F::tester>(words::Tester), attribute<&F::company>(words::Company),
        attribute<&F::email>(words::Email),   attribute<&F::phone>(words::Phone),
        attribute<&F::logo>(words::Logo),
    };
    return table;
}

const AttributeTable<AddressFields> &addressAttributes()
{
    using F = AddressFields;
    static const AttributeTable<F> table{
        attribute<&F::address1>(words::Address1), attribute<&F::address2>(words::Address2),
        attribute<&F::city>(words::City),         attribute<&F::state>(words::State),
        attribute<&F::zipcode>(words::Zipcode),   attribute<&F::country>(words::Country),
    };
    return table;
}

const AttributeTable<TestDefFields> &testDefAttributes()
{
    using F = TestDefFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::expected>(words::Expected),
        attribute<&F::pairInUse>(words::InUse),
        attribute<&F::dataRate>(words::DataRate),
        attribute<&F::snr>(words::Snr),
        attribute<&F::skew>(words::Skew),
        attribute<&F::shield>(words::Shield),
        truncatedNumber<&F::lengthConstant>(words::LengthConstant),
        truncatedNumber<&F::maxLength>(words::MaxLength),
        attribute<&F::comment>(words::Comment),
        attribute<&F::cableCategory>(words::CableCategory),
        attribute<&F::defaultType>(words::DefaultType),
        attribute<&F::color>(words::Color),
    };
    return table;
}

const AttributeTable<BundledCableFields> &bundledCableAttributes()
{
    using F = BundledCableFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::color>(words::Color),
        attribute<&F::defaultType>(words::DefaultType),
    };
    return table;
}

const QStringList &printSettingsEntries()
{
    static const QStringList names{
        words::JobInfoSettings,   words::NetViewSettings,
        words::InventorySettings, words::FloorPlanSettings,
        words::TestSchedSettings, words::DetailedCableSettings,
        words::JobNotesSettings,  words::ActiveNetworkTestResultsSettings,
    };
    return names;
}

const QStringList &drawingSettingsEntries()
{
    static const QStringList names{words::NetViewSettings, words::FloorPlanSettings};
    return names;
}

PrintSettings initialPrintSettings(const QString &entry)
{
    PrintSettings settings;
    // Only the two drawing views are in landscape.
    settings.setOrientation(drawingSettingsEntries().contains(entry) ? 1 : 0);
    return settings;
}

const AttributeTable<PrintSettingsFields> &printSettingsAttributes()
{
    using F = PrintSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::paperSize>(words::PaperSize, WhenMissing::AddDefault),
        attribute<&F::orientation>(words::Orientation, WhenMissing::AddDefault),
        attribute<&F::printZoom>(words::PrintZoom, WhenMissing::AddDefault),
        attribute<&F::fitToAcross>(words::FitToAcross, WhenMissing::AddDefault),
        attribute<&F::fitToDown>(words::FitToDown, WhenMissing::AddDefault),
        attribute<&F::printZoomStyle>(words::PrintZoomStyle, WhenMissing::AddDefault),
    };
    return table;
}

const AttributeTable<PageSettingsFields> &pageSettingsAttributes()
{
    using F = PageSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::pageSize>(words::PageSize, WhenMissing::AddDefault),
        attribute<&F::pageStandard>(words::PageStandard, WhenMissing::AddDefault),
        attribute<&F::orientation>(words::Orientation, WhenMissing::AddDefault),
        attribute<&F::pageSizeStyle>(words::PageSizeStyle, WhenMissing::AddDefault),
        attribute<&F::pageUnits>(words::PageUnits, WhenMissing::AddDefault),
        attribute<&F::customHeight>(words::CustomHeight, WhenMissing::AddDefault),
        attribute<&F::customWidth>(words::CustomWidth, WhenMissing::AddDefault),
    };
    return table;
}

const AttributeTable<ScaleSettingsFields> &scaleSettingsAttributes()
{
    using F = ScaleSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::predefinedScale>(words::PredefinedScale, WhenMissing::AddDefault),
        attribute<&F::predefinedStyle>(words::PredefinedStyle, WhenMissing::AddDefault),
        attribute<&F::widthUnits>(words::WidthUnits, WhenMissing::AddDefault),
        attribute<&F::heightUnits>(words::HeightUnits, WhenMissing::AddDefault),
        attribute<&F::customHeight>(words::CustomHeight, WhenMissing::AddDefault),
        attribute<&F::customWidth>(words::CustomWidth, WhenMissing::AddDefault),
        attribute<&F::style>(words::ScaleStyle, WhenMissing::AddDefault),
    };
    return table;
}

const FileAttributes &documentFileAttributes()
{
    static const FileAttributes attributes{
        {{words::TestDefList, &testDefAttributes()},
         {words::BundledCableList, &bundledCableAttributes()},
         {words::PrintSettingsList, &printSettingsAttributes()},
         {words::PageSettingsList, &pageSettingsAttributes()},
         {words::ScaleSettingsList, &scaleSettingsAttributes()}},
        {{words::Address, &addressAttributes()}, {words::ContractorInfo, &contractorInfoAttributes()}},
    };
    return attributes;
}

xmlfile::AttributeOrder attributeOrder(const FileAttributes &attributes)
{
    xmlfile::AttributeOrder order;
    for (auto list = attributes.inList.cbegin(); list != attributes.inList.cend(); ++list)
        order.inContainer.insert(list.key(), list.value()->names());
    for (auto element = attributes.ofElement.cbegin(); element != attributes.ofElement.cend(); ++element)
        order.ofElement.insert(element.key(), element.value()->names());
    return order;
}

} // namespace cabledoc
