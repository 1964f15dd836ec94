#include "fuzzing.h"

#include "jobeditor.h"
#include "jobsnapshot.h"

#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <cstdlib>

void fail(const char *what)
{
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

QString inputFile(const char *name, const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QLatin1String(name));
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly)
                           && file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size);
    expect(isWritten, "the input can be written to a file");
    return path;
}

namespace {

bool isText(const QDomNode &node)
{
    return node.nodeType() == QDomNode::TextNode;
}

/// Returns the value of a node. The value of a text includes those of the texts after it, which are one text in a file.
QString valueOf(const QDomNode &node)
{
    QString value = node.nodeValue();
    for (QDomNode next = node.nextSibling(); isText(node) && isText(next); next = next.nextSibling())
        value += next.nodeValue();
    return value;
}

QDomNode nextOf(QDomNode node)
{
    while (isText(node) && isText(node.nextSibling()))
        node = node.nextSibling();
    return node.nextSibling();
}

} // namespace

bool equalTrees(const QDomNode &a, const QDomNode &b)
{
    const QDomNamedNodeMap attributes = a.attributes();
    if (a.nodeType() != b.nodeType() || a.nodeName() != b.nodeName() || valueOf(a) != valueOf(b)
        || attributes.count() != b.attributes().count())
        return false;
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (b.attributes().namedItem(attribute.nodeName()).nodeValue() != attribute.nodeValue())
            return false;
    }
    QDomNode childOfA = a.firstChild();
    QDomNode childOfB = b.firstChild();
    while (!childOfA.isNull() && equalTrees(childOfA, childOfB)) {
        childOfA = nextOf(childOfA);
        childOfB = nextOf(childOfB);
    }
    return childOfA.isNull() && childOfB.isNull();
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    std::signal(SIGXFSZ, SIG_IGN);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    return 0;
}

void expectEqualSnapshots(const JobEditor &job, const QString &fileName)
{
    const cabledoc::JobSnapshot ofJob(job);
    // A number that is not a number differs from itself.
    const bool isComparable = ofJob == ofJob && job.replacedCharacters() == 0;
    expect(!isComparable || cabledoc::JobSnapshot::read(fileName) == ofJob,
           "the snapshots of the file and of the document are equal");
}
