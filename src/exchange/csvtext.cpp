#include "csvtext.h"

#include "csvencoding.h"
#include "sharedtexts.h"

#include <QtCore/QRegularExpression>

#include <csv.h>

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

namespace cabledoc {

namespace {

constexpr std::array<char, 3> delimiters{',', ';', '\t'};

bool isDelimiter(char character)
{
    return std::find(delimiters.begin(), delimiters.end(), character) != delimiters.end();
}

bool isLineBreak(char character)
{
    return character == '\r' || character == '\n';
}

/// Returns the delimiter that the first row of the text has most often outside of quotation marks.
char detectedDelimiter(const QByteArray &text)
{
    std::array<int, delimiters.size()> counts{};
    bool isQuoted = false;
    const char *const heading = std::find_if_not(text.begin(), text.end(), isLineBreak);
    for (const char *place = heading; place != text.end() && (isQuoted || !isLineBreak(*place)); ++place) {
        isQuoted ^= *place == '"';
        for (std::size_t i = 0; i < delimiters.size(); ++i)
            counts[i] += !isQuoted && *place == delimiters[i] ? 1 : 0;
    }
    return delimiters[std::size_t(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

/// Returns whether the data begin as the files of spreadsheet programs do: archives, and compound files of older ones.
bool isSpreadsheet(const QByteArray &data)
{
    return data.startsWith("PK\x03\x04") || data.startsWith("\xD0\xCF\x11\xE0");
}

/// Returns the text of a field, or nothing if it is not valid UTF-8.
std::optional<QString> fieldText(const char *text, int size, SharedTexts *texts)
{
    if (std::all_of(text, text + size, [](char c) { return uchar(c) < 0x80; }))
        return texts->text(std::string_view(text, std::size_t(size)));
    // What is not valid becomes a replacement character. Qt removes a byte order mark, which begins with 0xEF.
    const QString field = QString::fromUtf8(text, size);
    if (uchar(*text) != 0xEF && !field.contains(QChar(QChar::ReplacementCharacter)))
        return field;
    const QByteArray bytes = ' ' + QByteArray::fromRawData(text, size);
    const QString whole = QString::fromUtf8(bytes);
    return whole.toUtf8() == bytes ? std::optional<QString>(whole.mid(1)) : std::nullopt;
}

// Protection against formulas. An apostrophe makes a spreadsheet show a field as text.

bool canBeFormula(const QString &field)
{
    const auto *const begin = std::find_if(field.begin(), field.end(), [](QChar c) { return c != QLatin1Char('\''); });
    return begin != field.end() && QStringLiteral("=+-@\t\r").contains(*begin);
}

bool isNumber(const QString &field)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(QStringLiteral("[+-]?[0-9]+([.,][0-9]+)?([eE][+-]?[0-9]+)?")));
    return number.match(field).hasMatch();
}

QString protectedField(const QString &field)
{
    return canBeFormula(field) && !isNumber(field) ? QLatin1Char('\'') + field : field;
}

QString unprotectedField(const QString &field)
{
    const bool isProtected = field.startsWith(QLatin1Char('\'')) && canBeFormula(field) && !isNumber(field.mid(1));
    return isProtected ? field.mid(1) : field;
}

/// Makes rows of the fields that the parser finds.
class RowReader
{
public:
    RowReader(const std::function<void(const CsvRow &)> &takeRow, bool removesProtection)
        : m_takeRow(takeRow)
        , m_removesProtection(removesProtection)
    {
    }

    /// Reads text up to the first mistake. Returns its place, or row 0 if there is none.
    CsvProblem read(const QByteArray &text, char delimiter, const QString &wrongQuote, const QString &wrongEncoding)
    {
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
        csv_set_delim(&parser, uchar(delimiter));
        const auto size = std::size_t(text.size());
        const bool isComplete = csv_parse(&parser, text.constData(), size, takeField, endRow, this) == size
                                && csv_fini(&parser, takeField, endRow, this) == 0;
        csv_free(&parser);
        if (m_wrongRow > 0)
            return {m_wrongRow, m_wrongColumn, wrongEncoding};
        return isComplete ? CsvProblem() : CsvProblem{m_row.number, int(m_row.fields.size()) + 1, wrongQuote};
    }

private:
    static void takeField(void *text, std::size_t size, void *reader)
    {
        static_cast<RowReader *>(reader)->takeField(static_cast<const char *>(text), int(size));
    }

    static void endRow(int terminator, void *reader) { static_cast<RowReader *>(reader)->endRow(terminator); }

    void takeField(const char *text, int size)
    {
        // The parser cannot be stopped.
        if (m_wrongRow > 0)
            return;
        const std::optional<QString> field = fieldText(text, size, &m_texts);
        if (field) {
            m_row.fields.append(m_removesProtection ? unprotectedField(*field) : *field);
            return;
        }
        m_wrongRow = m_row.number;
        m_wrongColumn = int(m_row.fields.size()) + 1;
    }

    void endRow(int terminator)
    {
        // The parser reports each character of a line break "\r\n".
        const bool isSecondHalf = terminator == CSV_LF && m_lastTerminator == CSV_CR && m_row.fields.isEmpty();
        m_lastTerminator = isSecondHalf ? 0 : terminator;
        if (isSecondHalf)
            return;
        if (!m_row.fields.isEmpty() && m_wrongRow == 0)
            m_takeRow(m_row);
        const auto size = m_row.fields.size();
        m_row = {m_row.number + 1, {}};
        // The next row is likely to have as many fields.
        m_row.fields.reserve(size);
    }

    const std::function<void(const CsvRow &)> &m_takeRow;
    const bool m_removesProtection;
    SharedTexts m_texts;
    CsvRow m_row;
    int m_lastTerminator = 0;
    // The first field that cannot be decoded, or 0
    int m_wrongRow = 0;
    int m_wrongColumn = 0;
};

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// Returns whether the field would be read differently without quotation marks. A comma is always quoted, so that the
/// delimiter can be detected even in a table of one column.
bool needsQuotes(const QByteArray &field, char delimiter)
{
    return std::any_of(field.begin(), field.end(),
                       [delimiter](char c) { return c == ',' || c == delimiter || c == '"' || isLineBreak(c); })
           || (!field.isEmpty() && (isBlank(field.front()) || isBlank(field.back())));
}

QByteArray csvField(const QByteArray &field, char delimiter)
{
    if (!needsQuotes(field, delimiter))
        return field;
    const auto size = std::size_t(field.size());
    QByteArray quoted(int(csv_write(nullptr, 0, field.constData(), size)), '\0');
    csv_write(quoted.data(), std::size_t(quoted.size()), field.constData(), size);
    return quoted;
}

} // namespace

bool CsvRow::isEmpty() const
{
    return std::all_of(fields.begin(), fields.end(), [](const QString &field) { return field.isEmpty(); });
}

CsvText::CsvText(const QByteArray &data, const CsvOptions &options)
    : m_encoding(options.encoding)
    , m_removesProtection(options.removeProtection)
{
    if (isSpreadsheet(data)) {
        m_error = tr("This is a file of a spreadsheet program, not CSV. Save the sheet as CSV, in UTF-8 if there is a "
                     "choice, and use that file.");
        return;
    }
    if (m_encoding == CsvEncoding::Detected)
        m_encoding = detectedEncoding(data);
    m_utf8 = toUtf8(data, m_encoding);
    m_delimiter = isDelimiter(options.delimiter) ? options.delimiter : detectedDelimiter(m_utf8);
}

CsvProblem CsvText::readTable(const std::function<bool(const CsvRow &heading)> &readHeading,
                              const std::function<void(const CsvRow &row)> &readRow) const
{
    bool isHeading = true;
    bool isReadable = false;
    const CsvProblem mistake = read([&](const CsvRow &row) {
        if (isHeading)
            isReadable = readHeading(row);
        else if (isReadable && !row.isEmpty())
            readRow(row);
        isHeading = false;
    });
    if (isHeading && mistake.row == 0)
        readHeading(CsvRow());
    return mistake;
}

CsvProblem CsvText::read(const std::function<void(const CsvRow &)> &takeRow) const
{
    return RowReader(takeRow, m_removesProtection)
        .read(m_utf8, m_delimiter, tr("a quotation mark is missing or is in the wrong place"), wrongEncoding());
}

QString CsvText::wrongEncoding() const
{
    switch (m_encoding) {
    case CsvEncoding::Utf16:
        return tr("the text is not UTF-16");
    case CsvEncoding::Windows1252:
        return tr("the text is not Windows-1252");
    default:
        return tr("the text is not UTF-8; try --encoding windows-1252");
    }
}

void sortByPlace(QVector<CsvProblem> &problems)
{
    std::stable_sort(problems.begin(), problems.end(), [](const CsvProblem &a, const CsvProblem &b) {
        return std::tie(a.row, a.column) < std::tie(b.row, b.column);
    });
}

QString withDecimalPoint(const QString &number, char delimiter)
{
    const QLatin1Char comma(',');
    const QLatin1Char point('.');
    const bool isDecimal = delimiter != ',' && number.count(comma) == 1 && !number.contains(point);
    return isDecimal ? QString(number).replace(comma, point) : number;
}

QByteArray csvBeginning(const CsvStyle &style)
{
    return style.byteOrderMark ? QByteArrayLiteral("\xEF\xBB\xBF") : QByteArray();
}

QByteArray csvLine(const QStringList &fields, const CsvStyle &style)
{
    const char delimiter = isDelimiter(style.delimiter) ? style.delimiter : ',';
    QByteArray line;
    for (const QString &field : fields)
        line += csvField((style.protectFormulas ? protectedField(field) : field).toUtf8(), delimiter) + delimiter;
    line.back() = '\n';
    return line;
}

} // namespace cabledoc
