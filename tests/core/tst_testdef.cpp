#include "testdef.h"

#include <QtTest/QtTest>

#include <functional>

using Change = std::function<void(TestDef &)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// A definition that is good for 1 Gbit/s.
TestDef gigabit()
{
    TestDef definition("CAT6");
    definition.setDataRate(1000);
    definition.setLengthConstant(1400);
    definition.setSkew(450);
    definition.setSNR(250);
    return definition;
}

void wire(TestDef &definition, const QVector<int> &farPairs)
{
    for (int pair = 0; pair < farPairs.size(); ++pair)
        definition.setPairMapping(pair, farPairs.at(pair));
}

void use(TestDef &definition, const std::array<bool, 4> &pairs)
{
    definition.setPairInUse(pairs.data());
}

const char Warning[] = "SNR and BERT tests may fail with\ncable length greater than 330ft (100m).";
const char Good[] = "GOOD";

} // namespace

class TestDefTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validity_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const char *message, const Change &change) {
            QTest::newRow(name) << change << QString(message);
        };
        const auto hundred = [](const Change &change) {
            return Change([change](TestDef &d) {
                d.setDataRate(100);
                d.setSkew(0);
                change(d);
            });
        };
        const auto skewOnly = [](const Change &change) {
            return Change([change](TestDef &d) {
                d.setDataRate(0);
                d.setSNR(0);
                change(d);
            });
        };
        const auto snrOnly = [](const Change &change) {
            return Change([change](TestDef &d) {
                d.setDataRate(0);
                d.setSkew(0);
                change(d);
            });
        };
        row("new", Good, [](TestDef &d) { d = TestDef("x"); });
        row("no pairs", "Cable has no pairs please\n specify which pairs are in use.", [](TestDef &d) {
            use(d, {false, false, false, false});
        });

        row("1000", Good, [](TestDef &) {});
        row("1000: least constant, most skew, least SNR", Good, [](TestDef &d) {
            d.setLengthConstant(1000);
            d.setSkew(500);
            d.setSNR(200);
        });
        row("1000: highest constant", Good, [](TestDef &d) { d.setLengthConstant(6500); });
        row("1000: crossed once", Good, [](TestDef &d) { wire(d, {1, 0, 2, 3}); });
        row("1000: crossed twice", Good, [](TestDef &d) { wire(d, {1, 0, 3, 2}); });
        row("1000: a pair less", "1 Gbit/s requires\nall 4 pairs be in use.", [](TestDef &d) {
            use(d, {true, true, true, false});
        });
        row("1000: split", "1 Gbit/s requires\nno splits.", [](TestDef &d) { d.setPairCare(3, 1, 1); });
        row("1000: code 2 and the other side are no split", Good, [](TestDef &d) {
            d.setPairCare(2, 1, 2);
            d.setPairCare(2, 0, 1);
        });
        row("1000: wiring",
            "Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run 1 Gbit/s.",
            [](TestDef &d) {
                wire(d, {0, 1, 3, 2});
            });
        row("1000: constant low",
            "1 Gbit/s requires that length constant\nis between 10.0 and 65.0 (pF/ft) or 32.8 and 213.2 (pF/m)",
            [](TestDef &d) { d.setLengthConstant(999.9F); });
        row("1000: no skew", "1 Gbit/s requires that skew must be measured\nand be at most 50ns.",
            [](TestDef &d) { d.setSkew(0); });
        row("1000: skew high", "1 Gbit/s requires that skew must be measured\nand be at most 50ns.",
            [](TestDef &d) { d.setSkew(501); });
        row("1000: SNR low", "1 Gbit/s requires that SNR must be measured\nand be at least 20dB.",
            [](TestDef &d) { d.setSNR(199); });

        row("100: two pairs do", Good, hundred([](TestDef &d) {
                use(d, {true, true, false, false});
                d.setPairCare(2, 1, 1);
                wire(d, {1, 0, 3, 2});
            }));
        row("100: a pair less", "100 Mbits/s requires pairs\n 1-2 and 3-6 be in use.", hundred([](TestDef &d) {
                use(d, {true, false, true, true});
            }));
        row("100: split", "100 Mbits/s requires no \nsplits on pairs 1-2 and 3-6.",
            hundred([](TestDef &d) { d.setPairCare(1, 1, 1); }));
        row("100: wiring",
            "Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run 100 Mbits/s.",
            hundred([](TestDef &d) {
                wire(d, {2, 1, 0, 3});
            }));
        row("100: constant high",
            "100 Mbits/s requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)",
            hundred([](TestDef &d) { d.setLengthConstant(6500.5F); }));
        row("100: no SNR", "100 Mbits/s requires that SNR must be measured\nand be at least 20dB.",
            hundred([](TestDef &d) { d.setSNR(0); }));

        row("skew", Good, skewOnly([](TestDef &d) { d.setSkew(9999); }));
        row("skew: a pair less", "Skew test requires\nall 4 pairs be in use.", skewOnly([](TestDef &d) {
                use(d, {true, true, false, true});
            }));
        row("skew: split", "Skew test requires\nno splits.", skewOnly([](TestDef &d) { d.setPairCare(2, 1, 1); }));
        row("skew: wiring",
            "Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run Skew test.",
            skewOnly([](TestDef &d) {
                wire(d, {0, 1, 3, 2});
            }));
        row("skew: constant",
            "Skew test requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m)",
            skewOnly([](TestDef &d) { d.setLengthConstant(15000); }));

        row("SNR", Good, snrOnly([](TestDef &d) { d.setSNR(1); }));
        row("SNR: a pair less", "SNR test requires pairs\n 1-2 and 3-6 be in use.", snrOnly([](TestDef &d) {
                use(d, {false, true, true, true});
            }));
        row("SNR: split", "SNR test requires no \nsplits on pairs 1-2 and 3-6.",
            snrOnly([](TestDef &d) { d.setPairCare(0, 1, 1); }));
        row("SNR: wiring", "Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run SNR test.",
            snrOnly([](TestDef &d) {
                wire(d, {0, 2, 1, 3});
            }));
        row("SNR: constant",
            "SNR test requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 (pF/m).",
            snrOnly([](TestDef &d) { d.setLengthConstant(999); }));

        row("longer than 330 feet", Warning, [](TestDef &d) { d.setMaxLength(330.5F); });
        row("any length", Warning, [](TestDef &d) { d.setMaxLength(-1); });
        row("two pairs on one", "Can't map 2 pairs on near end to\nsame pair on far end.", [](TestDef &d) {
            d = TestDef("x");
            d.setMaxLength(400);
            wire(d, {0, 0, 2, 3});
        });
        row("colour before the warning", "Invalid color.", [](TestDef &d) {
            d.setColor("zz");
            d.setMaxLength(400);
        });
    }

    void validity()
    {
        QFETCH(Change, change);
        TestDef definition = gigabit();
        change(definition);
        QTEST(definition.validDef(), "message");
    }

    void wiringAndCare()
    {
        TestDef definition("x");
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
