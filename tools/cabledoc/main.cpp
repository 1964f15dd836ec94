#include "commandline.h"
#include "documents.h"
#include "help.h"
#include "output.h"

#include <cabledoc/translations.h>
#include <cabledoc/version.h>

#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <csignal>
#include <cstdio>

namespace {

QStringList nameOf(const Command &command)
{
    return QString::fromLatin1(command.name).split(QLatin1Char(' '));
}

bool isHelp(const QString &word)
{
    return word == QLatin1String("--help") || word == QLatin1String("-h");
}

/// Runs the program when its words do not begin with the name of a command: shows help or the version, or reports
/// wrong usage.
ExitCode runWithoutCommand(const QStringList &words)
{
    const QString first = words.value(0);
    if (isHelp(first))
        return printText(programHelp());
    if (first == QLatin1String("--version"))
        return printData("cabledoc " CABLEDOC_VERSION_STR "\n");

    // "schedule" is the first word of several commands.
    const QString group = first.isEmpty() ? QString() : commandList(first);
    if (!group.isEmpty() && isHelp(words.value(1)))
        return printText(group);
    printMessage(words.isEmpty() ? Program::tr("a command is needed")
                                 : Program::tr("there is no command \"%1\"")
                                       .arg(words.mid(0, group.isEmpty() ? 1 : 2).join(QLatin1Char(' '))));
    std::fprintf(stderr, "\n%s", qPrintable(group.isEmpty() ? commandList() : group));
    return WrongUsage;
}

ExitCode run(const QStringList &words)
{
    const auto command = std::find_if(commands().cbegin(), commands().cend(), [&words](const Command &candidate) {
        const QStringList name = nameOf(candidate);
        return words.mid(0, name.size()) == name;
    });
    if (command == commands().cend())
        return runWithoutCommand(words);

    CommandLine line(*command);
    const QString problem = line.parse(words.mid(nameOf(*command).size()));
    if (!problem.isEmpty())
        return line.usageError(problem);
    if (line.isSet("help"))
        return printText(commandHelp(*command));
    setUpDocuments(line.maximumSize());
    return command->run(line);
}

} // namespace

int main(int argc, char *argv[])
{
    // With this, a write beyond the limit of file sizes fails with a message. Without it, the write would end the
    // program.
    std::signal(SIGXFSZ, SIG_IGN);
    // The debug messages of the library are for its developers.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("cabledoc"));
    cabledoc::installTranslations(QLocale::system());
    return run(QCoreApplication::arguments().mid(1));
}
