#include "testcases.h"
#include "testdef.h"

namespace {

/// A definition that is good for 1 Gbit/s but for the given lines: a name and its value.
TestDef definitionWith(const QByteArray &lines)
{
    QMap<QString, QString> values{
        {"data rate", "1000"},    {"length constant", "1400"}, {"skew", "450"},        {"SNR", "250"},
        {"max length", "330"},    {"color", "#000000"},        {"near codes", "0000"}, {"far codes", "0000"},
        {"pairs in use", "1111"}, {"far pairs", "0123"},
    };
    for (const QString &line : QString(lines).split('\n')) {
        const QString name = line.section(' ', 0, -2);
        if (!line.isEmpty() && !values.contains(name))
            qFatal("unknown: %s", qPrintable(name));
        values[name] = line.section(' ', -1);
    }
    TestDef definition("CAT6");
    definition.setDataRate(values["data rate"].toInt());
    definition.setLengthConstant(values["length constant"].toFloat());
    definition.setSkew(values["skew"].toInt());
    definition.setSNR(values["SNR"].toInt());
    definition.setMaxLength(values["max length"].toFloat());
    definition.setColor(values["color"]);
    std::array<bool, 4> inUse{};
    for (int pair = 0; pair < 4; ++pair) {
        inUse[pair] = values["pairs in use"].at(pair) == '1';
        definition.setPairMapping(pair, values["far pairs"].at(pair).digitValue());
        definition.setPairCare(pair, 0, values["near codes"].at(pair).digitValue());
        definition.setPairCare(pair, 1, values["far codes"].at(pair).digitValue());
    }
    definition.setPairInUse(inUse.data());
    return definition;
}

} // namespace

class TestDefTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validity_data() { addCases({"cases/testdef.txt"}); }

    void validity()
    {
        QFETCH(TestCase, testCase);
        // What is good is not translated: callers compare it.
        const QString verdict = testCase.expected.chopped(1);
        QCOMPARE(definitionWith(testCase.given).validDef(),
                 verdict == "GOOD" ? verdict : TestDef::tr(verdict.toLatin1()));
    }

    void wiringAndCare()
    {
        TestDef definition("x");
        QCOMPARE(definition.validDef(), QString("GOOD"));
        for (int pair = 0; pair < 4; ++pair) {
            QCOMPARE(definition.getPairTo(pair), pair);
            QCOMPARE(definition.carePair(pair, 0) + definition.carePair(pair, 1), 0);
        }
        const cable_struct before = definition.expected();
        for (const int pair : {-1, 4}) {
            definition.setPairMapping(pair, 1);
            definition.setPairCare(pair, 0, 1);
            QCOMPARE(definition.carePair(pair, 0), 0);
        }
        definition.setPairCare(0, 2, 1);
        definition.setPairCare(0, 0, 3);
        QVERIFY(definition.expected() == before);
        definition.setPairMapping(2, 9);
        QCOMPARE(definition.getPairTo(2), 2);
        definition.setPairCare(3, 0, 2);
        definition.setPairCare(3, 1, 1);
        QCOMPARE(definition.carePair(3, 0), 2);
        QCOMPARE(definition.carePair(3, 1), 1);
        definition.setPairCare(3, 1, 0);
        QCOMPARE(definition.carePair(3, 0), 2);
        QCOMPARE(definition.carePair(3, 1), 0);
        QCOMPARE(definition.length_constant(), 15000);
    }
};

QTEST_GUILESS_MAIN(TestDefTest)
#include "tst_testdef.moc"
