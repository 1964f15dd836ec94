#include "csvtext.h"
#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "measurementtext.h"
#include "resultsplan.h"
#include "resultstable.h"
#include "testcases.h"
#include "testtime.h"
#include "units.h"

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtXml/QDomDocument>

#include <algorithm>
#include <numeric>
#include <random>

using namespace cabledoc;

/// Tests the import and export of test results in open documents. The sessions of the program test the same with files.
class ResultsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    std::mt19937 m_random{42};

    int number(int count) { return int(m_random() % unsigned(count)); }

    /// Opens a job with four cables. Their type has the length constant, and that of "D" has none.
    JobEditor &openJob(const QString &name, double lengthConstant = 1420)
    {
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        if (!job.New(m_directory.filePath(name)))
            qFatal("no job: %s", qPrintable(job.error()));
        TestDef definition("CAT6");
        definition.setLengthConstant(float(lengthConstant));
        job.addTestDef(definition);
        for (const char *id : {"A", "B", "C", "D"})
            job.addCable("", id, "data", "", "", QString(id) == "D" ? "" : "CAT6", addmode::GivenId);
        return job;
    }

    /// Imports a table, and returns the number of new tests, or the messages of the problems.
    static QString import(JobEditor &job, const QByteArray &csv, const ResultsOptions &options = {})
    {
        const ResultsPlan plan(JobSnapshot(job), csv, options);
        QStringList messages{plan.error()};
        for (const CsvProblem &problem : plan.problems())
            messages.append(problem.message);
        const QByteArray before = JobEditorProbe(job).text();
        plan.applyTo(job);
        if (plan.changes().isEmpty() != (JobEditorProbe(job).text() == before))
            messages.append("the changes are not those of the job");
        messages.removeAll(QString());
        return messages.isEmpty() ? QString::number(plan.changes().size()) : messages.join('\n');
    }

    /// Returns a row of a test with random measurements.
    QString randomRow(int second)
    {
        const QStringList verdicts{"PASS", "PASS*", "FAIL", "UNTESTED", "Aborted"};
        const QStringList wireMaps{"", "12>12 36>36 45>45 78>78", "12>36 36>12", "12>12 36 open", "short"};
        const QString id = QString("ABCD").mid(number(4), 1);
        QStringList fields{id,
                           QString("2026-01-01T00:%1:%2")
                               .arg(second / 60, 2, 10, QLatin1Char('0'))
                               .arg(second % 60, 2, 10, QLatin1Char('0')),
                           verdicts.at(number(5)), number(5) == 0 ? "earlier" : "", QString::number(number(2))};
        const bool hasBlock = number(4) == 0;
        const bool hasLengths = !hasBlock && id != "D";
        for (int pair = 0; pair < 4; ++pair)
            fields.append(hasLengths && number(3) > 0 ? QString::number(number(2000) / 10.0 + 0.1) : QString());
        fields.append(number(2) == 0 ? "m" : "ft");
        fields.append(hasBlock ? QString() : wireMaps.at(number(5)));
        QString block;
        while (hasBlock && block.size() < 96)
            block += QString("0123456789ABCDEF").mid(number(16), 1);
        fields.append(block);
        fields.append(number(3) == 0 ? QString::number(number(99)) : QString());
        fields.append(number(3) == 0 ? "line\nbreak, \"quoted\" \u00fc" : "");
        for (int part = 0; part < 3; ++part)
            fields.append(number(3) == 0 ? QString::number(number(99)) : QString());
        return QString::fromUtf8(csvLine(fields));
    }
    QByteArray randomTable(int rows)
    {
        QByteArray table = headingOfRows();
        std::vector<int> seconds(std::size_t(rows), 0);
        std::iota(seconds.begin(), seconds.end(), 0);
        std::shuffle(seconds.begin(), seconds.end(), m_random);
        for (const int second : seconds)
            table += randomRow(second).toUtf8();
        return table;
    }
    static QByteArray headingOfRows()
    {
        return "cable_id,tested_at,verdict,state,tester_serial,length_12,length_36,length_45,length_78,"
               "length_unit,wiremap,results_block,bit_errors,operator,m:RL,p:NEXT,v:NEXT\n";
    }

    /// Returns the cable, the time and the tester of each failed test in a file, without the code that reads jobs.
    static QSet<QString> failuresIn(const QString &fileName)
    {
        QSet<QString> failures;
        QDomDocument document;
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(QString::fromLatin1(file.readAll())))
            qFatal("no file: %s", qPrintable(fileName));
        for (const char *name : {"Test_Results", "Earlier_Test"}) {
            const QDomNodeList tests = document.elementsByTagName(name);
            for (int i = 0; i < tests.size(); ++i) {
                const QDomElement test = tests.at(i).toElement();
                QDomNode cable = test.parentNode();
                if (cable.nodeName() == "Test_History")
                    cable = cable.parentNode();
                if (test.attribute("status") == "FAIL")
                    failures.insert(cable.toElement().attribute("id") + ' ' + test.attribute("time") + ' '
                                    + test.attribute("serial"));
            }
        }
        return failures;
    }

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void lengthsComeBack()
    {
        for (int lengthConstant = 1000; lengthConstant <= 6500; lengthConstant += 275) {
            for (int decimetres = 1; decimetres <= 2000; decimetres += 7) {
                const double feet = decimetres / 10.0 * feetInAMeter;
                const std::optional<int> reading = readingOf(feet, lengthConstant);
                QVERIFY(reading.has_value());
                for (const bool metric : {false, true}) {
                    const double factor = metric ? feetInAMeter : 1.0;
                    const double length = lengthText(*reading, lengthConstant, metric).toDouble() * factor;
                    QVERIFY2(std::abs(length - feet) <= 0.1, qPrintable(QString::number(length - feet)));
                    QCOMPARE(readingOf(length, lengthConstant), reading);
                }
            }
        }
        QVERIFY(!readingOf(0.0, 1420) && !readingOf(-3.0, 1420) && !readingOf(60000.0, 100));
    }

    void times_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("2026-11-20T14:05:00") << "2026-11-20T14:05:00";
        QTest::newRow("2026-11-20 14:05") << "2026-11-20T14:05:00";
        QTest::newRow("2026-11-20") << "2026-11-20T00:00:00";
        QTest::newRow("2026-11-20T14:05:00.250+01:30") << "2026-11-20T12:35:00.250Z";
        QTest::newRow("2026-11-20T14:05:00-05") << "2026-11-20T19:05:00Z";
        for (const char *wrong : {"", "2026", "2026-13-01", "2026-02-30", "2026-01-01T25:00:00", "20.11.2026",
                                  "2026-01-01T14:05:00 ", "2026-01-01T14", "x2026-01-01"})
            QTest::newRow(wrong) << QString();
    }
    void times()
    {
        QFETCH(QString, stored);
        const std::optional<TestTime> time = TestTime::fromText(QTest::currentDataTag());
        QCOMPARE(time.has_value(), !stored.isEmpty());
        if (time)
            QCOMPARE(time->toText(), stored);
    }

    void timesOfOtherPrograms()
    {
        QCOMPARE(TestTime::fromText("11/20/26 2:05 PM", "MM/dd/yy h:mm AP")->toText(), QString("2026-11-20T14:05:00"));
        QVERIFY(!TestTime::fromText("20/11/26", "MM/dd/yy"));
        QVERIFY(!TestTime::fromText("-0044-03-15", "yyyy-MM-dd"));
        QCOMPARE(TestTime::fromText("2026-05-03 14:05 +02:00", "yyyy-MM-dd hh:mm t")->toText(),
                 QString("2026-05-03T12:05:00Z"));
        // An hour that is missing where the computer is.
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        const std::optional<TestTime> missing = TestTime::fromText("29.03.2026 02:30", "dd.MM.yyyy hh:mm");
        qunsetenv("TZ");
        QCOMPARE(missing ? missing->toText() : QString(), QString("2026-03-29T02:30:00"));
        // A time of the summer that exists nowhere in Europe stands as it is.
        QVERIFY(*TestTime::fromText("2026-03-29T02:30:00") < *TestTime::fromText("2026-03-29T02:30:01"));
        const QDateTime now(QDate(2026, 1, 1), QTime(12, 0));
        QVERIFY(TestTime::fromText("2026-01-01T12:00:01")->isAfter(now));
        QVERIFY(!TestTime::fromText("2026-01-01T12:00:00")->isAfter(now));
    }

    /// What is exported makes the same job again, with the same bytes.
    void exportIsTheInverseOfTheImport()
    {
        for (int round = 0; round < 25; ++round) {
            JobEditor &job = openJob("a.job", 1000 + number(5500));
            for (int table = 0; table < 3; ++table) {
                ResultsOptions options;
                options.retest = number(2) == 0 ? RetestRule::Latest : RetestRule::Worst;
                const QByteArray csv = randomTable(1 + number(20));
                const QByteArray before = JobEditorProbe(job).text();
                bool isNumber = false;
                import(job, csv, options).toInt(&isNumber);
                QVERIFY(isNumber || JobEditorProbe(job).text() == before);
                QCOMPARE(isNumber ? import(job, csv, options) : QString("0"), QString("0"));
                QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
            }
            const QByteArray text = JobEditorProbe(job).text();
            const JobSnapshot original(job);
            const double lengthConstant = job.getTestDef("CAT6").length_constant();
            for (const bool metric : {false, true}) {
                ResultsExportOptions options;
                options.metric = metric;
                const QByteArray csv = exportResults(original, options);
                JobEditor &copy = openJob("a.job", lengthConstant);
                QVERIFY(!import(copy, csv).contains('\n'));
                COMPARE_TEXTS(QString(JobEditorProbe(copy).text()), QString(text), QString(csv));
                QCOMPARE(exportResults(JobSnapshot(copy), options), csv);
            }
        }
    }

    /// Whatever is imported later and by whatever rule, a saved file has every failed test.
    void failedTestsDoNotDisappear()
    {
        int retested = 0;
        for (int round = 0; round < 40; ++round) {
            JobEditor &job = openJob("a.job");
            QSet<QString> failures; // cables, times and testers
            QByteArrayList tables;
            for (int count = 1 + number(12); count > 0; --count) {
                QByteArray table = headingOfRows();
                QSet<QString> failuresOfTable;
                for (int row = 1 + number(4); row > 0; --row) {
                    const QString text = randomRow(number(3600));
                    const QStringList fields = text.split(',');
                    table += text.toUtf8();
                    if (fields.at(2) == "FAIL")
                        failuresOfTable.insert(fields.at(0) + ' ' + fields.at(1) + ' ' + fields.at(4));
                }
                tables.append(table);
                ResultsOptions options;
                options.retest = RetestRule(number(3));
                bool isImported = false;
                import(job, table, options).toInt(&isImported);
                if (isImported)
                    failures += failuresOfTable;
                // A table that was imported or refused before.
                import(job, tables.at(number(int(tables.size()))), options);
            }
            QVERIFY(job.save());
            const QSet<QString> saved = failuresIn(job.filename());
            QVERIFY2(saved.contains(failures), qPrintable(QStringList((failures - saved).values()).join(", ")));
            for (const char *id : {"A", "B", "C", "D"})
                retested += int(job.getCableTestHistory(id).size());
        }
        QVERIFY(retested > 200);
    }

    void rulesForRetests()
    {
        // The verdict of the current test before, that of the row, the rule, and whether the row is later.
        const struct
        {
            const char *before;
            const char *row;
            RetestRule rule;
            bool isLater;
            bool isCurrent;
        } cases[] = {
            {"FAIL", "PASS", RetestRule::Latest, true, true},  {"PASS", "FAIL", RetestRule::Latest, false, false},
            {"FAIL", "PASS", RetestRule::Worst, true, false},  {"PASS", "FAIL", RetestRule::Worst, false, true},
            {"PASS", "PASS*", RetestRule::Worst, false, true}, {"PASS*", "Odd", RetestRule::Worst, false, true},
            {"Odd", "PASS", RetestRule::Worst, true, false},   {"FAIL", "FAIL", RetestRule::Worst, true, true},
            {"FAIL", "FAIL", RetestRule::Worst, false, false},
        };
        for (const auto &row : cases) {
            JobEditor &job = openJob("a.job");
            const QByteArray heading = "cable_id,tested_at,verdict\n";
            QCOMPARE(import(job, heading + "A,2026-01-02," + row.before), QString("1"));
            ResultsOptions options;
            options.retest = row.rule;
            const QByteArray day = row.isLater ? "3" : "1";
            QCOMPARE(import(job, heading + "A,2026-01-0" + day + ',' + row.row, options), QString("1"));
            const JobSnapshot after(job);
            const QString current = after.cables().at(0).test.time;
            QVERIFY2((current == "2026-01-0" + day) == row.isCurrent, qPrintable(QString(row.before) + ' ' + row.row));
            QCOMPARE(after.earlierTestCount(0), 1);
        }
    }

    void ambiguousIdsAndOtherTests()
    {
        JobEditor &job = openJob("a.job");
        const QByteArray heading = "cable_id,tested_at,verdict,bit_errors,length_12,length_unit\n";
        QCOMPARE(import(job, heading + "A,2026-01-01,PASS,1,,\n"), QString("1"));
        // The same time and tester, but other values.
        QVERIFY(!import(job, heading + "A,2026-01-01T00:00:00,PASS,2,,\n").contains(QRegularExpression("^[0-9]+$")));
        // A cable without a type has no length constant.
        QVERIFY(!import(job, heading + "D,2026-01-01,PASS,,3,m\n").contains(QRegularExpression("^[0-9]+$")));
        job.addCable("", "A", "data", addmode::GivenId);
        QVERIFY(!import(job, heading + "A,2026-01-02,PASS,,,\n").contains(QRegularExpression("^[0-9]+$")));
        // A test that another program has stored without a readable time is earlier than every other.
        job.setCableTestResults("B", TestResults("May 3rd", "FAIL", "", "", cable_struct::untested(), 4));
        QCOMPARE(import(job, heading + "B,2020-01-01,PASS,,,\nC,2020-01-01,UNTESTED,,,\n"), QString("1"));
        QCOMPARE(job.getCableTestHistory("B").constFirst().results.status(), QString("FAIL"));
    }

    void problems_data() { addCases({"cases/results-problems.txt"}); }

    /// A case is a table whose first row could be imported. It expects the places of the problems.
    void problems()
    {
        QFETCH(TestCase, testCase);
        JobEditor &job = openJob("a.job");
        job.addActivePort("", "", "Live", addmode::GivenId);
        writeFile(m_directory.filePath("short.txt"), "1 2 3");
        QFile big(m_directory.filePath("big.txt"));
        QVERIFY(big.open(QIODevice::WriteOnly) && big.resize((64 << 20) + 1)); // without data on the disk
        ResultsOptions options;
        options.folder = m_directory.path();
        const QByteArray before = JobEditorProbe(job).text();
        job.setDirty(false);
        const ResultsPlan plan(JobSnapshot(job), testCase.given, options);
        QStringList places;
        for (const CsvProblem &problem : plan.problems()) {
            places.append(QString("%1:%2").arg(problem.row).arg(problem.column));
            QVERIFY(!problem.message.isEmpty());
        }
        QCOMPARE(places.join(' '), testCase.expectedText());
        QVERIFY(plan.changes().isEmpty() && plan.attachments().isEmpty());
        plan.applyTo(job);
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
        const QByteArray firstRows = testCase.given.split('\n').mid(0, 2).join('\n');
        const ResultsPlan good(JobSnapshot(job), firstRows, options);
        QCOMPARE(int(good.changes().size()), testCase.expected.startsWith("1:") ? 0 : 1);
    }

    /// What is exported from active ports makes the same job again.
    void testsOfActivePortsComeBack()
    {
        const QStringList fields{"PASS", "FAIL", "1000", "full", "\u0141, \"x\"", "10.0.0.1", "", "-3", "a\nb"};
        const auto fresh = [this]() -> JobEditor & {
            JobEditor &job = openJob("a.job");
            for (const char *id : {"Live", "Link 2"})
                job.addActivePort("", "", id, addmode::GivenId);
            return job;
        };
        for (int round = 0; round < 30; ++round) {
            JobEditor &job = fresh();
            QByteArray csv = "active_port,tested_at,verdict,link_speed,duplex,peer_address,v:VLAN,v:DHCP\n";
            const int rows = 1 + number(8);
            for (int row = 0; row < rows; ++row) {
                QStringList texts{number(2) == 0 ? "Live" : "Link 2", QString("2026-01-01T10:00:0%1").arg(row),
                                  fields.at(number(2)), QString::number(number(3) * 500)};
                while (texts.size() < 8)
                    texts.append(fields.at(number(int(fields.size()))));
                csv += csvLine(texts);
            }
            QCOMPARE(import(job, csv), QString::number(rows));
            QCOMPARE(import(job, csv), QString("0"));
            const QByteArray text = JobEditorProbe(job).text();
            const QByteArray exported = exportActiveResults(JobSnapshot(job));
            JobEditor &copy = fresh();
            QCOMPARE(import(copy, exported), QString::number(rows));
            COMPARE_TEXTS(QString(JobEditorProbe(copy).text()), QString(text), QString(exported));
        }
    }

    /// A table with other headings, verdicts and decimal marks is the same table with a mapping.
    void mappedTables()
    {
        const QStringList columns = QString(headingOfRows()).trimmed().split(',');
        QByteArray ini = "[format]\ndecimal_mark = ,\ndate_format = dd.MM.yyyy HH:mm:ss\n[verdicts]\n";
        const QMap<QString, QString> words{{"PASS", "gut"}, {"PASS*", "knapp"}, {"FAIL", "schlecht"}};
        for (auto word = words.cbegin(); word != words.cend(); ++word)
            ini += (*word + '=' + word.key() + '\n').toUtf8();
        QStringList headings;
        ini += "[columns]\n";
        for (const QString &column : columns) {
            headings.append(QString("\u00dc %1 \"x\"").arg(headings.size()));
            ini += (column + '=' + headings.constLast() + '\n').toUtf8();
        }
        ResultsOptions mapped;
        const ResultsMappingReport report = readResultsMapping(ini);
        QCOMPARE(report.error, QString());
        mapped.mapping = report.mapping;
        int imported = 0;
        for (int round = 0; round < 40; ++round) {
            const QByteArray table = randomTable(1 + number(6));
            QVector<QStringList> rows;
            (void)CsvText(table, {}).read([&rows](const CsvRow &row) { rows.append(row.fields); });
            CsvStyle style;
            style.delimiter = number(2) == 0 ? ';' : ',';
            QByteArray other = csvLine(headings + QStringList("Unknown"), style);
            QByteArray plain = csvLine(columns);
            for (QStringList row : rows.mid(1)) {
                row[0] = QString("ABC").mid(number(3), 1);
                const QDateTime time = QDateTime::fromString(row.at(1), Qt::ISODate);
                // With a mapping, times are stored in the usual form.
                row[1] = time.toString("yyyy-MM-ddTHH:mm:ss");
                plain += csvLine(row);
                row[1] = time.toString("dd.MM.yyyy HH:mm:ss");
                row[2] = words.value(row.at(2), row.at(2));
                for (const char *column : {"length_12", "length_36", "length_45", "length_78", "m:RL", "v:NEXT"})
                    row[int(columns.indexOf(column))].replace('.', ',');
                other += csvLine(row + QStringList("ignored"), style);
            }
            JobEditor &job = openJob("a.job");
            const QString changes = import(job, plain);
            const QByteArray text = JobEditorProbe(job).text();
            QCOMPARE(import(openJob("a.job"), other, mapped), changes);
            COMPARE_TEXTS(QString(JobEditorProbe(JobEditor::Instance()).text()), QString(text), QString(other));
            imported += changes.toInt();
        }
        QVERIFY2(imported > 40, qPrintable(QString::number(imported)));
    }

    /// What a file cannot hold, or an export cannot give, is refused.
    void whatCannotComeBack()
    {
        JobEditor &job = openJob("a.job");
        QByteArrayList tables{"cable_id,tested_at,verdict,m:\x01\nA,2026-01-01,PASS,1\n"};
        for (const char *file : {"folder/", "folder/..", "folder/."})
            tables.append(QByteArray("cable_id,tested_at,verdict,attachment,attachment_size,attachment_sha256\n"
                                     "A,2026-01-01,PASS,")
                          + file + ",3," + QByteArray(64, '0') + '\n');
        for (const QByteArray &table : std::as_const(tables))
            QVERIFY2(!import(job, table).contains(QRegularExpression("^[0-9]+$")), table.constData());
    }
};

QTEST_GUILESS_MAIN(ResultsTest)
#include "tst_results.moc"
