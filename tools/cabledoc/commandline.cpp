#include "commandline.h"

#include "output.h"

#include <cabledoc/bkxmleditor.h>

namespace {

QCommandLineOption parserOption(const Parameter &option)
{
    return {option.names, QString(), option.valueName};
}

} // namespace

CommandLine::CommandLine(const Command &command)
    : m_command(command)
    , m_maximumSize(BKXMLEditor::defaultMaximumFileSize)
{
    m_parser.addOption(parserOption(helpOption()));
    for (const Parameter &parameter : command.parameters) {
        if (parameter.isOption())
            m_parser.addOption(parserOption(parameter));
    }
}

QString CommandLine::parse(const QStringList &words)
{
    // The parser skips the first word, which it takes for the program's name.
    if (!m_parser.parse(QStringList(QString()) + words))
        return m_parser.errorText();
    if (isSet("help"))
        return {};
    const QString problem = missingOrExcess();
    if (!problem.isEmpty())
        return problem;
    if (m_parser.optionNames().contains(QLatin1String("max-size")) && !readMaximumSize())
        return Program::tr("\"%1\" is not a size such as 500M").arg(value("max-size"));
    return {};
}

QString CommandLine::missingOrExcess() const
{
    const QStringList arguments = m_parser.positionalArguments();
    int count = 0;
    for (const Parameter &parameter : m_command.parameters) {
        const bool isGiven =
            parameter.isOption() ? !m_parser.value(parameter.names.constLast()).isEmpty() : count++ < arguments.size();
        if (parameter.isRequired && !isGiven)
            return Program::tr("%1 is needed").arg(parameter.usage);
    }
    return count < arguments.size() ? Program::tr("\"%1\" is one argument too many").arg(arguments.at(count))
                                    : QString();
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
