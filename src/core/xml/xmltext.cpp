#include "xmlfile.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QVector>
#include <QtXml/QDomProcessingInstruction>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace cabledoc::xmlfile {

namespace {

/// Which characters are escaped. This depends on the place.
enum class Escape {
    /// No characters, in comments, CDATA sections and names.
    Nothing,
    Text,
    AttributeValue,
};

/// Returns the reference with which a character must be written. Returns null if it can be written as it is, or if it
/// needs appendOdd().
constexpr const char *reference(char16_t character, Escape escape)
{
    switch (character) {
    case u'&':
        return escape == Escape::Nothing ? nullptr : "&amp;";
    case u'<':
        return escape == Escape::Nothing ? nullptr : "&lt;";
    case u'>':
        return escape == Escape::Nothing ? nullptr : "&gt;";
    case u'\r':
        return escape == Escape::Nothing ? nullptr : "&#13;";
    case u'"':
        return escape == Escape::AttributeValue ? "&quot;" : nullptr;
    // The parser would read these as blanks if they were written as they are in a value.
    case u'\t':
        return escape == Escape::AttributeValue ? "&#9;" : nullptr;
    case u'\n':
        return escape == Escape::AttributeValue ? "&#10;" : nullptr;
    default:
        return nullptr;
    }
}

using PlainCharacters = std::array<bool, 256>;

/// Returns which of the Latin-1 characters can be written as they are.
template <Escape escape> constexpr PlainCharacters makePlainCharacters()
{
    PlainCharacters isPlain{};
    for (std::size_t i = 0; i < isPlain.size(); ++i)
        isPlain[i] = isStorable(char16_t(i)) && reference(char16_t(i), escape) == nullptr;
    return isPlain;
}

const PlainCharacters &plainCharacters(Escape escape)
{
    static constexpr PlainCharacters inNothing = makePlainCharacters<Escape::Nothing>();
    static constexpr PlainCharacters inText = makePlainCharacters<Escape::Text>();
    static constexpr PlainCharacters inValue = makePlainCharacters<Escape::AttributeValue>();
    switch (escape) {
    case Escape::Text:
        return inText;
    case Escape::AttributeValue:
        return inValue;
    case Escape::Nothing:
        break;
    }
    return inNothing;
}

bool isCharacterData(const QDomNode &node)
{
    return node.isText() || node.isCDATASection();
}

/// Returns whether blanks between the children would change the content of the element.
bool isMixed(const QDomElement &element)
{
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (isCharacterData(child))
            return true;
    }
    return false;
}

/// Bytes that have not been passed on yet. Most writes are of a few bytes, so they are inline.
class Buffer
{
public:
    qint64 size() const { return m_size; }

    Buffer &operator+=(char byte)
    {
        *room(1) = byte;
        ++m_size;
        return *this;
    }
    Buffer &operator+=(std::string_view bytes)
    {
        std::copy(bytes.begin(), bytes.end(), room(qint64(bytes.size())));
        m_size += qint64(bytes.size());
        return *this;
    }
    void append(int count, char byte)
    {
        std::fill_n(room(count), count, byte);
        m_size += count;
    }

    /// Returns a place for so many bytes. They count after take().
    char *room(qint64 count)
    {
        if (m_size + count > m_bytes.size())
            m_bytes.resize(int(std::max<qint64>(2 * m_bytes.size(), m_size + count + minimumSize)));
        return m_bytes.data() + m_size;
    }
    /// Adds the bytes from the place that room() returned up to the given end.
    void take(const char *end) { m_size = end - m_bytes.constData(); }

    /// Passes the bytes on, and empties the buffer. Returns what the sink returns.
    QString passTo(const Sink &sink)
    {
        m_bytes.resize(int(std::exchange(m_size, 0)));
        return sink(m_bytes);
    }

private:
    static constexpr qint64 minimumSize = 4096;

    QByteArray m_bytes;
    qint64 m_size = 0;
};

class TextWriter
{
public:
    TextWriter(const AttributeOrder &order, const Sink &sink, BeyondLatin1 beyondLatin1)
        : m_order(order)
        , m_sink(sink)
        , m_beyondLatin1(beyondLatin1)
    {
    }

