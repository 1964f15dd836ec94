#include "problems.h"

#include "output.h"

#include <cstdio>

using cabledoc::CsvProblem;

namespace {

/// Prints problems. "%1" in the form stands for the message.
void print(const QString &fileName, const QVector<CsvProblem> &problems, const QString &form)
{
    const QString lines = firstLines(fileName, int(problems.size()), [&](int number) {
        const CsvProblem &problem = problems.at(number);
        return QStringLiteral("%1:%2:%3: %4")
            .arg(fileName, QString::number(problem.row), QString::number(problem.column), form.arg(problem.message));
    });
    std::fputs(qPrintable(printable(lines)), stderr);
}

} // namespace

void printProblems(const QString &fileName, const QVector<CsvProblem> &problems)
{
    print(fileName, problems, QStringLiteral("%1"));
}

void printWarnings(const QString &fileName, const QVector<CsvProblem> &warnings)
{
    if (!isQuiet())
        print(fileName, warnings, Program::tr("warning: %1"));
}

QJsonArray arrayOf(const QVector<CsvProblem> &problems)
{
    QJsonArray array;
    for (const CsvProblem &problem : problems)
        array.append(QJsonObject{{QStringLiteral("row"), problem.row},
                                 {QStringLiteral("column"), problem.column},
                                 {QStringLiteral("message"), problem.message}});
    return array;
}
