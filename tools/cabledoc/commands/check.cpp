#include "commandline.h"
#include "output.h"

#include <cabledoc/documentcheck.h>

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

} // namespace

ExitCode runCheck(const CommandLine &line)
{
    const QString fileName = line.argument(0);
    CheckOptions options;
    options.characterReferences = true; // all commands save in this way
    options.maximumFileSize = line.maximumSize();
    const CheckReport report = checkFile(fileName, options);
    if (!report.error.isEmpty())
        return fail(CannotLoad, fileName, report.error);

    const QVector<Finding> &findings = report.findings;
    const int count = int(findings.size());
    const ExitCode printed =
        line.isSet("json")
            ? printJson({{QStringLiteral("file"), fileName}}, QStringLiteral("findings"), count,
                        [&findings](int number) { return describe(findings.at(number)); })
            : printText(firstLines(fileName, count, [&](int number) { return lineOf(fileName, findings.at(number)); }));
    return printed == Done && count > 0 ? HasFindings : printed;
}