    /// Writes the document. Walks through the tree without recursion, so that a deep tree does not exhaust the stack.
    Outcome write(const QDomDocument &document)
    {
        int roots = 0;
        for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling())
            roots += node.isElement() ? 1 : 0;
        if (roots != 1) {
            m_outcome.error =
                roots == 0 ? QCoreApplication::translate("XmlFile", "The document is empty.")
                           : QCoreApplication::translate("XmlFile", "The document has more than one root element.");
        }

        QDomNode node = document.firstChild();
        while (!node.isNull() && m_outcome.error.isEmpty()) {
            if (m_bytes.size() >= pieceSize)
                passOn();
            start(node);
            if (node.isElement() && node.hasChildNodes()) {
                node = node.firstChild();
                continue;
            }
            while (node.nextSibling().isNull() && !m_open.isEmpty()) {
                end();
                node = node.parentNode();
            }
            node = node.nextSibling();
        }
        if (m_outcome.error.isEmpty())
            passOn();
        return m_outcome;
    }

private:
    struct OpenElement
    {
        QByteArray name;
        /// Whether the element or one of its ancestors is mixed.
        bool isMixed;
        /// Order of its children's attributes, or null if there is none.
        const QStringList *childOrder;
    };

    void passOn() { m_outcome.error = m_bytes.passTo(m_sink); }

    void start(const QDomNode &node)
    {
        // A declaration is never written. The encoding is fixed, even if an old file named another one.
        if (node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml"))
            return;
        if (!isCharacterData(node))
            indent();
        if (node.isElement())
            startElement(node.toElement());
        else
            writeLeaf(node);
        if (!node.isElement() && !isCharacterData(node))
            endLine();
    }

    void startElement(const QDomElement &element)
    {
        const QString name = element.tagName();
        m_bytes += '<';
        append(name, Escape::Nothing);
        writeAttributes(element);
        if (!element.hasChildNodes()) {
            m_bytes += "/>";
            endLine();
            return;
        }
        if (m_open.size() == maximumDepth - 1) {
            m_outcome.error = QCoreApplication::translate("XmlFile", "Elements are nested more than %1 levels deep.")
                                  .arg(maximumDepth);
            return;
        }
        m_bytes += '>';
        const bool mixed = isMixedHere() || isMixed(element);
        const auto childOrder = m_order.inContainer.constFind(name);
        m_open.append({name.toLatin1(), mixed, childOrder == m_order.inContainer.cend() ? nullptr : &*childOrder});
        endLine();
    }

    void end()
    {
        const OpenElement element = m_open.takeLast();
        if (!element.isMixed)
            m_bytes.append(int(m_open.size()), ' ');
        m_bytes += "</";
        m_bytes += std::string_view(element.name.constData(), std::size_t(element.name.size()));
        m_bytes += '>';
        endLine();
    }

    void writeLeaf(const QDomNode &node)
    {
        if (node.isCDATASection()) {
            m_bytes += "<![CDATA[";
            append(node.nodeValue(), Escape::Nothing);
            m_bytes += "]]>";
        } else if (node.isText()) {
            append(node.nodeValue(), Escape::Text);
        } else if (node.isComment()) {
            m_bytes += "<!--";
            append(node.nodeValue(), Escape::Nothing);
            m_bytes += "-->";
        } else if (node.isProcessingInstruction()) {
            const QDomProcessingInstruction instruction = node.toProcessingInstruction();
            m_bytes += "<?";
            append(instruction.target(), Escape::Nothing);
            // The parser accepts some targets only if no blank follows them.
            if (!instruction.data().isEmpty())
                m_bytes += ' ';
            append(instruction.data(), Escape::Nothing);
            m_bytes += "?>";
        }
    }

    void writeAttributes(const QDomElement &element)
    {
        const QDomNamedNodeMap attributes = element.attributes();
        if (attributes.count() > maximumAttributes) {
            m_outcome.error = QCoreApplication::translate("XmlFile", "An element has more than %1 attributes.")
                                  .arg(maximumAttributes);
            return;
        }
        const QStringList *order = orderOf(element);
        int written = 0;
        if (order != nullptr) {
            for (const QString &name : *order) {
                // One search returns the value and tells whether there is one. The default value is recognised by its
                // address.
                static const QString missing(QLatin1String("missing"));
                const QString value = element.attribute(name, missing);
                if (value.constData() == missing.constData())
                    continue;
                writeAttribute(name, value);
                ++written;
            }
        }
        if (written == attributes.count())
            return;

        QStringList others;
        for (int i = 0; i < attributes.count(); ++i) {
            const QString name = attributes.item(i).nodeName();
            if (order == nullptr || !order->contains(name))
                others.append(name);
        }
        std::sort(others.begin(), others.end());
        for (const QString &name : std::as_const(others))
            writeAttribute(name, element.attribute(name));
    }

    void writeAttribute(const QString &name, const QString &value)
    {
        m_bytes += ' ';
        append(name, Escape::Nothing);
        m_bytes += "=\"";
        append(value, Escape::AttributeValue);
        m_bytes += '"';
    }

    const QStringList *orderOf(const QDomElement &element) const
    {
        if (!m_open.isEmpty() && m_open.last().childOrder != nullptr)
            return m_open.last().childOrder;
        const auto own = m_order.ofElement.constFind(element.tagName());
        return own == m_order.ofElement.cend() ? nullptr : &*own;
    }

    bool isMixedHere() const { return !m_open.isEmpty() && m_open.last().isMixed; }

    void indent()
    {
        if (!isMixedHere())
            m_bytes.append(int(m_open.size()), ' ');
    }

    void endLine()
    {
        if (!isMixedHere())
            m_bytes += '\n';
    }

    void append(const QString &text, Escape escape)
    {
        const PlainCharacters &isPlain = plainCharacters(escape);
        const QChar *next = text.constData();
        const QChar *const end = next + text.size();
        while (next != end) {
            char *place = m_bytes.room(end - next);
            for (; next != end && next->unicode() < isPlain.size() && isPlain[next->unicode()]; ++next)
                *place++ = char(next->unicode());
            m_bytes.take(place);
            if (next != end)
                next = appendEscaped(next, end, escape);
        }
    }

    /// Appends the next character of a text, which cannot be written as it is. Returns the place of the one after it.
    const QChar *appendEscaped(const QChar *next, const QChar *end, Escape escape)
    {
        if (const char *escaped = reference(next->unicode(), escape)) {
            m_bytes += std::string_view(escaped);
            return next + 1;
        }
        const bool isPair = next->isHighSurrogate() && next + 1 != end && next[1].isLowSurrogate();
        appendOdd(isPair ? QChar::surrogateToUcs4(next[0], next[1]) : char32_t(next->unicode()), escape);
        return next + (isPair ? 2 : 1);
    }

    /// Appends a character that cannot be written as it is and has no named reference.
    void appendOdd(char32_t character, Escape escape)
    {
        if (m_beyondLatin1 == BeyondLatin1::AsReferences && escape != Escape::Nothing && isReferable(character)) {
            m_bytes += "&#" + std::to_string(quint32(character)) + ';';
        } else {
            m_bytes += '?';
            ++m_outcome.replacedCharacters;
        }
    }

    static constexpr int pieceSize = 4 << 20;

    const AttributeOrder &m_order;
    const Sink &m_sink;
    BeyondLatin1 m_beyondLatin1;
    QVector<OpenElement> m_open;
    Buffer m_bytes;
    Outcome m_outcome;
};

} // namespace

Outcome writeText(const QDomDocument &document, const AttributeOrder &order, const Sink &sink,
                  BeyondLatin1 beyondLatin1)
{
    return TextWriter(order, sink, beyondLatin1).write(document);
}

Text toText(const QDomDocument &document, const AttributeOrder &order, BeyondLatin1 beyondLatin1)
{
    Text text;
    const auto append = [&text](const QByteArray &piece) {
        text.bytes += piece;
        return QString();
    };
    static_cast<Outcome &>(text) = writeText(document, order, append, beyondLatin1);
    return text;
}

} // namespace cabledoc::xmlfile
