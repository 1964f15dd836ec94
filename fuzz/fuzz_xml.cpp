// Fuzzes XML texts. The fast reader accepts nothing that Qt's parser refuses, and makes the same tree, node by node. It
// reads everything that a save writes.

#include "fuzzing.h"

#include "treebuilder.h"

namespace {

bool sameNodes(const QDomNode &a, const QDomNode &b)
{
    const QDomNamedNodeMap attributes = a.attributes();
    if (a.nodeType() != b.nodeType() || a.nodeName() != b.nodeName() || a.nodeValue() != b.nodeValue()
        || attributes.count() != b.attributes().count())
        return false;
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode other = b.attributes().namedItem(attributes.item(i).nodeName());
        if (other.isNull() || other.nodeValue() != attributes.item(i).nodeValue())
            return false;
    }
    QDomNode childOfA = a.firstChild();
    QDomNode childOfB = b.firstChild();
    while (!childOfA.isNull() && !childOfB.isNull() && sameNodes(childOfA, childOfB)) {
        childOfA = childOfA.nextSibling();
        childOfB = childOfB.nextSibling();
    }
    return childOfA.isNull() && childOfB.isNull();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    QDomDocument built{QString()};
    if (!cabledoc::buildTree(text, &built))
        return 0;
    QDomDocument parsed;
    expect(cabledoc::parseTree(text, &parsed).message.isNull(), "Qt's parser reads what the fast reader reads");
    expect(sameNodes(built, parsed), "both make the same tree");
    expect(built.doctype().name() == parsed.doctype().name(), "both make the same document type");

    const cabledoc::xmlfile::Text saved = cabledoc::xmlfile::toText(built, cabledoc::xmlfile::AttributeOrder());
    QDomDocument again{QString()};
    expect(saved.error.isEmpty() && cabledoc::buildTree(saved.bytes, &again), "the fast reader reads what is saved");
    return 0;
}
