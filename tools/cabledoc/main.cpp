#include "commandline.h"
#include "documents.h"
#include "help.h"
#include "output.h"
#include "suggestion.h"
#include "usage.h"

#include <cabledoc/translations.h>
#include <cabledoc/version.h>

#include <QtCore/QLoggingCategory>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <memory>

namespace {

bool isOneOf(const QVector<Parameter> &options, const QString &word)
{
    return std::any_of(options.cbegin(), options.cend(), [&word](const Parameter &option) {
        const auto isWord = [&word](const QString &name) { return typedOption(name) == word; };
        return std::any_of(option.names.cbegin(), option.names.cend(), isWord);
    });
}

/// Runs the program without a command: shows help or the version, or reports wrong usage. The options stand before the
/// other words.
ExitCode runWithoutCommand(const QStringList &options, const QStringList &words)
{
    const QString first = words.value(0);
    if (first == QLatin1String("-V") || first == QLatin1String("--version"))
        return printData({}, "cabledoc " CABLEDOC_VERSION_STR "\n");
    if (first == QLatin1String("--usage-json"))
        return printUsage();
    if (first.startsWith(QLatin1Char('-'))) {
        QStringList known;
        for (const Parameter &option : generalOptions() + programOptions())
            known.append(typedOption(option.names.constLast()));
        printMessage(withSuggestion(Program::tr("there is no option \"%1\"").arg(first), nearest(first, known)));
        return WrongUsage;
    }
    // "schedule --help" lists the commands that begin with this word.
    const QStringList places = options + words.mid(1, 1);
    const bool wantsHelp = places.contains(QLatin1String("-h")) || places.contains(QLatin1String("--help"));
    const QString help = wantsHelp ? helpOn(words.mid(0, 1)) : QString();
    return help.isEmpty() ? unknownCommand(words) : printText({}, help);
}

ExitCode run(QStringList words)
{
    QStringList options;
    while (!words.isEmpty() && isOneOf(generalOptions(), words.constFirst()))
        options.append(words.takeFirst());
    const Command *command = findCommand(words);
    if (command == nullptr)
        return runWithoutCommand(options, words);

    CommandLine line(*command);
    const QString problem = line.parse(options + words.mid(command->words().size()));
    if (!problem.isEmpty())
        return line.usageError(problem);
    if (line.isSet("help"))
        return printText({}, helpOn(command->words()));
    if (line.isSet("quiet"))
        beQuiet();
    if (const ExitCode error = refuseOutput(line.output()))
        return error;
    setUpDocuments(line);
    return command->run(line);
}

/// Returns whether the command is one that draws. Only options without values come before its name.
bool isDrawing(int argc, char *argv[])
{
    const QVector<const char *> names{"plan", "curves", "labels", "report"};
    char **const end = argv + argc;
    char **const command = std::find_if(argv + 1, end, [](const char *word) { return word[0] != '-'; });
    return std::any_of(names.cbegin(), names.cend(),
                       [&](const char *name) { return command != end && qstrcmp(*command, name) == 0; });
}

/// Suppresses warnings.
void showNoWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "cabledoc: %s\n", qPrintable(message));
}

/// Makes the application. One that draws needs fonts, but no display.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char *argv[])
{
    if (!isDrawing(argc, argv))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt warns of missing folders of the display's session.
    const QtMessageHandler before = qInstallMessageHandler(showNoWarnings);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(before);
    return application;
}

} // namespace

int main(int argc, char *argv[])
{
    // With this, a write beyond the limit of file sizes fails with a message. Without it, the write would end the
    // program.
    std::signal(SIGXFSZ, SIG_IGN);
    // The debug messages of the library are for its developers.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("cabledoc"));
    cabledoc::installTranslations(QLocale::system());
    return run(QCoreApplication::arguments().mid(1));
}
