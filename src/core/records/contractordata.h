#pragma once

#include "address.h"
#include "cabledoc_export.h"
#include "record.h"

namespace cabledoc {

/// The fields of a ContractorData. All of them are empty by default.
struct ContractorDataFields
{
    /// Name of the person who tested the cables.
    QString tester;
    /// Name of the company.
    QString company;
    /// Email address.
    QString email;
    /// Telephone number.
    QString phone;
    /// Path or name of the picture with the company's logo.
    QString logo;
    /// Postal address.
    Address address;
};

/// Returns all fields. Records are compared by them.
inline auto members(const ContractorDataFields &fields)
{
    const auto &[tester, company, email, phone, logo, address] = fields;
    return std::tie(tester, company, email, phone, logo, address);
}

} // namespace cabledoc

/// The contractor: the company that does the job. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT ContractorData : public cabledoc::Record<cabledoc::ContractorDataFields>
{
    Q_OBJECT

public:
    /// Creates a record without any data.
    ContractorData() = default;
    /// Creates a record with the given fields.
    explicit ContractorData(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a record from its parts.
    ContractorData(const QString &tester, const QString &company, const QString &email, const QString &phone,
                   const QString &logo, const Address &address)
        : Record(Fields{tester, company, email, phone, logo, address})
    {
    }

    /// Returns the name of the person who tested the cables.
    const QString &tester() const { return m_fields.tester; }
    /// Sets the name of the person who tested the cables.
    void setTester(const QString &tester) { m_fields.tester = tester; }
    /// Returns the name of the company.
    const QString &company() const { return m_fields.company; }
    /// Sets the name of the company.
    void setCompany(const QString &company) { m_fields.company = company; }
    /// Returns the email address.
    const QString &email() const { return m_fields.email; }
    /// Sets the email address.
    void setEmail(const QString &email) { m_fields.email = email; }
    /// Returns the telephone number.
    const QString &phone() const { return m_fields.phone; }
    /// Sets the telephone number.
    void setPhone(const QString &phone) { m_fields.phone = phone; }
    /// Returns the path or name of the picture with the company's logo.
    const QString &logo() const { return m_fields.logo; }
    /// Sets the path or name of the picture with the company's logo.
    void setLogo(const QString &logo) { m_fields.logo = logo; }
    /// Returns the postal address.
    const Address &address() const { return m_fields.address; }
    /// Sets the postal address.
    void setAddress(const Address &address) { m_fields.address = address; }
};
