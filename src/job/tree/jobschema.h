#pragma once

#include "documentattributes.h"
#include "elementkind.h"
#include "jobattributes.h"

#include <array>

namespace cabledoc {

constexpr int kindCount = int(ElementKind::Count);

/// When the list that holds the elements of a kind is created.
enum class ListCreation {
    WithHolder,          ///< with its holder; without the list no element can be added
    WithHolderOrElement, ///< with its holder, or with the first element if it is missing
    WithElement,         ///< with the first element
};

/// Attributes of a kind that hold tags of other elements.
struct Reference
{
    enum WhenGone {
        RemoveElement, ///< an element that names a removed element is removed too
        ForgetTag,     ///< the tag is removed from the list of tags
    };
    QStringList attributes;
    QVector<ElementKind> targets;
    WhenGone whenGone;

    /// Returns the tags in the text of an attribute. Only attributes with ForgetTag can hold several tags. In others, a
    /// text with commas counts as one tag.
    QStringList tagsIn(const QString &text) const;
};

/// What the setter of a single attribute does if the element lacks it.
enum class Setters {
    AddAttributes,
    ChangeAttributes, ///< does nothing
};

/// The properties of a kind of element. All code that adds, finds, reads, changes, copies, removes, checks or saves
/// elements uses these rows.
struct ElementSchema
{
    ElementKind kind;
    ElementKind holder; ///< the kind of the elements that hold the lists; None for the root
    QStringList list;   ///< the names of the elements from the holder down to the list
    ListCreation listCreation;
    QString tagPrefix; ///< of generated tags
    const AttributeList &attributes;
    QVector<Reference> references;
    Setters setters;

    /// Returns the name of the list itself.
    const QString &listName() const { return list.last(); }
    /// Returns the list in an element of the holding kind, or a null element if it is missing. The element is a
    /// QDomElement or a FlatNode.
    template <typename Element> Element listIn(Element parent) const
    {
        for (const QString &name : list)
            parent = parent.firstChildElement(name);
        return parent;
    }
    /// Returns the kinds of elements that an attribute names. Their order is that of the search for a tag.
    const QVector<ElementKind> &targetsOf(const QString &attribute) const;
};

/// The row of a kind, with the type of its record.
template <typename FieldsType> struct Kind : ElementSchema
{
    using Fields = FieldsType;

    Kind(ElementKind ownKind, ElementKind holderKind, const QStringList &wayToList, ListCreation creation,
         const QString &prefix, const AttributeTable<Fields> &attributeTable,
         const QVector<QString Fields::*> &holderTags = {}, const QVector<Reference> &namedElements = {},
         Setters attributeSetters = Setters::AddAttributes)
        : ElementSchema{ownKind, holderKind,     wayToList,     creation,
                        prefix,  attributeTable, namedElements, attributeSetters}
        , table(attributeTable)
        , holders(holderTags)
    {
    }

    const AttributeTable<Fields> &table;
    QVector<QString Fields::*> holders; ///< the fields with the tags of the holders, the innermost first
};

const Kind<CableFields> &cableKind();
const Kind<DeviceConnectionFields> &connectionKind();
const Kind<SheetFields> &sheetKind();
const Kind<DeviceFields> &deviceKind();
const Kind<PointFields> &verticeKind();
const Kind<FreeTextFields> &freeTextKind();
const Kind<FloorFields> &floorKind();
const Kind<RoomFields> &roomKind();
const Kind<PortFields> &portKind();
const Kind<ActivePortFields> &activePortKind();
const Kind<VertRunElementFields> &vertRunKind();
const Kind<PointFields> &pointKind();
const Kind<FreeTextFields> &floorFreeTextKind();

/// Returns the rows of all kinds in the order of ElementKind.
const std::array<const ElementSchema *, kindCount> &jobSchema();
const ElementSchema &schemaOf(ElementKind kind);

/// Returns the kind of an element by its place in the tree, or None if no kind has that place.
ElementKind kindOf(const QDomElement &element);
/// Returns the lists of a kind in document order. childrenOf is allChildren() or reachableChildren(). It selects the
/// elements whose lists are returned.
QVector<QDomElement> listsOf(const ElementSchema &kind, const QDomElement &root,
                             QVector<QDomElement> (*childrenOf)(const QDomElement &list));
/// Returns the names of the attributes that hold tags.
const QStringList &namingAttributes();

/// Returns the attributes of all elements in a job file.
const FileAttributes &jobFileAttributes();
/// Returns the order of the attributes in a job file.
const xmlfile::AttributeOrder &jobAttributeOrder();

} // namespace cabledoc
