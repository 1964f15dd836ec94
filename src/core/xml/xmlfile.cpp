#include "xmlfile.h"

#include "words.h"

namespace cabledoc::xmlfile {

ReadResult read(const QString &fileName, const QString &documentTypeName, qint64 maximumSize, LineNumbers lineNumbers,
                ListNotes *notes)
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

    if (lineNumbers == LineNumbers::Leave) {
        QDomDocument document{QString()};
        if (buildTree(content.bytes, &document, notes)) {
            result.document = document;
            return result;
        }
        if (notes != nullptr)
            notes->values.clear();
    }
    result.problem = parseTree(content.bytes, &result.document);
    if (!result.problem.message.isNull()) {
        result.status = ReadResult::NotParsed;
        // A failed parse leaves a part of the tree.
        result.document = QDomDocument(documentTypeName);
    }
    return result;
}

std::optional<FlatTree> readCurrent(const QString &fileName, const QStringList &rootNames, qint64 maximumSize)
{
    const FileContent content = readContent(fileName, maximumSize);
    std::optional<FlatTree> tree = content.error.isEmpty() ? FlatTree::fromText(content.bytes) : std::nullopt;
    if (!tree)
        return std::nullopt;
    FlatAttributes version;
    version.read(tree->root().firstChildElement(words::Version));
    const bool isCurrent = version.attribute(words::Number) == words::CurrentVersion;
    return isCurrent && rootNames.contains(tree->root().tagName()) ? std::move(tree) : std::nullopt;
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
