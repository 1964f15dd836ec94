#include "bkxmleditor.h"

#include "words.h"
#include "xmlfile.h"

#include <QtCore/QDebug>

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
    QString text;
    for (int i = 0; i < 4; ++i)
        text += QLatin1Char(flags[i] ? '1' : '0');
    return text;
}

bool BKXMLEditor::stringToBoolArray(const QString &text, bool *flags)
{
    for (int i = 0; i < 4; ++i) {
        const QChar character = i < text.size() ? text.at(i) : QChar();
        if (character != QLatin1Char('0') && character != QLatin1Char('1'))
            return false;
        flags[i] = character == QLatin1Char('1');
    }
    return true;
}

QDomElement BKXMLEditor::appendElement(const QString &tagName, QDomNode parent)
{
    return parent.appendChild(m_document.createElement(tagName)).toElement();
}

bool BKXMLEditor::writeFile(const QString &filename, const xmlfile::AttributeOrder &order)
{
    const xmlfile::Text text = xmlfile::toText(m_document, order);
    const QString failure = text.error.isEmpty() ? xmlfile::write(filename, text.bytes) : text.error;
    if (!failure.isEmpty()) {
        m_error = failure;
        return false;
    }
    if (text.replacedCharacters > 0)
        qDebug("%d characters that the file cannot hold were written as \"?\"", text.replacedCharacters);
    return true;
}
