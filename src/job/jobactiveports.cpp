#include "jobelements.h"

#include "childelements.h"

using namespace cabledoc;

namespace {

const DrawnKind<ActivePortFields> &activePortKind()
{
    static const DrawnKind<ActivePortFields> kind{ElementKind::ActivePorts, words::ActivePortList,
                                                  words::ActivePortTagPrefix, activePortAttributes()};
    return kind;
}

ActiveTestResult readResult(const QDomElement &element)
{
    ActiveTestResultFields fields = activeTestResultAttributes().read(element);
    for (const QDomElement &value : ChildElements(element)) {
        if (value.tagName() == words::ActiveTestValue)
            fields.values.append({value.attribute(words::Name), value.attribute(words::Value)});
    }
    return ActiveTestResult(fields);
}

/// The first result of that time.
QDomElement resultElement(const QDomElement &activePort, const QString &time)
{
    for (const QDomElement &result : ChildElements(activePort)) {
        if (result.tagName() == words::ActiveTestResult && result.attribute(words::Time) == time)
            return result;
    }
    return QDomElement();
}

} // namespace

QString JobEditor::addActivePort(const ActivePort &activePort, int mode)
{
    const QDomElement element =
        addElement(activePortKind(), getElement(words::ActiveNetworkTestList), activePort.fields(), mode);
    if (element.isNull())
        return QString();
    for (const ActiveTestResult &result : activePort.results())
        appendResult(element, result);
    return element.tagName();
}

QString JobEditor::addActivePort(const QString &portTag, const QString &tag, const QString &id, int mode)
{
    return addActivePort(ActivePort(tag, id, portTag, {}), mode);
}

void JobEditor::removeActivePort(const QString &tag)
{
    removeElementOf(ElementKind::ActivePorts, activePortElement(tag));
}

void JobEditor::removeActivePort(const ActivePort &activePort)
{
    removeActivePort(activePort.element());
}

QDomElement JobEditor::activePortElement(const QString &tag) const
{
    return elementOf(ElementKind::ActivePorts, tag);
}

ActivePort JobEditor::getActivePortByTag(const QString &tag) const
{
    const QDomElement element = activePortElement(tag);
    if (element.isNull())
        return ActivePort();
    ActivePortFields fields = readElement(activePortKind(), element);
    fields.results = getActiveTestResults(tag);
    return ActivePort(fields);
}

ActivePort JobEditor::getActivePortById(const QString &id) const
{
    return getActivePortByTag(getActivePortTagById(id));
}

QString JobEditor::getActivePortIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::ActivePorts].id(tag);
}

QString JobEditor::getActivePortTagById(const QString &id) const
{
    return (*m_index)[ElementKind::ActivePorts].tagOfId(id);
}

QString JobEditor::getActivePortPort(const QString &tag) const
{
    return getChildAttr(words::Port, activePortElement(tag));
}

void JobEditor::setActivePortID(const QString &tag, const QString &id)
{
    renameElementOf(ElementKind::ActivePorts, tag, id);
}

void JobEditor::setActivePortPort(const QString &tag, const QString &portTag)
{
    writeAttribute(activePortElement(tag), words::Port, portTag);
}

void JobEditor::addActiveTestResult(const QString &tag, const ActiveTestResult &result)
{
    const QDomElement activePort = activePortElement(tag);
    if (!activePort.isNull())
        appendResult(activePort, result);
}

void JobEditor::appendResult(const QDomElement &activePort, const ActiveTestResult &result)
{
    const QDomElement element = appendElement(words::ActiveTestResult, activePort);
    activeTestResultAttributes().write(element, result.fields());
    for (const auto &[name, value] : result.values()) {
        QDomElement valueElement = appendElement(words::ActiveTestValue, element);
        valueElement.setAttribute(words::Name, name);
        valueElement.setAttribute(words::Value, value);
    }
    setDirty(true);
}

void JobEditor::removeActiveTestResult(const QString &tag, const QString &time)
{
    removeElement(resultElement(activePortElement(tag), time));
}

QVector<ActiveTestResult> JobEditor::getActiveTestResults(const QString &tag) const
{
    QVector<ActiveTestResult> results;
    for (const QDomElement &element : ChildElements(activePortElement(tag))) {
        if (element.tagName() == words::ActiveTestResult)
            results.append(readResult(element));
    }
    return results;
}

bool JobEditor::activePortTestResultExists(const QString &tag, const QString &time) const
{
    return !resultElement(activePortElement(tag), time).isNull();
}
