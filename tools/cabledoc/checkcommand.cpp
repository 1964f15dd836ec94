#include "command.h"

#include <cabledoc/documentcheck.h>

#include <QtCore/QCoreApplication>

using namespace cabledoc;

namespace {

ExitCode printAsJson(const QString &fileName, const QVector<Finding> &findings)
{
    return printJson({{QStringLiteral("file"), fileName}}, QStringLiteral("findings"), int(findings.size()),
                     [&findings](int number) {
                         const Finding &finding = findings.at(number);
                         return QJsonObject{{QStringLiteral("rule"), finding.rule},
                                            {QStringLiteral("line"), finding.line},
                                            {QStringLiteral("element"), finding.element},
                                            {QStringLiteral("message"), finding.message}};
                     });
}

/// One line for each of the first ones, in the form that editors know from compilers.
QByteArray asText(const QString &fileName, const QVector<Finding> &findings)
{
    QString text;
    for (const Finding &finding : findings.mid(0, maximumShown)) {
        QStringList parts{fileName + QLatin1Char(':') + QString::number(finding.line), finding.rule, finding.element,
                          finding.message};
        parts.removeAll(QString());
        text += parts.join(QLatin1String(": ")) + QLatin1Char('\n');
    }
    const QString more = moreThanShown(int(findings.size()));
    return (more.isEmpty() ? text : text + fileName + QLatin1String(": ") + more + QLatin1Char('\n')).toLocal8Bit();
}

} // namespace

ExitCode runCheck(const QStringList &arguments)
{
    const QString jsonOption = QStringLiteral("json");
    Command command(QStringLiteral("check"),
                    QCoreApplication::translate("runCheck", "Reports what is wrong with a job or template file, one "
                                                            "line for each of the first 50 findings. The file is "
                                                            "not changed."));
    command.addOption(
        {jsonOption, QCoreApplication::translate("runCheck", "Print JSON instead of lines, with all findings.")});
    command.addMaximumSizeOption();
    if (!command.parse(arguments))
        return command.exitCode();

    CheckOptions options;
    options.characterReferences = true; // as all commands save
    options.maximumFileSize = command.maximumSize();
    const CheckReport report = checkFile(command.fileName(), options);
    if (!report.error.isEmpty()) {
        printMessage(command.fileName(), report.error);
        return CannotLoad;
    }
    const ExitCode printed = command.isSet(jsonOption) ? printAsJson(command.fileName(), report.findings)
                                                       : printData(asText(command.fileName(), report.findings));
    return printed == Done && !report.findings.isEmpty() ? FoundSomething : printed;
}
