#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QString>

namespace cabledoc {

struct AddressFields
{
    QString address1;
    QString address2;
    QString city;
    QString state;
    QString zipcode;
    QString country;

    auto members() const
    {
        const auto &[line1, line2, town, region, code, land] = *this;
        return std::tie(line1, line2, town, region, code, land);
    }
};

} // namespace cabledoc

/// A postal address. See Record for copying and comparing.
class CABLEDOC_EXPORT Address : public cabledoc::Record<cabledoc::AddressFields>
{
    Q_OBJECT

public:
    Address() = default;
    explicit Address(const Fields &fields)
        : Record(fields)
    {
    }
    Address(const QString &address1, const QString &address2, const QString &city, const QString &state,
            const QString &zipcode, const QString &country)
        : Record(Fields{address1, address2, city, state, zipcode, country})
    {
    }

    const QString &address1() const { return m_fields.address1; }
    void setAddress1(const QString &address1) { m_fields.address1 = address1; }
    const QString &address2() const { return m_fields.address2; }
    void setAddress2(const QString &address2) { m_fields.address2 = address2; }
    const QString &city() const { return m_fields.city; }
    void setCity(const QString &city) { m_fields.city = city; }
    const QString &state() const { return m_fields.state; }
    void setState(const QString &state) { m_fields.state = state; }
    const QString &zipcode() const { return m_fields.zipcode; }
    void setZipcode(const QString &zipcode) { m_fields.zipcode = zipcode; }
    const QString &country() const { return m_fields.country; }
    void setCountry(const QString &country) { m_fields.country = country; }
};
