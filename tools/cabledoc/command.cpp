#include "command.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QLockFile>

#include <cstdio>

namespace {

constexpr int lockTimeout = 5000; // milliseconds

/// The text without characters that would do something to a terminal.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char('?');
    }
    return text;
}

/// Sets a document up as the program uses it: names of all scripts are kept, and no file is replaced that was not read.
void setUp(BKXMLEditor *document, qint64 maximumSize)
{
    document->setCharacterReferences(true);
    document->setReplacesUnknownFiles(false);
    document->setMaximumFileSize(maximumSize);
}

} // namespace

Command::Command(const QString &name, const QString &description)
    : m_name(name)
    , m_maximumSize(BKXMLEditor::defaultMaximumFileSize)
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

Command::~Command() = default;

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

void Command::addMaximumSizeOption()
{
    m_parser.addOption({QStringLiteral("max-size"),
                        QCoreApplication::translate("Command", "The size above which a file is not read, such as 500M "
                                                               "or 8G; 4G by default."),
                        QStringLiteral("SIZE"), QStringLiteral("4G")});
}

bool Command::readMaximumSize()
{
    const QString text = value(QStringLiteral("max-size"));
    const auto power = QStringLiteral("KMG").indexOf(text.right(1)) + 1;
    bool isNumber = false;
    const qint64 number = (power > 0 ? text.chopped(1) : text).toUInt(&isNumber);
    m_maximumSize = number << (10 * power);
    return isNumber;
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
    if (m_parser.optionNames().contains(QStringLiteral("max-size")) && !readMaximumSize()) {
        m_exitCode = usageError(QCoreApplication::translate("Command", "\"%1\" is not a size such as 500M")
                                    .arg(value(QStringLiteral("max-size"))));
        return false;
    }
    setUp(&JobEditor::Instance(), m_maximumSize);
    setUp(&BktEditor::Instance(), m_maximumSize);
    return true;
}

bool Command::lockAndLoadJob()
{
    return lock() && loadJob();
}

bool Command::lock()
{
    const QFileInfo file(fileName());
    // Without a file there is nothing to lock; loading it says so.
    if (!file.exists())
        return true;
    m_lock = std::make_unique<QLockFile>(file.canonicalFilePath() + QStringLiteral(".lock"));
    // However long a command takes, its lock stays its own while it lives.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(lockTimeout))
        return true;
    qint64 process = 0;
    QString host;
    QString application;
    if (m_lock->error() == QLockFile::LockFailedError && m_lock->getLockInfo(&process, &host, &application)) {
        saveError(
            fileName(),
            QCoreApplication::translate("Command", "Another program is changing the file: %1, process "
                                                   "%2 on %3. If it is not, delete %4")
                .arg(application, QString::number(process), host, file.canonicalFilePath() + QStringLiteral(".lock")));
    } else {
        saveError(fileName(),
                  QCoreApplication::translate("Command", "The file cannot be locked: its folder does not let "
                                                         "a file be created"));
    }
    return false;
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
    BktEditor &bkt = BktEditor::Instance();
    if (bkt.LoadWithoutSaving(fileName))
        return true;
    loadError(fileName, bkt.error());
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
    std::fprintf(stderr, "cabledoc: %s\n", qPrintable(printable(message)));
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
    return CannotPrint;
}

ExitCode printJson(const QJsonObject &object, const QString &arrayName, int count,
                   const std::function<QJsonObject(int)> &element)
{
    constexpr int pieceSize = 1 << 16;
    QByteArray text = QJsonDocument(object).toJson();
    text.chop(int(qstrlen("\n}\n")));
    text += ",\n    \"" + arrayName.toUtf8() + "\": [";
    for (int i = 0; i < count; ++i) {
        const QByteArray lines = QJsonDocument(element(i)).toJson().trimmed().replace("\n", "\n        ");
        text += (i == 0 ? "\n        " : ",\n        ") + lines;
        if (text.size() < pieceSize)
            continue;
        const ExitCode printed = printData(text);
        if (printed != Done)
            return printed;
        text.clear();
    }
    return printData(text + "\n    ]\n}\n");
}

QString moreThanShown(int count)
{
    return count > maximumShown ? QCoreApplication::translate("Command", "and %1 more").arg(count - maximumShown)
                                : QString();
}
