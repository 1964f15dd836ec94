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

/// Makes the cases of a file in tests/data the rows of a test. tests/data/README.md tells their form.
inline void addCases(const char *fileName)
{
    QTest::addColumn<TestCase>("testCase");
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
    for (const TestCase &testCase : std::as_const(cases))
        QTest::newRow(testCase.name.constData()) << testCase;
}
