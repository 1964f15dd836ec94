// Fuzzes XML texts. The fast reader accepts nothing that Qt's parser refuses, and makes the same tree, node by node. It
// reads everything that a save writes. The flat trees of a text and of its document are the same.

#include "fuzzing.h"

#include "flattree.h"
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

bool sameNodes(cabledoc::FlatNode a, cabledoc::FlatNode b)
{
    cabledoc::FlatAttributes attributesOfA;
    cabledoc::FlatAttributes attributesOfB;
    attributesOfA.read(a);
    attributesOfB.read(b);
    if (a.isElement() != b.isElement() || a.tagName() != b.tagName() || a.text() != b.text()
        || attributesOfA.all().size() != attributesOfB.all().size())
        return false;
    for (const cabledoc::XmlTokens::Attribute &attribute : attributesOfA.all()) {
        const QString name = cabledoc::XmlPiece{attribute.name}.toString();
        if (!attributesOfB.hasAttribute(name) || attributesOfB.attribute(name) != attributesOfA.attribute(name))
            return false;
    }
    cabledoc::FlatNode childOfA = a.firstChild();
    cabledoc::FlatNode childOfB = b.firstChild();
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
    const bool isBuilt = cabledoc::buildTree(text, &built);
    const auto flat = cabledoc::FlatTree::fromText(text);
    expect(isBuilt == flat.has_value(), "the fast reader makes both kinds of trees, or none");
    if (!isBuilt)
        return 0;
    const auto flatOfBuilt = cabledoc::FlatTree::fromDocument(built);
    expect(sameNodes(flat->documentElement(), flatOfBuilt.documentElement())
               && flat->root().isNull() == flatOfBuilt.root().isNull(),
           "the flat trees of a text and of its document are the same");
    QDomDocument parsed;
    expect(cabledoc::parseTree(text, &parsed).message.isNull(), "Qt's parser reads what the fast reader reads");
    expect(sameNodes(built, parsed), "both make the same tree");
    expect(built.doctype().name() == parsed.doctype().name(), "both make the same document type");

    const cabledoc::xmlfile::Text saved = cabledoc::xmlfile::toText(built, cabledoc::xmlfile::AttributeOrder());
    QDomDocument again{QString()};
    expect(saved.error.isEmpty() && cabledoc::buildTree(saved.bytes, &again), "the fast reader reads what is saved");
    return 0;
}
