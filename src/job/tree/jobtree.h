#pragma once

#include "addmode.h"
#include "documenttree.h"
#include "jobindex.h"

namespace cabledoc {

/// The tree of a job, and the only class that changes it. It keeps the index in step. When an element is removed, it
/// removes or changes what names it, so that no name leads nowhere.
class JobTree : public DocumentTree
{
public:
    JobTree();

    /// Returns what the job knows beside its tree.
    JobIndex &index() const { return m_index; }
    /// Empties the tree. Tags, ids and lists of cables are known until the index is rebuilt.
    void unload();

    // Finding. Each returns a null element or an empty text if there is none.

    QDomElement element(ElementKind kind, const QString &tag) const { return m_index.of(kind).element(tag); }
    QString id(ElementKind kind, const QString &tag) const { return m_index.of(kind).id(tag); }
    /// Returns the first tag, in string order, that has the id.
    QString tagOfId(ElementKind kind, const QString &id) const { return m_index.of(kind).ids().firstTag(id); }
    bool contains(ElementKind kind, const QString &tag) const { return m_index.of(kind).containsTag(tag); }
    /// Returns an attribute of the element with the given tag.
    QString attribute(ElementKind kind, const QString &tag, const QString &name) const
    {
        return element(kind, tag).attribute(name);
    }
    QDomElement room(const QString &floorTag, const QString &tag) const;
    /// Returns the first room of that id on the floor in document order.
    QDomElement roomById(const QString &floorTag, const QString &id) const;
    /// Returns the list of a kind in what holds it, which is given by its tags, the innermost first.
    QDomElement list(const ElementSchema &kind, const QStringList &holders = {}) const;

    // Records

    using DocumentTree::read;
    /// Returns what an element holds, after adding what an older file lacks. Returns the defaults if it is null.
    template <typename Fields> Fields read(const Kind<Fields> &kind, const QDomElement &element);
    /// Returns what the element with the given tag holds.
    template <typename Fields> Fields read(const Kind<Fields> &kind, const QString &tag)
    {
        return read(kind, element(kind.kind, tag));
    }
    /// Adds an element to its list, under the tag and id that the mode asks for. Returns a null element, and changes
    /// nothing, if there is no place for it.
    template <typename Fields> QDomElement add(const Kind<Fields> &kind, Fields fields, int mode);
    /// Gives an element the lists that come with it and that it lacks.
    void addLists(const QDomElement &element, ElementKind kind);
    /// Returns the room "Undefined" of a floor. Adds it if it is missing. It has no attributes but its id.
    QDomElement undefinedRoom(const QDomElement &floor);

    // Changing

    /// Writes an attribute of the element with the given tag.
    void set(ElementKind kind, const QString &tag, const QString &name, const QString &value);
    /// Removes the element with the given tag.
    void remove(ElementKind kind, const QString &tag) { remove(element(kind, tag)); }
    /// Moves the element with the given tag to the list of its kind in another holder. Adds the list if it is missing.
    void moveTo(const QDomElement &holder, const ElementSchema &kind, const QString &tag);

    void setDocument(const QDomDocument &document) override;
    void setAttribute(QDomElement element, const QString &name, const QString &value) override;
    void insert(const QDomElement &element, QDomNode parent) override;
    void move(const QDomNode &node, QDomNode parent) override;
    void remove(const QDomElement &element) override;

private:
    QDomElement holder(const ElementSchema &kind, const QStringList &tags) const;
    QDomElement listForNew(const ElementSchema &kind, const QDomElement &holder);
    void dropReferences(const QDomElement &element, ElementKind kind);
    void dropReferencesTo(const QString &tag, ElementKind kind);
    QVector<QDomElement> elementsNaming(const QString &tag, const ElementSchema &kind, const Reference &reference);
    void forgetTag(const QString &tag, const QDomElement &element, const QStringList &attributes);

    mutable JobIndex m_index; ///< is brought up to date when it is asked
};

template <typename Fields> Fields JobTree::read(const Kind<Fields> &kind, const QDomElement &element)
{
    if (element.isNull())
        return Fields();
    Fields fields = read(element, kind.table);
    fields.element = element.tagName();
    QDomNode holder = element;
    for (const auto field : kind.holders) {
        holder = holder.parentNode().parentNode();
        fields.*field = holder.nodeName();
    }
    return fields;
}

template <typename Fields> QDomElement JobTree::add(const Kind<Fields> &kind, Fields fields, int mode)
{
    QStringList holders;
    for (const auto field : kind.holders)
        holders.append(fields.*field);
    const QDomElement list = listForNew(kind, holder(kind, holders));
    if (list.isNull())
        return QDomElement();
    ElementIndex &index = m_index.of(kind.kind);
    if (!addmode::keepsTag(mode))
        fields.element = kind.tagPrefix + QString::number(index.firstFreeTagNumber(kind.tagPrefix, 1));
    if (!addmode::keepsId(mode))
        fields.id += QString::number(index.ids().firstFreeNumber(fields.id, 1));
    const QDomElement element = create(fields.element, kind.table, &fields);
    addLists(element, kind.kind);
    insert(element, list);
    return element;
}

} // namespace cabledoc
