#pragma once

#include "attributetext.h"
#include "numbers.h"
#include "testencoding.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomElement>

#include <initializer_list>

namespace cabledoc {

/// What reading a whole record does about an attribute that the element lacks.
enum class WhenMissing {
    UseDefault, ///< the record has the default, the element stays as it is
    AddDefault, ///< the element gets the default too: this brings older files up to date
};

/// One attribute of a kind of element.
template <typename Fields> struct Attribute
{
    QString name;
    QString defaultText; ///< what stands for a missing attribute
    WhenMissing whenMissing;
    QString (*text)(const Fields &);          ///< null when writing a record leaves the attribute alone
    void (*parse)(const QString &, Fields *); ///< null when reading a record does
    bool (*isValid)(const QString &);         ///< whether the field can hold the number that the text says
};

template <typename Fields, typename Value> Fields fieldsOf(Value Fields::*);

template <typename Fields, typename Value> const Value *pointerTo(Value Fields::*);

/// Whether the field of the record can hold the number that the text says.
template <auto Field> bool holdsNumber(const QString &text)
{
    return holdsNumber(text, decltype(pointerTo(Field))(nullptr));
}

/// The attribute that holds a field of the record; its default is the field's.
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

/// The same for a number that loses its fraction when it is written.
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

/// The same for a field that is a double in the record and a whole number in the file.
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

/// An attribute whose field is read with the record, but which new elements lack.
template <auto Field> auto readOnly(const QString &name)
{
    auto row = attribute<Field>(name);
    row.text = nullptr;
    return row;
}

/// An attribute that no record holds and new elements lack: it comes with the first operation that
/// needs it.
template <typename Fields> Attribute<Fields> onDemand(const QString &name, const QString &defaultText)
{
    return {name, defaultText, WhenMissing::UseDefault, nullptr, nullptr, [](const QString &) { return true; }};
}

/// The attributes of one kind of element, in the order in which the file has them. All that creates,
/// reads or completes such an element goes by this table; a new field is one more row.
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

    /// The default of the attribute of that name; empty for a name that the table lacks.
    QString defaultText(const QString &name) const
    {
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.name == name)
                return attribute.defaultText;
        }
        return QString();
    }

    /// Writes the fields into the element, each attribute only where it differs. True when one did.
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

    /// The fields that the element holds, defaults where it lacks them.
    Fields read(const QDomElement &element) const
    {
        Fields fields;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (attribute.parse != nullptr && element.hasAttribute(attribute.name))
                attribute.parse(element.attribute(attribute.name), &fields);
        }
        return fields;
    }

    /// The attributes of the element whose fields cannot hold the numbers that they say.
    QStringList invalidNumbers(const QDomElement &element) const
    {
        QStringList names;
        for (const Attribute<Fields> &attribute : m_attributes) {
            if (!attribute.isValid(element.attribute(attribute.name)))
                names.append(attribute.name);
        }
        return names;
    }

    /// Gives the element what it lacks of the attributes marked WhenMissing::AddDefault. True when it
    /// lacked one.
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
