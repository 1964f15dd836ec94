#pragma once

#include <cabledoc/csvoptions.h>

#include <QtCore/QJsonArray>
#include <QtCore/QVector>

/// Prints the first 50 problems of a CSV file to standard error, in the form that editors know from compilers.
void printProblems(const QString &fileName, const QVector<cabledoc::CsvProblem> &problems);
/// Prints the first 50 warnings like problems, except with --quiet.
void printWarnings(const QString &fileName, const QVector<cabledoc::CsvProblem> &warnings);
/// Returns problems or warnings as JSON.
QJsonArray arrayOf(const QVector<cabledoc::CsvProblem> &problems);
