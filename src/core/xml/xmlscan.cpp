#include "xmlscan.h"

#include "xmlnames.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// The first bytes of files in other encodings.
constexpr std::pair<const char *, const char *> marks[] = {
    {"\xEF\xBB\xBF", "UTF-8"},
    {"\xFE\xFF", "UTF-16"},
    {"\xFF\xFE", "UTF-16"},
};

/// Walks through the markup of a text. If the text is not well-formed, the walk may misread it, but only after the
/// place at which the parser stops.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_begin(text.constData())
        , m_position(m_begin)
        , m_end(m_begin + text.size())
    {
    }

    cabledoc::XmlProblem run()
    {
        for (const auto &[mark, encoding] : marks) {
            if (skip(mark)) {
                m_position = m_begin;
                report(QCoreApplication::translate(
                           "XmlFile", "The file begins with the byte order mark of %1. Save it in the encoding "
                                      "ISO-8859-1 (Latin-1), without a mark.")
                           .arg(QLatin1String(encoding)));
                return m_problem;
            }
        }
        // The parser does not notice control characters in names.
        m_position = firstForbidden();
        if (m_position != m_end)
            report(QCoreApplication::translate("XmlFile",
                                               "The file contains a control character that XML does not allow."));
        else
            m_position = m_begin;
        while (m_problem.message.isNull() && goTo('<')) {
            if (skip("<!--"))
                skipPast("-->");
            else if (skip("<![CDATA["))
                skipPast("]]>");
            else if (skip("<?"))
                skipPast("?>");
            else if (skip("</"))
                --m_depth;
            else if (skip("<!"))
                documentType();
            else
                startTag();
        }
        return m_problem;
    }

private:
    static bool isForbidden(char character) { return !cabledoc::isStorable(quint8(character)); }

    const char *firstForbidden() const
    {
        // The loop over a block has no early exit, so that the compiler can make it fast.
        constexpr std::ptrdiff_t blockSize = 4096;
        const char *block = m_begin;
        for (; m_end - block >= blockSize; block += blockSize) {
            bool isFound = false;
            for (std::ptrdiff_t i = 0; i < blockSize; ++i)
                isFound |= isForbidden(block[i]);
            if (isFound)
                break;
        }
        return std::find_if(block, m_end, isForbidden);
    }

    void startTag()
    {
        const char *tag = m_position;
        int attributes = 0;
        for (; m_position != m_end && *m_position != '>'; ++m_position) {
            if (!atQuote())
                continue;
            if (++attributes > cabledoc::maximumAttributes) {
                report(QCoreApplication::translate("XmlFile", "An element has more than %1 attributes.")
                           .arg(cabledoc::maximumAttributes));
                return;
            }
            if (!goToClosingQuote())
                return;
        }
        const bool isEmptyElement = m_position != m_end && m_position[-1] == '/';
        if (m_depth + 1 > cabledoc::maximumDepth) {
            m_position = tag;
            report(QCoreApplication::translate("XmlFile", "Elements are nested more than %1 levels deep.")
                       .arg(cabledoc::maximumDepth));
        } else if (!isEmptyElement) {
            ++m_depth;
        }
    }

    void documentType()
    {
        for (; m_position != m_end && *m_position != '>'; ++m_position) {
            if (*m_position == '[' || atQuote()) {
                report(
                    QCoreApplication::translate("XmlFile", "Only a document type without declarations is supported."));
                return;
            }
        }
    }

    bool atQuote() const { return *m_position == '"' || *m_position == '\''; }

    bool goToClosingQuote()
    {
        const char quote = *m_position++;
        return goTo(quote);
    }

    bool goTo(char character)
    {
        const void *found = std::memchr(m_position, character, std::size_t(m_end - m_position));
        m_position = found == nullptr ? m_end : static_cast<const char *>(found);
        return found != nullptr;
    }

    bool goTo(const char *mark)
    {
        m_position = std::search(m_position, m_end, mark, mark + std::strlen(mark));
        return m_position != m_end;
    }

    void skipPast(const char *mark)
    {
        if (goTo(mark))
            m_position += std::strlen(mark);
    }

    bool skip(const char *mark)
    {
        const std::size_t length = std::strlen(mark);
        if (std::size_t(m_end - m_position) < length || std::strncmp(m_position, mark, length) != 0)
            return false;
        m_position += length;
        return true;
    }

    void report(const QString &message)
    {
        m_problem.message = message;
        m_problem.line = 1 + int(std::count(m_begin, m_position, '\n'));
        const char *lineStart = m_position;
        while (lineStart != m_begin && lineStart[-1] != '\n')
            --lineStart;
        m_problem.column = 1 + int(m_position - lineStart);
    }

    const char *m_begin;
    const char *m_position;
    const char *m_end;
    int m_depth = 0;
    cabledoc::XmlProblem m_problem;
};

} // namespace

cabledoc::XmlProblem cabledoc::scanXml(const QByteArray &text)
{
    return Scanner(text).run();
}
