#include "jobeditor.h"

#include "jobwords.h"
#include "xmlnames.h"
#include "xmlscan.h"

using namespace cabledoc;

// The site

void JobEditor::setSiteContact(const QString &contact)
{
    writeInfo(words::SiteInfo, words::Contact, contact);
}

void JobEditor::setSiteJobID(const QString &jobID)
{
    writeInfo(words::SiteInfo, words::JobID, jobID);
}

void JobEditor::setSiteCompany(const QString &company)
{
    writeInfo(words::SiteInfo, words::Company, company);
}

void JobEditor::setSitePhone(const QString &phone)
{
    writeInfo(words::SiteInfo, words::Phone, phone);
}

void JobEditor::setSiteEmail(const QString &email)
{
    writeInfo(words::SiteInfo, words::Email, email);
}

void JobEditor::setSiteAddress(const Address &address)
{
    writeInfoAddress(words::SiteInfo, address);
}

void JobEditor::setSiteData(const SiteData &data)
{
    setSiteContact(data.contact());
    setSiteJobID(data.jobID());
    setSiteCompany(data.company());
    setSitePhone(data.phone());
    setSiteEmail(data.email());
    setSiteAddress(data.address());
}

void JobEditor::setSiteData(const QString &contact, const QString &jobID, const QString &company, const QString &phone,
                            const QString &email, const Address &address)
{
    setSiteData(SiteData(contact, jobID, company, phone, email, address));
}

QString JobEditor::getSiteContact() const
{
    return getChildAttr(words::Contact, getElement(words::SiteInfo));
}

QString JobEditor::getSiteJobID() const
{
    return getChildAttr(words::JobID, getElement(words::SiteInfo));
}

QString JobEditor::getSiteCompany() const
{
    return getChildAttr(words::Company, getElement(words::SiteInfo));
}

QString JobEditor::getSitePhone() const
{
    return getChildAttr(words::Phone, getElement(words::SiteInfo));
}

QString JobEditor::getSiteEmail() const
{
    return getChildAttr(words::Email, getElement(words::SiteInfo));
}

Address JobEditor::getSiteAddress() const
{
    return readInfoAddress(words::SiteInfo);
}

SiteData JobEditor::getSiteData() const
{
    return SiteData(getSiteContact(), getSiteJobID(), getSiteCompany(), getSitePhone(), getSiteEmail(),
                    getSiteAddress());
}

// Releases and notes

void JobEditor::addRelease(const QString &name, const QString &value)
{
    if (!mayBeName(name))
        return;
    const QDomElement release = getElement(words::Release);
    if (!release.hasAttribute(name) && release.attributes().count() >= maximumAttributes) {
        m_error = tr("A job holds no more than %1 releases").arg(maximumAttributes);
        return;
    }
    writeInfo(words::Release, name, value);
}

QString JobEditor::getRelease(const QString &name) const
{
    return getChildAttr(name, getElement(words::Release));
}

void JobEditor::removeRelease(const QString &name)
{
    QDomElement release = getElement(words::Release);
    if (release.isNull())
        return;
    release.removeAttribute(name);
    setDirty(true);
}

void JobEditor::setJobNotesText(const QString &text)
{
    const QDomElement root = m_document.documentElement();
    if (root.isNull() || getJobNotesText() == text)
        return;
    QDomElement notes = getElement(words::JobNotesText);
    if (notes.isNull())
        notes = appendElement(words::JobNotesText, root);
    notes.setAttribute(words::Text, text);
    setDirty(true);
}

QString JobEditor::getJobNotesText() const
{
    return getChildAttr(words::Text, getElement(words::JobNotesText));
}

QDomElement JobEditor::getToJobNotesList()
{
    // Deliberate: under the name of the notes, callers expect the list of connections.
    const QDomElement list = getToConnectionList();
    const QDomElement root = m_document.documentElement();
    if (!list.isNull() || root.isNull())
        return list;
    setDirty(true);
    return appendElement(words::ConnectionList, root);
}
