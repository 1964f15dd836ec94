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

/// One attribute of a kind of elements.
template <typename Fields> struct Attribute
{
    QString name;
    /// Text that counts if the attribute is missing.
    QString defaultText;
    WhenMissing whenMissing;
    /// Makes the text of the attribute. Null if writing a record does not touch the attribute.
    QString (*text)(const Fields &);
    /// Reads the text of the attribute. Null if reading a record does not touch the attribute.
    void (*parse)(const QString &, Fields *);
    /// Returns whether the field can hold the number in a text.
    bool (*isValid)(const QString &);
};

template <typename Fields, typename Value> Fields fieldsOf(Value Fields::*);

template <typename Fields, typename Value> const Value *pointerTo(Value Fields::*);

/// Returns whether the field of the record can hold the number in the text.
template <auto Field> bool holdsNumber(const QString &text)
{
    return holdsNumber(text, decltype(pointerTo(Field))(nullptr));
}

/// Returns the attribute that holds a field of the record. Its default is that of the field.
template <auto Field> auto attribute(const QString &name, WhenMissing whenMissing = WhenMissing::UseDefault)
{
    using Fields = decltype(fieldsOf(Field));
    return Attribute<Fields>{name,
                             toText(Fields().*Field),
                             whenMissing,
                             [](const Fields &fields) { return toText(fields.*Field); },
                             [](const QString &text, Fields *fields) { fromText(text, &(fields->*Field)); },
                             holdsNumber<Field>};
}

/// Returns the attribute of a number that is written without its fraction.
template <auto Field> auto truncatedNumber(const QString &name)
{
    using Fields = decltype(fieldsOf(Field));
    return Attribute<Fields>{name,
                             toText(truncated(double(Fields().*Field))),
                             WhenMissing::UseDefault,
                             [](const Fields &fields) { return toText(truncated(double(fields.*Field))); },
                             [](const QString &text, Fields *fields) { fromText(text, &(fields->*Field)); },
                             holdsNumber<Field>};
}

/// Returns the attribute of a field that is a double in the record and a whole number in the file.
template <auto Field> auto wholeNumber(const QString &name)
{
    using Fields = decltype(fieldsOf(Field));
    return Attribute<Fields>{name,
                             toText(truncated(Fields().*Field)),
                             WhenMissing::UseDefault,
                             [](const Fields &fields) { return toText(truncated(fields.*Field)); },
                             [](const QString &text, Fields *fields) { fields->*Field = text.toInt(); },
                             [](const QString &text) { return holdsNumber(text, static_cast<const int *>(nullptr)); }};
}

/// Returns an attribute whose field is read with the record, but which new elements do not have.
template <auto Field> auto readOnly(const QString &name)
{
    auto row = attribute<Field>(name);
    row.text = nullptr;
    return row;
}

/// Returns an attribute that no record holds and that new elements do not have. The first operation that needs it adds
/// it.
template <typename Fields> Attribute<Fields> onDemand(const QString &name, const QString &defaultText)
{
    return {name, defaultText, WhenMissing::UseDefault, nullptr, nullptr, [](const QString &) { return true; }};
}

/// The attributes of one kind of elements, in the order of the file. Everything that creates, reads or completes such
/// an element uses this table, so a new field takes one more row.
template <typename Fields> class AttributeTable
{
public:
    AttributeTable(std::initializer_list<Attribute<Fields>> attributes)
        : m_attributes(attributes)
    {
    }

    QStringList names() const
    {
        QStringList names;
        for (const Attribute<Fields> &attribute : m_attributes)
            names.append(attribute.name);
        return names;
    }

    /// Returns the default of the attribute with the given name, or an empty string if the table has none.
    QString defaultText(const QString &name) const
    {
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.name == name)
                return attribute.defaultText;
        }
        return QString();
    }

    /// Writes the fields into the element. Writes an attribute only if it differs. Returns whether any did.
    bool write(QDomElement element, const Fields &fields) const
    {
        bool changed = false;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.text == nullptr)
                continue;
            const QString text = attribute.text(fields);
            if (element.hasAttribute(attribute.name) && element.attribute(attribute.name) == text)
                continue;
            element.setAttribute(attribute.name, text);
            changed = true;
        }
        return changed;
    }

    /// Writes the fields into those attributes that the element has.
    void change(QDomElement element, const Fields &fields) const
    {
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.text != nullptr && element.hasAttribute(attribute.name))
                element.setAttribute(attribute.name, attribute.text(fields));
        }
    }

    /// Returns the fields in the element, with defaults for missing ones.
    Fields read(const QDomElement &element) const
    {
        Fields fields;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.parse != nullptr && element.hasAttribute(attribute.name))
                attribute.parse(element.attribute(attribute.name), &fields);
        }
        return fields;
    }

    /// Returns the attributes of the element whose numbers their fields cannot hold.
    QStringList invalidNumbers(const QDomElement &element) const
    {
        QStringList names;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (!attribute.isValid(element.attribute(attribute.name)))
                names.append(attribute.name);
        }
        return names;
    }

    /// Adds those missing attributes that are marked WhenMissing::AddDefault. Returns whether any was missing.
    bool complete(QDomElement element) const
    {
        bool changed = false;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.whenMissing != WhenMissing::AddDefault || element.hasAttribute(attribute.name))
                continue;
            element.setAttribute(attribute.name, attribute.defaultText);
            changed = true;
        }
        return changed;
    }

private:
    QVector<Attribute<Fields>> m_attributes;
};

} // namespace cabledoc
