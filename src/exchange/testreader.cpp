#include "testreader.h"

#include "measurementtext.h"
#include "messagetext.h"
#include "resultstext.h"
#include "units.h"
#include "xmlnames.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace cabledoc {

TestReader::TestReader(const ResultsFile &file, const ResultsOptions &options, QVector<CsvProblem> *problems)
    : m_file(file)
    , m_options(options)
    , m_problems(*problems)
{
}

void TestReader::report(const CsvRow &row, int field, const QString &message)
{
    m_problems.append({row.number, field + 1, message});
}

void TestReader::report(const CsvRow &row, ResultsColumn column, const QString &message)
{
    report(row, m_file.fieldOf(column), message);
}

std::optional<TestReader::Heading> TestReader::readHeading(const CsvRow &row)
{
    checkCharacters(row);
    const QString text = field(row, ResultsColumn::TestedAt);
    const QString &format = m_options.mapping.dateFormat;
    const std::optional<TestTime> time = format.isEmpty() ? TestTime::fromText(text) : TestTime::fromText(text, format);
    const QString verdict = field(row, ResultsColumn::Verdict);
    if (!time)
        report(row, ResultsColumn::TestedAt, ResultsText::tr("\"%1\" is not a time").arg(excerpt(text)));
    else if (time->isAfter(m_options.now))
        report(row, ResultsColumn::TestedAt, ResultsText::tr("\"%1\" is in the future").arg(excerpt(text)));
    if (verdict.isEmpty())
        report(row, ResultsColumn::Verdict, ResultsText::tr("the row has no verdict"));
    if (!time || verdict.isEmpty())
        return std::nullopt;
    return Heading{*time, format.isEmpty() ? text : time->toText(), m_options.mapping.verdicts.value(verdict, verdict)};
}

void TestReader::checkCharacters(const CsvRow &row)
{
    if (row.fields.size() > m_file.heading().size())
        report(row, int(m_file.heading().size()), ResultsText::tr("the row has more fields than the heading"));
    for (int number = 0; number < row.fields.size(); ++number) {
        if (!firstLostCharacter(row.fields.at(number), true).isEmpty())
            report(row, number,
                   ResultsText::tr("\"%1\" contains a character that a file cannot hold")
                       .arg(excerpt(row.fields.at(number))));
    }
}

/// Returns a number with a decimal point.
QString TestReader::withPoint(const QString &number) const
{
    if (m_options.mapping.decimalMark == ',')
        return QString(number).replace(QLatin1Char(','), QLatin1Char('.'));
    return m_options.mapping.decimalMark == '.' ? number : withDecimalPoint(number, m_file.delimiter());
}

std::optional<int> TestReader::readNumber(const CsvRow &row, ResultsColumn column)
{
    const QString text = field(row, column);
    if (text.isEmpty())
        return std::nullopt;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number >= 0)
        return number;
    report(row, column, ResultsText::tr("\"%1\" is not a whole number from 0").arg(excerpt(text)));
    return std::nullopt;
}

CableTest TestReader::readTest(const CsvRow &row, const Heading &heading, const QString &type, int lengthConstant)
{
    TestResultsFields results;
    TestDetailsFields details;
    results.time = heading.timeText;
    results.status = heading.verdict;
    results.serialNumber = field(row, ResultsColumn::TesterSerial);
    results.softwareVersion = field(row, ResultsColumn::TesterVersion);
    const QString testType = field(row, ResultsColumn::TestType);
    if (!testType.isEmpty() && testType != type)
        report(row, ResultsColumn::TestType,
               ResultsText::tr("the cable was tested as \"%1\", but its type is \"%2\"")
                   .arg(excerpt(testType), excerpt(type)));
    results.bertErrors = readNumber(row, ResultsColumn::BitErrors).value_or(results.bertErrors);
    if (!field(row, ResultsColumn::ResultsBlock).isEmpty()) {
        readBlock(row, &results.results);
    } else {
        readLengths(row, lengthConstant, &results.results);
        readWireMap(row, &results.results, &details);
    }
    results.next = readCurve(row, ResultsColumn::NextCurve);
    results.echo = readCurve(row, ResultsColumn::EchoCurve);
    results.channel = readCurve(row, ResultsColumn::ChannelCurve);
    for (const DetailColumn &column : detailColumns())
        details.*column.field = field(row, column.column);
    details.parameters = readParameters(row);
    readAttachment(row, &details);
    return {TestResults(results), TestDetails(details)};
}

