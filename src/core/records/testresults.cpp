#include "testresults.h"

#include <algorithm>
#include <iterator>

TestResults::TestResults(const Fields &fields)
    : Record(fields)
{
}

TestResults::TestResults(const QString &time, const QString &status, const cable_struct &results, int bertErrors)
    : TestResults(time, status, QString(), QString(), results, bertErrors)
{
    // This is deliberate: the first argument is not kept.
    m_fields.time.clear();
}

TestResults::TestResults(const QString &time, const QString &status, const QString &softwareVersion,
                         const QString &serialNumber, const cable_struct &results, int bertErrors)
{
    m_fields.time = time;
    m_fields.softwareVersion = softwareVersion;
    m_fields.serialNumber = serialNumber;
    m_fields.status = status;
    m_fields.bertErrors = bertErrors;
    m_fields.results = results;
}

TestResults::TestResults(const QString &time, const QString &softwareVersion, const QString &serialNumber,
                         const QString &status, int bertErrors, const cable_struct &results,
                         const TRUEPHY_PLOT_DATA &next, const TRUEPHY_PLOT_DATA &echo, const TRUEPHY_PLOT_DATA &channel)
    : Record({{time, softwareVersion, serialNumber, status, bertErrors, results}, next, echo, channel})
{
}

void TestResults::initializeCableStruct()
{
    m_fields.results = cable_struct::untested();
}

void TestResults::initializeResponsePlotData()
{
    for (TRUEPHY_PLOT_DATA *curve : {&m_fields.next, &m_fields.echo, &m_fields.channel}) {
        std::fill(std::begin(curve->plot_a), std::end(curve->plot_a), 0);
        std::fill(std::begin(curve->plot_b), std::end(curve->plot_b), 0);
        curve->count = 0;
    }
}

int TestResults::cableLength() const
{
    return cabledoc::shortestReading(m_fields.results);
}

bool cabledoc::isUntested(const cable_struct &results)
{
    const auto areUnset = [](const auto &codes) {
        return std::all_of(std::begin(codes), std::end(codes), [](quint8 code) { return code == 0xFF; });
    };
    // A file holds the lower 16 bits of a word.
    const auto hasNoWords = [](const auto &words) {
        return std::all_of(std::begin(words), std::end(words), [](qint32 word) { return (word & 0xFFFF) == 0xFFFF; });
    };
    const quint8 codes[] = {results.map_flag, results.byte_c, results.byte_d};
    return areUnset(results.flag_bytes) && areUnset(results.wire_map) && areUnset(codes)
           && hasNoWords(results.word_group_a) && hasNoWords(results.pair_length) && hasNoWords(results.word_group_c)
           && hasNoWords(results.word_group_d);
}

int cabledoc::shortestReading(const cable_struct &results)
{
    constexpr int notMeasured = 60000;
    int shortest = notMeasured;
    for (const qint32 length : results.pair_length) {
        if (length > 0 && length < shortest)
            shortest = length;
    }
    return shortest == notMeasured ? -1 : shortest;
}
