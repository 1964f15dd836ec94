#include "documentcheck.h"

#include "attributetext.h"
#include "bkxmleditor.h"
#include "childelements.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "messagetext.h"
#include "settingsattributes.h"
#include "sharedattributes.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtXml/QDomAttr>

#include <algorithm>
#include <set>

using namespace cabledoc;

namespace {

/// Returns the attributes of an element whose numbers their fields cannot hold.
using InvalidNumbers = QStringList (*)(const QDomElement &);

template <auto table> QStringList invalidNumbers(const QDomElement &element)
{
    return table().invalidNumbers(element);
}

/// Returns the checks by the name of the list that the element is in, or by the element's own name.
const QMap<QString, InvalidNumbers> &numberChecks()
{
    static const QMap<QString, InvalidNumbers> checks{
        {words::FloorList, invalidNumbers<floorAttributes>},
        {words::RoomList, invalidNumbers<roomAttributes>},
        {words::PortList, invalidNumbers<portAttributes>},
        {words::VerticalRunList, invalidNumbers<portAttributes>},
        {words::PointList, invalidNumbers<pointAttributes>},
        {words::VerticeList, invalidNumbers<pointAttributes>},
        {words::FreeTextList, invalidNumbers<freeTextAttributes>},
        {words::DeviceList, invalidNumbers<deviceAttributes>},
        {words::TestResults, invalidNumbers<testResultsAttributes>},
        {words::ActiveTestResult, invalidNumbers<activeTestResultAttributes>},
        {words::TestDefList, invalidNumbers<testDefAttributes>},
        {words::PrintSettingsList, invalidNumbers<printSettingsAttributes>},
        {words::PageSettingsList, invalidNumbers<pageSettingsAttributes>},
        {words::ScaleSettingsList, invalidNumbers<scaleSettingsAttributes>},
    };
    return checks;
}

QString pathOf(const QDomElement &element)
{
    QStringList path;
    for (QDomNode node = element; node.parentNode().isElement(); node = node.parentNode())
        path.prepend(excerpt(node.nodeName()));
    return path.join(QLatin1Char('/'));
}

/// A document that is checked and not changed.
class CheckedDocument : public BKXMLEditor
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCheck)

