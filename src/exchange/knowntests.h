#pragma once

#include "jobsnapshot.h"
#include "testtime.h"
#include "texthash.h"

#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace cabledoc {

/// A test of a cable as a file holds it. It takes a small part of the memory of a CableTest.
struct StoredTest
{
    QStringList texts; ///< of the attributes of the results
    TestDetails details;

    explicit StoredTest(const CableTest &test);
    CableTest test() const;
    QString time() const;
    QString status() const;
    QString serial() const;

    friend bool operator==(const StoredTest &a, const StoredTest &b)
    {
        return a.texts == b.texts && a.details == b.details;
    }
};

/// The tests of one cable: those of the job, and those that an import adds.
class KnownTests
{
public:
    KnownTests(const JobSnapshot &job, int cable);

    struct Entry
    {
        StoredTest test;
        std::optional<TestTime> time;
        int row; ///< of the table; 0 if the job has the test
    };

    bool isEmpty() const { return m_entries.empty(); }
    /// Returns the current test. There must be one if hasCurrent() holds.
    const Entry &current() const { return m_entries[std::size_t(m_current)]; }
    bool hasCurrent() const { return m_current >= 0; }
    /// Returns the test with the same time and the same tester, or a null pointer if there is none.
    const Entry *find(const Entry &test) const;
    void add(const Entry &entry, bool isCurrent);

private:
    std::vector<Entry> m_entries;
    TextMap<std::size_t> m_positions; ///< in m_entries, by the time and the tester
    int m_current = -1;
};

} // namespace cabledoc
