#include "command.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <cstdio>

Command::Command(const QString &name, const QString &description)
    : m_name(name)
{
    m_parser.setApplicationDescription(description);
    const QStringList words = name.split(QLatin1Char(' '));
    for (const QString &word : words)
        m_parser.addPositionalArgument(word, QString(), word);
    m_parser.addPositionalArgument(QStringLiteral("FILE"), QCoreApplication::translate("Command", "The file."),
                                   QStringLiteral("FILE"));
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QCoreApplication::translate("Command", "Show this help.")});
}

void Command::addFile(const QString &valueName, const QString &description)
{
    m_parser.addPositionalArgument(valueName, description, valueName);
    ++m_files;
}

void Command::addFileOption(const QStringList &names, const QString &description, const QString &valueName)
{
    m_parser.addOption({names, description, valueName});
    m_neededOptions.append(names.constLast());
}

void Command::addOutputOption()
{
    addFileOption({QStringLiteral("o"), QStringLiteral("output")},
                  QCoreApplication::translate("Command", "The file to write. An existing one is not replaced."),
                  QStringLiteral("NEW"));
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
    if (m_parser.positionalArguments().size() != m_files) {
        m_exitCode = usageError(m_files == 1 ? QCoreApplication::translate("Command", "one file name is needed")
                                             : QCoreApplication::translate("Command", "two file names are needed"));
        return false;
    }
    for (const QString &option : std::as_const(m_neededOptions)) {
        if (m_parser.value(option).isEmpty()) {
            m_exitCode = usageError(QCoreApplication::translate("Command", "--%1 is needed").arg(option));
            return false;
        }
    }
    return true;
}

bool Command::loadJob()
{
    JobEditor &job = JobEditor::Instance();
    if (job.Load(fileName()))
        return true;
    loadError(fileName(), job.error());
    return false;
}

bool Command::loadTemplate(const QString &fileName)
{
    const QTemporaryDir directory;
    const QString copyName = directory.filePath(QFileInfo(fileName).fileName());
    QFile file(fileName);
    if (!file.copy(copyName)) {
        loadError(fileName, file.errorString());
        return false;
    }
    QFile::setPermissions(copyName, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    BktEditor &bkt = BktEditor::Instance();
    if (bkt.Load(copyName))
        return true;
    loadError(fileName, bkt.error().replace(copyName, fileName));
    return false;
}

bool Command::mayCreate(const QString &fileName)
{
    if (!QFileInfo::exists(fileName))
        return true;
    printMessage(QCoreApplication::translate("Command", "%1 exists and is left as it is").arg(fileName));
    m_exitCode = CannotSave;
    return false;
}

ExitCode Command::loadError(const QString &fileName, const QString &message)
{
    printMessage(fileName, message);
    return m_exitCode = CannotLoad;
}

ExitCode Command::saveError(const QString &fileName, const QString &message)
{
    printMessage(fileName, message);
    return m_exitCode = CannotSave;
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
