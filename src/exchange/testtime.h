#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

namespace cabledoc {

/// The time of a test. A time without a zone is compared as it stands, so that the result does not depend on the zone
/// of the computer.
class TestTime
{
public:
    /// Reads a time in ISO 8601, with or without a zone. A date alone stands for its beginning.
    static std::optional<TestTime> fromText(const QString &text);
    /// Reads a time in a format of QDateTime::fromString(). A year with two digits is one after 1969.
    static std::optional<TestTime> fromText(const QString &text, const QString &format);

    /// Returns the time in ISO 8601.
    QString toText() const;
    /// Returns a number that is the same for equal times.
    qint64 milliseconds() const { return m_time.toMSecsSinceEpoch(); }
    /// Returns whether the time is after the present one.
    bool isAfter(const QDateTime &now) const;

    friend bool operator<(const TestTime &a, const TestTime &b) { return a.m_time < b.m_time; }

private:
    TestTime(const QDateTime &time, bool hasZone);

    QDateTime m_time; ///< in UTC; as it stands if it has no zone
    bool m_hasZone;
};

} // namespace cabledoc
