#include "documenttree.h"

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

void DocumentTree::setAttribute(QDomElement element, const QString &name, const QString &value)
{
    if (element.isNull())
        return;
    element.setAttribute(name, value);
    m_isChanged = true;
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
}

void DocumentTree::move(const QDomNode &node, QDomNode parent)
{
    if (node.isNull())
        return;
    parent.appendChild(node);
    m_isChanged = true;
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
