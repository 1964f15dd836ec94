#pragma once

#include "attributetext.h"
#include "numbers.h"
#include "testencoding.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <initializer_list>
#include <type_traits>

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
    bool (*isValid)(const QString &text);             ///< whether the field holds the number, null if it holds any text
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

/// Returns the function that tells whether the field of the record can hold the number in a text. Returns null if the
/// field can hold any text.
template <auto Field> constexpr auto numberTest() -> bool (*)(const QString &text)
{
    using Value = std::remove_const_t<std::remove_pointer_t<decltype(pointerTo(Field))>>;
    if constexpr (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>)
        return [](const QString &text) { return holdsNumber(text, static_cast<const Value *>(nullptr)); };
    else
        return nullptr;
}

/// Returns the row of an attribute that holds a field of the record. The default of the attribute is the default of the
/// field. Fields may be derived from the struct that has the field.
template <auto Field, typename Fields = decltype(fieldsOf(Field))>
Attribute<Fields> attribute(const QString &name, WhenMissing whenMissing = WhenMissing::UseDefault)
{
    return {{name, toText(Fields().*Field), whenMissing,
             [](const void *fields) { return toText(fieldIn<Field, Fields>(fields)); },
             [](const QString &text, void *fields) { fromText(text, &fieldIn<Field, Fields>(fields)); },
             numberTest<Field>()}};
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
template <auto Field, typename Fields = decltype(fieldsOf(Field))> Attribute<Fields> readOnly(const QString &name)
{
    Attribute<Fields> row = attribute<Field, Fields>(name);
    row.text = nullptr;
    return row;
}

/// Returns the row of an attribute that no record holds. New elements lack it. The first operation that needs it adds
/// it.
template <typename Fields> Attribute<Fields> onDemand(const QString &name, const QString &defaultText)
{
    return {{name, defaultText, WhenMissing::UseDefault, nullptr, nullptr, nullptr}};
}

/// The attributes of one kind of element, in the order in which the file has them.
class AttributeList
{
public:
    const QVector<AttributeRow> &rows() const { return m_rows; }
    QStringList names() const;
    /// Returns the default of the attribute with the given name, or an empty text if the list lacks it.
    QString defaultText(const QString &name) const;

protected:
    template <typename Element> void readInto(void *fields, const Element &element) const
    {
        for (const AttributeRow &row : m_rows) {
            if (row.parse != nullptr && element.hasAttribute(row.name))
                row.parse(element.attribute(row.name), fields);
        }
    }

    QVector<AttributeRow> m_rows;
};

/// The attributes of one kind of element, and the fields of its record. All code that creates, reads, completes, checks
/// or saves such an element uses this table. A new field needs one more row.
template <typename FieldsType> class AttributeTable : public AttributeList
{
public:
    using Fields = FieldsType;

    AttributeTable(std::initializer_list<Attribute<Fields>> attributes) { append(attributes); }

    /// Adds attributes after the others.
    void append(std::initializer_list<Attribute<Fields>> attributes)
    {
        for (const Attribute<Fields> &attribute : attributes)
            m_rows.append(attribute);
    }

    /// Returns the fields that the element holds, with defaults for those that it lacks. The element is a QDomElement,
    /// or the FlatAttributes of one.
    template <typename Element> Fields read(const Element &element) const
    {
        Fields fields;
        readInto(&fields, element);
        return fields;
    }
    /// Reads the fields that the element holds. The others stay as they are.
    template <typename Element> void read(Fields *fields, const Element &element) const { readInto(fields, element); }
};

} // namespace cabledoc
