#include "command.h"

#include <cabledoc/documentcheck.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace cabledoc;

namespace {

QByteArray asJson(const QString &fileName, const QVector<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings) {
        array.append(QJsonObject{{QStringLiteral("rule"), finding.rule},
                                 {QStringLiteral("line"), finding.line},
                                 {QStringLiteral("element"), finding.element},
                                 {QStringLiteral("message"), finding.message}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("file"), fileName}, {QStringLiteral("findings"), array}}).toJson();
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
    const ExitCode printed = printData(command.isSet(jsonOption) ? asJson(command.fileName(), report.findings)
                                                                 : asText(command.fileName(), report.findings));
    return printed == Done && !report.findings.isEmpty() ? FoundSomething : printed;
}
