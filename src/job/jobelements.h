#pragma once

#include "addmode.h"
#include "jobattributes.h"
#include "jobeditor.h"
#include "jobindex.h"
#include "jobwords.h"

/// What the operations on all kinds of drawn elements share.
namespace cabledoc {

/// What there is to know about a kind of element.
template <typename FieldsType> struct DrawnKind
{
    using Fields = FieldsType;

    ElementKind index;
    QString container; ///< the list that holds them
    QString tagPrefix; ///< of generated tags
    const AttributeTable<Fields> &attributes;
};

} // namespace cabledoc

/// Adds an element to its list in parent, which is created when it is missing. Null, and nothing changes,
/// without a parent or for a given tag that cannot be one.
template <typename Kind>
QDomElement JobEditor::addElement(const Kind &kind, const QDomElement &parent, typename Kind::Fields fields, int mode)
{
    using namespace cabledoc;
    if (parent.isNull() || (addmode::keepsTag(mode) && !mayBeName(fields.element)))
        return QDomElement();
    ElementIndex &index = (*m_index)[kind.index];
    if (!addmode::keepsTag(mode))
        fields.element = kind.tagPrefix + QString::number(index.firstFreeTagNumber(kind.tagPrefix, 1));
    if (!addmode::keepsId(mode))
        fields.id += QString::number(index.firstFreeIdNumber(fields.id, 1));

    const bool isRepeated = index.containsTag(fields.element);
    const QDomElement element = appendElement(fields.element, ensureElement(kind.container, parent));
    kind.attributes.write(element, fields);
    if (isRepeated)
        rebuildIndex(kind.index); // only the document can tell which of that tag is the first
    else
        index.append(element);
    if (m_index->references)
        m_index->references->insert(element);
    setDirty(true);
    return element;
}

/// What the element holds; the defaults for a null element.
template <typename Kind>
typename Kind::Fields JobEditor::readElement(const Kind &kind, const QDomElement &element) const
{
    typename Kind::Fields fields = kind.attributes.read(element);
    fields.element = element.tagName();
    return fields;
}
