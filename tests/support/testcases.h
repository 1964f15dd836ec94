#pragma once

#include "testfiles.h"

#include <QtCore/QMetaType>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtTest/QtTest>

/// A case of a file of cases: the given input and the expected result.
struct TestCase
{
    QByteArray file;
    QByteArray name;
    QByteArray given;
    QByteArray expected;

    QString expectedText() const { return QString::fromLatin1(expected).trimmed(); }
    QString place() const { return QString("%1: \"%2\"").arg(QString(file), QString(name)); }
};
Q_DECLARE_METATYPE(TestCase)

/// Returns the line with the byte HH in place of each "\xHH".
inline QByteArray withBytes(const QString &line)
{
    static const QRegularExpression escape("\\\\x([0-9A-F]{2})");
    QString text = line;
    for (auto match = escape.match(text); match.hasMatch(); match = escape.match(text))
        text.replace(match.capturedStart(), 4, QChar(match.captured(1).toInt(nullptr, 16)));
    return text.toLatin1();
}

/// Returns the cases of a file in tests/data. tests/data/README.md describes their form.
inline QVector<TestCase> casesIn(const char *fileName)
{
    QVector<TestCase> cases;
    QByteArray TestCase::*part = nullptr;
    const QStringList lines = QString::fromLatin1(testData(fileName)).split('\n');
    for (const QString &line : lines.mid(0, lines.size() - 1)) {
        if (line.startsWith("== ")) {
            cases.append({fileName, line.mid(3).toLatin1(), {}, {}});
            part = &TestCase::given;
        } else if (line == "--") {
            part = &TestCase::expected;
        } else if (part != nullptr) {
            cases.last().*part += withBytes(line) + '\n';
        }
    }
    if (cases.isEmpty())
        qFatal("no cases in %s", fileName);
    return cases;
}

/// Adds the cases of the files as rows of a test.
inline void addCases(const QVector<const char *> &fileNames)
{
    QTest::addColumn<TestCase>("testCase");
    for (const char *fileName : fileNames) {
        for (const TestCase &testCase : casesIn(fileName))
            QTest::newRow(testCase.name.constData()) << testCase;
    }
}

/// Returns the lines in which two texts differ, with a few lines around them. Expected lines begin with "-", and found
/// lines with "+". Returns an empty string if the texts are equal.
inline QString differenceBetween(const QString &expectedText, const QString &foundText)
{
    if (expectedText == foundText)
        return QString();
    const QStringList expected = expectedText.split('\n');
    const QStringList found = foundText.split('\n');
    // Length of the longest common subsequence of the texts from the given lines on.
    QVector<QVector<int>> common(int(expected.size()) + 1, QVector<int>(int(found.size()) + 1, 0));
    for (int i = int(expected.size()) - 1; i >= 0; --i) {
        for (int j = int(found.size()) - 1; j >= 0; --j)
            common[i][j] =
                expected.at(i) == found.at(j) ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
    QStringList lines;
    int j = 0;
    for (int i = 0; i < expected.size() || j < found.size();) {
        if (i < expected.size() && j < found.size() && expected.at(i) == found.at(j)) {
            lines.append("  " + expected.at(i++));
            ++j;
        } else if (j == found.size() || (i < expected.size() && common[i + 1][j] >= common[i][j + 1])) {
            lines.append("- " + expected.at(i++));
        } else {
            lines.append("+ " + found.at(j++));
        }
    }
    constexpr int context = 3;
    QString shown;
    for (int line = 0; line < lines.size(); ++line) {
        if (!lines.mid(std::max(0, line - context), 2 * context + 1).filter(QRegularExpression("^[-+]")).isEmpty())
            shown += lines.at(line) + '\n';
        else if (!shown.endsWith("...\n"))
            shown += "...\n";
    }
    return shown;
}

/// Fails and prints the difference if two texts differ. The place tells where the expected text is.
#define COMPARE_TEXTS(found, expected, place)                                                                          \
    do {                                                                                                               \
        const QString difference = differenceBetween(expected, found);                                                 \
        QVERIFY2(difference.isEmpty(), qPrintable(QString(place) + '\n' + difference));                                \
    } while (false)
