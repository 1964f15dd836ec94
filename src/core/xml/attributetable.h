#pragma once

#include "attributetext.h"
#include "numbers.h"
#include "testencoding.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <initializer_list>

namespace cabledoc {

/// What the reader of a whole record does if the element lacks an attribute.
enum class WhenMissing {
    /// The record gets the default. The element stays as it is.
    UseDefault,
    /// The element gets the default too. This brings older files up to date.
    AddDefault,
};

/// One attribute of a kind of element. The functions take a pointer to the fields of the record.
struct AttributeRow
{
    QString name;
    /// Text that is used if the attribute is missing.
    QString defaultText;
    WhenMissing whenMissing;
    QString (*text)(const void *fields);              ///< null if writing a record leaves the attribute alone
    void (*parse)(const QString &text, void *fields); ///< null if reading a record leaves the field alone
    bool (*isValid)(const QString &text);             ///< whether the field can hold the number in the text
};

/// An attribute of a kind of element whose records have these fields.
template <typename Fields> struct Attribute : AttributeRow
{
};

template <typename Fields, typename Value> Fields fieldsOf(Value Fields::*);
template <typename Fields, typename Value> const Value *pointerTo(Value Fields::*);

/// Returns the field of the record that the pointer leads to.
template <auto Field, typename Fields> const auto &fieldIn(const void *fields)
{
    return static_cast<const Fields *>(fields)->*Field;
}
template <auto Field, typename Fields> auto &fieldIn(void *fields)
{
    return static_cast<Fields *>(fields)->*Field;
}

/// Returns whether the field of the record can hold the number in the text.
template <auto Field> bool holdsNumber(const QString &text)
{
    return holdsNumber(text, decltype(pointerTo(Field))(nullptr));
}

/// Returns the row of an attribute that holds a field of the record. The default of the attribute is the default of the
/// field. Fields may be derived from the struct that has the field.
template <auto Field, typename Fields = decltype(fieldsOf(Field))>
Attribute<Fields> attribute(const QString &name, WhenMissing whenMissing = WhenMissing::UseDefault)
{
    return {{name, toText(Fields().*Field), whenMissing,
             [](const void *fields) { return toText(fieldIn<Field, Fields>(fields)); },
             [](const QString &text, void *fields) { fromText(text, &fieldIn<Field, Fields>(fields)); },
             holdsNumber<Field>}};
}

/// Returns the row of an attribute that holds a number. The number loses its fraction when it is written.
template <auto Field, typename Fields = decltype(fieldsOf(Field))>
Attribute<Fields> truncatedNumber(const QString &name)
{
    Attribute<Fields> row = attribute<Field>(name);
    row.defaultText = toText(truncated(double(Fields().*Field)));
    row.text = [](const void *fields) { return toText(truncated(double(fieldIn<Field, Fields>(fields)))); };
    return row;
}

/// Returns the row of an attribute that holds a field. The field is a double in the record and a whole number in the
/// file.
template <auto Field, typename Fields = decltype(fieldsOf(Field))> Attribute<Fields> wholeNumber(const QString &name)
{
    Attribute<Fields> row = truncatedNumber<Field>(name);
    row.parse = [](const QString &text, void *fields) { fieldIn<Field, Fields>(fields) = text.toInt(); };
    row.isValid = [](const QString &text) { return holdsNumber(text, static_cast<const int *>(nullptr)); };
    return row;
}

/// Returns the row of an attribute that is read with the record, but not written with it. New elements lack it.
template <auto Field> auto readOnly(const QString &name)
{
    auto row = attribute<Field>(name);
    row.text = nullptr;
    return row;
}

/// Returns the row of an attribute that no record holds. New elements lack it. The first operation that needs it adds
/// it.
template <typename Fields> Attribute<Fields> onDemand(const QString &name, const QString &defaultText)
{
    return {{name, defaultText, WhenMissing::UseDefault, nullptr, nullptr, [](const QString &) { return true; }}};
}

/// The attributes of one kind of element, in the order in which the file has them.
class AttributeList
{
public:
    const QVector<AttributeRow> &rows() const { return m_rows; }
    QStringList names() const;
    /// Returns the default of the attribute with the given name, or an empty text if the list lacks it.
    QString defaultText(const QString &name) const;
    /// Returns the names of the attributes of the element whose numbers their fields cannot hold.
    QStringList invalidNumbers(const QDomElement &element) const;

protected:
    void readInto(void *fields, const QDomElement &element) const;

    QVector<AttributeRow> m_rows;
};

/// The attributes of one kind of element, and the fields of its record. All code that creates, reads, completes, checks
/// or saves such an element uses this table. A new field needs one more row.
template <typename FieldsType> class AttributeTable : public AttributeList
{
public:
    using Fields = FieldsType;

    AttributeTable(std::initializer_list<Attribute<Fields>> attributes)
    {
        for (const Attribute<Fields> &attribute : attributes)
            m_rows.append(attribute);
    }

    /// Returns the fields that the element holds, with defaults for those that it lacks.
    Fields read(const QDomElement &element) const
    {
        Fields fields;
        readInto(&fields, element);
        return fields;
    }
};

} // namespace cabledoc
