#pragma once

#include <QtCore/QObject>

#include <tuple>
#include <utility>

/// Everything in the library that is not a document, a record of one, a validator or a date.
namespace cabledoc {

/// Holds the fields of a record, and copies and compares them as one. All records derive from this class.
///
/// A record is a value. It belongs to its owner and does not know the document that it was read from. Changing a record
/// does not change a document.
///
/// A record is also a QObject, but a copy of a record is a new object. Its parent, object name and connections are not
/// those of the original.
///
/// FieldsType is a plain struct whose fields have default values. All its fields take part in comparisons.
template <typename FieldsType> class Record : public QObject
{
public:
    /// The struct that holds the fields of the record.
    using Fields = FieldsType;

    /// Creates a record whose fields have their default values.
    Record() = default;
    /// Creates a record with the given fields.
    explicit Record(Fields fields)
        : m_fields(std::move(fields))
    {
    }
    /// Creates a record with the fields of other. The parent, the object name and the connections of other are not
    /// copied.
    Record(const Record &other)
        : QObject()
        , m_fields(other.m_fields)
    {
    }
    /// Copies the fields of other. The parent, the object name and the connections of this object stay as they are.
    Record &operator=(const Record &other)
    {
        m_fields = other.m_fields;
        return *this;
    }

    /// Returns all fields of the record.
    const Fields &fields() const { return m_fields; }

    /// Returns true if all fields of both records are equal.
    friend bool operator==(const Record &a, const Record &b) { return members(a.m_fields) == members(b.m_fields); }
    /// Returns true if at least one field of the records differs.
    friend bool operator!=(const Record &a, const Record &b) { return !(a == b); }

protected:
    /// The fields of the record.
    Fields m_fields;
};

} // namespace cabledoc
