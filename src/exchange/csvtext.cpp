#include "csvtext.h"

#include <csv.h>

#include <algorithm>

namespace cabledoc {

namespace {

/// Makes rows of the fields that the parser finds.
class RowReader
{
public:
    explicit RowReader(const std::function<void(const CsvRow &)> &takeRow)
        : m_takeRow(takeRow)
    {
    }

    CsvFault read(const QByteArray &text)
    {
        CsvFault fault;
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
        const auto size = std::size_t(text.size());
        if (csv_parse(&parser, text.constData(), size, takeField, endRow, this) != size
            || csv_fini(&parser, takeField, endRow, this) != 0) {
            fault = {m_row.number, int(m_row.fields.size()) + 1};
        }
        csv_free(&parser);
        return fault;
    }

private:
    static void takeField(void *text, std::size_t size, void *reader)
    {
        static_cast<RowReader *>(reader)->m_row.fields.append(QByteArray(static_cast<const char *>(text), int(size)));
    }

    static void endRow(int terminator, void *reader) { static_cast<RowReader *>(reader)->endRow(terminator); }

    void endRow(int terminator)
    {
        // The parser reports each character of a line break "\r\n".
        const bool isSecondHalf = terminator == CSV_LF && m_lastTerminator == CSV_CR && m_row.fields.isEmpty();
        m_lastTerminator = isSecondHalf ? 0 : terminator;
        if (isSecondHalf)
            return;
        if (!m_row.fields.isEmpty())
            m_takeRow(m_row);
        m_row = {m_row.number + 1, {}};
    }

    const std::function<void(const CsvRow &)> &m_takeRow;
    CsvRow m_row;
    int m_lastTerminator = 0;
};

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// Returns whether the field would be read differently without quotation marks.
bool needsQuotes(const QByteArray &field)
{
    return std::any_of(field.begin(), field.end(),
                       [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; })
           || (!field.isEmpty() && (isBlank(field.front()) || isBlank(field.back())));
}

QByteArray csvField(const QByteArray &field)
{
    if (!needsQuotes(field))
        return field;
    const auto size = std::size_t(field.size());
    QByteArray quoted(int(csv_write(nullptr, 0, field.constData(), size)), '\0');
    csv_write(quoted.data(), std::size_t(quoted.size()), field.constData(), size);
    return quoted;
}

} // namespace

CsvFault readCsv(const QByteArray &text, const std::function<void(const CsvRow &)> &takeRow)
{
    return RowReader(takeRow).read(text);
}

QByteArray csvLine(const QVector<QByteArray> &fields)
{
    QByteArray line;
    for (const QByteArray &field : fields)
        line += csvField(field) + ',';
    line.back() = '\n';
    return line;
}

} // namespace cabledoc
