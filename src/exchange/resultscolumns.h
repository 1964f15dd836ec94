#pragma once

#include "testdetails.h"
#include "verdicts.h"

#include <QtCore/QString>
#include <QtCore/QVector>

#include <optional>

namespace cabledoc {

/// The columns of tables of test results.
enum class ResultsColumn {
    CableId,
    ActivePort,
    TestedAt,
    Verdict,
    State,
    TesterSerial,
    TesterVersion,
    TestType,
    Length12,
    Length36,
    Length45,
    Length78,
    LengthUnit,
    WireMap,
    BitErrors,
    ResultsBlock,
    NextCurve,
    EchoCurve,
    ChannelCurve,
    Operator,
    Limit,
    Standard,
    LinkType,
    Nvp,
    Temperature,
    Attachment,
    AttachmentSize,
    AttachmentSha256,
    LinkSpeed,
    Duplex,
    PeerAddress,
    Count,
};

/// Returns the name of a column.
QString resultsColumnName(ResultsColumn column);
/// Returns the column with a name, or nothing if there is none.
std::optional<ResultsColumn> resultsColumnOfName(const QString &name);
/// Returns whether the table of tests of cables, or that of tests of active ports, has the column.
bool isColumnOf(ResultsColumn column, bool ofActivePorts);
/// Returns the column with the length of a pair.
ResultsColumn lengthColumn(int pair);

/// A column that holds a text of a test's details as it is.
struct DetailColumn
{
    ResultsColumn column;
    QString TestDetailsFields::*field;
};
const QVector<DetailColumn> &detailColumns();

/// A column that holds a part of a parameter, such as "m:NEXT".
struct ParameterColumn
{
    QString prefix; ///< such as "m:"
    QString TestParameter::*field;
    bool isNumber;
};
const QVector<ParameterColumn> &parameterColumns();

/// What a table says if a test is not to become the current one.
inline const QString earlierState = QStringLiteral("earlier");

} // namespace cabledoc
