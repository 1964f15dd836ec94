#include "documenttree.h"

#include "childelements.h"
#include "words.h"

namespace cabledoc {

DocumentTree::DocumentTree(const QString &documentTypeName)
    : m_document(documentTypeName)
{
}

DocumentTree::DocumentTree(const DocumentTree &other)
    : m_document(other.m_document)
{
}

DocumentTree::~DocumentTree() = default;

void DocumentTree::setDocument(const QDomDocument &document)
{
    m_definitions.clear();
    m_document = document;
}

QDomElement DocumentTree::root() const
{
    return m_document.firstChild().toElement();
}

QDomElement DocumentTree::child(const QString &tagName) const
{
    // An empty name would match every element.
    return tagName.isEmpty() ? QDomElement() : m_document.firstChild().firstChildElement(tagName);
}

QDomElement DocumentTree::definition(const QString &name) const
{
    const QDomElement list = child(words::TestDefList);
    const auto known = m_definitions.find(name);
    // A caller may have changed the tree.
    if (known != m_definitions.end() && known->second.parentNode() == list
        && known->second.attribute(words::Id) == name)
        return known->second;
    const QDomElement found = childWithId(list, name);
    if (!found.isNull())
        m_definitions[name] = found;
    return found;
}

/// Must be called after elements of a list or their names have been changed.
void DocumentTree::forgetDefinitions(const QDomNode &changedList)
{
    if (!m_definitions.empty() && changedList.nodeName() == words::TestDefList)
        m_definitions.clear();
}

void DocumentTree::setAttribute(QDomElement element, const QString &name, const QString &value)
{
    if (element.isNull())
        return;
    element.setAttribute(name, value);
    m_isChanged = true;
    if (name == words::Id)
        forgetDefinitions(element.parentNode());
}

void DocumentTree::removeAttribute(QDomElement element, const QString &name)
{
    if (element.isNull())
        return;
    element.removeAttribute(name);
    m_isChanged = true;
}

void DocumentTree::setTagName(QDomElement element, const QString &tagName)
{
    if (element.isNull())
        return;
    element.setTagName(tagName);
    m_isChanged = true;
}

void DocumentTree::insert(const QDomElement &element, QDomNode parent)
{
    if (element.isNull())
        return;
    parent.appendChild(element);
    m_isChanged = true;
    forgetDefinitions(parent);
}

void DocumentTree::move(const QDomNode &node, QDomNode parent)
{
    if (node.isNull())
        return;
    parent.appendChild(node);
    m_isChanged = true;
    forgetDefinitions(parent);
}

void DocumentTree::remove(const QDomElement &element)
{
    if (element.isNull())
        return;
    element.parentNode().removeChild(element);
    m_isChanged = true;
}

QDomElement DocumentTree::append(const QString &tagName, const QDomNode &parent)
{
    const QDomElement element = m_document.createElement(tagName);
    insert(element, parent);
    return element;
}

QDomElement DocumentTree::ensure(const QString &tagName, const QDomNode &parent)
{
    const QDomElement element = parent.firstChildElement(tagName);
    return element.isNull() ? append(tagName, parent) : element;
}

void DocumentTree::changeAttribute(const QDomElement &element, const QString &name, const QString &value)
{
    if (element.hasAttribute(name))
        setAttribute(element, name, value);
}

void DocumentTree::addAttribute(const QDomElement &element, const QString &name, const QString &value)
{
    if (!element.hasAttribute(name))
        setAttribute(element, name, value);
}

void DocumentTree::complete(const QDomElement &element, const AttributeList &attributes)
{
    for (const AttributeRow &row : attributes.rows()) {
        if (row.whenMissing == WhenMissing::AddDefault)
            addAttribute(element, row.name, row.defaultText);
    }
}

QDomElement DocumentTree::create(const QString &tagName, const AttributeList &attributes, const void *fields)
{
    QDomElement element = m_document.createElement(tagName);
    for (const AttributeRow &row : attributes.rows()) {
        if (row.text != nullptr)
            element.setAttribute(row.name, row.text(fields));
    }
    return element;
}

void DocumentTree::writeFields(const QDomElement &element, const AttributeList &attributes, const void *fields)
{
    for (const AttributeRow &row : attributes.rows()) {
        if (row.text == nullptr)
            continue;
        const QString text = row.text(fields);
        if (!element.hasAttribute(row.name) || element.attribute(row.name) != text)
            setAttribute(element, row.name, text);
    }
}

void DocumentTree::changeFields(const QDomElement &element, const AttributeList &attributes, const void *fields)
{
    for (const AttributeRow &row : attributes.rows()) {
        if (row.text != nullptr)
            changeAttribute(element, row.name, row.text(fields));
    }
}

} // namespace cabledoc