ActiveTestResult TestReader::readActiveTest(const CsvRow &row, const Heading &heading)
{
    ActiveTestResultFields result;
    result.time = heading.timeText;
    result.status = heading.verdict;
    result.linkSpeed = readNumber(row, ResultsColumn::LinkSpeed).value_or(0);
    result.duplex = field(row, ResultsColumn::Duplex);
    result.address = field(row, ResultsColumn::PeerAddress);
    for (const ResultsFile::Parameter &parameter : m_file.parameters()) {
        // Only the column of the value is there.
        const int number = *std::max_element(parameter.fields.cbegin(), parameter.fields.cend());
        const QString value = ResultsFile::field(row, number);
        if (!value.isEmpty())
            result.values.append({parameter.name, value});
    }
    return ActiveTestResult(result);
}

// Measurements

/// Returns whether the row gives lengths or a wire map.
bool TestReader::hasOwnMeasurements(const CsvRow &row) const
{
    for (int pair = 0; pair < 4; ++pair) {
        if (!field(row, lengthColumn(pair)).isEmpty())
            return true;
    }
    return !field(row, ResultsColumn::WireMap).isEmpty();
}

void TestReader::readBlock(const CsvRow &row, cable_struct *block)
{
    const QString text = field(row, ResultsColumn::ResultsBlock);
    const std::optional<cable_struct> read = cabledoc::readBlock(text);
    if (!read)
        report(row, ResultsColumn::ResultsBlock,
               ResultsText::tr("\"%1\" is not a block of 96 hexadecimal digits").arg(excerpt(text)));
    else if (hasOwnMeasurements(row))
        report(row, ResultsColumn::ResultsBlock,
               ResultsText::tr("a row with a block cannot have lengths or a wire map"));
    *block = read.value_or(*block);
}

void TestReader::readLengths(const CsvRow &row, int lengthConstant, cable_struct *block)
{
    const QString unitField = field(row, ResultsColumn::LengthUnit);
    const QString unit = unitField.isEmpty() ? m_options.mapping.lengthUnit : unitField;
    const bool isMetric = unit == QLatin1String("m");
    bool isUnitChecked = false;
    for (int pair = 0; pair < 4; ++pair) {
        const QString text = field(row, lengthColumn(pair));
        if (text.isEmpty())
            continue;
        if (!isUnitChecked && !isMetric && unit != QLatin1String("ft"))
            report(row, lengthColumn(pair), ResultsText::tr("the unit of the length is neither \"ft\" nor \"m\""));
        if (!isUnitChecked && !isUsableLengthConstant(lengthConstant))
            report(row, lengthColumn(pair),
                   ResultsText::tr("the type of the cable has no length constant between 10.0 and 65.0 pF/ft"));
        isUnitChecked = true;
        bool isNumber = false;
        const double length = withPoint(text).toDouble(&isNumber);
        const double feet = isMetric ? length * feetInAMeter : length;
        const std::optional<int> reading = isNumber ? readingOf(feet, lengthConstant) : std::nullopt;
        if (!reading && (!isNumber || isUsableLengthConstant(lengthConstant)))
            report(row, lengthColumn(pair), ResultsText::tr("\"%1\" is not a possible length").arg(excerpt(text)));
        block->pair_length[pair] = reading.value_or(block->pair_length[pair]);
    }
}

void TestReader::readWireMap(const CsvRow &row, cable_struct *block, TestDetailsFields *details)
{
    const QString text = field(row, ResultsColumn::WireMap);
    const std::optional<WireMapText> map = cabledoc::readWireMap(text);
    if (!map) {
        report(row, ResultsColumn::WireMap, ResultsText::tr("\"%1\" gives a pair two far ends").arg(excerpt(text)));
        return;
    }
    std::copy(std::begin(map->farPairs), std::end(map->farPairs), std::begin(block->wire_map) + 1);
    if (map->saysMore)
        details->wireMap = text;
}

TRUEPHY_PLOT_DATA TestReader::readCurve(const CsvRow &row, ResultsColumn column)
{
    QString text = field(row, column);
    if (text.isEmpty())
        return {};
    if (text.startsWith(QLatin1Char('@'))) {
        const std::optional<QByteArray> content = readFile(row, column, text.mid(1));
        if (!content)
            return {};
        text = QString::fromLatin1(*content);
    }
    const std::optional<TRUEPHY_PLOT_DATA> curve = cabledoc::readCurve(text);
    if (!curve)
        report(row, column,
               ResultsText::tr("the curve does not consist of %1 numbers").arg(2 * TRUEPHY_PLOT_DATA::sampleCount));
    return curve.value_or(TRUEPHY_PLOT_DATA{});
}

