#pragma once

#include "addmode.h"
#include "documenttree.h"
#include "jobindex.h"

namespace cabledoc {

/// The tree of a job, and the only class that changes it. It keeps the index up to date. When it removes an element, it
/// also removes or changes the elements that name it.
class JobTree : public DocumentTree
{
public:
    /// Generated ids of cables are expected to begin with the given prefix. Others take longer to find.
    explicit JobTree(const QString &cableIdPrefix);

    /// Returns the index of the job.
    JobIndex &index() const { return m_index; }
    /// Empties the tree. The index keeps the tags, the ids and the lists of cables until it is rebuilt.
    void unload();

    // Finding. The functions return a null element or an empty text if the element does not exist.

    QDomElement element(ElementKind kind, const QString &tag) const { return m_index.of(kind).element(tag); }
    QString id(ElementKind kind, const QString &tag) const { return m_index.of(kind).id(tag); }
    /// Returns the first tag, in string order, with the given id.
    QString tagOfId(ElementKind kind, const QString &id) const { return m_index.of(kind).ids().firstTag(id); }
    bool contains(ElementKind kind, const QString &tag) const { return m_index.of(kind).containsTag(tag); }
    /// Returns an attribute of the element with the given tag.
    QString attribute(ElementKind kind, const QString &tag, const QString &name) const
    {
        return element(kind, tag).attribute(name);
    }
    QDomElement room(const QString &floorTag, const QString &tag) const;
    /// Returns the first room, in document order, with the given id on the floor.
    QDomElement roomById(const QString &floorTag, const QString &id) const;
    /// Returns the list of a kind in the element that holds it. The tags lead to this element, the innermost first.
    QDomElement list(const ElementSchema &kind, const QStringList &holders = {}) const;

    // Records

    using DocumentTree::read;
    /// Returns the fields of an element, after adding the attributes that an older file lacks. Returns the defaults if
    /// the element is null.
    template <typename Fields> Fields read(const Kind<Fields> &kind, const QDomElement &element);
    /// Returns the fields of the element with the given tag.
    template <typename Fields> Fields read(const Kind<Fields> &kind, const QString &tag)
    {
        return read(kind, element(kind.kind, tag));
    }
    /// Adds an element to its list. The mode tells whether its tag and its id are generated. Returns a null element,
    /// and changes nothing, if there is no list for it.
    template <typename Fields> QDomElement add(const Kind<Fields> &kind, Fields fields, int mode);
    /// Adds the lists that are created with an element of the kind and that this element lacks.
    void addLists(const QDomElement &element, ElementKind kind);
    /// Returns the room "Undefined" of a floor. Adds it if it is missing. Its id is then its only attribute.
    QDomElement undefinedRoom(const QDomElement &floor);

    // Changing

    /// Writes an attribute of the element with the given tag. The schema tells whether this adds an attribute that is
    /// missing.
    void set(ElementKind kind, const QString &tag, const QString &name, const QString &value);
    /// Writes an attribute of an element of the kind, or of another element if the kind is None. Creates it if it is
    /// missing.
    void setAttribute(const QDomElement &element, ElementKind kind, const QString &name, const QString &value);
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
    void insert(const QDomElement &element, ElementKind kind, const QDomNode &parent);
    void noteTest(const QDomElement &element);
    QDomElement holder(const ElementSchema &kind, const QStringList &tags) const;
    QDomElement listForNew(const ElementSchema &kind, const QDomElement &holder);
    void dropReferences(const QDomElement &element, ElementKind kind);
    void dropReferencesTo(const QString &tag, ElementKind kind);
    QVector<QDomElement> elementsNaming(const QString &tag, const ElementSchema &kind, const Reference &reference);
    void forgetTag(const QString &tag, const QDomElement &element, const QStringList &attributes);

    mutable JobIndex m_index; ///< queries bring it up to date
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
    insert(element, kind.kind, list);
    return element;
}

} // namespace cabledoc
