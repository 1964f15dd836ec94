#include "document.h"

#include "bkxmleditor.h"
#include "documentattributes.h"
#include "words.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

namespace cabledoc {

Document::Document(std::unique_ptr<DocumentTree> tree)
    : maximumFileSize(BKXMLEditor::defaultMaximumFileSize)
    , m_tree(std::move(tree))
{
}

Document::Document(const Document &other)
    : filename(other.filename)
    , error(other.error)
    , maximumFileSize(other.maximumFileSize)
    , lineNumbers(other.lineNumbers)
    , writesReferences(other.writesReferences)
    , replacesUnknownFiles(other.replacesUnknownFiles)
    , m_tree(std::make_unique<DocumentTree>(*other.m_tree))
    , m_files(other.m_files)
    , m_isLoadFailed(other.m_isLoadFailed)
{
}

Document &Document::operator=(const Document &other)
{
    if (this == &other)
        return *this;
    // The mark of a change belongs to this object's own file, so it stays. The settings stay too.
    filename = other.filename;
    error = other.error;
    m_tree->setDocument(other.m_tree->document());
    m_files = other.m_files;
    m_isLoadFailed = other.m_isLoadFailed;
    return *this;
}

// Contractor and site

void Document::addInfo(const QString &tagName, const AttributeList &attributes, const QDomElement &parent)
{
    const QDomElement element = m_tree->ensure(tagName, parent);
    for (const AttributeRow &attribute : attributes.rows())
        m_tree->addAttribute(element, attribute.name, QLatin1String(""));
    if (element.firstChildElement(words::Address).isNull())
        m_tree->append(words::Address, element, addressAttributes(), AddressFields());
}

void Document::writeInfo(const QString &tagName, const QString &attribute, const QString &value)
{
    m_tree->setAttribute(m_tree->child(tagName), attribute, value);
}

QString Document::readInfo(const QString &tagName, const QString &attribute) const
{
    return m_tree->child(tagName).attribute(attribute);
}

void Document::writeInfoAddress(const QString &tagName, const Address &address)
{
    const QDomElement element = m_tree->child(tagName).firstChildElement(words::Address);
    if (element.isNull())
        return;
    m_tree->write(element, addressAttributes(), address.fields());
    m_tree->setChanged(true);
}

Address Document::readInfoAddress(const QString &tagName) const
{
    return Address(addressAttributes().read(m_tree->child(tagName).firstChildElement(words::Address)));
}

// Files

bool Document::hasExtension(const QString &name, const QString &extension)
{
    return QFileInfo(name).suffix().toLower() == extension;
}

bool Document::isSaveName(const QString &name, const QString &extension)
{
    return !name.isEmpty() && name != QLatin1Char('.') + extension;
}

bool Document::mayBeFileName(const QString &name)
{
    if (!name.contains(QChar(0)))
        return true;
    // The system would end the name at this character.
    error = tr("The file name contains a NUL character.");
    return false;
}

bool Document::takeName(const QString &name)
{
    if (!mayBeFileName(name))
        return false;
    filename = name;
    m_files.takeName(name);
    m_isLoadFailed = false;
    return true;
}

void Document::changeName(const QString &name)
{
    filename = name;
    m_files.changeName(name);
}

bool Document::isOwnFile(const QString &name) const
{
    return isSameFile(m_files.path(filename), name);
}

bool Document::read(const QString &name, const QString &documentTypeName, const LoadTexts &texts)
{
    if (name.isEmpty()) {
        error = texts.noName;
        return false;
    }
    // This comes before all checks, because a failed load leaves the new name in place.
    filename = name;
    m_files.takeName(name);
    rejectFile();
    if (!mayBeFileName(name))
        return false;
    const QString path = m_files.path(name);
    if (!QFileInfo::exists(path)) {
        error = texts.missing.arg(name);
        return false;
    }
    const xmlfile::ReadResult result = xmlfile::read(path, documentTypeName, maximumFileSize, lineNumbers, &notes);
    if (result.status == xmlfile::ReadResult::NotOpened) {
        error = result.deviceError;
        return false;
    }
    m_tree->setDocument(result.document);
    if (result.status == xmlfile::ReadResult::Read) {
        m_files.remember(path, result.state);
        m_isLoadFailed = false;
        return true;
    }

    const XmlProblem &problem = result.problem;
    if (problem.line != 0 && problem.column != 0) {
        qDebug().noquote() << "errMsg = " << problem.message;
        qDebug("errLine = %d", problem.line);
        qDebug("errColumn = %d", problem.column);
        error = texts.badAtPosition.arg(name, QString::number(problem.line), QString::number(problem.column),
                                        problem.message);
    } else {
        error = texts.bad.arg(name);
    }
    return false;
}

void Document::rejectFile()
{
    m_files.rememberUnread(m_files.path(filename));
    m_isLoadFailed = true;
}

bool Document::write(const QString &name, const xmlfile::AttributeOrder &order, Replace replace)
{
    if (!mayBeFileName(name))
        return false;
    const QString path = m_files.path(name);
    Expectation expected;
    if (!m_files.knows(path))
        expected.kind = replacesUnknownFiles ? Expectation::Anything : Expectation::NoFile;
    else if (replace == Replace::ExpectedFile)
        expected = {Expectation::KnownContent, m_files.state(path)};
    const auto beyondLatin1 = writesReferences ? xmlfile::BeyondLatin1::AsReferences : xmlfile::BeyondLatin1::Replace;

    const xmlfile::SaveOutcome outcome = xmlfile::save(path, m_tree->document(), order, beyondLatin1, expected);
    if (outcome.state)
        m_files.remember(path, *outcome.state);
    if (!outcome.error.isEmpty()) {
        error = outcome.error;
        return false;
    }
    m_isLoadFailed = false;
    replacedCharacters = outcome.replacedCharacters;
    if (replacedCharacters > 0)
        qDebug("%lld characters that the file cannot hold were written as \"?\"", replacedCharacters);
    return true;
}

bool Document::save(const QString &extension, const xmlfile::AttributeOrder &order, Replace replace,
                    const QString &noNameText)
{
    if (!isSaveName(filename, extension)) {
        error = noNameText;
        return false;
    }
    if (m_isLoadFailed) {
        error = tr("The file could not be loaded, so it is not replaced. Save under another name.");
        return false;
    }
    if (!write(filename, order, replace))
        return false;
    m_tree->setChanged(false);
    return true;
}

} // namespace cabledoc
