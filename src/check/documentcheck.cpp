#include "documentcheck.h"

#include "bkxmleditor.h"
#include "childelements.h"
#include "document.h"
#include "jobschema.h"
#include "jobwords.h"
#include "messagetext.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtXml/QDomAttr>

#include <algorithm>
#include <set>

using namespace cabledoc;

namespace {

QString pathOf(const QDomElement &element)
{
    QStringList path;
    for (QDomNode node = element; node.parentNode().isElement(); node = node.parentNode())
        path.prepend(excerpt(node.nodeName()));
    return path.join(QLatin1Char('/'));
}

/// A document that is only loaded to check it.
class CheckedDocument : public BKXMLEditor
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCheck)

public:
    explicit CheckedDocument(const CheckOptions &options)
        : BKXMLEditor(QString())
    {
        setCharacterReferences(options.characterReferences);
        setMaximumFileSize(options.maximumFileSize);
        inside().lineNumbers = xmlfile::LineNumbers::Read;
    }

    CheckReport check(const QString &filename)
    {
        if (!inside().read(filename, QString(),
                           {tr("A file name is needed"), tr("%1 does not exist"), tr("%1, line %2, column %3: %4"),
                            tr("%1 is not an XML file")})) {
            m_report.error = inside().error;
            return m_report;
        }
        if (mayBeChecked()) {
            checkShared();
            if (document().firstChild().nodeName() == words::Job)
                checkJob();
            checkContents();
        }
        std::stable_sort(m_report.findings.begin(), m_report.findings.end(),
                         [](const Finding &a, const Finding &b) { return a.line < b.line; });
        return m_report;
    }

