#include "bkxmleditor.h"

#include "childelements.h"
#include "knownfiles.h"
#include "testencoding.h"
#include "words.h"
#include "xmlfile.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <iterator>

using namespace cabledoc;

BKXMLEditor::BKXMLEditor(const QString &documentTypeName)
    : m_document(documentTypeName)
    , m_filename(QLatin1String(""))
    , m_error(QLatin1String(""))
    , m_files(std::make_unique<KnownFiles>())
{
}

BKXMLEditor::BKXMLEditor(BKXMLEditor &other)
    : QObject(other.parent())
    , m_document(other.m_document)
    , m_filename(other.m_filename)
    , m_error(other.m_error)
    , m_files(std::make_unique<KnownFiles>(*other.m_files))
    , m_maximumFileSize(other.m_maximumFileSize)
    , m_isLoadFailed(other.m_isLoadFailed)
    , m_writesReferences(other.m_writesReferences)
    , m_replacesUnknownFiles(other.m_replacesUnknownFiles)
{
}

BKXMLEditor &BKXMLEditor::operator=(const BKXMLEditor &other)
{
    if (this == &other)
        return *this;
    m_document = other.m_document;
    m_filename = other.m_filename;
    m_error = other.m_error;
    *m_files = *other.m_files;
    m_isLoadFailed = other.m_isLoadFailed;
    // The dirty flag tells of this object's own file and stays.
    return *this;
}

BKXMLEditor::~BKXMLEditor() = default;

QDomNode BKXMLEditor::getDomNodeFirstChild() const
{
    return m_document.firstChild().firstChild();
}

QDomElement BKXMLEditor::getChildElement(const QString &tagName, const QDomNode &start)
{
    // An empty name would match every element below.
    if (tagName.isEmpty())
        return QDomElement();
    if (start.isElement() && start.nodeName() == tagName)
        return start.toElement();
    return start.nextSiblingElement(tagName);
}

bool BKXMLEditor::hasChildElement(const QString &tagName, const QDomNode &start)
{
    return !getChildElement(tagName, start).isNull();
}

QDomElement BKXMLEditor::getElement(const QString &tagName) const
{
    return getChildElement(tagName, getDomNodeFirstChild());
}

QString BKXMLEditor::getChildAttr(const QString &attribute, const QDomElement &element)
{
    return element.attribute(attribute);
}

void BKXMLEditor::setChildAttr(const QString &attribute, const QString &value, QDomElement &element)
{
    if (element.hasAttribute(attribute))
        element.setAttribute(attribute, value);
}

QString BKXMLEditor::getElementId(const QDomElement &element)
{
    return getChildAttr(words::Id, element);
}

void BKXMLEditor::setElementId(const QString &id, QDomElement &element)
{
    setChildAttr(words::Id, id, element);
}

QDomElement BKXMLEditor::getToTestDefList() const
{
    return getElement(words::TestDefList);
}

QDomElement BKXMLEditor::getToBundledCableTypeList() const
{
    return getElement(words::BundledCableList);
}

QString BKXMLEditor::boolArrayToString(const bool *flags)
{
    return toText(PairFlags{flags[0], flags[1], flags[2], flags[3]});
}

bool BKXMLEditor::stringToBoolArray(const QString &text, bool *flags)
{
    PairFlags read{flags[0], flags[1], flags[2], flags[3]};
    const bool isWhole = fromText(text, &read);
    std::copy(std::begin(read), std::end(read), flags);
    return isWhole;
}

QDomElement BKXMLEditor::appendElement(const QString &tagName, QDomNode parent)
{
    return parent.appendChild(m_document.createElement(tagName)).toElement();
}

QDomElement BKXMLEditor::ensureElement(const QString &tagName, const QDomNode &parent)
{
    const QDomElement element = parent.firstChildElement(tagName);
    return element.isNull() ? appendElement(tagName, parent) : element;
}

void BKXMLEditor::renameElement(QDomElement element, const QString &id)
{
    if (element.isNull())
        return;
    element.setAttribute(words::Id, id);
    setDirty(true);
}

void BKXMLEditor::removeElement(const QDomElement &element)
{
    if (element.isNull())
        return;
    element.parentNode().removeChild(element);
    setDirty(true);
}

QString BKXMLEditor::dataToString(const cable_struct &block)
{
    return toText(block);
}

cable_struct BKXMLEditor::stringToData(const QString &text)
{
    cable_struct block;
    fromText(text, &block);
    return block;
}

