#include "commandline.h"

#include "suggestion.h"

#include <cabledoc/bkxmleditor.h>

#include <QtCore/QFileInfo>

#include <algorithm>

CommandLine::CommandLine(const Command &command)
    : m_command(command)
    , m_parameters(command.parameters + generalOptions())
    , m_maximumSize(BKXMLEditor::defaultMaximumFileSize)
{
    for (const Parameter &parameter : m_parameters) {
        if (parameter.isOption())
            m_parser.addOption({parameter.names, QString(), parameter.valueName});
    }
}

QString CommandLine::parse(const QStringList &words)
{
    // The parser skips the first word, which it takes for the program's name.
    if (!m_parser.parse(QStringList(QString()) + words))
        return m_parser.unknownOptionNames().isEmpty() ? m_parser.errorText() : unknownOption();
    if (isSet("help"))
        return {};
    const QString problem = missingOrExcess();
    if (!problem.isEmpty())
        return problem;
    if (isSet("max-size") && !readMaximumSize())
        return Program::tr("\"%1\" is not a size such as 500M").arg(value("max-size"));
    if (isSet("csv") && isSet("json"))
        return Program::tr("--csv and --json cannot be used together");
    return wrongFiles();
}

bool CommandLine::has(const char *option) const
{
    return std::any_of(m_parameters.cbegin(), m_parameters.cend(), [option](const Parameter &parameter) {
        return parameter.names.contains(QLatin1String(option));
    });
}

QString CommandLine::unknownOption() const
{
    QStringList known;
    for (const Parameter &parameter : m_parameters) {
        for (const QString &name : parameter.names)
            known.append(typedOption(name));
    }
    const QString option = typedOption(m_parser.unknownOptionNames().constFirst());
    return withSuggestion(Program::tr("there is no option \"%1\"").arg(option), nearest(option, known));
}

QStringList CommandLine::valuesOf(const Parameter &parameter) const
{
    if (parameter.isOption())
        return m_parser.values(parameter.names.constLast());
    int position = 0;
    for (const Parameter &earlier : m_parameters) {
        if (earlier.text == parameter.text)
            break;
        position += earlier.isOption() ? 0 : 1;
    }
    return arguments().mid(position, parameter.isRepeated ? -1 : 1);
}

QString CommandLine::missingOrExcess() const
{
    QStringList excess = arguments();
    for (const Parameter &parameter : m_parameters) {
        const QStringList values = valuesOf(parameter);
        if (parameter.isRequired && values.join(QString()).isEmpty())
            return Program::tr("%1 is needed").arg(parameter.usage);
        if (!parameter.isOption())
            excess = excess.mid(values.size());
    }
    return excess.isEmpty() ? QString() : Program::tr("\"%1\" is one argument too many").arg(excess.constFirst());
}

QString CommandLine::wrongFiles() const
{
    QStringList filesToRead;
    QStringList filesToWrite;
    for (const Parameter &parameter : m_parameters) {
        const QStringList values = valuesOf(parameter);
        if (parameter.isFileToRead())
            filesToRead += values;
        if (parameter.isOption() && parameter.isFileToWrite())
            filesToWrite += values;
        if ((parameter.isFileToRead() || parameter.isFileToWrite()) && values.contains(QString()))
            return Program::tr("%1 is empty").arg(parameter.valueName);
    }
    if (filesToRead.count(standardStream) > 1)
        return Program::tr("standard input, \"-\", can be read only once");

    for (const Parameter &parameter : m_parameters) {
        const QString extension = parameter.extension();
        if (!parameter.isOption() || !parameter.isFileToWrite() || extension.isEmpty())
            continue;
        for (const QString &file : valuesOf(parameter)) {
            const bool isStandard = file == standardStream;
            if (!isStandard && QFileInfo(file).suffix().toLower() != extension)
                return Program::tr("\"%1\" does not end in \".%2\"").arg(file, extension);
            if (isStandard && isSet("json"))
                return Program::tr("a file and JSON cannot both be written to standard output");
        }
    }
    for (const QString &file : filesToWrite) {
        const QString written = QFileInfo(file).canonicalFilePath();
        const bool isRead = std::any_of(filesToRead.cbegin(), filesToRead.cend(), [&written](const QString &read) {
            return !written.isEmpty() && QFileInfo(read).canonicalFilePath() == written;
        });
        if (isRead)
            return Program::tr("the output would replace \"%1\", which is read").arg(file);
    }
    return {};
}

bool CommandLine::readMaximumSize()
{
    const QString text = value("max-size");
    const auto power = text.isEmpty() ? 0 : QStringLiteral("KMG").indexOf(text.back()) + 1;
    bool isNumber = false;
    const qint64 number = (power > 0 ? text.chopped(1) : text).toUInt(&isNumber);
    m_maximumSize = number << (10 * power);
    return isNumber;
}

ExitCode CommandLine::usageError(const QString &message) const
{
    const QString name = QString::fromLatin1(m_command.name);
    printMessage(QStringLiteral("%1: %2").arg(name, message));
    printMessage(Program::tr("\"cabledoc %1 --help\" shows how to use it").arg(name));
    return WrongUsage;
}