public:
    explicit CheckedDocument(const CheckOptions &options)
        : BKXMLEditor(QString())
    {
        setCharacterReferences(options.characterReferences);
        setMaximumFileSize(options.maximumFileSize);
    }

    CheckReport check(const QString &filename)
    {
        if (!readFile(filename, QString(),
                      {tr("No file is named"), tr("%1 does not exist"), tr("%1, line %2, column %3: %4"),
                       tr("%1 is no XML file")})) {
            m_report.error = m_error;
            return m_report;
        }
        if (mayBeChecked()) {
            checkShared();
            if (m_document.firstChild().nodeName() == words::Job)
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
        // An element that was just added because an older file lacks it has no line. This is not a finding.
        if (element.lineNumber() > 0)
            m_report.findings.append({QLatin1String(rule), element.lineNumber(), pathOf(element), message});
    }

    bool mayBeChecked()
    {
        const QDomElement root = m_document.firstChild().toElement();
        if (root.tagName() != words::Job && root.tagName() != words::Bkt) {
            report("unknown-root", m_document.documentElement(),
                   tr("the file does not begin with the element \"%1\" or \"%2\"").arg(words::Job, words::Bkt));
            return false;
        }
        const QString found = version();
        const QDomElement element = getElement(words::Version);
        if (!convertToCurrentVersion([] { return true; })) {
            report("unknown-version", element.isNull() ? root : element,
                   tr("\"%1\" is no version that is known").arg(excerpt(found)));
            return false;
        }
        if (found != words::CurrentVersion)
            report("old-version", element, tr("version %1 is older than %2").arg(found, words::CurrentVersion));
        return true;
    }

    // Names

    /// Checks the names of the children. Their tags must differ within the scope, which is a kind of element in the
    /// whole document.
    void checkTags(const QDomElement &list, const QString &scope)
    {
        QMap<QString, int> &lines = m_linesOfTags[scope];
        for (const QDomElement &element : ChildElements(list)) {
            if (lines.contains(element.tagName()))
                report("duplicate-tag", element, tr("its tag is that of line %1").arg(lines.value(element.tagName())));
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
                       tr("its id \"%1\" is that of line %2").arg(excerpt(id)).arg(lines.value(id)));
            else
                lines.insert(id, element.lineNumber());
        }
    }

    void checkNames(const QDomElement &list)
    {
        checkTags(list, list.tagName());
        checkIds(list);
    }

    bool hasTag(const QString &listName, const QString &tag) const
    {
        return m_linesOfTags.value(listName).contains(tag);
    }

    void reportMissing(const QDomElement &element, const QString &message)
    {
        report("missing-reference", element, message);
    }

    // Elements of both documents

    void checkShared()
    {
        checkTags(m_document.documentElement(), QString());
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
        // A maximum length that gives only a warning does not count.
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
        checkFloors();
        checkSheets();
        checkNames(getElement(words::CableList));
        for (const QDomElement &cable : ChildElements(getElement(words::CableList)))
            checkCable(cable);
        checkNames(getElement(words::ConnectionList));
        for (const QDomElement &connection : ChildElements(getElement(words::ConnectionList)))
            checkConnection(connection);
        const QDomElement activePorts =
            getElement(words::ActiveNetworkTestList).firstChildElement(words::ActivePortList);
        checkNames(activePorts);
        for (const QDomElement &activePort : ChildElements(activePorts)) {
            const QString port = activePort.attribute(words::Port);
            if (!port.isEmpty() && !hasTag(words::PortList, port))
                reportMissing(activePort, tr("\"%1\": there is no port \"%2\"").arg(words::Port, excerpt(port)));
        }
        checkVertRuns();
    }

    void checkFloors()
    {
        checkNames(getElement(words::FloorList));
        for (const QDomElement &floor : ChildElements(getElement(words::FloorList))) {
            const QDomElement rooms = floor.firstChildElement(words::RoomList);
            // Every floor has a room "Undefined" of its own.
            m_linesOfTags[rooms.tagName()].remove(words::Undefined);
            checkNames(rooms);
            for (const QDomElement &room : ChildElements(rooms)) {
                checkNames(room.firstChildElement(words::PortList));
                checkNames(room.firstChildElement(words::VerticalRunList));
            }
            checkNames(floor.firstChildElement(words::PointList));
            const QDomElement texts = floor.firstChildElement(words::FreeTextList);
            checkTags(texts, words::FloorList + texts.tagName());
            checkIds(texts);
        }
    }

    void checkSheets()
    {
        checkNames(getElement(words::SheetList));
        for (const QDomElement &sheet : ChildElements(getElement(words::SheetList))) {
            for (const QString &list : {words::DeviceList, words::VerticeList, words::FreeTextList})
                checkNames(sheet.firstChildElement(list));
        }
    }

    bool isPortOrVertRun(const QString &tag) const
    {
        return hasTag(words::PortList, tag) || hasTag(words::VerticalRunList, tag);
    }

    void checkCable(const QDomElement &cable)
    {
        for (const QString &attribute : {words::From, words::To}) {
            const QString end = cable.attribute(attribute);
            if (!end.isEmpty() && !isPortOrVertRun(end))
                reportMissing(cable,
                              tr("\"%1\": there is no port or vertical run \"%2\"").arg(attribute, excerpt(end)));
        }
        QStringList path;
        fromText(cable.attribute(words::Path), &path);
        for (const QString &passed : std::as_const(path)) {
            if (!hasTag(words::PointList, passed) && !isPortOrVertRun(passed)) {
                reportMissing(
                    cable,
                    tr("\"%1\": there is no point, port or vertical run \"%2\"").arg(words::Path, excerpt(passed)));
            }
        }
        checkType(cable, cable.attribute(words::Type));
        const QString bundle = cable.attribute(words::BundleName);
        if (!bundle.isEmpty() && m_bundles.count(bundle) == 0)
            reportMissing(cable, tr("there is no bundle \"%1\"").arg(excerpt(bundle)));
    }

    void checkVertRuns()
    {
        for (const QDomElement &floor : ChildElements(getElement(words::FloorList))) {
            for (const QDomElement &room : ChildElements(floor.firstChildElement(words::RoomList))) {
                for (const QDomElement &vertRun : ChildElements(room.firstChildElement(words::VerticalRunList)))
                    checkVertRun(vertRun);
            }
        }
    }

    void checkVertRun(const QDomElement &vertRun)
    {
        for (const QString &attribute : {words::Connected, words::Disconnected}) {
            QStringList cables;
            fromText(vertRun.attribute(attribute), &cables);
            for (const QString &cable : std::as_const(cables)) {
                if (!hasTag(words::CableList, cable))
                    reportMissing(vertRun, tr("\"%1\": there is no cable \"%2\"").arg(attribute, excerpt(cable)));
            }
        }
    }

    void checkConnection(const QDomElement &connection)
    {
        for (const QString &attribute : {words::From, words::To}) {
            const QString end = connection.attribute(attribute);
            if (!end.isEmpty() && !hasTag(words::DeviceList, end) && !hasTag(words::VerticeList, end))
                reportMissing(connection,
                              tr("\"%1\": there is no device or point \"%2\"").arg(attribute, excerpt(end)));
        }
    }

    // Characters and numbers

    void checkContents()
    {
        QDomNode node = m_document.documentElement();
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
        for (const QString &name : {node.parentNode().nodeName(), node.nodeName()})
            checkNumbers(element, numberChecks().value(name));
    }

    void checkNumbers(const QDomElement &element, InvalidNumbers invalidNumbers)
    {
        const QStringList names = invalidNumbers == nullptr ? QStringList() : invalidNumbers(element);
        for (const QString &name : names) {
            report("invalid-number", element,
                   tr("\"%1\": \"%2\" is not a number that can be used").arg(name, excerpt(element.attribute(name))));
        }
    }

    void checkText(const QDomElement &element, const QString &name, const QString &text)
    {
        const QString lost = firstLostCharacter(text, characterReferences());
        if (!lost.isEmpty())
            report("lost-character", element,
                   tr("\"%1\" holds \"%2\", which a save cannot keep").arg(excerpt(name), lost));
    }

    CheckReport m_report;
    /// Lines of the elements by their tags, by scope.
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
