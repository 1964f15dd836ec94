#include "bkxmleditor.h"

#include "document.h"
#include "documentattributes.h"
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

/// Stores the settings of an entry. Adds the entry if it is missing. Does nothing if there is no entry of that name.
template <typename Settings> void store(DocumentTree *tree, const QDomElement &list, const SettingsKind<Settings> &kind,
                                        const QString &name, const Settings &settings)
{
    if (list.isNull() || !kind.entryNames.contains(name))
        return;
    const QDomElement entry = list.firstChildElement(name);
    if (entry.isNull())
        tree->append(name, list, kind.attributes, settings.fields());
    else
        tree->write(entry, kind.attributes, settings.fields());
}

/// Returns the settings of an entry. Adds the entry or the attributes that are missing, with their defaults.
template <typename Settings>
Settings fetch(DocumentTree *tree, const QDomElement &list, const SettingsKind<Settings> &kind, const QString &name)
{
    const QDomElement entry = list.firstChildElement(name);
    if (kind.entryNames.contains(name) && !entry.isNull())
        return Settings(tree->read(entry, kind.attributes));
    store(tree, list, kind, name, Settings());
    return Settings();
}

/// Adds the entries that a list lacks, and the list itself if it is missing.
template <typename Settings, typename Initial>
void addEntries(DocumentTree *tree, const QDomElement &parent, const SettingsKind<Settings> &kind, Initial initial)
{
    const QDomElement list = tree->ensure(kind.listName, parent);
    for (const QString &name : kind.entryNames) {
        if (list.firstChildElement(name).isNull())
            tree->append(name, list, kind.attributes, initial(name).fields());
    }
}

} // namespace

void BKXMLEditor::setPrintSettings(const PrintSettings &settings, const QString &name)
{
    store(&inside().tree(), getToPrintSettingsList(), printKind(), name, settings);
}

void BKXMLEditor::setPageSettings(const PageSettings &settings, const QString &name)
{
    store(&inside().tree(), getToPageSettingsList(), pageKind(), name, settings);
}

void BKXMLEditor::setScaleSettings(const ScaleSettings &settings, const QString &name)
{
    store(&inside().tree(), getToScaleSettingsList(), scaleKind(), name, settings);
}

PrintSettings BKXMLEditor::getPrintSettings(const QString &name)
{
    return fetch(&inside().tree(), getToPrintSettingsList(), printKind(), name);
}

PageSettings BKXMLEditor::getPageSettings(const QString &name)
{
    return fetch(&inside().tree(), getToPageSettingsList(), pageKind(), name);
}

ScaleSettings BKXMLEditor::getScaleSettings(const QString &name)
{
    return fetch(&inside().tree(), getToScaleSettingsList(), scaleKind(), name);
}

void BKXMLEditor::addSettingsList(QDomElement *parent)
{
    if (parent == nullptr || parent->isNull())
        return;
    DocumentTree &tree = inside().tree();
    const QDomElement settings = tree.ensure(words::SettingsList, *parent);
    addEntries(&tree, settings, printKind(), initialPrintSettings);
    addEntries(&tree, settings, pageKind(), [](const QString &) { return PageSettings(); });
    addEntries(&tree, settings, scaleKind(), [](const QString &) { return ScaleSettings(); });
    tree.addAttribute(tree.ensure(words::JobNotesText, *parent), words::Text, QLatin1String(""));
    tree.setChanged(true);
}