QString BKXMLEditor::responseDataToString(const TRUEPHY_PLOT_DATA &curve)
{
    return toText(curve);
}

TRUEPHY_PLOT_DATA BKXMLEditor::responseStringToData(const QString &text)
{
    TRUEPHY_PLOT_DATA curve;
    fromText(text, &curve);
    return curve;
}

bool BKXMLEditor::hasExtension(const QString &filename, const QString &extension)
{
    return QFileInfo(filename).suffix().toLower() == extension;
}

bool BKXMLEditor::namesAFile(const QString &filename, const QString &extension)
{
    return !filename.isEmpty() && filename != QLatin1Char('.') + extension;
}

bool BKXMLEditor::mayBeFileName(const QString &filename)
{
    if (!filename.contains(QChar(0)))
        return true;
    // The system would take the name to end there.
    m_error = tr("The file name holds a NUL character.");
    return false;
}

bool BKXMLEditor::takeName(const QString &filename)
{
    if (!mayBeFileName(filename))
        return false;
    m_filename = filename;
    m_files->takeName(filename);
    m_isLoadFailed = false;
    return true;
}

void BKXMLEditor::changeName(const QString &filename)
{
    m_filename = filename;
    m_files->changeName(filename);
}

bool BKXMLEditor::isOwnFile(const QString &filename) const
{
    return isSameFile(m_files->path(m_filename), filename);
}

bool BKXMLEditor::readFile(const QString &filename, const QString &documentTypeName, const LoadTexts &texts)
{
    if (filename.isEmpty()) {
        m_error = texts.noName;
        return false;
    }
    // Before anything is checked: a failed load leaves the new name in place.
    m_filename = filename;
    m_files->takeName(filename);
    rejectFile();
    if (!mayBeFileName(filename))
        return false;
    const QString path = m_files->path(filename);
    if (!QFileInfo::exists(path)) {
        m_error = texts.missing.arg(filename);
        return false;
    }
    const xmlfile::ReadResult result = xmlfile::read(path, documentTypeName, m_maximumFileSize);
    if (result.status == xmlfile::ReadResult::NotOpened) {
        m_error = result.deviceError;
        return false;
    }
    m_document = result.document;
    if (result.status == xmlfile::ReadResult::Read) {
        m_files->remember(path, result.state);
        m_isLoadFailed = false;
        return true;
    }

    const XmlProblem &problem = result.problem;
    if (problem.line != 0 && problem.column != 0) {
        qDebug().noquote() << "errMsg = " << problem.message;
        qDebug("errLine = %d", problem.line);
        qDebug("errColumn = %d", problem.column);
        m_error = texts.badAtPosition.arg(filename, QString::number(problem.line), QString::number(problem.column),
                                          problem.message);
    } else {
        m_error = texts.bad.arg(filename);
    }
    return false;
}

void BKXMLEditor::rejectFile()
{
    m_files->rememberUnread(m_files->path(m_filename));
    m_isLoadFailed = true;
}

bool BKXMLEditor::refuseUnloaded()
{
    if (m_isLoadFailed)
        m_error = tr("The file could not be loaded. It is not replaced; save under another name.");
    return m_isLoadFailed;
}

bool BKXMLEditor::writeFile(const QString &filename, const xmlfile::AttributeOrder &order, Replace replace)
{
    if (!mayBeFileName(filename))
        return false;
    const QString path = m_files->path(filename);
    Expectation expected;
    if (!m_files->knows(path))
        expected.kind = m_replacesUnknownFiles ? Expectation::Anything : Expectation::NoFile;
    else if (replace == Replace::ExpectedFile)
        expected = {Expectation::KnownContent, m_files->state(path)};
    const auto beyondLatin1 = m_writesReferences ? xmlfile::BeyondLatin1::AsReferences : xmlfile::BeyondLatin1::Replace;

    const xmlfile::SaveOutcome outcome = xmlfile::save(path, m_document, order, beyondLatin1, expected);
    if (outcome.state)
        m_files->remember(path, *outcome.state);
    if (!outcome.error.isEmpty()) {
        m_error = outcome.error;
        return false;
    }
    m_isLoadFailed = false;
    m_replacedCharacters = outcome.replacedCharacters;
    if (m_replacedCharacters > 0)
        qDebug("%lld characters that the file cannot hold were written as \"?\"", m_replacedCharacters);
    return true;
}
