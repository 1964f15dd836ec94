#include "xmlfile.h"

#include "qtcompat.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace cabledoc::xmlfile {

namespace {

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

ReadResult read(const QString &fileName, const QString &documentTypeName, qint64 maximumSize)
{
    ReadResult result;
    result.document = QDomDocument(documentTypeName);

    const FileContent content = readContent(fileName, maximumSize);
    if (!content.error.isEmpty()) {
        result.status = ReadResult::NotOpened;
        result.deviceError = content.error;
        return result;
    }
    result.state = content.state;

    const QByteArray &bytes = content.bytes;
    result.problem = scanXml(bytes);
    if (result.problem.message.isNull()) {
        QXmlStreamReader reader;
        // The reader accepts ASCII as it is, unless there is a declaration.
        if (isAscii(bytes) && !bytes.startsWith("<?xml"))
            reader.addData(bytes);
        else
            reader.addData(decoded(bytes));
        reader.setNamespaceProcessing(false);
        result.problem = qtcompat::setContent(&result.document, &reader);
        removeDeclaration(&result.document);
        if (bytes.contains("<![CDATA["))
            removeBlankSections(result.document);
    }
    if (!result.problem.message.isNull()) {
        result.status = ReadResult::NotParsed;
        // A failed parse leaves a part of the tree.
        result.document = QDomDocument(documentTypeName);
        if (result.problem.column == 0 || std::all_of(bytes.cbegin(), bytes.cend(), isBlank))
            locateEnd(bytes, &result.problem);
    }
    return result;
}

SaveOutcome save(const QString &fileName, const QDomDocument &document, const AttributeOrder &order,
                 BeyondLatin1 beyondLatin1, const Expectation &expected)
{
    SaveOutcome outcome;
    FileReplacement file(fileName);
    outcome.error = file.open();
    if (!outcome.error.isEmpty())
        return outcome;
    static_cast<Outcome &>(outcome) = writeText(
        document, order, [&file](const QByteArray &piece) { return file.write(piece); }, beyondLatin1);
    if (outcome.error.isEmpty())
        outcome.error = file.commit(expected);
    outcome.state = file.state();
    return outcome;
}

} // namespace cabledoc::xmlfile
