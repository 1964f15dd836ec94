#include "flattree.h"

#include <algorithm>

namespace cabledoc {

namespace {

constexpr std::string_view endOfName = " \t\n/>";
constexpr std::string_view blanks = " \t\n";

/// Appends characters in the form of a save. Characters that a save could not write become references too.
void appendEscaped(QByteArray *text, const QString &characters)
{
    for (const QChar character : characters) {
        const char16_t unit = character.unicode();
        const bool isPlain = unit >= u' ' && unit <= u'~' && unit != u'&' && unit != u'<' && unit != u'"';
        if (isPlain)
            *text += char(unit);
        else
            *text += "&#" + QByteArray::number(unit) + ';';
    }
}

/// Returns a name as it is in the text of a tree. A caller of QDomElement can use any text as a name, so characters
/// that end a name become "?".
QByteArray nameBytes(const QString &name)
{
    QByteArray bytes = name.toLatin1();
    for (char &byte : bytes) {
        if (std::string_view("=<\r").find(byte) != std::string_view::npos
            || endOfName.find(byte) != std::string_view::npos)
            byte = '?';
    }
    return bytes.isEmpty() ? QByteArray("?") : bytes;
}

/// Counts the lines up to one place after another.
class Lines
{
public:
    explicit Lines(const QByteArray &text)
        : m_position(text.constData())
    {
    }

