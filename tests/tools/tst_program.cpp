#include "testcases.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

/// Runs the program as a user or a script does.
class ProgramTest : public QObject
{
    Q_OBJECT

private:
    /// Runs the command in the folder. Returns the data that it prints, its messages after "! ", and its exit code if
    /// that is not 0.
    static QString printedBy(const QString &command, const QString &folder)
    {
        QProcess shell;
        shell.setWorkingDirectory(folder);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", CABLEDOC_PROGRAM_FOLDER ":" + environment.value("PATH"));
        environment.insert("EXAMPLES", CABLEDOC_EXAMPLES);
        environment.insert("LANGUAGE", "en"); // the cases are in English
        environment.insert("MANUAL", CABLEDOC_MANUAL);
        environment.insert("SCHEMAS", CABLEDOC_SCHEMAS);
        environment.insert("PYTHON", CABLEDOC_PYTHON);
        shell.setProcessEnvironment(environment);
        shell.start("sh", {"-c", command});
        constexpr int patience = 120000; // milliseconds, for a busy machine and sanitizers
        if (!shell.waitForFinished(patience) || shell.exitStatus() != QProcess::NormalExit)
            return "does not end";
        QString printed = shell.readAllStandardOutput();
        const QStringList messages = QString(shell.readAllStandardError()).split('\n');
        for (const QString &message : messages.mid(0, messages.size() - 1))
            printed += "! " + message + '\n';
        return shell.exitCode() == 0 ? printed : printed + QString("[exit %1]\n").arg(shell.exitCode());
    }

private Q_SLOTS:
    void sessions_data()
    {
        addCases({"cases/drawings.txt", "cases/labels.txt", "cases/report.txt", "cases/program.txt",
                  "cases/program-conventions.txt", "cases/program-csv.txt", "cases/program-new.txt",
                  "cases/program-options.txt", "cases/results.txt", "cases/results-status.txt", "cases/tables.txt",
                  "cases/trace.txt"});
    }

    void sessions()
    {
        QFETCH(TestCase, testCase);
        const QTemporaryDir folder;
        QVERIFY(QFile::link(CABLEDOC_TEST_DATA, folder.filePath("data")));
        const QStringList steps = ('\n' + QString(testCase.given)).split("\n$ ").mid(1);
        QVERIFY(!steps.isEmpty());
        for (const QString &step : steps) {
            const QString printed = printedBy(step.section('\n', 0, 0), folder.path()).trimmed();
            const QString expected = QRegularExpression::escape(step.section('\n', 1).trimmed());
            const QRegularExpression pattern(
                QRegularExpression::anchoredPattern(QString(expected).replace("\\.\\.\\.", ".*")),
                QRegularExpression::DotMatchesEverythingOption);
            QVERIFY2(pattern.match(printed).hasMatch(), qPrintable(step + "\nbut it printed\n" + printed));
        }
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "tst_program.moc"
