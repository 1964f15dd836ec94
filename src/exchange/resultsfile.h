#pragma once

#include "csvtext.h"
#include "resultscolumns.h"
#include "resultsmapping.h"
#include "texthash.h"

#include <array>
#include <vector>

namespace cabledoc {

/// A table of test results as it was read. Its heading has been checked.
class ResultsFile
{
public:
    /// A parameter, and the fields of its columns in the order of parameterColumns(). A field is -1 if the table lacks
    /// it.
    struct Parameter
    {
        QString name;
        QVector<int> fields;
    };

    ResultsFile(const QByteArray &csv, const CsvOptions &options, const ResultsMapping &mapping);

    const QString &error() const { return m_error; }
    const QVector<CsvProblem> &problems() const { return m_problems; }
    const std::vector<CsvRow> &rows() const { return m_rows; }
    const QStringList &heading() const { return m_heading; }
    char delimiter() const { return m_delimiter; }
    bool isOfActivePorts() const { return m_isOfActivePorts; }
    /// Returns the parameters in the order of their names.
    const std::vector<Parameter> &parameters() const { return m_parameters; }
    /// Returns the number of the field of a column, from 0, or -1 if the table lacks it.
    int fieldOf(ResultsColumn column) const { return m_fields[std::size_t(column)]; }
    /// Returns the field of a row without blanks at its ends. Returns an empty text if there is none.
    QString field(const CsvRow &row, ResultsColumn column) const { return field(row, fieldOf(column)); }
    static QString field(const CsvRow &row, int number) { return row.fields.value(number).trimmed(); }

private:
    bool readHeading(const CsvRow &heading);
    void readColumnName(const QString &heading, int field);
    bool addParameterColumn(const QString &name, int field);
    void requireColumns();
    void report(int field, const QString &message);

    const ResultsMapping &m_mapping;
    TextMap<QStringList> m_columnsOfHeading; ///< the columns that the mapping gives for a heading
    TextMap<std::size_t> m_parameterOfName;  ///< position in m_parameters while the heading is read
    QString m_error;
    QVector<CsvProblem> m_problems;
    QStringList m_heading;
    std::vector<CsvRow> m_rows;
    std::vector<Parameter> m_parameters;
    std::array<int, std::size_t(ResultsColumn::Count)> m_fields;
    char m_delimiter = ',';
    bool m_isOfActivePorts = false;
};

} // namespace cabledoc
