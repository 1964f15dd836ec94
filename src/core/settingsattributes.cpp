#include "settingsattributes.h"

#include "words.h"

namespace cabledoc {

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
    // Only the two drawing views lie on their side.
    settings.setOrientation(drawingSettingsEntries().contains(entry) ? 1 : 0);
    return settings;
}

const AttributeTable<PrintSettingsFields> &printSettingsAttributes()
{
    using F = PrintSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::paperSize>(QStringLiteral("paper_size"), WhenMissing::AddDefault),
        attribute<&F::orientation>(QStringLiteral("orientation"), WhenMissing::AddDefault),
        attribute<&F::printZoom>(QStringLiteral("print_zoom"), WhenMissing::AddDefault),
        attribute<&F::fitToAcross>(QStringLiteral("fit_to_across"), WhenMissing::AddDefault),
        attribute<&F::fitToDown>(QStringLiteral("fit_to_down"), WhenMissing::AddDefault),
        attribute<&F::printZoomStyle>(QStringLiteral("print_zoom_style"), WhenMissing::AddDefault),
    };
    return table;
}

const AttributeTable<PageSettingsFields> &pageSettingsAttributes()
{
    using F = PageSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::pageSize>(QStringLiteral("page_size"), WhenMissing::AddDefault),
        attribute<&F::pageStandard>(QStringLiteral("page_standard"), WhenMissing::AddDefault),
        attribute<&F::orientation>(QStringLiteral("orientation"), WhenMissing::AddDefault),
        attribute<&F::pageSizeStyle>(QStringLiteral("page_size_style"), WhenMissing::AddDefault),
        attribute<&F::pageUnits>(QStringLiteral("page_units"), WhenMissing::AddDefault),
        attribute<&F::customHeight>(QStringLiteral("custom_height"), WhenMissing::AddDefault),
        attribute<&F::customWidth>(QStringLiteral("custom_width"), WhenMissing::AddDefault),
    };
    return table;
}

const AttributeTable<ScaleSettingsFields> &scaleSettingsAttributes()
{
    using F = ScaleSettingsFields;
    static const AttributeTable<F> table{
        attribute<&F::predefinedScale>(QStringLiteral("predefined_scale"), WhenMissing::AddDefault),
        attribute<&F::predefinedStyle>(QStringLiteral("predefined_style"), WhenMissing::AddDefault),
        attribute<&F::widthUnits>(QStringLiteral("width_units"), WhenMissing::AddDefault),
        attribute<&F::heightUnits>(QStringLiteral("height_units"), WhenMissing::AddDefault),
        attribute<&F::customHeight>(QStringLiteral("custom_height"), WhenMissing::AddDefault),
        attribute<&F::customWidth>(QStringLiteral("custom_width"), WhenMissing::AddDefault),
        attribute<&F::style>(QStringLiteral("style"), WhenMissing::AddDefault),
    };
    return table;
}

} // namespace cabledoc
