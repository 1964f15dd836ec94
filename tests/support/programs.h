#pragma once

#include <QtCore/QProcess>

/// Runs a program in a folder, or in the working folder if none is given. Returns what it prints. Ends the test if the
/// program fails.
inline QByteArray printedBy(const QString &program, const QStringList &arguments, const QString &folder = {},
                            const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    constexpr int patience = 60000;
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s fails: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}
