#include "bkxmleditor.h"

#include "sharedattributes.h"
#include "words.h"

using namespace cabledoc;

void BKXMLEditor::addInfo(const QString &tagName, const QStringList &attributes, const QDomElement &parent)
{
    QDomElement element = ensureElement(tagName, parent);
    for (const QString &attribute : attributes) {
        if (!element.hasAttribute(attribute))
            element.setAttribute(attribute, QLatin1String(""));
    }
    if (element.firstChildElement(words::Address).isNull())
        addressAttributes().write(appendElement(words::Address, element), AddressFields());
}

void BKXMLEditor::writeInfo(const QString &elementName, const QString &attribute, const QString &value)
{
    QDomElement element = getElement(elementName);
    if (element.isNull())
        return;
    element.setAttribute(attribute, value);
    setDirty(true);
}

void BKXMLEditor::writeInfoAddress(const QString &elementName, const Address &address)
{
    const QDomElement element = getElement(elementName).firstChildElement(words::Address);
    if (element.isNull())
        return;
    addressAttributes().write(element, address.fields());
    setDirty(true);
}

Address BKXMLEditor::readInfoAddress(const QString &elementName) const
{
    return Address(addressAttributes().read(getElement(elementName).firstChildElement(words::Address)));
}

void BKXMLEditor::setContractorTester(const QString &tester)
{
    writeInfo(words::ContractorInfo, words::Tester, tester);
}

void BKXMLEditor::setContractorCompany(const QString &company)
{
    writeInfo(words::ContractorInfo, words::Company, company);
}

void BKXMLEditor::setContractorEmail(const QString &email)
{
    writeInfo(words::ContractorInfo, words::Email, email);
}

void BKXMLEditor::setContractorPhone(const QString &phone)
{
    writeInfo(words::ContractorInfo, words::Phone, phone);
}

void BKXMLEditor::setContractorLogo(const QString &logo)
{
    writeInfo(words::ContractorInfo, words::Logo, logo);
}

void BKXMLEditor::setContractorAddress(const Address &address)
{
    writeInfoAddress(words::ContractorInfo, address);
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
    return getChildAttr(words::Tester, getElement(words::ContractorInfo));
}

QString BKXMLEditor::getContractorCompany() const
{
    return getChildAttr(words::Company, getElement(words::ContractorInfo));
}

QString BKXMLEditor::getContractorEmail() const
{
    return getChildAttr(words::Email, getElement(words::ContractorInfo));
}

QString BKXMLEditor::getContractorPhone() const
{
    return getChildAttr(words::Phone, getElement(words::ContractorInfo));
}

QString BKXMLEditor::getContractorLogo() const
{
    return getChildAttr(words::Logo, getElement(words::ContractorInfo));
}

Address BKXMLEditor::getContractorAddress() const
{
    return readInfoAddress(words::ContractorInfo);
}

ContractorData BKXMLEditor::getContractorData() const
{
    return ContractorData(getContractorTester(), getContractorCompany(), getContractorEmail(), getContractorPhone(),
                          getContractorLogo(), getContractorAddress());
}
