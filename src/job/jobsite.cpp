#include "jobeditor_p.h"
#include "jobwords.h"
#include "xmlnames.h"
#include "xmlscan.h"

using namespace cabledoc;

// The site

void JobEditor::setSiteContact(const QString &contact)
{
    d->document.writeInfo(words::SiteInfo, words::Contact, contact);
}

void JobEditor::setSiteJobID(const QString &jobID)
{
    d->document.writeInfo(words::SiteInfo, words::JobID, jobID);
}

void JobEditor::setSiteCompany(const QString &company)
{
    d->document.writeInfo(words::SiteInfo, words::Company, company);
}

void JobEditor::setSitePhone(const QString &phone)
{
    d->document.writeInfo(words::SiteInfo, words::Phone, phone);
}

void JobEditor::setSiteEmail(const QString &email)
{
    d->document.writeInfo(words::SiteInfo, words::Email, email);
}

void JobEditor::setSiteAddress(const Address &address)
{
    d->document.writeInfoAddress(words::SiteInfo, address);
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
    return d->document.readInfo(words::SiteInfo, words::Contact);
}

QString JobEditor::getSiteJobID() const
{
    return d->document.readInfo(words::SiteInfo, words::JobID);
}

QString JobEditor::getSiteCompany() const
{
    return d->document.readInfo(words::SiteInfo, words::Company);
}

QString JobEditor::getSitePhone() const
{
    return d->document.readInfo(words::SiteInfo, words::Phone);
}

QString JobEditor::getSiteEmail() const
{
    return d->document.readInfo(words::SiteInfo, words::Email);
}

Address JobEditor::getSiteAddress() const
{
    return d->document.readInfoAddress(words::SiteInfo);
}

SiteData JobEditor::getSiteData() const
{
    return SiteData(getSiteContact(), getSiteJobID(), getSiteCompany(), getSitePhone(), getSiteEmail(),
                    getSiteAddress());
}

// Releases and notes

void JobEditor::addRelease(const QString &name, const QString &value)
{
    if (!d->mayBeName(name))
        return;
    const QDomElement release = getElement(words::Release);
    if (!release.hasAttribute(name) && release.attributes().count() >= maximumAttributes) {
        error() = tr("A job can hold at most %1 releases").arg(maximumAttributes);
        return;
    }
    d->document.writeInfo(words::Release, name, value);
}

QString JobEditor::getRelease(const QString &name) const
{
    return d->document.readInfo(words::Release, name);
}

void JobEditor::removeRelease(const QString &name)
{
    d->tree.removeAttribute(getElement(words::Release), name);
}

void JobEditor::setJobNotesText(const QString &text)
{
    const QDomElement root = d->tree.document().documentElement();
    if (!root.isNull() && getJobNotesText() != text)
        d->tree.setAttribute(d->tree.ensure(words::JobNotesText, root), words::Text, text);
}

QString JobEditor::getJobNotesText() const
{
    return d->document.readInfo(words::JobNotesText, words::Text);
}

QDomElement JobEditor::getToJobNotesList()
{
    // This is deliberate: callers expect the list of connections from this function.
    const QDomElement root = d->tree.document().documentElement();
    return root.isNull() ? root : d->tree.ensure(words::ConnectionList, root);
}
