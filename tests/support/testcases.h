#pragma once

#include "testfiles.h"

#include <QtCore/QMetaType>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtTest/QtTest>

/// A case of a file of cases: what is given, and what is expected of it.
struct TestCase
{
    QByteArray name;
    QByteArray given;
    QByteArray expected;

    QString expectedText() const { return QString::fromLatin1(expected).trimmed(); }
    QStringList expectedLines() const { return expected.isEmpty() ? QStringList() : expectedText().split('\n'); }
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

/// The cases of a file in tests/data. tests/data/README.md tells their form.
inline QVector<TestCase> casesIn(const char *fileName)
{
    QVector<TestCase> cases;
    QByteArray TestCase::*part = nullptr;
    const QStringList lines = QString::fromLatin1(testData(fileName)).split('\n');
    for (const QString &line : lines.mid(0, lines.size() - 1)) {
        if (line.startsWith("== ")) {
            cases.append({line.mid(3).toLatin1(), {}, {}});
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
inline void addCases(std::initializer_list<const char *> fileNames)
{
    QTest::addColumn<TestCase>("testCase");
    for (const char *fileName : fileNames) {
        for (const TestCase &testCase : casesIn(fileName))
            QTest::newRow(testCase.name.constData()) << testCase;
    }
}
