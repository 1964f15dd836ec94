#include "bkxmleditor.h"

#include "settingsattributes.h"
#include "words.h"

using namespace cabledoc;

namespace {

/// One of the three lists of settings.
template <typename Settings> struct SettingsKind
{
    QString listName;
    QStringList entryNames; ///< in the order in which a new document has them
    const AttributeTable<typename Settings::Fields> &attributes;
};

const SettingsKind<PrintSettings> &printKind()
{
    static const SettingsKind<PrintSettings> kind{words::PrintSettingsList,
                                                  {words::JobInfoSettings, words::NetViewSettings,
                                                   words::InventorySettings, words::FloorPlanSettings,
                                                   words::TestSchedSettings, words::DetailedCableSettings,
                                                   words::JobNotesSettings, words::ActiveNetworkTestResultsSettings},
                                                  printSettingsAttributes()};
    return kind;
}

const SettingsKind<PageSettings> &pageKind()
{
    static const SettingsKind<PageSettings> kind{
        words::PageSettingsList, {words::NetViewSettings, words::FloorPlanSettings}, pageSettingsAttributes()};
    return kind;
}

const SettingsKind<ScaleSettings> &scaleKind()
{
    static const SettingsKind<ScaleSettings> kind{
        words::ScaleSettingsList, {words::NetViewSettings, words::FloorPlanSettings}, scaleSettingsAttributes()};
    return kind;
}

} // namespace

QDomElement BKXMLEditor::settingsList(const QString &tagName) const
{
    return getElement(words::SettingsList).firstChildElement(tagName);
}

QDomElement BKXMLEditor::getToPrintSettingsList() const
{
    return settingsList(words::PrintSettingsList);
}

QDomElement BKXMLEditor::getToPageSettingsList() const
{
    return settingsList(words::PageSettingsList);
}

QDomElement BKXMLEditor::getToScaleSettingsList() const
{
    return settingsList(words::ScaleSettingsList);
}

template <typename Settings, typename Kind>
void BKXMLEditor::store(const Settings &settings, const QString &name, const Kind &kind)
{
    const QDomElement list = settingsList(kind.listName);
    if (list.isNull() || !kind.entryNames.contains(name))
        return;
    QDomElement entry = list.firstChildElement(name);
    if (entry.isNull()) {
        entry = appendElement(name, list);
        setDirty(true);
    }
    if (kind.attributes.write(entry, settings.fields()))
        setDirty(true);
}

template <typename Settings, typename Kind> Settings BKXMLEditor::fetch(const QString &name, const Kind &kind)
{
    const QDomElement list = settingsList(kind.listName);
    if (list.isNull() || !kind.entryNames.contains(name))
        return Settings();
    QDomElement entry = list.firstChildElement(name);
    if (entry.isNull()) {
        store(Settings(), name, kind);
        return Settings();
    }
    if (kind.attributes.complete(entry))
        setDirty(true);
    return Settings(kind.attributes.read(entry));
}

void BKXMLEditor::setPrintSettings(const PrintSettings &settings, const QString &name)
{
    store(settings, name, printKind());
}

void BKXMLEditor::setPageSettings(const PageSettings &settings, const QString &name)
{
    store(settings, name, pageKind());
}

void BKXMLEditor::setScaleSettings(const ScaleSettings &settings, const QString &name)
{
    store(settings, name, scaleKind());
}

PrintSettings BKXMLEditor::getPrintSettings(const QString &name)
{
    return fetch<PrintSettings>(name, printKind());
}

PageSettings BKXMLEditor::getPageSettings(const QString &name)
{
    return fetch<PageSettings>(name, pageKind());
}

ScaleSettings BKXMLEditor::getScaleSettings(const QString &name)
{
    return fetch<ScaleSettings>(name, scaleKind());
}

void BKXMLEditor::addSettingsList(QDomElement *parent)
{
    QDomElement settings = appendElement(words::SettingsList, *parent);

    QDomElement printList = appendElement(words::PrintSettingsList, settings);
    PrintSettings print;
    for (const QString &name : printKind().entryNames) {
        // Only the two drawing views lie on their side.
        const bool isDrawing = name == words::NetViewSettings || name == words::FloorPlanSettings;
        print.setOrientation(isDrawing ? 1 : 0);
        printKind().attributes.write(appendElement(name, printList), print.fields());
    }

    QDomElement pageList = appendElement(words::PageSettingsList, settings);
    for (const QString &name : pageKind().entryNames)
        pageKind().attributes.write(appendElement(name, pageList), PageSettingsFields());

    QDomElement scaleList = appendElement(words::ScaleSettingsList, settings);
    for (const QString &name : scaleKind().entryNames)
        scaleKind().attributes.write(appendElement(name, scaleList), ScaleSettingsFields());

    appendElement(words::JobNotesText, *parent).setAttribute(words::Text, QLatin1String(""));
    setDirty(true);
}
