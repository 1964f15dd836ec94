#include "documentcheck.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QTemporaryDir>

using namespace cabledoc;

/// Tests what the check reports about files.
class DocumentCheckTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    CheckReport check(const QByteArray &content)
    {
        const QString fileName = m_directory.filePath("checked");
        writeFile(fileName, content);
        CheckReport report = checkFile(fileName);
        if (readFile(fileName) != content)
            report.error = "the file was changed";
        return report;
    }

    static QStringList summary(const CheckReport &report)
    {
        QStringList lines;
        for (const Finding &finding : report.findings) {
            const QString line = QString("%1 %2 %3").arg(finding.line).arg(finding.rule, finding.element).trimmed();
            lines.append(finding.message.isEmpty() ? line + " without a message" : line);
        }
        return lines;
    }

private Q_SLOTS:
    void contents_data() { addCases({"cases/check.txt"}); }

    void contents()
    {
        QFETCH(TestCase, testCase);
        const CheckReport report = check(testCase.given);
        QCOMPARE(report.error, QString());
        COMPARE_TEXTS(summary(report).join('\n'), testCase.expectedText(), testCase.place());
    }

    void newJobHasNoFindings() { QCOMPARE(summary(check(testData("new.job"))), QStringList()); }

    void filesThatCannotBeRead()
    {
        const QString mismatch = translated("DocumentCheck", "%1, line %2, column %3: %4");
        QVERIFY(check("<Job>").error.startsWith(mismatch.arg(m_directory.filePath("checked")).arg(1).arg(5).arg("")));
        QVERIFY(!check("").error.isEmpty());
        QVERIFY(checkFile(m_directory.filePath("missing")).error.contains("missing"));
        for (const QString &name : {m_directory.path(), QString()})
            QVERIFY(!checkFile(name).error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(DocumentCheckTest)
#include "tst_documentcheck.moc"
