#include "jobeditor.h"

#include "addmode.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"

using namespace cabledoc;

QString JobEditor::addSheet(const QString &tag, const QString &id, int mode)
{
    const QString badSheet = QStringLiteral("Bad Sheet");
    if (addmode::keepsTag(mode) && !mayBeName(tag))
        return badSheet;
    const QDomElement sheetList = getElement(words::SheetList);
    if (sheetList.isNull())
        return badSheet;

    ElementIndex &sheets = (*m_index)[ElementKind::Sheets];
    const QString prefix = words::SheetTagPrefix;
    const QString sheetTag =
        addmode::keepsTag(mode) ? tag : prefix + QString::number(sheets.firstFreeTagNumber(prefix, 1));
    const QString sheetId = addmode::keepsId(mode) ? id : id + QString::number(sheets.firstFreeIdNumber(id, 1));

    const QDomElement sheet = appendElement(sheetTag, sheetList);
    sheetAttributes().write(sheet, {sheetId, sheetTag});
    addSheetContainers(sheet);
    sheets.append(sheet);
    setDirty(true);
    return sheetTag;
}

QString JobEditor::addSheet(const Sheet &sheet, int mode)
{
    return addSheet(sheet.element(), sheet.id(), mode);
}

/// Adds what every sheet has and this one lacks.
void JobEditor::addSheetContainers(const QDomElement &sheet)
{
    ensureElement(words::DeviceList, sheet);
    ensureElement(words::VerticeList, sheet);
    ensureElement(words::FreeTextList, sheet);
}

void JobEditor::removeSheet(const QString &tag)
{
    const QDomElement sheet = sheetElement(tag);
    if (sheet.isNull())
        return;
    (*m_index)[ElementKind::Sheets].remove(sheet);
    removeElement(sheet);
    rebuildIndex(ElementKind::Devices);
    rebuildIndex(ElementKind::Vertices);
    rebuildIndex(ElementKind::FreeTexts);
    dropReferencesToAll(ElementKind::Devices, sheet.firstChildElement(words::DeviceList));
    dropReferencesToAll(ElementKind::Vertices, sheet.firstChildElement(words::VerticeList));
}

Sheet JobEditor::getSheet(const QString &tag) const
{
    const QDomElement element = sheetElement(tag);
    if (element.isNull())
        return Sheet();
    SheetFields fields = sheetAttributes().read(element);
    fields.element = tag;
    return Sheet(fields);
}

void JobEditor::setSheetID(const QString &tag, const QString &id)
{
    renameElementOf(ElementKind::Sheets, tag, id);
}

void JobEditor::setAllSheetIDs(const QMap<QString, QString> &idsByTag)
{
    for (auto sheet = idsByTag.cbegin(); sheet != idsByTag.cend(); ++sheet)
        setSheetID(sheet.key(), sheet.value());
}

QString JobEditor::getSheetNumber(const QString &tag)
{
    const int number = tag.section(QLatin1Char('_'), 1, 1).toInt();
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}
