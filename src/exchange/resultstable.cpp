#include "resultstable.h"

#include "jobsnapshot.h"
#include "measurementtext.h"
#include "resultscolumns.h"

#include <QtCore/QMap>

#include <algorithm>
#include <array>
#include <vector>

namespace cabledoc {

namespace {

/// A row of a table of results: the texts of its fields, by the names of their columns.
struct ResultsRow
{
    std::array<QString, std::size_t(ResultsColumn::Count)> fields;
    QMap<QString, QVector<QString>> parameters; ///< by their names, in the order of parameterColumns()

    QString &operator[](ResultsColumn column) { return fields[std::size_t(column)]; }
    const QString &operator[](ResultsColumn column) const { return fields[std::size_t(column)]; }
};

/// Returns whether a table would give the same block again from the lengths and the wire map.
bool isPlain(const cable_struct &block, int lengthConstant)
{
    cable_struct rest = block;
    for (qint32 &length : rest.pair_length) {
        const bool isMeasured = isLengthReading(length) && isUsableLengthConstant(lengthConstant);
        length = isMeasured ? 0xFFFF : length;
    }
    for (int pair = 1; pair <= 4; ++pair)
        rest.wire_map[pair] = rest.wire_map[pair] < 4 ? quint8(0xFF) : rest.wire_map[pair];
    return isUntested(rest);
}

void addMeasurements(const TestResults &results, int lengthConstant, bool metric, ResultsRow *row)
{
    const cable_struct &block = results.results();
    if (!isPlain(block, lengthConstant)) {
        (*row)[ResultsColumn::ResultsBlock] = blockText(block);
        return;
    }
    for (int pair = 0; pair < 4; ++pair) {
        if (block.pair_length[pair] == 0xFFFF)
            continue;
        (*row)[lengthColumn(pair)] = lengthText(block.pair_length[pair], lengthConstant, metric);
        (*row)[ResultsColumn::LengthUnit] = metric ? QStringLiteral("m") : QStringLiteral("ft");
    }
    (*row)[ResultsColumn::WireMap] = wireMapText(block);
}

void addDetails(const TestDetails &details, ResultsRow *row)
{
    const TestDetailsFields &fields = details.fields();
    for (const DetailColumn &column : detailColumns())
        (*row)[column.column] = fields.*column.field;
    if (!fields.wireMap.isEmpty())
        (*row)[ResultsColumn::WireMap] = fields.wireMap;
    if (!fields.attachment.isEmpty()) {
        (*row)[ResultsColumn::Attachment] = fields.attachment;
        (*row)[ResultsColumn::AttachmentSize] = QString::number(fields.attachmentSize);
        (*row)[ResultsColumn::AttachmentSha256] = fields.attachmentSha256;
    }
    for (const TestParameter &parameter : fields.parameters) {
        QVector<QString> &texts = row->parameters[parameter.name];
        texts.clear();
        for (const ParameterColumn &column : parameterColumns())
            texts.append(parameter.*column.field);
    }
}

ResultsRow rowOf(const QString &cable, const CableTest &test, int lengthConstant, bool metric)
{
    ResultsRow row;
    const TestResults &results = test.results;
    row[ResultsColumn::CableId] = cable;
    row[ResultsColumn::TestedAt] = results.time();
    row[ResultsColumn::Verdict] = results.status();
    row[ResultsColumn::TesterSerial] = results.serialNumber();
    row[ResultsColumn::TesterVersion] = results.softwareVersion();
    if (results.BERTResults() >= 0)
        row[ResultsColumn::BitErrors] = QString::number(results.BERTResults());
    addMeasurements(results, lengthConstant, metric, &row);
    row[ResultsColumn::NextCurve] = curveText(results.next());
    row[ResultsColumn::EchoCurve] = curveText(results.echo());
    row[ResultsColumn::ChannelCurve] = curveText(results.channel());
    addDetails(test.details, &row);
    return row;
}

/// Returns the rows as a table with the columns that hold something.
QByteArray tableOf(const std::vector<ResultsRow> &rows, bool ofActivePorts, const CsvStyle &style)
{
    const auto &parts = parameterColumns();
    std::array<bool, std::size_t(ResultsColumn::Count)> isUsed{};
    QMap<QString, QVector<bool>> usedParts;
    for (const ResultsColumn column : {ofActivePorts ? ResultsColumn::ActivePort : ResultsColumn::CableId,
                                       ResultsColumn::TestedAt, ResultsColumn::Verdict})
        isUsed[std::size_t(column)] = true;
    for (const ResultsRow &row : rows) {
        for (std::size_t column = 0; column < isUsed.size(); ++column)
            isUsed[column] = isUsed[column] || !row.fields[column].isEmpty();
        for (auto parameter = row.parameters.cbegin(); parameter != row.parameters.cend(); ++parameter) {
            QVector<bool> &used = usedParts[parameter.key()];
            used.resize(parts.size());
            for (int part = 0; part < parts.size(); ++part)
                used[part] = used.at(part) || !parameter.value().at(part).isEmpty();
        }
    }
    const auto fieldsOf = [&](const ResultsRow *row) {
        QStringList fields;
        for (std::size_t column = 0; column < isUsed.size(); ++column) {
            if (isUsed[column])
                fields.append(row == nullptr ? resultsColumnName(ResultsColumn(column)) : row->fields[column]);
        }
        for (auto parameter = usedParts.cbegin(); parameter != usedParts.cend(); ++parameter) {
            for (int part = 0; part < parts.size(); ++part) {
                if (parameter.value().at(part))
                    fields.append(row == nullptr ? parts.at(part).prefix + parameter.key()
                                                 : row->parameters.value(parameter.key()).value(part));
            }
        }
        return fields;
    };
    QByteArray table = csvBeginning(style) + csvLine(fieldsOf(nullptr), style);
    for (const ResultsRow &row : rows)
        table += csvLine(fieldsOf(&row), style);
    return table;
}

} // namespace

QByteArray exportResults(const JobSnapshot &job, const ResultsExportOptions &options)
{
    std::vector<ResultsRow> rows;
    for (int position = 0; position < job.cables().size(); ++position) {
        const snapshot::Cable &cable = job.cables().at(position);
        const int lengthConstant =
            cable.definition < 0 ? 0 : TestDef(job.definitions().at(cable.definition)).length_constant();
        for (const CableTest &test : job.testHistory(position)) {
            rows.push_back(rowOf(cable.id, test, lengthConstant, options.metric));
            rows.back()[ResultsColumn::State] = earlierState;
        }
        const CableTest current{job.testResults(position), job.testDetails(position)};
        if (!current.isEmpty())
            rows.push_back(rowOf(cable.id, current, lengthConstant, options.metric));
    }
    return tableOf(rows, false, options.style);
}

QByteArray exportActiveResults(const JobSnapshot &job, const CsvStyle &style)
{
    std::vector<ResultsRow> rows;
    for (const snapshot::ActivePort &port : job.activePorts()) {
        for (const ActiveTestResult &test : port.results) {
            ResultsRow row;
            row[ResultsColumn::ActivePort] = port.id;
            row[ResultsColumn::TestedAt] = test.time();
            row[ResultsColumn::Verdict] = test.status();
            if (test.linkSpeed() != 0)
                row[ResultsColumn::LinkSpeed] = QString::number(test.linkSpeed());
            row[ResultsColumn::Duplex] = test.duplex();
            row[ResultsColumn::PeerAddress] = test.address();
            for (const auto &[name, value] : test.values()) {
                QVector<QString> &texts = row.parameters[name];
                texts.resize(parameterColumns().size());
                for (int part = 0; part < parameterColumns().size(); ++part) {
                    if (parameterColumns().at(part).field == &TestParameter::value)
                        texts[part] = value;
                }
            }
            rows.push_back(row);
        }
    }
    return tableOf(rows, true, style);
}

} // namespace cabledoc
