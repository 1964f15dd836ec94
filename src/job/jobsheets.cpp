#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

QString JobEditor::addSheet(const Sheet &sheet, int mode)
{
    const QDomElement element = d->add(sheetKind(), sheet.fields(), mode);
    return element.isNull() ? QStringLiteral("Bad Sheet") : element.tagName();
}

QString JobEditor::addSheet(const QString &tag, const QString &id, int mode)
{
    return addSheet(Sheet(tag, id), mode);
}

void JobEditor::removeSheet(const QString &tag)
{
    d->tree.remove(ElementKind::Sheets, tag);
}

Sheet JobEditor::getSheet(const QString &tag) const
{
    return Sheet(d->tree.read(sheetKind(), tag));
}

void JobEditor::setSheetID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::Sheets, tag, words::Id, id);
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
