#include "treebuilder.h"

#include "qtcompat.h"
#include "sharedtexts.h"
#include "xmlscan.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace cabledoc {

namespace {

/// Notes values while a tree is made.
class NoteTaker
{
public:
    explicit NoteTaker(ListNotes *notes)
        : m_notes(notes)
    {
        if (isNeeded())
            m_notes->values.assign(std::size_t(m_notes->attributes.size()) + 1, {});
    }

    /// Must be called for each element, before its children.
    void enter(const XmlTokens &tokens, SharedTexts *texts)
    {
        ++m_depth;
        if (!isNeeded() || m_depth == 1)
            return;
        if (m_depth == listDepth) {
            // If there are several lists of that name, the first one counts.
            m_isInList = m_hasNoList && isEqual(m_notes->listName, tokens.name());
            m_hasNoList = m_hasNoList && !m_isInList;
        } else if (m_isInList && m_depth == listDepth + 1) {
            m_hasChild = false;
            for (std::size_t i = 0; i + 1 < m_notes->values.size(); ++i)
                m_notes->values[i].push_back(valueIn(tokens, m_notes->attributes.at(int(i)), texts));
            m_notes->values.back().push_back(QString());
        } else if (m_isInList && m_depth == listDepth + 2 && !m_hasChild
                   && isEqual(m_notes->childName, tokens.name())) {
            m_hasChild = true;
            m_notes->values.back().back() = valueIn(tokens, m_notes->childAttribute, texts);
        }
    }
    void leave() { --m_depth; }

private:
    static constexpr int listDepth = 2;

    bool isNeeded() const { return m_notes != nullptr && !m_notes->listName.isEmpty(); }

    static QString valueIn(const XmlTokens &tokens, const QString &name, SharedTexts *texts)
    {
        for (const XmlTokens::Attribute &attribute : tokens.attributes()) {
            if (isEqual(name, attribute.name))
                return texts->text(attribute.value);
        }
        return QString();
    }

    ListNotes *m_notes;
    int m_depth = 0;
    bool m_hasNoList = true;
    bool m_isInList = false;
    bool m_hasChild = false;
};

bool isAscii(const QByteArray &bytes)
{
    char all = 0;
    for (const char byte : bytes)
        all = char(all | byte);
    return (all & 0x80) == 0;
}

/// Returns the text of a file. The encoding in its XML declaration has no effect. Blanks replace it, because Qt 5 would
/// refuse an unknown encoding. All positions stay the same.
QString decoded(const QByteArray &bytes)
{
    static const QRegularExpression encoding(
        QStringLiteral("^<\\?xml\\s[^>]*?(\\sencoding\\s*=\\s*(?:\"[A-Za-z][\\w.-]*\"|'[A-Za-z][\\w.-]*'))[^>]*>"));
    QString text = QString::fromLatin1(bytes);
    const QRegularExpressionMatch match = encoding.match(text);
    if (match.hasMatch())
        text.replace(match.capturedStart(1), match.capturedLength(1),
                     QString(match.capturedLength(1), QLatin1Char(' ')));
    return text;
}

/// Removes the XML declaration from the tree, so that the root is the first child. A save never writes a declaration.
void removeDeclaration(QDomDocument *document)
{
    const QDomNode first = document->firstChild();
    if (first.isProcessingInstruction() && first.nodeName() == QLatin1String("xml"))
        document->removeChild(first);
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// Removes CDATA sections that consist of blanks only. Qt 6 reads them, but Qt 5 does not.
void removeBlankSections(QDomNode node)
{
    const QDomNode top = node;
    while (!node.isNull()) {
        const QString value = node.nodeValue();
        QDomNode next = node.firstChild();
        for (QDomNode ancestor = node; next.isNull() && ancestor != top; ancestor = ancestor.parentNode())
            next = ancestor.nextSibling();
        if (node.isCDATASection() && std::all_of(value.cbegin(), value.cend(), [](QChar character) {
                return character.unicode() < 0x80 && isBlank(char(character.unicode()));
            }))
            node.parentNode().removeChild(node);
        node = next;
    }
}

/// Sets the position of the problem to the end of a text that was cut off. This is the place after the last character
/// that is not a blank. The parser gives no column if the text ends at the end of a line. Line and column are 0 for a
/// blank text.
void locateEnd(const QByteArray &bytes, XmlProblem *problem)
{
    const auto end = std::find_if_not(bytes.crbegin(), bytes.crend(), isBlank).base();
    problem->line = end == bytes.cbegin() ? 0 : 1 + int(std::count(bytes.cbegin(), end, '\n'));
    problem->column = int(end - std::find(std::make_reverse_iterator(end), bytes.crend(), '\n').base());
    problem->column += end == bytes.cbegin() ? 0 : 1;
}

} // namespace

bool buildTree(const QByteArray &text, QDomDocument *document, ListNotes *notes)
{
    // Another policy changes what is read.
    if (QDomImplementation::invalidDataPolicy() != QDomImplementation::AcceptInvalidChars)
        return false;
    XmlTokens tokens(text);
    SharedTexts texts;
    NoteTaker noteTaker(notes);
    QDomNode parent = *document;
    for (;;) {
        switch (tokens.next()) {
        case XmlTokens::StartElement: {
            QDomElement element = document->createElement(texts.text(tokens.name()));
            for (const XmlTokens::Attribute &attribute : tokens.attributes())
                element.setAttribute(texts.text(attribute.name), texts.text(attribute.value));
            parent.appendChild(element);
            parent = element;
            noteTaker.enter(tokens, &texts);
            break;
        }
        case XmlTokens::EndElement:
            parent = parent.parentNode();
            noteTaker.leave();
            break;
        case XmlTokens::Characters:
            parent.appendChild(document->createTextNode(tokens.piece().toString()));
            break;
        case XmlTokens::Comment:
            parent.appendChild(document->createComment(tokens.piece().toString()));
            break;
        case XmlTokens::End:
            return true;
        case XmlTokens::Unknown:
            return false;
        }
    }
}

XmlProblem parseTree(const QByteArray &text, QDomDocument *document)
{
    XmlProblem problem = scanXml(text);
    if (problem.message.isNull()) {
        QXmlStreamReader reader;
        // The reader accepts ASCII as it is, unless there is a declaration.
        if (isAscii(text) && !text.startsWith("<?xml"))
            reader.addData(text);
        else
            reader.addData(decoded(text));
        reader.setNamespaceProcessing(false);
        problem = qtcompat::setContent(document, &reader);
        removeDeclaration(document);
        if (text.contains("<![CDATA["))
            removeBlankSections(*document);
    }
    const bool hasPlace = problem.column != 0 && !std::all_of(text.cbegin(), text.cend(), isBlank);
    if (!problem.message.isNull() && !hasPlace)
        locateEnd(text, &problem);
    return problem;
}

} // namespace cabledoc
