#include "resultsstatus.h"

#include "cablelength.h"
#include "measurementtext.h"
#include "messagetext.h"
#include "resultscolumns.h"
#include "testdef.h"
#include "testtime.h"
#include "units.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace cabledoc {

namespace {

constexpr int pairCount = 4;
using FarPairs = std::array<int, pairCount>;

/// Returns the far-end pairs of all pairs. Results hold the wiring in the same form as a test definition.
FarPairs farPairsIn(const cable_struct &block)
{
    TestDef definition;
    definition.setExpected(block);
    FarPairs farPairs{};
    for (int pair = 0; pair < pairCount; ++pair)
        farPairs[std::size_t(pair)] = definition.getPairTo(pair);
    return farPairs;
}

/// What a test definition demands of its cables.
struct Limits
{
    explicit Limits(const TestDef &definition)
        : name(definition.id())
        , farPairs(farPairsIn(definition.expected()))
        , lengthConstant(definition.length_constant())
        , maximumLength(definition.max_length())
        , skew(definition.skew())
    {
        for (int pair = 0; pair < pairCount; ++pair) {
            if (definition.pair_in_use()[pair])
                pairs.append(pair);
        }
    }

    bool hasLength() const
    {
        // A definition without a rating has a greater length constant, which does not give lengths.
        constexpr int lowestConstant = 1000;
        constexpr int highestConstant = 6500;
        return maximumLength >= 0 && lengthConstant >= lowestConstant && lengthConstant <= highestConstant;
    }
    bool hasSkew() const { return skew > 0; }

