#include "bkxmleditor.h"

#include "document.h"
#include "words.h"

using namespace cabledoc;

void BKXMLEditor::setContractorTester(const QString &tester)
{
    inside().writeInfo(words::ContractorInfo, words::Tester, tester);
}

void BKXMLEditor::setContractorCompany(const QString &company)
{
    inside().writeInfo(words::ContractorInfo, words::Company, company);
}

void BKXMLEditor::setContractorEmail(const QString &email)
{
    inside().writeInfo(words::ContractorInfo, words::Email, email);
}

void BKXMLEditor::setContractorPhone(const QString &phone)
{
    inside().writeInfo(words::ContractorInfo, words::Phone, phone);
}

void BKXMLEditor::setContractorLogo(const QString &logo)
{
    inside().writeInfo(words::ContractorInfo, words::Logo, logo);
}

void BKXMLEditor::setContractorAddress(const Address &address)
{
    inside().writeInfoAddress(words::ContractorInfo, address);
}

void BKXMLEditor::setContractorData(const ContractorData &data)
{
    setContractorTester(data.tester());
    setContractorCompany(data.company());
    setContractorEmail(data.email());
    setContractorPhone(data.phone());
    setContractorLogo(data.logo());
    setContractorAddress(data.address());
}

void BKXMLEditor::setContractorData(const QString &tester, const QString &company, const QString &email,
                                    const QString &phone, const QString &logo, const Address &address)
{
    setContractorData(ContractorData(tester, company, email, phone, logo, address));
}

QString BKXMLEditor::getContractorTester() const
{
    return inside().readInfo(words::ContractorInfo, words::Tester);
}

QString BKXMLEditor::getContractorCompany() const
{
    return inside().readInfo(words::ContractorInfo, words::Company);
}

QString BKXMLEditor::getContractorEmail() const
{
    return inside().readInfo(words::ContractorInfo, words::Email);
}

QString BKXMLEditor::getContractorPhone() const
{
    return inside().readInfo(words::ContractorInfo, words::Phone);
}

QString BKXMLEditor::getContractorLogo() const
{
    return inside().readInfo(words::ContractorInfo, words::Logo);
}

Address BKXMLEditor::getContractorAddress() const
{
    return inside().readInfoAddress(words::ContractorInfo);
}

ContractorData BKXMLEditor::getContractorData() const
{
    return ContractorData(getContractorTester(), getContractorCompany(), getContractorEmail(), getContractorPhone(),
                          getContractorLogo(), getContractorAddress());
}