QVector<TestParameter> TestReader::readParameters(const CsvRow &row)
{
    QVector<TestParameter> parameters;
    const auto &columns = parameterColumns();
    for (const ResultsFile::Parameter &known : m_file.parameters()) {
        TestParameter parameter;
        for (int part = 0; part < columns.size(); ++part) {
            const ParameterColumn &column = columns.at(part);
            QString text = ResultsFile::field(row, known.fields.at(part));
            bool isNumber = true;
            if (column.isNumber && !text.isEmpty()) {
                text = withPoint(text);
                isNumber = std::isfinite(text.toDouble(&isNumber)) && isNumber;
            }
            if (!isNumber)
                report(row, known.fields.at(part), ResultsText::tr("\"%1\" is not a number").arg(excerpt(text)));
            parameter.*column.field = text;
        }
        if (parameter == TestParameter())
            continue;
        parameter.name = known.name;
        parameters.append(parameter);
    }
    return parameters;
}

// Files

/// Returns the path of an existing file that the table names. Returns an empty text if there is no such file, and
/// nothing if the path leads out of the folder: a table may come from anybody.
std::optional<QString> TestReader::pathOfFile(const QString &path) const
{
    const QDir folder(m_options.folder);
    const QFileInfo file(folder.filePath(path));
    if (!file.exists())
        return QDir::isRelativePath(path) ? std::make_optional(QString()) : std::nullopt;
    const QString real = file.canonicalFilePath();
    const bool isInside = QDir::isRelativePath(path) && real.startsWith(folder.canonicalPath() + QLatin1Char('/'));
    return isInside && file.isFile() ? std::make_optional(real) : std::nullopt;
}

/// Returns the content of a file that the table names. Reports why it cannot be read.
std::optional<QByteArray> TestReader::readFile(const CsvRow &row, ResultsColumn column, const QString &path)
{
    constexpr qint64 maximumSize = qint64(64) << 20;
    const std::optional<QString> real = pathOfFile(path);
    if (!real || real->isEmpty()) {
        report(row, column,
               real ? ResultsText::tr("there is no file \"%1\"").arg(excerpt(path))
                    : ResultsText::tr("\"%1\" is not in the folder of the table").arg(excerpt(path)));
        return std::nullopt;
    }
    QFile file(*real);
    if (file.size() > maximumSize || !file.open(QIODevice::ReadOnly)) {
        report(row, column,
               file.isOpen() || file.error() == QFileDevice::NoError
                   ? ResultsText::tr("\"%1\" is larger than 64 MB").arg(excerpt(path))
                   : file.errorString());
        return std::nullopt;
    }
    return file.readAll();
}

void TestReader::readAttachment(const CsvRow &row, TestDetailsFields *details)
{
    const QString path = field(row, ResultsColumn::Attachment);
    if (path.isEmpty())
        return;
    static const QRegularExpression sha256(QRegularExpression::anchoredPattern(QStringLiteral("([0-9a-f]{64})?")));
    details->attachment = QFileInfo(path).fileName();
    const QString hash = field(row, ResultsColumn::AttachmentSha256).toLower();
    if (!sha256.match(hash).hasMatch()) {
        report(row, ResultsColumn::AttachmentSha256, ResultsText::tr("\"%1\" is not a SHA-256").arg(excerpt(hash)));
        return;
    }
    const std::optional<int> size = readNumber(row, ResultsColumn::AttachmentSize);
    const std::optional<QString> real = pathOfFile(path);
    const QStringList folders{QString(), QStringLiteral("."), QStringLiteral("..")};
    const bool isName = !folders.contains(details->attachment);
    if (size && !hash.isEmpty() && real && real->isEmpty() && isName) {
        details->attachmentSize = *size;
        details->attachmentSha256 = hash;
        return;
    }
    const std::optional<QByteArray> content = readFile(row, ResultsColumn::Attachment, path);
    if (!content)
        return;
    details->attachmentSize = int(content->size());
    details->attachmentSha256 =
        QString::fromLatin1(QCryptographicHash::hash(*content, QCryptographicHash::Sha256).toHex());
    if (size.value_or(details->attachmentSize) != details->attachmentSize
        || (!hash.isEmpty() && hash != details->attachmentSha256))
        report(row, ResultsColumn::Attachment,
               ResultsText::tr("\"%1\" is another file than that of the test").arg(excerpt(path)));
    m_attachments.append({*real, attachmentFileName(details->attachment, details->attachmentSha256)});
}

} // namespace cabledoc
