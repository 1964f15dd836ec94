#include "bkxmleditor.h"

#include "childelements.h"
#include "document.h"
#include "documentattributes.h"
#include "words.h"

using namespace cabledoc;

TestDef BKXMLEditor::getTestDef(const QString &name) const
{
    const QDomElement element = inside().tree().definition(name);
    if (element.isNull())
        return TestDef(name);
    return TestDef(testDefAttributes().read(element));
}

QVector<TestDef> BKXMLEditor::getTestDefs() const
{
    QVector<TestDef> definitions;
    const QVector<QDomElement> elements = childrenWithId(getToTestDefList());
    for (const QDomElement &element : elements)
        definitions.append(TestDef(testDefAttributes().read(element)));
    return definitions;
}

void BKXMLEditor::addTestDef(const TestDef &definition)
{
    addTestDefs({definition});
}

void BKXMLEditor::addTestDefs(const QVector<TestDef> &definitions)
{
    const QDomElement list = getToTestDefList();
    if (list.isNull())
        return;
    ChildNames names(list);
    for (const TestDef &definition : definitions) {
        if (names.containsId(definition.id()))
            continue;
        names.insert(inside().tree().append(names.firstFreeTag(words::TestDefTagPrefix), list, testDefAttributes(),
                                            definition.fields()));
    }
}

void BKXMLEditor::renameTestDef(const QString &oldName, const QString &newName)
{
    inside().tree().setAttribute(inside().tree().definition(oldName), words::Id, newName);
}

void BKXMLEditor::removeTestDef(const QString &name)
{
    inside().tree().remove(inside().tree().definition(name));
}

bool BKXMLEditor::testDefExists(const QString &name) const
{
    return !inside().tree().definition(name).isNull();
}

bool BKXMLEditor::testDefElementExists(const QString &tag) const
{
    return hasChildElement(tag, getToTestDefList().firstChild());
}

QStringList BKXMLEditor::getTestDefElements() const
{
    return childTags(getToTestDefList());
}

QStringList BKXMLEditor::getTestDefNames() const
{
    return childIds(getToTestDefList());
}
