#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

namespace {

ActiveTestResult readResult(const QDomElement &element)
{
    ActiveTestResultFields fields = activeTestResultAttributes().read(element);
    for (const QDomElement &value : ChildElements(element)) {
        if (value.tagName() == words::ActiveTestValue)
            fields.values.append({value.attribute(words::Name), value.attribute(words::Value)});
    }
    return ActiveTestResult(fields);
}

/// Returns the first result with the given time, or a null element if there is none.
QDomElement resultElement(const QDomElement &activePort, const QString &time)
{
    for (const QDomElement &result : ChildElements(activePort)) {
        if (result.tagName() == words::ActiveTestResult && result.attribute(words::Time) == time)
            return result;
    }
    return QDomElement();
}

void appendResult(JobTree *tree, const QDomElement &activePort, const ActiveTestResult &result)
{
    const QDomElement element =
        tree->append(words::ActiveTestResult, activePort, activeTestResultAttributes(), result.fields());
    for (const auto &[name, value] : result.values()) {
        const QDomElement valueElement = tree->append(words::ActiveTestValue, element);
        tree->setAttribute(valueElement, words::Name, name);
        tree->setAttribute(valueElement, words::Value, value);
    }
}

} // namespace

QString JobEditor::addActivePort(const ActivePort &activePort, int mode)
{
    const QDomElement element = d->add(activePortKind(), activePort.fields(), mode);
    if (!element.isNull()) {
        for (const ActiveTestResult &result : activePort.results())
            appendResult(&d->tree, element, result);
    }
    return element.tagName();
}

QString JobEditor::addActivePort(const QString &portTag, const QString &tag, const QString &id, int mode)
{
    return addActivePort(ActivePort(tag, id, portTag, {}), mode);
}

void JobEditor::removeActivePort(const QString &tag)
{
    d->tree.remove(ElementKind::ActivePorts, tag);
}

void JobEditor::removeActivePort(const ActivePort &activePort)
{
    removeActivePort(activePort.element());
}

ActivePort JobEditor::getActivePortByTag(const QString &tag) const
{
    ActivePortFields fields = d->tree.read(activePortKind(), tag);
    fields.results = getActiveTestResults(tag);
    return ActivePort(fields);
}

ActivePort JobEditor::getActivePortById(const QString &id) const
{
    return getActivePortByTag(getActivePortTagById(id));
}

QString JobEditor::getActivePortIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::ActivePorts, tag);
}

QString JobEditor::getActivePortTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::ActivePorts, id);
}

QString JobEditor::getActivePortPort(const QString &tag) const
{
    return d->tree.attribute(ElementKind::ActivePorts, tag, words::Port);
}

void JobEditor::setActivePortID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::ActivePorts, tag, words::Id, id);
}

void JobEditor::setActivePortPort(const QString &tag, const QString &portTag)
{
    d->tree.set(ElementKind::ActivePorts, tag, words::Port, portTag);
}

void JobEditor::addActiveTestResult(const QString &tag, const ActiveTestResult &result)
{
    const QDomElement activePort = d->tree.element(ElementKind::ActivePorts, tag);
    if (!activePort.isNull())
        appendResult(&d->tree, activePort, result);
}

void JobEditor::removeActiveTestResult(const QString &tag, const QString &time)
{
    d->tree.remove(resultElement(d->tree.element(ElementKind::ActivePorts, tag), time));
}

QVector<ActiveTestResult> JobEditor::getActiveTestResults(const QString &tag) const
{
    QVector<ActiveTestResult> results;
    for (const QDomElement &element : ChildElements(d->tree.element(ElementKind::ActivePorts, tag))) {
        if (element.tagName() == words::ActiveTestResult)
            results.append(readResult(element));
    }
    return results;
}

bool JobEditor::activePortTestResultExists(const QString &tag, const QString &time) const
{
    return !resultElement(d->tree.element(ElementKind::ActivePorts, tag), time).isNull();
}
