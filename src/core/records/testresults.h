#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testdata.h"

#include <QtCore/QString>

namespace cabledoc {

struct TestResultsFields
{
    QString time;
    QString softwareVersion; ///< of the tester
    QString serialNumber;    ///< of the tester
    QString status = QStringLiteral("UNTESTED");
    int bertErrors = -1; ///< bit errors counted; -1 when they were not
    cable_struct results = cable_struct::untested();
    TRUEPHY_PLOT_DATA next = {};
    TRUEPHY_PLOT_DATA echo = {};
    TRUEPHY_PLOT_DATA channel = {};

    auto members() const
    {
        const auto &[when, version, serial, verdict, errors, block, nextCurve, echoCurve, channelCurve] = *this;
        return std::tie(when, version, serial, verdict, errors, block, nextCurve, echoCurve, channelCurve);
    }
};

} // namespace cabledoc

/// The results of one test of a cable. A record of some 10 KB. See Record for copying and comparing.
class CABLEDOC_EXPORT TestResults : public cabledoc::Record<cabledoc::TestResultsFields>
{
    Q_OBJECT

public:
    /// An untested cable.
    TestResults() = default;
    explicit TestResults(const Fields &fields);
    /// Time and software version end up empty, whatever is given: callers rely on it.
    TestResults(const QString &time, const QString &status, const cable_struct &results, int bertErrors);
    /// The status comes second. The curves are empty.
    TestResults(const QString &time, const QString &status, const QString &softwareVersion, const QString &serialNumber,
                const cable_struct &results, int bertErrors);
    /// All fields in their order.
    TestResults(const QString &time, const QString &softwareVersion, const QString &serialNumber, const QString &status,
                int bertErrors, const cable_struct &results, const TRUEPHY_PLOT_DATA &next,
                const TRUEPHY_PLOT_DATA &echo, const TRUEPHY_PLOT_DATA &channel);

    const QString &time() const { return m_fields.time; }
    void setTime(const QString &time) { m_fields.time = time; }
    const QString &softwareVersion() const { return m_fields.softwareVersion; }
    void setSoftwareVersion(const QString &version) { m_fields.softwareVersion = version; }
    const QString &serialNumber() const { return m_fields.serialNumber; }
    void setSerialNumber(const QString &serialNumber) { m_fields.serialNumber = serialNumber; }
    const QString &status() const { return m_fields.status; }
    void setStatus(const QString &status) { m_fields.status = status; }
    int BERTResults() const { return m_fields.bertErrors; }
    void setBERTResults(int errors) { m_fields.bertErrors = errors; }
    /// The results block, which can be written through.
    cable_struct &results() { return m_fields.results; }
    const cable_struct &results() const { return m_fields.results; }
    void setResults(const cable_struct &results) { m_fields.results = results; }
    TRUEPHY_PLOT_DATA next() const { return m_fields.next; }
    void setNEXT(const TRUEPHY_PLOT_DATA &curve) { m_fields.next = curve; }
    TRUEPHY_PLOT_DATA echo() const { return m_fields.echo; }
    void setEcho(const TRUEPHY_PLOT_DATA &curve) { m_fields.echo = curve; }
    TRUEPHY_PLOT_DATA channel() const { return m_fields.channel; }
    void setChannel(const TRUEPHY_PLOT_DATA &curve) { m_fields.channel = curve; }

    /// Gives the results block its untested contents.
    void initializeCableStruct();
    /// Empties the three curves; their headers stay.
    void initializeResponsePlotData();
    /// The shortest pair length reading that is above 0 and below 60000; -1 when there is none.
    int cableLength() const;
};