    QString name;
    QVector<int> pairs; ///< those in use
    FarPairs farPairs;
    int lengthConstant;
    int maximumLength; ///< in feet, or -1
    int skew;          ///< in tenths of a ns, or 0
};

/// Returns the pins of a pair.
QString pinsOf(int pair)
{
    static const std::array<QString, pairCount> pins{QStringLiteral("1-2"), QStringLiteral("3-6"),
                                                     QStringLiteral("4-5"), QStringLiteral("7-8")};
    return pins[std::size_t(pair)];
}

/// Returns the delay skew in ns that a parameter gives, if it is one that does.
std::optional<double> skewIn(const TestParameter &parameter)
{
    const auto isNamed = [&parameter](const char *name) {
        return parameter.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    bool isNumber = false;
    const double nanoseconds = parameter.value.trimmed().toDouble(&isNumber);
    const bool isSkew = (isNamed("Skew") || isNamed("Delay skew")) && isNumber && std::isfinite(nanoseconds);
    return isSkew ? std::optional<double>(nanoseconds) : std::nullopt;
}

class ResultsChecks
{
    Q_DECLARE_TR_FUNCTIONS(ResultsStatus)

public:
    ResultsChecks(const JobSnapshot &job, const ResultsStatusOptions &options)
        : m_job(job)
        , m_options(options)
        , m_oldest(TestTime::fromText(options.olderThan.toString(Qt::ISODate)))
    {
        m_limits.reserve(std::size_t(job.definitions().size()));
        for (const TestDefFields &definition : job.definitions())
            m_limits.emplace_back(TestDef(definition));
    }

    ResultsStatus check()
    {
        m_status.cables = int(m_job.cables().size());
        for (m_cable = 0; m_cable < m_status.cables; ++m_cable)
            check(m_job.cables().at(m_cable));
        return m_status;
    }

private:
    using Kind = ResultsFinding::Kind;

    void report(Kind kind, const QString &message) { m_status.findings.append({m_cable, kind, message}); }

    void check(const snapshot::Cable &cable)
    {
        const TestDetails details = m_job.testDetails(m_cable);
        checkVerdict(cable.test);
        checkEarlierTests(cable.test);
        checkTime(cable.test);
        const Limits *limits = cable.definition < 0 ? nullptr : &m_limits[std::size_t(cable.definition)];
        if (limits != nullptr && limits->hasLength())
            checkLength(*limits, cable.test.results);
        if (limits != nullptr && limits->hasSkew())
            checkSkew(*limits, details);
        checkWiring(limits, cable.test.results, details);
    }

    static bool isUntested(const MeasurementFields &test) { return test.status == verdicts::Untested; }

    void checkVerdict(const MeasurementFields &test)
    {
        if (isUntested(test))
            report(Kind::Untested, tr("the cable is not tested"));
        else if (test.status == verdicts::Fail)
            report(Kind::Failed, tr("the test has failed"));
        else if (test.status == verdicts::Pass)
            ++m_status.passed;
        else if (test.status == verdicts::PassWithinAccuracy)
            ++m_status.passedWithinAccuracy;
        else
            report(Kind::UnknownVerdict, tr("the verdict \"%1\" is not known").arg(excerpt(test.status)));
    }

    void checkEarlierTests(const MeasurementFields &test)
    {
        if (m_job.earlierTestCount(m_cable) == 0)
            return;
        const QVector<CableTest> earlier = m_job.testHistory(m_cable);
        const auto failed = std::count_if(earlier.cbegin(), earlier.cend(), [](const CableTest &candidate) {
            return candidate.results.status() == verdicts::Fail;
        });
        const auto tests = earlier.size() + (isUntested(test) ? 0 : 1);
        report(Kind::Retested,
               tr("tests: %1, earlier tests that failed: %2").arg(QString::number(tests), QString::number(failed)));
    }

    void checkTime(const MeasurementFields &test)
    {
        if (!m_oldest || isUntested(test))
            return;
        const std::optional<TestTime> time = TestTime::fromText(test.time);
        if (test.time.isEmpty())
            report(Kind::UnreadableTime, tr("the test has no time"));
        else if (!time)
            report(Kind::UnreadableTime, tr("the time \"%1\" cannot be read").arg(excerpt(test.time)));
        else if (*time < *m_oldest)
            report(Kind::Old,
                   tr("the test is of %1, before %2").arg(test.time, m_options.olderThan.toString(Qt::ISODate)));
    }

    void checkLength(const Limits &limits, const cable_struct &results)
    {
        int longest = 0;
        int longestPair = 0;
        for (const int pair : limits.pairs) {
            const int reading = results.pair_length[pair];
            if (isLengthReading(reading) && reading > longest) {
                longest = reading;
                longestPair = pair;
            }
        }
        // The reading is a rounded number. A cable of just the maximum length may have a reading that is a little more.
        const auto feet = double(shownLength(correctedLength(longest, limits.lengthConstant), false));
        if (feet > limits.maximumLength)
            report(Kind::TooLong, tr("pair %1 is %2 long, the maximum length of \"%3\" is %4")
                                      .arg(pinsOf(longestPair), lengthText(feet), excerpt(limits.name),
                                           lengthText(limits.maximumLength)));
    }

    /// Returns a length with its unit. Metres have two decimals, because a tenth of a foot is less than a tenth of
    /// them.
    QString lengthText(double feet) const
    {
        return m_options.metric ? QString::number(feet / feetInAMeter, 'f', 2) + QLatin1String(" m")
                                : QString::number(feet, 'f', 1) + QLatin1String(" ft");
    }

    void checkSkew(const Limits &limits, const TestDetails &details)
    {
        constexpr double tenths = 10.0;
        const double maximum = limits.skew / tenths;
        double greatest = 0.0;
        for (const TestParameter &parameter : details.parameters())
            greatest = std::max(greatest, skewIn(parameter).value_or(0.0));
        const auto shortest = [](double number) {
            return QString::number(number, 'g', QLocale::FloatingPointShortest);
        };
        if (greatest > maximum)
            report(Kind::TooMuchSkew, tr("the skew is %1 ns, the maximum skew of \"%2\" is %3 ns")
                                          .arg(shortest(greatest), excerpt(limits.name), shortest(maximum)));
    }

    void checkWiring(const Limits *limits, const cable_struct &results, const TestDetails &details)
    {
        QStringList faults = limits == nullptr ? QStringList() : wrongPairs(*limits, results);
        if (!details.wireMap().isEmpty())
            faults.append(details.wireMap());
        if (!faults.isEmpty())
            report(Kind::WrongWiring, faults.join(QLatin1String("; ")));
    }

    /// Returns which pairs are not wired as they must be.
    static QStringList wrongPairs(const Limits &limits, const cable_struct &results)
    {
        constexpr quint8 notMeasured = 0xFF;
        const auto isMeasured = [&results](int pair) { return results.wire_map[pair + 1] != notMeasured; };
        QStringList faults;
        if (std::none_of(limits.pairs.cbegin(), limits.pairs.cend(), isMeasured))
            return faults;
        const FarPairs measured = farPairsIn(results);
        for (const int pair : limits.pairs) {
            const int far = measured[std::size_t(pair)];
            const int expected = limits.farPairs[std::size_t(pair)];
            if (far != expected)
                faults.append(tr("pair %1 is wired to %2, and must be wired to %3 in \"%4\"")
                                  .arg(pinsOf(pair), pinsOf(far), pinsOf(expected), excerpt(limits.name)));
        }
        return faults;
    }

    const JobSnapshot &m_job;
    const ResultsStatusOptions m_options;
    const std::optional<TestTime> m_oldest; ///< tests before it are old
    std::vector<Limits> m_limits;           ///< of each test definition
    int m_cable = 0;
    ResultsStatus m_status;
};

} // namespace

int ResultsStatus::count(ResultsFinding::Kind kind) const
{
    return int(std::count_if(findings.cbegin(), findings.cend(),
                             [kind](const ResultsFinding &finding) { return finding.kind == kind; }));
}

ResultsStatus resultsStatusOf(const JobSnapshot &job, const ResultsStatusOptions &options)
{
    return ResultsChecks(job, options).check();
}

} // namespace cabledoc
