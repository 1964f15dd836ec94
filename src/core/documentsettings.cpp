#include "bkxmleditor.h"

#include "settingsattributes.h"
#include "words.h"

using namespace cabledoc;

namespace {

/// One of the three lists of settings.
template <typename Settings> struct SettingsKind
{
    QString listName;
    QStringList entryNames;
    const AttributeTable<typename Settings::Fields> &attributes;
};

const SettingsKind<PrintSettings> &printKind()
{
    static const SettingsKind<PrintSettings> kind{words::PrintSettingsList, printSettingsEntries(),
                                                  printSettingsAttributes()};
    return kind;
}

const SettingsKind<PageSettings> &pageKind()
{
    static const SettingsKind<PageSettings> kind{words::PageSettingsList, drawingSettingsEntries(),
                                                 pageSettingsAttributes()};
    return kind;
}

const SettingsKind<ScaleSettings> &scaleKind()
{
    static const SettingsKind<ScaleSettings> kind{words::ScaleSettingsList, drawingSettingsEntries(),
                                                  scaleSettingsAttributes()};
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

template <typename Kind, typename Initial>
void BKXMLEditor::addEntries(const QDomElement &settings, const Kind &kind, Initial initial)
{
    const QDomElement list = ensureElement(kind.listName, settings);
    for (const QString &name : kind.entryNames) {
        if (list.firstChildElement(name).isNull())
            kind.attributes.write(appendElement(name, list), initial(name).fields());
    }
}

void BKXMLEditor::addSettingsList(QDomElement *parent)
{
    if (parent == nullptr || parent->isNull())
        return;
    const QDomElement settings = ensureElement(words::SettingsList, *parent);
    addEntries(settings, printKind(), initialPrintSettings);
    addEntries(settings, pageKind(), [](const QString &) { return PageSettings(); });
    addEntries(settings, scaleKind(), [](const QString &) { return ScaleSettings(); });

    QDomElement notes = ensureElement(words::JobNotesText, *parent);
    if (!notes.hasAttribute(words::Text))
        notes.setAttribute(words::Text, QLatin1String(""));
    setDirty(true);
}
