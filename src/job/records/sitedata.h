#pragma once

#include "address.h"
#include "cabledoc_export.h"
#include "record.h"

namespace cabledoc {

struct SiteDataFields
{
    QString contact;
    QString jobID;
    QString company;
    QString phone;
    QString email;
    Address address;

    auto members() const
    {
        const auto &[person, number, firm, telephone, mail, place] = *this;
        return std::tie(person, number, firm, telephone, mail, place);
    }
};

} // namespace cabledoc

/// Where the job is done. See Record for copying and comparing.
class CABLEDOC_EXPORT SiteData : public cabledoc::Record<cabledoc::SiteDataFields>
{
    Q_OBJECT

public:
    SiteData() = default;
    explicit SiteData(const Fields &fields)
        : Record(fields)
    {
    }
    SiteData(const QString &contact, const QString &jobID, const QString &company, const QString &phone,
             const QString &email, const Address &address)
        : Record(Fields{contact, jobID, company, phone, email, address})
    {
    }

    const QString &contact() const { return m_fields.contact; }
    void setContact(const QString &contact) { m_fields.contact = contact; }
    const QString &jobID() const { return m_fields.jobID; }
    void setJobID(const QString &jobID) { m_fields.jobID = jobID; }
    const QString &company() const { return m_fields.company; }
    void setCompany(const QString &company) { m_fields.company = company; }
    const QString &phone() const { return m_fields.phone; }
    void setPhone(const QString &phone) { m_fields.phone = phone; }
    const QString &email() const { return m_fields.email; }
    void setEmail(const QString &email) { m_fields.email = email; }
    const Address &address() const { return m_fields.address; }
    void setAddress(const Address &address) { m_fields.address = address; }
};
