#pragma once

#include "address.h"
#include "cabledoc_export.h"
#include "record.h"

namespace cabledoc {

struct ContractorDataFields
{
    QString tester; ///< who tested
    QString company;
    QString email;
    QString phone;
    QString logo; ///< path or name of a picture
    Address address;

    auto members() const
    {
        const auto &[person, firm, mail, telephone, picture, place] = *this;
        return std::tie(person, firm, mail, telephone, picture, place);
    }
};

} // namespace cabledoc

/// Who does the job. See Record for copying and comparing.
class CABLEDOC_EXPORT ContractorData : public cabledoc::Record<cabledoc::ContractorDataFields>
{
    Q_OBJECT

public:
    ContractorData() = default;
    explicit ContractorData(const Fields &fields)
        : Record(fields)
    {
    }
    ContractorData(const QString &tester, const QString &company, const QString &email, const QString &phone,
                   const QString &logo, const Address &address)
        : Record(Fields{tester, company, email, phone, logo, address})
    {
    }

    const QString &tester() const { return m_fields.tester; }
    void setTester(const QString &tester) { m_fields.tester = tester; }
    const QString &company() const { return m_fields.company; }
    void setCompany(const QString &company) { m_fields.company = company; }
    const QString &email() const { return m_fields.email; }
    void setEmail(const QString &email) { m_fields.email = email; }
    const QString &phone() const { return m_fields.phone; }
    void setPhone(const QString &phone) { m_fields.phone = phone; }
    const QString &logo() const { return m_fields.logo; }
    void setLogo(const QString &logo) { m_fields.logo = logo; }
    const Address &address() const { return m_fields.address; }
    void setAddress(const Address &address) { m_fields.address = address; }
};
