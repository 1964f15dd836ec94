#include "commandline.h"
#include "documents.h"
#include "output.h"

#include <cabledoc/documentcheck.h>

#include <algorithm>

using namespace cabledoc;

namespace {

QJsonObject describe(const Finding &finding)
{
    return {{QStringLiteral("rule"), finding.rule},
            {QStringLiteral("line"), finding.line},
            {QStringLiteral("element"), finding.element},
            {QStringLiteral("message"), finding.message}};
}

/// Returns the finding as a line in the form that editors know from compilers.
QString lineOf(const QString &fileName, const Finding &finding)
{
    QStringList parts{fileName + QLatin1Char(':') + QString::number(finding.line), finding.rule, finding.element,
                      finding.message};
    parts.removeAll(QString());
    return parts.join(QLatin1String(": "));
}

/// Checks files one by one, and knows how the command ends.
class FileChecks
{
public:
    explicit FileChecks(const CommandLine &line)
        : m_line(line)
    {
        m_options.characterReferences = true; // all commands save in this way
        m_options.maximumFileSize = line.maximumSize();
    }

    CheckReport check(const QString &fileName)
    {
        CheckReport report;
        m_options.attachments = fileName != standardStream; // a file without a folder has none
        ExitCode code = readFile(m_line, fileName, [&](const QString &path) {
            report = checkFile(path, m_options);
            return report.error;
        });
        if (code == Done && !report.findings.isEmpty())
            code = HasFindings;
        m_worst = std::max(m_worst, code);
        return report;
    }

    ExitCode worst() const { return m_worst; }

private:
    const CommandLine &m_line;
    CheckOptions m_options;
    ExitCode m_worst = Done;
};

QString textOf(FileChecks *checks, const QStringList &fileNames)
{
    QString text;
    for (const QString &fileName : fileNames) {
        const QVector<Finding> findings = checks->check(fileName).findings;
        text += firstLines(fileName, int(findings.size()),
                           [&](int number) { return lineOf(fileName, findings.at(number)); });
    }
    return text;
}

JsonObject objectOf(FileChecks *checks, const QString &fileName)
{
    const CheckReport report = checks->check(fileName);
    const QJsonValue error = report.error.isEmpty() ? QJsonValue() : report.error;
    return {{{QStringLiteral("file"), fileName}, {QStringLiteral("error"), error}},
            QStringLiteral("findings"),
            int(report.findings.size()),
            [findings = report.findings](int number) { return describe(findings.at(number)); }};
}

} // namespace

ExitCode runCheck(const CommandLine &line)
{
    const QStringList fileNames = line.arguments();
    FileChecks checks(line);
    const ExitCode printed = line.isSet("json")
                                 ? printJson(line.output(), "cabledoc-check-1",
                                             {{},
                                              QStringLiteral("files"),
                                              int(fileNames.size()),
                                              [&](int number) { return objectOf(&checks, fileNames.at(number)); }})
                                 : printText(line.output(), textOf(&checks, fileNames));
    return std::max(printed, checks.worst());
}
