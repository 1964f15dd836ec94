#pragma once

#include "testfiles.h"

#include <QtCore/QMetaType>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtTest/QtTest>

/// A case of a file of cases: what is given, and what is expected of it.
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

/// The line with each "\xHH" as the byte HH.
inline QByteArray withBytes(const QString &line)
{
    static const QRegularExpression escape("\\\\x([0-9A-F]{2})");
    QString text = line;
    for (auto match = escape.match(text); match.hasMatch(); match = escape.match(text))
        text.replace(match.capturedStart(), 4, QChar(match.captured(1).toInt(nullptr, 16)));
    return text.toLatin1();
}

/// The cases of a file in tests/data. Their form is described in tests/data/README.md.
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

/// Makes the cases of files the rows of a test.
inline void addCases(const QVector<const char *> &fileNames)
{
    QTest::addColumn<TestCase>("testCase");
    for (const char *fileName : fileNames) {
        for (const TestCase &testCase : casesIn(fileName))
            QTest::newRow(testCase.name.constData()) << testCase;
    }
}

/// The lines in which two texts differ, "-" before what was expected and "+" before what was found, with a few lines
/// around them. Empty if the texts are equal.
inline QString differenceBetween(const QString &expectedText, const QString &foundText)
{
    if (expectedText == foundText)
        return QString();
    const QStringList expected = expectedText.split('\n');
    const QStringList found = foundText.split('\n');
    // How many lines are common to what follows a line of each.
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

/// Fails with the difference between two texts. The place says where the expected one stands.
#define COMPARE_TEXTS(found, expected, place)                                                                          \
    do {                                                                                                               \
        const QString difference = differenceBetween(expected, found);                                                 \
        QVERIFY2(difference.isEmpty(), qPrintable(QString(place) + '\n' + difference));                                \
    } while (false)
