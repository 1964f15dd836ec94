#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testdata.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a TestResults without the response curves.
struct MeasurementFields
{
    /// Time of the test.
    QString time;
    /// Software version of the tester.
    QString softwareVersion;
    /// Serial number of the tester.
    QString serialNumber;
    /// Result of the test, such as "UNTESTED".
    QString status = QStringLiteral("UNTESTED");
    /// Number of bit errors, or -1 if they were not counted.
    int bertErrors = -1;
    /// Wire map and measurements of the pairs.
    cable_struct results = cable_struct::untested();
};

/// Returns all fields. Records are compared by them.
inline auto members(const MeasurementFields &fields)
{
    const auto &[time, softwareVersion, serialNumber, status, bertErrors, results] = fields;
    return std::tie(time, softwareVersion, serialNumber, status, bertErrors, results);
}

/// Returns the shortest length reading of all pairs that is above 0 and below 60000, or -1 if there is none.
CABLEDOC_EXPORT int shortestReading(const cable_struct &results);
/// Returns whether the results are those of an untested cable, as a file can hold them.
CABLEDOC_EXPORT bool isUntested(const cable_struct &results);

/// The fields of a TestResults.
struct TestResultsFields : MeasurementFields
{
    /// Curve of the near-end crosstalk.
    TRUEPHY_PLOT_DATA next = {};
    /// Curve of the echo.
    TRUEPHY_PLOT_DATA echo = {};
    /// Curve of the channel.
    TRUEPHY_PLOT_DATA channel = {};
};

/// Returns all fields. Records are compared by them.
inline auto members(const TestResultsFields &fields)
{
    return std::tuple_cat(members(static_cast<const MeasurementFields &>(fields)),
                          std::tie(fields.next, fields.echo, fields.channel));
}

} // namespace cabledoc

/// The results of one test of a cable.
///
/// A record takes about 10 KB of memory. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT TestResults : public cabledoc::Record<cabledoc::TestResultsFields>
{
    Q_OBJECT

public:
    /// Creates the results of an untested cable: status "UNTESTED", -1 bit errors, an untested block and empty curves.
    TestResults() = default;
    /// Creates results with the given fields.
    explicit TestResults(const Fields &fields);
    /// Creates results with the given status, block and number of bit errors. The time and the software version are
    /// empty, whatever is given as the time: callers rely on this. The curves are empty.
    TestResults(const QString &time, const QString &status, const cable_struct &results, int bertErrors);
    /// Creates results with empty curves. Note that the status is the second argument.
    TestResults(const QString &time, const QString &status, const QString &softwareVersion, const QString &serialNumber,
                const cable_struct &results, int bertErrors);
    /// Creates results from their parts, in the order of the fields.
    TestResults(const QString &time, const QString &softwareVersion, const QString &serialNumber, const QString &status,
                int bertErrors, const cable_struct &results, const TRUEPHY_PLOT_DATA &next,
                const TRUEPHY_PLOT_DATA &echo, const TRUEPHY_PLOT_DATA &channel);

    /// Returns the time of the test.
    const QString &time() const { return m_fields.time; }
    /// Sets the time of the test.
    void setTime(const QString &time) { m_fields.time = time; }
    /// Returns the software version of the tester.
    const QString &softwareVersion() const { return m_fields.softwareVersion; }
    /// Sets the software version of the tester.
    void setSoftwareVersion(const QString &version) { m_fields.softwareVersion = version; }
    /// Returns the serial number of the tester.
    const QString &serialNumber() const { return m_fields.serialNumber; }
    /// Sets the serial number of the tester.
    void setSerialNumber(const QString &serialNumber) { m_fields.serialNumber = serialNumber; }
    /// Returns the status of the test, such as "UNTESTED".
    const QString &status() const { return m_fields.status; }
    /// Sets the status of the test.
    void setStatus(const QString &status) { m_fields.status = status; }
    /// Returns the number of bit errors, or -1 if they were not counted.
    int BERTResults() const { return m_fields.bertErrors; }
    /// Sets the number of bit errors. -1 means that they were not counted.
    void setBERTResults(int errors) { m_fields.bertErrors = errors; }
    /// Returns a reference to the block of measurements, through which it can be changed.
    cable_struct &results() { return m_fields.results; }
    /// Returns the block of measurements.
    const cable_struct &results() const { return m_fields.results; }
    /// Sets the block of measurements.
    void setResults(const cable_struct &results) { m_fields.results = results; }
    /// Returns the curve of the near-end crosstalk.
    TRUEPHY_PLOT_DATA next() const { return m_fields.next; }
    /// Sets the curve of the near-end crosstalk.
    void setNEXT(const TRUEPHY_PLOT_DATA &curve) { m_fields.next = curve; }
    /// Returns the curve of the echo.
    TRUEPHY_PLOT_DATA echo() const { return m_fields.echo; }
    /// Sets the curve of the echo.
    void setEcho(const TRUEPHY_PLOT_DATA &curve) { m_fields.echo = curve; }
    /// Returns the curve of the channel.
    TRUEPHY_PLOT_DATA channel() const { return m_fields.channel; }
    /// Sets the curve of the channel.
    void setChannel(const TRUEPHY_PLOT_DATA &curve) { m_fields.channel = curve; }

    /// Replaces the block of measurements by that of an untested cable.
    void initializeCableStruct();
    /// Sets all samples and counts of the three curves to 0. The headers of the curves stay as they are.
    void initializeResponsePlotData();
    /// Returns the shortest length reading of all pairs that is above 0 and below 60000, or -1 if there is none.
    int cableLength() const;
};
