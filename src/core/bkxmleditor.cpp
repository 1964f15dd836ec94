#include "bkxmleditor.h"

#include "document.h"
#include "testencoding.h"
#include "words.h"
#include "xmlnames.h"

#include <algorithm>
#include <iterator>

using namespace cabledoc;

Document &Document::of(const BKXMLEditor &editor)
{
    return editor.inside();
}

BKXMLEditor::BKXMLEditor(const QString &documentTypeName)
    : BKXMLEditor(std::make_unique<Document>(std::make_unique<DocumentTree>(documentTypeName)))
{
}

BKXMLEditor::BKXMLEditor(std::unique_ptr<Document> inside)
    : m_inside(std::move(inside))
{
}

BKXMLEditor::BKXMLEditor(BKXMLEditor &other)
    : QObject(other.parent())
    , m_inside(std::make_unique<Document>(*other.m_inside))
{
}

BKXMLEditor &BKXMLEditor::operator=(const BKXMLEditor &other)
{
    *m_inside = *other.m_inside;
    return *this;
}

BKXMLEditor::~BKXMLEditor() = default;

QString &BKXMLEditor::filename()
{
    return m_inside->filename;
}

void BKXMLEditor::setFilename(const QString &filename)
{
    m_inside->filename = filename;
}

QString &BKXMLEditor::error()
{
    return m_inside->error;
}

void BKXMLEditor::setCharacterReferences(bool on)
{
    m_inside->writesReferences = on;
}

bool BKXMLEditor::characterReferences() const
{
    return m_inside->writesReferences;
}

bool BKXMLEditor::canHold(const QString &text) const
{
    return firstLostCharacter(text, m_inside->writesReferences).isEmpty();
}

qint64 BKXMLEditor::replacedCharacters() const
{
    return m_inside->replacedCharacters;
}

void BKXMLEditor::setMaximumFileSize(qint64 bytes)
{
    m_inside->maximumFileSize = bytes;
}

qint64 BKXMLEditor::maximumFileSize() const
{
    return m_inside->maximumFileSize;
}

void BKXMLEditor::setReplacesUnknownFiles(bool on)
{
    m_inside->replacesUnknownFiles = on;
}

bool BKXMLEditor::replacesUnknownFiles() const
{
    return m_inside->replacesUnknownFiles;
}

QDomDocument BKXMLEditor::document() const
{
    return m_inside->tree().document();
}

bool BKXMLEditor::fileChanged() const
{
    return m_inside->tree().isChanged();
}

void BKXMLEditor::setDirty(bool dirty)
{
    m_inside->tree().setChanged(dirty);
}

// Finding elements

QDomNode BKXMLEditor::getDomNodeFirstChild() const
{
    return document().firstChild().firstChild();
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
    return m_inside->tree().child(tagName);
}

QDomElement BKXMLEditor::getToTestDefList() const
{
    return getElement(words::TestDefList);
}

QDomElement BKXMLEditor::getToBundledCableTypeList() const
{
    return getElement(words::BundledCableList);
}

QDomElement BKXMLEditor::getToPrintSettingsList() const
{
    return getElement(words::SettingsList).firstChildElement(words::PrintSettingsList);
}

QDomElement BKXMLEditor::getToPageSettingsList() const
{
    return getElement(words::SettingsList).firstChildElement(words::PageSettingsList);
}

QDomElement BKXMLEditor::getToScaleSettingsList() const
{
    return getElement(words::SettingsList).firstChildElement(words::ScaleSettingsList);
}

// Reading and writing attributes

QString BKXMLEditor::getChildAttr(const QString &attribute, const QDomElement &element)
{
    return element.attribute(attribute);
}

void BKXMLEditor::setChildAttr(const QString &attribute, const QString &value, QDomElement &element)
{
    // The subclass decides whether this counts as a change.
    const bool wasChanged = fileChanged();
    m_inside->tree().changeAttribute(element, attribute, value);
    setDirty(wasChanged);
}

QString BKXMLEditor::getElementId(const QDomElement &element)
{
    return getChildAttr(words::Id, element);
}

void BKXMLEditor::setElementId(const QString &id, QDomElement &element)
{
    setChildAttr(words::Id, id, element);
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

// The text forms of test data

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
