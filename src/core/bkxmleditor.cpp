#include "bkxmleditor.h"

#include "childelements.h"
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
{
}

BKXMLEditor::BKXMLEditor(BKXMLEditor &other)
    : QObject(other.parent())
    , m_document(other.m_document)
    , m_filename(other.m_filename)
    , m_error(other.m_error)
{
}

BKXMLEditor &BKXMLEditor::operator=(const BKXMLEditor &other)
{
    if (this == &other)
        return *this;
    m_document = other.m_document;
    m_filename = other.m_filename;
    m_error = other.m_error;
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

bool BKXMLEditor::readFile(const QString &filename, const QString &documentTypeName, const LoadTexts &texts)
{
    if (filename.isEmpty()) {
        m_error = texts.noName;
        return false;
    }
    // Before anything is checked: a failed load leaves the new name in place.
    m_filename = filename;
    if (!QFileInfo::exists(filename)) {
        m_error = texts.missing.arg(filename);
        return false;
    }
    const xmlfile::ReadResult result = xmlfile::read(filename, documentTypeName);
    if (result.status == xmlfile::ReadResult::NotOpened) {
        m_error = result.deviceError;
        return false;
    }
    m_document = result.document;
    if (result.status == xmlfile::ReadResult::Read)
        return true;

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

bool BKXMLEditor::writeFile(const QString &filename, const xmlfile::AttributeOrder &order)
{
    const xmlfile::Outcome outcome = xmlfile::save(filename, m_document, order);
    if (!outcome.error.isEmpty()) {
        m_error = outcome.error;
        return false;
    }
    if (outcome.replacedCharacters > 0)
        qDebug("%d characters that the file cannot hold were written as \"?\"", outcome.replacedCharacters);
    return true;
}
