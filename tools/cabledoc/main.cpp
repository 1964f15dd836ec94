#include "command.h"

#include <cabledoc/translations.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMap>

#include <csignal>

static_assert(sizeof(CABLEDOC_VERSION) > 1, "The build must set the version of the program.");

namespace {

QString usage()
{
    return QCoreApplication::translate(
        "main", "Usage: cabledoc COMMAND ...\n"
                "\n"
                "Commands:\n"
                "  new FILE.job [--floors N]             make a new job file\n"
                "  info FILE.job [--json]                show what a job file holds\n"
                "  cables FILE.job [--metric] [--json]   list the cables with their tests\n"
                "  check FILE [--json]                   report what is wrong with a job or template file\n"
                "  convert FILE -o NEW                   bring an older job or template file up to date\n"
                "  import FILE.job --template FILE.bkt [--missing-only]\n"
                "                                        let a job take over what a template holds\n"
                "  export FILE.job -o NEW.bkt            make a template of a job\n"
                "  schedule import FILE.job FILE.csv [--dry-run] [--json]\n"
                "                                        bring a job up to a cable schedule\n"
                "  schedule export FILE.job              print the cable schedule of a job\n"
                "\n"
                "Commands that read files take --max-size SIZE.\n"
                "\"cabledoc COMMAND --help\" tells more. Also: cabledoc --help, cabledoc --version.\n"
                "\n"
                "Exit codes:\n"
                "  0  all was done\n"
                "  1  \"check\" found something wrong\n"
                "  2  wrong command line\n"
                "  3  a file could not be loaded\n"
                "  4  a file could not be saved\n"
                "  5  all was done, but standard output could not be written\n");
}

ExitCode run(QStringList arguments)
{
    if (arguments.size() < 2) {
        printMessage(QCoreApplication::translate("main", "a command is needed"));
        printMessage(QCoreApplication::translate("main", "\"cabledoc --help\" lists the commands"));
        return WrongUsage;
    }
    QString command = arguments.takeAt(1);
    if (command == QLatin1String("schedule") && arguments.size() > 1)
        command += QLatin1Char(' ') + arguments.takeAt(1);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        return printData(usage().toLocal8Bit());
    }
    if (command == QLatin1String("--version")) {
        return printData("cabledoc " CABLEDOC_VERSION "\n");
    }
    const QMap<QString, ExitCode (*)(const QStringList &)> commands{
        {QStringLiteral("cables"), runCables},
        {QStringLiteral("check"), runCheck},
        {QStringLiteral("convert"), runConvert},
        {QStringLiteral("export"), runExport},
        {QStringLiteral("import"), runImport},
        {QStringLiteral("info"), runInfo},
        {QStringLiteral("new"), runNew},
        {QStringLiteral("schedule export"), runScheduleExport},
        {QStringLiteral("schedule import"), runScheduleImport},
    };
    if (commands.contains(command))
        return commands.value(command)(arguments);
    printMessage(QCoreApplication::translate("main", "there is no command \"%1\"").arg(command));
    printMessage(QCoreApplication::translate("main", "\"cabledoc --help\" lists the commands"));
    return WrongUsage;
}

} // namespace

int main(int argc, char *argv[])
{
    // A write beyond the file-size limit shall fail with a message, not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    // The library's debug lines are for its developers.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("cabledoc"));
    cabledoc::installTranslations(QLocale::system());
    return run(QCoreApplication::arguments());
}