private:
    void report(const char *rule, const QDomElement &element, const QString &message)
    {
        // An element without a line was just added because an older file lacks it. Nothing is reported about it.
        if (element.lineNumber() > 0)
            m_report.findings.append({QLatin1String(rule), element.lineNumber(), pathOf(element), message});
    }

    bool mayBeChecked()
    {
        const QDomElement root = document().firstChild().toElement();
        if (root.tagName() != words::Job && root.tagName() != words::Bkt) {
            report("unknown-root", document().documentElement(),
                   tr("the file does not begin with the element \"%1\" or \"%2\"").arg(words::Job, words::Bkt));
            return false;
        }
        const QString found = version();
        const QDomElement element = getElement(words::Version);
        if (!convertToCurrentVersion([] { return true; })) {
            report("unknown-version", element.isNull() ? root : element,
                   tr("\"%1\" is not a known version").arg(excerpt(found)));
            return false;
        }
        if (found != words::CurrentVersion)
            report("old-version", element, tr("version %1 is older than %2").arg(found, words::CurrentVersion));
        return true;
    }

    // Names

    /// Checks the tags of the children. All tags within a scope must differ. A scope is a kind of element in the whole
    /// document.
    void checkTags(const QDomElement &list, const QString &scope)
    {
        QMap<QString, int> &lines = m_linesOfTags[scope];
        for (const QDomElement &element : ChildElements(list)) {
            if (lines.contains(element.tagName()))
                report("duplicate-tag", element,
                       tr("it has the same tag as the element in line %1").arg(lines.value(element.tagName())));
            else
                lines.insert(element.tagName(), element.lineNumber());
        }
    }

    void checkIds(const QDomElement &list)
    {
        QMap<QString, int> lines;
        for (const QDomElement &element : ChildElements(list)) {
            const QString id = getElementId(element);
            if (id.isEmpty())
                continue;
            if (lines.contains(id))
                report("duplicate-id", element,
                       tr("it has the same id \"%1\" as the element in line %2").arg(excerpt(id)).arg(lines.value(id)));
            else
                lines.insert(id, element.lineNumber());
        }
    }

    void checkNames(const QDomElement &list)
    {
        checkTags(list, list.tagName());
        checkIds(list);
    }

    void reportMissing(const QDomElement &element, const QString &message)
    {
        report("missing-reference", element, message);
    }

    // Elements of both documents

    void checkShared()
    {
        checkTags(document().documentElement(), QString());
        for (const QDomElement &list : {getToPrintSettingsList(), getToPageSettingsList(), getToScaleSettingsList()})
            checkTags(list, list.tagName());

        checkNames(getToTestDefList());
        for (const QDomElement &element : ChildElements(getToTestDefList()))
            checkDefinition(element);

        checkNames(getToBundledCableTypeList());
        for (const QDomElement &bundle : ChildElements(getToBundledCableTypeList())) {
            const QStringList types = childIds(bundle.firstChildElement(words::BundledCableTypeList));
            for (const QString &type : types)
                checkType(bundle, type);
            m_bundles.insert(getElementId(bundle));
        }
    }

    void checkDefinition(const QDomElement &element)
    {
        TestDef definition(testDefAttributes().read(element));
        m_types.insert(definition.id());
        // The maximum length is left out, because it only gives a warning.
        definition.setMaxLength(TestDefFields().maxLength);
        const QString verdict = definition.validDef();
        if (verdict != QLatin1String("GOOD"))
            report("invalid-definition", element, tr("\"%1\": %2").arg(excerpt(definition.id()), verdict.simplified()));
    }

    void checkType(const QDomElement &element, const QString &type)
    {
        if (!type.isEmpty() && m_types.count(type) == 0)
            reportMissing(element, tr("there is no test definition \"%1\"").arg(excerpt(type)));
    }

    // Elements of jobs

    void checkJob()
    {
        const QDomElement root = document().documentElement();
        for (const ElementSchema *kind : jobSchema()) {
            for (const QDomElement &list : listsOf(*kind, root, allChildren))
                checkNamesOf(*kind, list);
        }
        for (const ElementSchema *kind : jobSchema()) {
            for (const QDomElement &list : listsOf(*kind, root, allChildren)) {
                for (const QDomElement &element : ChildElements(list))
                    checkReferences(*kind, element);
            }
        }
    }

    /// Returns the name of the scope of a kind.
    static QString scopeOf(const ElementSchema &kind)
    {
        return kind.holder == ElementKind::None ? kind.listName() : schemaOf(kind.holder).listName() + kind.listName();
    }

    void checkNamesOf(const ElementSchema &kind, const QDomElement &list)
    {
        // Every floor has a room "Undefined" of its own.
        if (kind.kind == ElementKind::Rooms)
            m_linesOfTags[scopeOf(kind)].remove(words::Undefined);
        checkTags(list, scopeOf(kind));
        checkIds(list);
    }

    /// Returns the message about a tag that no element has.
    static QString missingText(const Reference &reference)
    {
        if (reference.targets.contains(ElementKind::Points))
            return tr("\"%1\": there is no point, port or vertical run \"%2\"");
        if (reference.targets.contains(ElementKind::VerticalRuns))
            return tr("\"%1\": there is no port or vertical run \"%2\"");
        if (reference.targets.contains(ElementKind::Ports))
            return tr("\"%1\": there is no port \"%2\"");
        if (reference.targets.contains(ElementKind::Devices))
            return tr("\"%1\": there is no device or bend \"%2\"");
        return tr("\"%1\": there is no cable \"%2\"");
    }

    void checkReferences(const ElementSchema &kind, const QDomElement &element)
    {
        for (const Reference &reference : kind.references) {
            for (const QString &attribute : reference.attributes) {
                for (const QString &tag : reference.tagsIn(element.attribute(attribute))) {
                    const bool isThere =
                        std::any_of(reference.targets.begin(), reference.targets.end(), [&](ElementKind target) {
                            return m_linesOfTags.value(scopeOf(schemaOf(target))).contains(tag);
                        });
                    if (!isThere)
                        reportMissing(element, missingText(reference).arg(attribute, excerpt(tag)));
                }
            }
        }
        if (kind.kind != ElementKind::Cables)
            return;
        checkType(element, element.attribute(words::Type));
        const QString bundle = element.attribute(words::BundleName);
        if (!bundle.isEmpty() && m_bundles.count(bundle) == 0)
            reportMissing(element, tr("there is no bundle \"%1\"").arg(excerpt(bundle)));
    }

    // Characters and numbers

    void checkContents()
    {
        QDomNode node = document().documentElement();
        while (!node.isNull()) {
            checkContentsOf(node);
            if (node.hasChildNodes()) {
                node = node.firstChild();
                continue;
            }
            while (node.nextSibling().isNull() && !node.parentNode().isNull())
                node = node.parentNode();
            node = node.nextSibling();
        }
    }

    void checkContentsOf(const QDomNode &node)
    {
        const QDomElement element = node.toElement();
        if (element.isNull()) {
            checkText(node.parentNode().toElement(), tr("text"), node.nodeValue());
            return;
        }
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomAttr attribute = attributes.item(i).toAttr();
            checkText(element, attribute.name(), attribute.value());
        }
        checkNumbers(element, jobFileAttributes().inList.value(node.parentNode().nodeName()));
        checkNumbers(element, jobFileAttributes().ofElement.value(node.nodeName()));
    }

    void checkNumbers(const QDomElement &element, const AttributeList *attributes)
    {
        const QStringList names = attributes == nullptr ? QStringList() : attributes->invalidNumbers(element);
        for (const QString &name : names) {
            report("invalid-number", element,
                   tr("\"%1\": \"%2\" is not a usable number").arg(name, excerpt(element.attribute(name))));
        }
    }

    void checkText(const QDomElement &element, const QString &name, const QString &text)
    {
        const QString lost = firstLostCharacter(text, characterReferences());
        if (!lost.isEmpty())
            report("lost-character", element,
                   tr("\"%1\" contains \"%2\", which a save cannot write").arg(excerpt(name), lost));
    }

    CheckReport m_report;
    /// Lines of the elements by scope and tag.
    QMap<QString, QMap<QString, int>> m_linesOfTags;
    /// Cable types that have a test definition.
    std::set<QString> m_types;
    std::set<QString> m_bundles;
};

} // namespace

CheckReport cabledoc::checkFile(const QString &filename, const CheckOptions &options)
{
    return CheckedDocument(options).check(filename);
}
