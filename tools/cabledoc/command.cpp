#include "command.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>

#include <cstdio>

Command::Command(const QString &name, const QString &description)
    : m_name(name)
{
    m_parser.setApplicationDescription(description);
    m_parser.addPositionalArgument(name, QString(), name);
    m_parser.addPositionalArgument(QStringLiteral("FILE"), QCoreApplication::translate("Command", "The file."),
                                   QStringLiteral("FILE"));
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QCoreApplication::translate("Command", "Show this help.")});
}

bool Command::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments)) {
        m_exitCode = usageError(m_parser.errorText());
        return false;
    }
    if (m_parser.isSet(QStringLiteral("help"))) {
        m_exitCode = printData(m_parser.helpText().toLocal8Bit());
        return false;
    }
    if (m_parser.positionalArguments().size() != 1) {
        m_exitCode = usageError(QCoreApplication::translate("Command", "one file name is needed"));
        return false;
    }
    return true;
}

bool Command::loadJob()
{
    JobEditor &job = JobEditor::Instance();
    if (job.Load(fileName()))
        return true;
    printMessage(fileName(), job.error());
    m_exitCode = CannotLoad;
    return false;
}

ExitCode Command::usageError(const QString &message) const
{
    printMessage(QStringLiteral("%1: %2").arg(m_name, message));
    printMessage(QCoreApplication::translate("Command", "\"cabledoc %1 --help\" tells how it is used").arg(m_name));
    return WrongUsage;
}

void printMessage(const QString &message)
{
    std::fprintf(stderr, "cabledoc: %s\n", qPrintable(message));
}

void printMessage(const QString &fileName, const QString &message)
{
    printMessage(message.contains(fileName) ? message : QStringLiteral("%1: %2").arg(fileName, message));
}

ExitCode printData(const QByteArray &data)
{
    if (std::fwrite(data.constData(), 1, std::size_t(data.size()), stdout) == std::size_t(data.size())
        && std::fflush(stdout) == 0)
        return Done;
    printMessage(QCoreApplication::translate("Command", "standard output: %1").arg(qt_error_string()));
    return CannotSave;
}
