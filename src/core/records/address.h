#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of an Address. All of them are empty by default.
struct AddressFields
{
    /// First line of the address.
    QString address1;
    /// Second line of the address.
    QString address2;
    /// City.
    QString city;
    /// State or region.
    QString state;
    /// Postal code.
    QString zipcode;
    /// Country.
    QString country;
};

/// Returns all fields. Records are compared by them.
inline auto members(const AddressFields &fields)
{
    const auto &[address1, address2, city, state, zipcode, country] = fields;
    return std::tie(address1, address2, city, state, zipcode, country);
}

} // namespace cabledoc

/// A postal address. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT Address : public cabledoc::Record<cabledoc::AddressFields>
{
    Q_OBJECT

public:
    /// Creates an empty address.
    Address() = default;
    /// Creates an address with the given fields.
    explicit Address(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates an address from its parts.
    Address(const QString &address1, const QString &address2, const QString &city, const QString &state,
            const QString &zipcode, const QString &country)
        : Record(Fields{address1, address2, city, state, zipcode, country})
    {
    }

    /// Returns the first line of the address.
    const QString &address1() const { return m_fields.address1; }
    /// Sets the first line of the address.
    void setAddress1(const QString &address1) { m_fields.address1 = address1; }
    /// Returns the second line of the address.
    const QString &address2() const { return m_fields.address2; }
    /// Sets the second line of the address.
    void setAddress2(const QString &address2) { m_fields.address2 = address2; }
    /// Returns the city.
    const QString &city() const { return m_fields.city; }
    /// Sets the city.
    void setCity(const QString &city) { m_fields.city = city; }
    /// Returns the state or region.
    const QString &state() const { return m_fields.state; }
    /// Sets the state or region.
    void setState(const QString &state) { m_fields.state = state; }
    /// Returns the postal code.
    const QString &zipcode() const { return m_fields.zipcode; }
    /// Sets the postal code.
    void setZipcode(const QString &zipcode) { m_fields.zipcode = zipcode; }
    /// Returns the country.
    const QString &country() const { return m_fields.country; }
    /// Sets the country.
    void setCountry(const QString &country) { m_fields.country = country; }
};
