#pragma once

#include <QtCore/QObject>

#include <tuple>
#include <utility>

namespace cabledoc {

/// What all records are: a QObject around plain fields, which are copied and compared as one.
///
/// A record is a value: whoever receives it owns it, and it knows nothing of the document that it was
/// read from. The QObject of a copy starts fresh; parent, name and connections stay behind.
///
/// FieldsType is a plain struct with its defaults and a members() that ties all of them together.
/// members() unpacks the struct by structured binding, which does not compile when a field is forgotten.
template <typename FieldsType> class Record : public QObject
{
public:
    using Fields = FieldsType;

    Record() = default;
    explicit Record(Fields fields)
        : m_fields(std::move(fields))
    {
    }
    Record(const Record &other)
        : QObject()
        , m_fields(other.m_fields)
    {
    }
    Record &operator=(const Record &other)
    {
        m_fields = other.m_fields;
        return *this;
    }

    /// All fields at once.
    const Fields &fields() const { return m_fields; }

    friend bool operator==(const Record &a, const Record &b) { return a.m_fields.members() == b.m_fields.members(); }
    friend bool operator!=(const Record &a, const Record &b) { return !(a == b); }

protected:
    Fields m_fields;
};

} // namespace cabledoc
