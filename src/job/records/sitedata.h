#pragma once

#include "address.h"
#include "cabledoc_export.h"
#include "record.h"

namespace cabledoc {

/// The fields of a SiteData. All of them are empty by default.
struct SiteDataFields
{
    /// Name of the contact person.
    QString contact;
    /// Id of the job.
    QString jobID;
    /// Name of the company.
    QString company;
    /// Telephone number.
    QString phone;
    /// Email address.
    QString email;
    /// Postal address.
    Address address;
};

/// Returns all fields. Records are compared by them.
inline auto members(const SiteDataFields &fields)
{
    const auto &[contact, jobID, company, phone, email, address] = fields;
    return std::tie(contact, jobID, company, phone, email, address);
}

} // namespace cabledoc

/// The site on which the job is done. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT SiteData : public cabledoc::Record<cabledoc::SiteDataFields>
{
    Q_OBJECT

public:
    /// Creates a record without any data.
    SiteData() = default;
    /// Creates a record with the given fields.
    explicit SiteData(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a record from its parts.
    SiteData(const QString &contact, const QString &jobID, const QString &company, const QString &phone,
             const QString &email, const Address &address)
        : Record(Fields{contact, jobID, company, phone, email, address})
    {
    }

    /// Returns the name of the contact person.
    const QString &contact() const { return m_fields.contact; }
    /// Sets the name of the contact person.
    void setContact(const QString &contact) { m_fields.contact = contact; }
    /// Returns the id of the job.
    const QString &jobID() const { return m_fields.jobID; }
    /// Sets the id of the job.
    void setJobID(const QString &jobID) { m_fields.jobID = jobID; }
    /// Returns the name of the company.
    const QString &company() const { return m_fields.company; }
    /// Sets the name of the company.
    void setCompany(const QString &company) { m_fields.company = company; }
    /// Returns the telephone number.
    const QString &phone() const { return m_fields.phone; }
    /// Sets the telephone number.
    void setPhone(const QString &phone) { m_fields.phone = phone; }
    /// Returns the email address.
    const QString &email() const { return m_fields.email; }
    /// Sets the email address.
    void setEmail(const QString &email) { m_fields.email = email; }
    /// Returns the postal address.
    const Address &address() const { return m_fields.address; }
    /// Sets the postal address.
    void setAddress(const Address &address) { m_fields.address = address; }
};
