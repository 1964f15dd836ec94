#include "usage.h"

#include "output.h"

#include <QtCore/QJsonArray>

namespace {

/// Returns what a file is used for, or null if the parameter does not name a file.
QJsonValue fileUseOf(const Parameter &parameter)
{
    if (parameter.isFileToRead())
        return QStringLiteral("read");
    return parameter.isFileToWrite() ? QStringLiteral("written") : QJsonValue();
}

QJsonObject objectOf(const Parameter &parameter)
{
    QJsonArray names;
    for (const QString &name : parameter.names)
        names.append(typedOption(name));
    return {{QStringLiteral("names"), names},
            {QStringLiteral("value"), parameter.valueName.isEmpty() ? QJsonValue() : parameter.valueName},
            {QStringLiteral("file"), fileUseOf(parameter)},
            {QStringLiteral("extension"), parameter.extension().isEmpty() ? QJsonValue() : parameter.extension()},
            {QStringLiteral("required"), parameter.isRequired},
            {QStringLiteral("repeated"), parameter.isRepeated},
            {QStringLiteral("sentence"), parameter.sentence}};
}

/// Returns the options, or the arguments, among the parameters.
QJsonArray arrayOf(const QVector<Parameter> &parameters, bool areOptions)
{
    QJsonArray array;
    for (const Parameter &parameter : parameters) {
        if (parameter.isOption() == areOptions)
            array.append(objectOf(parameter));
    }
    return array;
}

QJsonArray arrayOfCommands()
{
    QJsonArray array;
    for (const Command &command : commands())
        array.append(QJsonObject{{QStringLiteral("name"), QString::fromLatin1(command.name)},
                                 {QStringLiteral("sentence"), command.sentence},
                                 {QStringLiteral("details"), command.details},
                                 {QStringLiteral("arguments"), arrayOf(command.parameters, false)},
                                 {QStringLiteral("options"), arrayOf(command.parameters, true)}});
    return array;
}

QJsonArray arrayOfExitCodes()
{
    QJsonArray array;
    for (const auto &code : exitCodes())
        array.append(QJsonObject{{QStringLiteral("code"), code.first}, {QStringLiteral("sentence"), code.second}});
    return array;
}

} // namespace

ExitCode printUsage()
{
    return printJson({}, "cabledoc-usage-1",
                     QJsonObject{{QStringLiteral("commands"), arrayOfCommands()},
                                 {QStringLiteral("generalOptions"), arrayOf(generalOptions(), true)},
                                 {QStringLiteral("programOptions"), arrayOf(programOptions(), true)},
                                 {QStringLiteral("exitCodes"), arrayOfExitCodes()}});
}