    int lineOf(const char *place)
    {
        m_line += int(std::count(m_position, place, '\n'));
        m_position = place;
        return m_line;
    }

private:
    const char *m_position;
    int m_line = 1;
};

} // namespace

// Nodes

bool FlatNode::isElement() const
{
    return !isNull() && m_tree->m_nodes[m_number].isElement;
}

std::string_view FlatNode::name() const
{
    if (!isElement())
        return {};
    const std::string_view rest = m_tree->textFrom(m_tree->m_nodes[m_number].offset);
    return rest.substr(0, rest.find_first_of(endOfName));
}

QString FlatNode::tagName() const
{
    const std::string_view bytes = name();
    return QString::fromLatin1(bytes.data(), int(bytes.size()));
}

bool FlatNode::hasName(const QString &tagName) const
{
    return isEqual(tagName, name());
}

QString FlatNode::text() const
{
    if (isNull() || isElement())
        return QString();
    const std::string_view rest = m_tree->textFrom(m_tree->m_nodes[m_number].offset);
    const std::string_view bytes = rest.substr(0, rest.find('<'));
    return XmlPiece{bytes, bytes.find('&') != std::string_view::npos}.toString();
}

int FlatNode::line() const
{
    return isNull() ? 0 : m_tree->m_nodes[m_number].line;
}

FlatNode FlatNode::parent() const
{
    return isNull() || m_number == 0 ? FlatNode() : FlatNode(m_tree, m_tree->m_nodes[m_number].parent);
}

FlatNode FlatNode::firstChild() const
{
    // The first child comes straight after its parent.
    const std::size_t next = std::size_t(m_number) + 1;
    const bool hasChild = !isNull() && next < m_tree->m_nodes.size() && m_tree->m_nodes[next].parent == m_number;
    return hasChild ? FlatNode(m_tree, quint32(next)) : FlatNode();
}

FlatNode FlatNode::nextSibling() const
{
    const quint32 next = isNull() ? 0 : m_tree->m_nodes[m_number].next;
    return next == 0 ? FlatNode() : FlatNode(m_tree, next);
}

FlatNode FlatNode::firstChildElement() const
{
    const FlatNode child = firstChild();
    return child.isNull() || child.isElement() ? child : child.nextSiblingElement();
}

FlatNode FlatNode::firstChildElement(const QString &tagName) const
{
    FlatNode child = firstChildElement();
    while (!child.isNull() && !child.hasName(tagName))
        child = child.nextSiblingElement();
    return child;
}

FlatNode FlatNode::nextSiblingElement() const
{
    FlatNode sibling = nextSibling();
    while (!sibling.isNull() && !sibling.isElement())
        sibling = sibling.nextSibling();
    return sibling;
}

// Attributes

void FlatAttributes::read(FlatNode element)
{
    m_attributes.clear();
    m_last = 0;
    if (!element.isElement())
        return;
    const std::string_view name = element.name();
    std::string_view rest = element.m_tree->textFrom(element.m_tree->m_nodes[element.m_number].offset);
    rest.remove_prefix(name.size());
    for (;;) {
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        if (rest.empty() || rest[0] == '/' || rest[0] == '>')
            return;
        const std::size_t nameEnd = rest.find('=');
        const std::size_t valueBegin = nameEnd + 2;
        const std::size_t valueEnd = rest.find(rest[nameEnd + 1], valueBegin);
        const std::string_view value = rest.substr(valueBegin, valueEnd - valueBegin);
        m_attributes.push_back({rest.substr(0, nameEnd), {value, value.find('&') != std::string_view::npos}});
        rest.remove_prefix(valueEnd + 1);
    }
}

const XmlTokens::Attribute *FlatAttributes::find(const QString &name) const
{
    for (std::size_t i = 0; i < m_attributes.size(); ++i) {
        if (m_last == m_attributes.size())
            m_last = 0;
        if (isEqual(name, m_attributes[m_last].name))
            return &m_attributes[m_last];
        ++m_last;
    }
    return nullptr;
}

QString FlatAttributes::attribute(const QString &name) const
{
    const XmlTokens::Attribute *found = find(name);
    if (found == nullptr)
        return QString();
    return m_texts == nullptr ? found->value.toString() : m_texts->text(found->value);
}

// The tree

std::string_view FlatTree::textFrom(qint64 offset) const
{
    return {m_text.constData() + offset, std::size_t(m_text.size() - offset)};
}

void FlatTree::append(qint64 offset, int line, bool isElement)
{
    const quint32 number = quint32(m_nodes.size());
    Node node{offset, 0, 0, line, isElement};
    if (!m_open.empty()) {
        OpenElement &parent = m_open.back();
        node.parent = parent.number;
        if (parent.lastChild != 0)
            m_nodes[parent.lastChild].next = number;
        parent.lastChild = number;
    }
    m_nodes.push_back(node);
}

void FlatTree::open(qint64 offset, int line)
{
    append(offset, line, true);
    m_open.push_back({quint32(m_nodes.size() - 1), 0});
}

std::optional<FlatTree> FlatTree::fromText(const QByteArray &text)
{
    FlatTree tree;
    tree.m_text = text;
    constexpr int usualSize = 128; // bytes of an element and its end
    tree.m_nodes.reserve(std::size_t(text.size()) / usualSize);
    XmlTokens tokens(tree.m_text);
    Lines lines(tree.m_text);
    const auto offsetOf = [&tree](std::string_view piece) { return piece.data() - tree.m_text.constData(); };
    for (;;) {
        switch (tokens.next()) {
        case XmlTokens::StartElement:
            tree.open(offsetOf(tokens.name()), lines.lineOf(tokens.name().data()));
            break;
        case XmlTokens::EndElement:
            tree.close();
            break;
        case XmlTokens::Characters:
            tree.append(offsetOf(tokens.piece().bytes), lines.lineOf(tokens.piece().bytes.data()), false);
            break;
        case XmlTokens::Comment:
            tree.m_isRootFirst = tree.m_isRootFirst && !tree.m_nodes.empty();
            break;
        case XmlTokens::End:
            return tree;
        case XmlTokens::Unknown:
            return std::nullopt;
        }
    }
}

FlatTree FlatTree::fromDocument(const QDomDocument &document)
{
    FlatTree tree;
    const QDomElement root = document.documentElement();
    if (root.isNull())
        return tree;
    tree.m_isRootFirst = document.firstChild() == root;
    tree.openElement(root);
    for (QDomNode node = root; !tree.m_open.empty();) {
        QDomNode next = node.firstChild();
        while (next.isNull() && !tree.m_open.empty()) {
            if (node.isElement()) {
                tree.m_text += "</>";
                tree.close();
            }
            next = tree.m_open.empty() ? QDomNode() : node.nextSibling();
            node = node.parentNode();
        }
        if (next.isElement())
            tree.openElement(next.toElement());
        else if (next.isText())
            tree.appendText(next);
        node = next;
    }
    return tree;
}

void FlatTree::openElement(const QDomElement &element)
{
    m_text += '<';
    open(m_text.size(), element.lineNumber());
    m_text += nameBytes(element.tagName());
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        m_text += ' ' + nameBytes(attribute.nodeName()) + "=\"";
        appendEscaped(&m_text, attribute.nodeValue());
        m_text += '"';
    }
    m_text += '>';
}

void FlatTree::appendText(const QDomNode &node)
{
    append(m_text.size(), node.lineNumber(), false);
    appendEscaped(&m_text, node.nodeValue());
    m_text += "</>";
}

} // namespace cabledoc
