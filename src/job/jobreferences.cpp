#include "jobeditor.h"

#include "attributetext.h"
#include "childelements.h"
#include "jobindex.h"
#include "jobwords.h"

#include <algorithm>

using namespace cabledoc;

QDomElement JobEditor::elementOf(ElementKind kind, const QString &tag) const
{
    return (*m_index)[kind].element(tag);
}

void JobEditor::renameElementOf(ElementKind kind, const QString &tag, const QString &id)
{
    const QDomElement element = elementOf(kind, tag);
    renameElement(element, id);
    (*m_index)[kind].updateId(element);
}

/// Takes the element out of the tree and of what is known beside it, and sees to what names it; nothing for a
/// null element.
void JobEditor::removeElementOf(ElementKind kind, const QDomElement &element)
{
    if (element.isNull())
        return;
    if (m_index->references)
        m_index->references->remove(element);
    (*m_index)[kind].remove(element);
    removeElement(element);
    dropReferences(kind, element.tagName());
}

/// Writes an attribute, creating it when it is missing; nothing for a null element.
void JobEditor::writeAttribute(QDomElement element, const QString &attribute, const QString &value)
{
    if (element.isNull())
        return;
    const bool changesReferences = m_index->references && namesTags(attribute);
    if (changesReferences)
        m_index->references->remove(element);
    element.setAttribute(attribute, value);
    if (changesReferences)
        m_index->references->insert(element);
    setDirty(true);
}

/// Changes an attribute that the element has; nothing for a null element or a missing attribute.
void JobEditor::changeAttribute(const QDomElement &element, const QString &attribute, const QString &value)
{
    if (element.hasAttribute(attribute))
        writeAttribute(element, attribute, value);
}

/// The elements of a list that name the tag in one of the attributes.
QVector<QDomElement> JobEditor::elementsNaming(const QString &tag, const QString &listName,
                                               const QStringList &attributes) const
{
    QVector<QDomElement> elements;
    const QVector<QDomElement> all = m_index->allReferences(m_document.firstChild().toElement()).elementsNaming(tag);
    for (const QDomElement &element : all) {
        if (element.parentNode().nodeName() != listName)
            continue;
        for (const QString &attribute : attributes) {
            QStringList entries;
            fromText(element.attribute(attribute), &entries);
            if (entries.contains(tag)) {
                elements.append(element);
                break;
            }
        }
    }
    return elements;
}

/// Takes a tag out of the lists of tags that elements have in these attributes.
void JobEditor::forgetTag(const QString &tag, const QString &listName, const QStringList &attributes)
{
    const QVector<QDomElement> elements = elementsNaming(tag, listName, attributes);
    for (const QDomElement &element : elements) {
        for (const QString &attribute : attributes) {
            QStringList entries;
            fromText(element.attribute(attribute), &entries);
            if (entries.removeAll(tag) > 0)
                writeAttribute(element, attribute, toText(entries));
        }
    }
}

/// Sees to what names an element of that kind and tag, which is gone: nothing is left that leads nowhere. Another
/// element may stand in its place.
void JobEditor::dropReferences(ElementKind kind, const QString &tag)
{
    const auto removeThoseNaming = [&](ElementKind naming, const QString &listName, const QStringList &attributes) {
        const QVector<QDomElement> elements = elementsNaming(tag, listName, attributes);
        for (const QDomElement &element : elements) {
            // These attributes hold one tag each: a text with commas names nothing.
            const bool isNamed = std::any_of(attributes.begin(), attributes.end(), [&](const QString &attribute) {
                return element.attribute(attribute) == tag;
            });
            if (isNamed)
                removeElementOf(naming, element);
        }
    };
    const bool isEndGone = !portOrVertRunExists(tag, true);
    const bool isPassedGone = isEndGone && !pointExists(tag, true);
    switch (kind) {
    case ElementKind::Ports:
        if (!portExists(tag, true))
            removeThoseNaming(ElementKind::ActivePorts, words::ActivePortList, {words::Port});
        Q_FALLTHROUGH();
    case ElementKind::VerticalRuns:
        if (isEndGone)
            removeThoseNaming(ElementKind::Cables, words::CableList, {words::To, words::From});
        Q_FALLTHROUGH();
    case ElementKind::Points:
        if (isPassedGone)
            forgetTag(tag, words::CableList, {words::Path});
        break;
    case ElementKind::Devices:
    case ElementKind::Vertices:
        if (!deviceExists(tag, true) && !verticeExists(tag, true))
            removeThoseNaming(ElementKind::Connections, words::ConnectionList, {words::To, words::From});
        break;
    case ElementKind::Cables:
        forgetCableLists();
        if (!cableExists(tag, true))
            forgetTag(tag, words::VerticalRunList, {words::Connected, words::Disconnected});
        break;
    default:
        break;
    }
}

/// The same of all children of a list that is gone.
void JobEditor::dropReferencesToAll(ElementKind kind, const QDomElement &list)
{
    for (const QDomElement &element : ChildElements(list))
        dropReferences(kind, element.tagName());
}
