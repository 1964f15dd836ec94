#pragma once

#include "attributetable.h"
#include "texthash.h"

#include <QtXml/QDomDocument>

namespace cabledoc {

/// The XML tree of a document, and the only class that changes it.
///
/// Every change goes through one of the virtual functions below and marks the document as changed. A subclass overrides
/// them if it has data that depend on the tree.
class DocumentTree
{
public:
    /// Creates an empty tree. It is not marked as changed.
    explicit DocumentTree(const QString &documentTypeName);
    /// Creates an object that shares the tree of the other one. It is not marked as changed.
    DocumentTree(const DocumentTree &other);
    DocumentTree &operator=(const DocumentTree &) = delete;
    virtual ~DocumentTree();

    const QDomDocument &document() const { return m_document; }
    /// Replaces the whole tree. Does not change whether the tree is marked as changed.
    virtual void setDocument(const QDomDocument &document);
    /// Returns the first child of the document as the root element. Returns a null element if this child is not an
    /// element.
    QDomElement root() const;
    /// Returns the first child of the root with the given name, or a null element if there is none.
    QDomElement child(const QString &tagName) const;

    /// Returns the first test definition with the given name, or a null element if there is none. The tree remembers
    /// it, so that each further search takes the same time, however many definitions there are.
    QDomElement definition(const QString &name) const;

    /// Returns whether the tree is marked as changed since it was created, loaded or saved.
    bool isChanged() const { return m_isChanged; }
    void setChanged(bool isChanged) { m_isChanged = isChanged; }

    // Changes. The functions do nothing if the element is null.

    /// Writes an attribute. Creates it if it is missing.
    virtual void setAttribute(QDomElement element, const QString &name, const QString &value);
    virtual void removeAttribute(QDomElement element, const QString &name);
    virtual void setTagName(QDomElement element, const QString &tagName);
    /// Appends an element that create() returned to the children of the parent.
    virtual void insert(const QDomElement &element, QDomNode parent);
    /// Moves a node to the end of the children of another parent.
    virtual void move(const QDomNode &node, QDomNode parent);
    virtual void remove(const QDomElement &element);

    // Changes that call the functions above

    /// Appends a new element without attributes to the parent, and returns it.
    QDomElement append(const QString &tagName, const QDomNode &parent);
    /// Appends a new element with the fields of a record to the parent, and returns it.
    template <typename Fields> QDomElement append(const QString &tagName, const QDomNode &parent,
                                                  const AttributeTable<Fields> &table, const Fields &fields)
    {
        const QDomElement element = create(tagName, table, &fields);
        insert(element, parent);
        return element;
    }
    /// Returns the first child element of the parent with the given name. Appends it if there is none.
    QDomElement ensure(const QString &tagName, const QDomNode &parent);
    /// Writes an attribute. Does nothing if the element lacks it.
    void changeAttribute(const QDomElement &element, const QString &name, const QString &value);
    /// Adds an attribute. Does nothing if the element already has it.
    void addAttribute(const QDomElement &element, const QString &name, const QString &value);
    /// Writes the fields of a record into the attributes of an element where they differ.
    template <typename Fields>
    void write(const QDomElement &element, const AttributeTable<Fields> &table, const Fields &fields)
    {
        writeFields(element, table, &fields);
    }
    /// Writes the fields of a record into those attributes that the element has.
    template <typename Fields>
    void change(const QDomElement &element, const AttributeTable<Fields> &table, const Fields &fields)
    {
        changeFields(element, table, &fields);
    }
    /// Adds the attributes that the element lacks and that are marked WhenMissing::AddDefault.
    void complete(const QDomElement &element, const AttributeList &attributes);
    /// Completes an element and returns its fields. Returns the defaults if the element is null.
    template <typename Fields> Fields read(const QDomElement &element, const AttributeTable<Fields> &table)
    {
        complete(element, table);
        return table.read(element);
    }

protected:
    /// Returns a new element, which is not yet in the tree.
    QDomElement create(const QString &tagName) { return m_document.createElement(tagName); }
    /// Returns a new element with the fields of a record, which is not yet in the tree.
    QDomElement create(const QString &tagName, const AttributeList &attributes, const void *fields);

private:
    void writeFields(const QDomElement &element, const AttributeList &attributes, const void *fields);
    void changeFields(const QDomElement &element, const AttributeList &attributes, const void *fields);

    void forgetDefinitions(const QDomNode &changedList);

    QDomDocument m_document;
    bool m_isChanged = false;
    /// Test definitions that were found, by their names.
    mutable TextMap<QDomElement> m_definitions;
};

} // namespace cabledoc
