#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QLockFile;
QT_END_NAMESPACE

/// How the program ends. The numbers are part of its interface.
enum ExitCode {
    Done = 0,
    FoundSomething = 1, ///< "check" found something wrong with the file
    WrongUsage = 2,
    CannotLoad = 3,
    CannotSave = 4,
    CannotPrint = 5, ///< all was done, but standard output could not be written
};

/// The command line of one command. It takes one file name or more. What cannot be done is said to standard error;
/// exitCode() then tells how the program ends.
class Command
{
public:
    /// Prepares for a command such as "info" or "schedule import", described in one sentence.
    Command(const QString &name, const QString &description);
    ~Command();
    Q_DISABLE_COPY(Command)

    /// Takes another file name behind the first.
    void addFile(const QString &valueName, const QString &description);
    void addOption(const QCommandLineOption &option) { m_parser.addOption(option); }
    /// Adds an option that names a file and must be given.
    void addFileOption(const QStringList &names, const QString &description, const QString &valueName);
    /// Adds -o, the file to write, which must be given.
    void addOutputOption();
    /// Adds --max-size, above which files are not read.
    void addMaximumSizeOption();
    /// Reads the words behind the program's name. False when they are wrong, or help was shown.
    bool parse(const QStringList &arguments);
    /// Reports wrong usage to standard error.
    ExitCode usageError(const QString &message) const;

    /// Loads the file into the job document.
    bool loadJob();
    /// The same, but no other command changes the file from now on until this one ends. Waits some seconds for another
    /// one to end.
    bool lockAndLoadJob();
    /// Loads a file into the template document. An older file stays as it is.
    bool loadTemplate(const QString &fileName);
    /// Whether a file can be made: one that is there is not replaced.
    bool mayCreate(const QString &fileName);
    /// Reports a file that could not be loaded.
    ExitCode loadError(const QString &fileName, const QString &message);
    /// Reports a document that could not be saved.
    ExitCode saveError(const QString &fileName, const QString &message);

    ExitCode exitCode() const { return m_exitCode; }
    QString fileName(int number = 0) const { return m_parser.positionalArguments().at(number); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }
    QString output() const { return value(QStringLiteral("output")); }
    /// The size in bytes above which files are not read.
    qint64 maximumSize() const { return m_maximumSize; }

private:
    bool readMaximumSize();
    bool lock();

    QString m_name;
    QCommandLineParser m_parser;
    int m_files = 1;
    QStringList m_neededOptions;
    qint64 m_maximumSize;
    std::unique_ptr<QLockFile> m_lock;
    ExitCode m_exitCode = Done;
};

/// Writes a message for the user to standard error, with the program's name before it.
void printMessage(const QString &message);
/// The same about a file, whose name is put before a text that does not hold it.
void printMessage(const QString &fileName, const QString &message);
/// Writes data to standard output. When that fails, says so and returns CannotPrint.
ExitCode printData(const QByteArray &data);
/// Prints the object as JSON with an array of that name behind its other members. The objects of the array are made one
/// after the other: a million of them take no more memory than one.
ExitCode printJson(const QJsonObject &object, const QString &arrayName, int count,
                   const std::function<QJsonObject(int)> &element);
/// How many of many findings or problems are shown.
constexpr int maximumShown = 50;
/// What stands for those that are not shown; empty if all are.
QString moreThanShown(int count);

// The commands. Each takes the words behind the program's name and returns how the program ends.
ExitCode runCables(const QStringList &arguments);
ExitCode runCheck(const QStringList &arguments);
ExitCode runConvert(const QStringList &arguments);
ExitCode runExport(const QStringList &arguments);
ExitCode runImport(const QStringList &arguments);
ExitCode runInfo(const QStringList &arguments);
ExitCode runNew(const QStringList &arguments);
ExitCode runScheduleExport(const QStringList &arguments);
ExitCode runScheduleImport(const QStringList &arguments);
