#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testresults.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// What a tester says about one parameter of a cable, such as the near-end crosstalk. All texts are as the tester gave
/// them. A text that it did not give is empty.
struct TestParameter
{
    /// Name of the parameter, such as "NEXT".
    QString name;
    /// Worst margin in dB.
    QString margin;
    /// Worst value in the unit of the parameter, such as dB, or ns for a delay.
    QString value;
    /// Frequency of the worst value in MHz.
    QString frequency;
    /// Pair, or pairs, of the worst value.
    QString pair;
    /// End of the cable at which the worst value was measured.
    QString end;
};

/// Returns all fields. Parameters are compared by them.
inline auto members(const TestParameter &parameter)
{
    const auto &[name, margin, value, frequency, pair, end] = parameter;
    return std::tie(name, margin, value, frequency, pair, end);
}

/// Returns true if all fields of both parameters are equal.
inline bool operator==(const TestParameter &a, const TestParameter &b)
{
    return members(a) == members(b);
}

/// The fields of a TestDetails.
struct TestDetailsFields
{
    /// Who tested the cable.
    QString operatorName;
    /// Name of the limit that the tester applied.
    QString limit;
    /// Standard to which the limit belongs.
    QString standard;
    /// Kind of link, such as "permanent link".
    QString linkType;
    /// Nominal velocity of propagation, as a percentage of the speed of light.
    QString nvp;
    /// Temperature in degrees Celsius.
    QString temperature;
    /// The wire map in words, if it has an open, short or split pair.
    QString wireMap;
    /// Name of the file with the tester's own record. The file is in the folder that attachmentFolder() returns.
    QString attachment;
    /// Size of the file in bytes.
    int attachmentSize = 0;
    /// SHA-256 of the file as hexadecimal digits.
    QString attachmentSha256;
    /// Parameters, in the order in which they were stored.
    QVector<TestParameter> parameters;
};

/// Returns all fields. Records are compared by them.
inline auto members(const TestDetailsFields &fields)
{
    const auto &[operatorName, limit, standard, linkType, nvp, temperature, wireMap, attachment, attachmentSize,
                 attachmentSha256, parameters] = fields;
    return std::tie(operatorName, limit, standard, linkType, nvp, temperature, wireMap, attachment, attachmentSize,
                    attachmentSha256, parameters);
}

} // namespace cabledoc

/// What is known of one test of a cable beyond its TestResults: who tested it, by which limit, and what the tester says
/// about each parameter. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT TestDetails : public cabledoc::Record<cabledoc::TestDetailsFields>
{
    Q_OBJECT

public:
    /// Creates details of which nothing is known.
    TestDetails() = default;
    /// Creates details with the given fields.
    explicit TestDetails(const Fields &fields)
        : Record(fields)
    {
    }

    /// Returns who tested the cable.
    const QString &operatorName() const { return m_fields.operatorName; }
    /// Returns the name of the limit that the tester applied.
    const QString &limit() const { return m_fields.limit; }
    /// Returns the standard to which the limit belongs.
    const QString &standard() const { return m_fields.standard; }
    /// Returns the kind of link, such as "permanent link".
    const QString &linkType() const { return m_fields.linkType; }
    /// Returns the nominal velocity of propagation, as a percentage of the speed of light.
    const QString &nvp() const { return m_fields.nvp; }
    /// Returns the temperature in degrees Celsius.
    const QString &temperature() const { return m_fields.temperature; }
    /// Returns the wire map in words, if it has an open, short or split pair.
    const QString &wireMap() const { return m_fields.wireMap; }
    /// Returns the name of the file with the tester's own record.
    const QString &attachment() const { return m_fields.attachment; }
    /// Returns the size of the file in bytes.
    int attachmentSize() const { return m_fields.attachmentSize; }
    /// Returns the SHA-256 of the file as hexadecimal digits.
    const QString &attachmentSha256() const { return m_fields.attachmentSha256; }
    /// Returns the parameters, in the order in which they were stored.
    const QVector<cabledoc::TestParameter> &parameters() const { return m_fields.parameters; }
};

namespace cabledoc {

/// One test of a cable: its results and its details.
struct CableTest
{
    /// What was measured.
    TestResults results;
    /// What is known of the test beyond what was measured.
    TestDetails details;

    /// Returns true if the status is "UNTESTED" and the test has no measurements and no details.
    CABLEDOC_EXPORT bool isEmpty() const;

    /// Returns true if the results and the details of both tests are equal.
    friend bool operator==(const CableTest &a, const CableTest &b)
    {
        return a.results == b.results && a.details == b.details;
    }
    /// Returns true if the results or the details differ.
    friend bool operator!=(const CableTest &a, const CableTest &b) { return !(a == b); }
};

/// Returns the folder with the attachments of the tests of a job: "office.attachments" beside "office.job".
CABLEDOC_EXPORT QString attachmentFolder(const QString &jobFileName);
/// Returns the name of an attachment in that folder. The name begins with a part of the hash, so that different files
/// with the same name have different names there.
CABLEDOC_EXPORT QString attachmentFileName(const QString &name, const QString &sha256);

} // namespace cabledoc
