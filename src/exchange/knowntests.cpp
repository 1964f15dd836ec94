#include "knowntests.h"

#include "jobattributes.h"
#include "jobwords.h"

#include <algorithm>

namespace cabledoc {

namespace {

QString textOf(const StoredTest &test, const QString &attribute)
{
    static const QStringList names = testResultsAttributes().names();
    return test.texts.value(int(names.indexOf(attribute)));
}

} // namespace

StoredTest::StoredTest(const CableTest &test)
    : details(test.details)
{
    const TestResultsFields &fields = test.results.fields();
    for (const AttributeRow &row : testResultsAttributes().rows())
        texts.append(row.text(&fields));
}

CableTest StoredTest::test() const
{
    TestResultsFields fields;
    const auto &rows = testResultsAttributes().rows();
    for (int i = 0; i < rows.size(); ++i)
        rows.at(i).parse(texts.at(i), &fields);
    return {TestResults(fields), details};
}

QString StoredTest::time() const
{
    return textOf(*this, words::Time);
}

QString StoredTest::status() const
{
    return textOf(*this, words::Status);
}

QString StoredTest::serial() const
{
    return textOf(*this, words::Serial);
}

KnownTests::KnownTests(const JobSnapshot &job, int cable)
{
    const auto addTest = [this](const CableTest &test, bool isCurrent) {
        const StoredTest stored(test);
        add({stored, TestTime::fromText(stored.time()), 0}, isCurrent);
    };
    for (const CableTest &test : job.testHistory(cable))
        addTest(test, false);
    const CableTest current{job.testResults(cable), job.testDetails(cable)};
    if (!current.isEmpty())
        addTest(current, true);
}

const KnownTests::Entry *KnownTests::find(const Entry &test) const
{
    const auto isSameTest = [&test](const Entry &other) {
        const bool isSameTime =
            test.time && other.time ? *test.time == *other.time : test.test.time() == other.test.time();
        return isSameTime && test.test.serial() == other.test.serial();
    };
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(), isSameTest);
    return found == m_entries.cend() ? nullptr : &*found;
}

void KnownTests::add(const Entry &entry, bool isCurrent)
{
    if (isCurrent)
        m_current = int(m_entries.size());
    m_entries.push_back(entry);
}

} // namespace cabledoc
