#include "knowntests.h"

#include "jobattributes.h"
#include "jobwords.h"

namespace cabledoc {

namespace {

QString textOf(const StoredTest &test, const QString &attribute)
{
    static const QStringList names = testResultsAttributes().names();
    return test.texts.value(int(names.indexOf(attribute)));
}

/// Returns a text that only tests of the same time and the same tester have. A time that cannot be read stands for
/// itself.
QString identityOf(const KnownTests::Entry &entry)
{
    const QString time = entry.time ? QString::number(entry.time->milliseconds())
                                    : QLatin1Char('"') + entry.test.time() + QLatin1Char('"');
    return time + QLatin1Char(' ') + entry.test.serial();
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
    const auto found = m_positions.find(identityOf(test));
    return found == m_positions.end() ? nullptr : &m_entries[found->second];
}

void KnownTests::add(const Entry &entry, bool isCurrent)
{
    if (isCurrent)
        m_current = int(m_entries.size());
    m_positions.insert({identityOf(entry), m_entries.size()});
    m_entries.push_back(entry);
}

} // namespace cabledoc
