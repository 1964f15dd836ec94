#pragma once

#include "sharedtexts.h"

#include <QtXml/QDomDocument>

#include <optional>
#include <vector>

namespace cabledoc {

class FlatTree;

/// An element of a FlatTree, or a text between two tags. The functions have the names of those of QDomElement, and
/// return null nodes or empty texts where those do. The tree must live as long as the node.
class FlatNode
{
public:
    FlatNode() = default;

    bool isNull() const { return m_tree == nullptr; }
    /// Returns whether this is an element, and not a text.
    bool isElement() const;
    /// Returns the name of the element.
    QString tagName() const;
    bool hasName(const QString &tagName) const;
    /// Returns the characters of a text.
    QString text() const;
    /// Returns the line of the file in which the node begins. The line is not positive if the tree was made from a
    /// document that does not know it.
    int line() const;

    FlatNode parent() const;
    FlatNode firstChild() const;
    FlatNode nextSibling() const;
    /// Returns the first child element.
    FlatNode firstChildElement() const;
    /// Returns the first child element with the given name.
    FlatNode firstChildElement(const QString &tagName) const;
    FlatNode nextSiblingElement() const;

    friend bool operator!=(const FlatNode &a, const FlatNode &b)
    {
        return a.m_tree != b.m_tree || a.m_number != b.m_number;
    }

private:
    friend class FlatAttributes;
    friend class FlatTree;

    FlatNode(const FlatTree *tree, quint32 number)
        : m_tree(tree)
        , m_number(number)
    {
    }
    std::string_view name() const;

    const FlatTree *m_tree = nullptr;
    quint32 m_number = 0;
};

/// The attributes of one element of a FlatTree after another.
class FlatAttributes
{
public:
    /// Short values share their memory with those in the given texts, unless these are null.
    explicit FlatAttributes(SharedTexts *texts = nullptr)
        : m_texts(texts)
    {
    }

    /// Reads the attributes of an element. A null element has none.
    void read(FlatNode element);

    bool hasAttribute(const QString &name) const { return find(name) != nullptr; }
    /// Returns the value of an attribute, or a null text if the element lacks it.
    QString attribute(const QString &name) const;
    /// Returns all attributes in the order of the file.
    const std::vector<XmlTokens::Attribute> &all() const { return m_attributes; }

private:
    const XmlTokens::Attribute *find(const QString &name) const;

    std::vector<XmlTokens::Attribute> m_attributes;
    mutable std::size_t m_last = 0; ///< found last: most readers ask for the attributes in their order
    SharedTexts *m_texts;
};

/// A tree that is only read. It is made in a small part of the time and memory of a QDomDocument, because it keeps the
/// text of the file, and for each node only the place where it begins. It has no comments.
class FlatTree
{
public:
    /// Returns the tree of a text in the form of a save. Returns nothing if only parseTree() can read the text, or tell
    /// what is wrong with it.
    static std::optional<FlatTree> fromText(const QByteArray &text);
    /// Returns the tree of a document. It has no nodes if the document has no root.
    static FlatTree fromDocument(const QDomDocument &document);

    FlatNode documentElement() const { return m_nodes.empty() ? FlatNode() : FlatNode(this, 0); }
    /// Returns the root if it is the first node of the document. Returns a null node if a comment, for example, comes
    /// before it.
    FlatNode root() const { return m_isRootFirst ? documentElement() : FlatNode(); }

private:
    friend class FlatAttributes;
    friend class FlatNode;

    struct Node
    {
        qint64 offset; ///< of the name or the text
        quint32 parent;
        quint32 next; ///< the next sibling, or 0 if there is none
        qint32 line;
        bool isElement;
    };
    /// An element whose end is not yet reached.
    struct OpenElement
    {
        quint32 number;
        quint32 lastChild; ///< 0 if there is none
    };

    void open(qint64 offset, int line);
    void close() { m_open.pop_back(); }
    void append(qint64 offset, int line, bool isElement);
    void openElement(const QDomElement &element);
    void appendText(const QDomNode &node);
    std::string_view textFrom(qint64 offset) const;

    QByteArray m_text;
    std::vector<Node> m_nodes;
    std::vector<OpenElement> m_open; ///< only while the tree is made
    bool m_isRootFirst = true;
};

} // namespace cabledoc
