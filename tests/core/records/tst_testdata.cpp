#include "bkxmleditor.h"
#include "testresults.h"

#include <QtTest/QtTest>

using cabledoc::sameArray;

namespace {

template <typename Array> void fill(Array &array, int value)
{
    std::fill(std::begin(array), std::end(array), value);
}

/// The text of a curve whose samples are all the same.
QString curveText(const QString &sample, const QString &count)
{
    return (sample + ',').repeated(514) + count + ',';
}

} // namespace

class TestDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void untestedBlock()
    {
        const QString text = QString('F').repeated(96);
        QCOMPARE(BKXMLEditor::dataToString(cable_struct::untested()), text);
        cable_struct expected = cable_struct::untested();
        // Only the last two groups read -1 back.
        fill(expected.word_group_a, 65535);
        fill(expected.pair_length, 65535);
        QVERIFY(BKXMLEditor::stringToData(text) == expected);
    }

    void blockFieldByField()
    {
        const cable_struct block{{0x01, 0x23, 0x45, 0x67},
                                 {1, 0x1234, 0x1FFFE, -2},
                                 {0x89, 1, 0, 2, 3, 0xAB, 0xCD, 0xEF, 0x10},
                                 0x20,
                                 {328, 0, 60000, 65535},
                                 0x30,
                                 0x40,
                                 {-1, 5, 65534, 6},
                                 {7, 8, 9, 256}};
        const QString text("01234567"
                           "00011234FFFEFFFE"
                           "8901000203ABCDEF10"
                           "20"
                           "01480000EA60FFFF"
                           "3040"
                           "FFFF0005FFFE0006"
                           "0007000800090100");
        QCOMPARE(BKXMLEditor::dataToString(block), text);
        cable_struct expected = block;
        expected.word_group_a[2] = expected.word_group_a[3] = 0xFFFE; // what is beyond 16 bits is lost
        QVERIFY(BKXMLEditor::stringToData(text) == expected);
        QVERIFY(BKXMLEditor::stringToData(text + "0000") == expected);
        // Lower-case digits are no digits: "f" counts as 47.
        QCOMPARE(int(BKXMLEditor::stringToData("0f").flag_bytes[0]), 47);
        QCOMPARE(int(BKXMLEditor::stringToData("f0").flag_bytes[0]), (47 * 16) % 256);
    }

    void shortBlock()
    {
        const cable_struct untested = cable_struct::untested();
        QVERIFY(BKXMLEditor::stringToData(QString()) == untested);
        cable_struct expected = untested;
        expected.flag_bytes[0] = 0x12;
        QVERIFY(BKXMLEditor::stringToData("123") == expected);
        fill(expected.flag_bytes, 0x12);
        QVERIFY(BKXMLEditor::stringToData("12121212121") == expected);
        expected.word_group_a[0] = 0x1234;
        QVERIFY(BKXMLEditor::stringToData("12121212123412") == expected);
    }

    void curves_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("count");
        QTest::newRow("empty") << QString() << 0 << 0 << 0;
        QTest::newRow("whole") << curveText("-7", "257") << -7 << -7 << 257;
        QTest::newRow("limits") << "-2147483648," + curveText("2147483647", "257").mid(11) << INT_MIN << INT_MAX << 257;
        QTest::newRow("cut off") << "12,5" << 12 << 0 << 0;
        QTest::newRow("other count") << curveText("1", "256") << 1 << 1 << 256;
        QTest::newRow("more than it takes") << curveText("1", "257") + "9,9,9" << 1 << 1 << 257;
        QTest::newRow("no numbers") << "x,1" << 0 << 0 << 0;
        QTest::newRow("number with more behind") << "1x,2" << 0 << 0 << 0;
        QTest::newRow("blanks and signs") << " +5 ,2" << 5 << 0 << 0;
        QTest::newRow("sign alone") << "-,2" << 0 << 0 << 0;
        QTest::newRow("beyond any number") << "99999999999999999999,1" << 0 << 0 << 0;
    }

    void curves()
    {
        QFETCH(QString, text);
        const TRUEPHY_PLOT_DATA curve = BKXMLEditor::responseStringToData(text);
        QTEST(int(curve.plot_a[0]), "first");
        QTEST(int(curve.plot_b[256]), "last");
        QTEST(int(curve.count), "count");
        QVERIFY(sameArray(curve.header, TRUEPHY_PLOT_DATA{}.header));
        // Only whole curves have a text.
        const QString expected = curve.count == 257 ? text.section(',', 0, 514) + ',' : QString();
        QCOMPARE(BKXMLEditor::responseDataToString(curve), expected);
    }

    void resultsKeepWhatTheyAreGiven()
    {
        cable_struct block = cable_struct::untested();
        block.pair_length[0] = 120;
        const TestResults short4("now", "PASS", block, 3);
        QCOMPARE(short4.time() + short4.softwareVersion() + short4.serialNumber(), QString());
        QCOMPARE(short4.status(), QString("PASS"));
        QCOMPARE(short4.BERTResults(), 3);
        const TestResults full("now", "FAIL", "2.0", "S1", block, 3);
        QCOMPARE(full.time() + full.status() + full.softwareVersion() + full.serialNumber(), QString("nowFAIL2.0S1"));
        QVERIFY(full.results() == block);
        TestResults copy(full);
        QVERIFY(copy == full);
        TRUEPHY_PLOT_DATA curve{};
        curve.header[5] = 1;
        curve.plot_b[256] = 2;
        curve.count = 257;
        copy.setEcho(curve);
        QVERIFY(copy != full);
        copy.initializeResponsePlotData();
        QCOMPARE(copy.echo().count + copy.echo().plot_b[256], 0);
        QCOMPARE(copy.echo().header[5], 1);
        copy.initializeCableStruct();
        QVERIFY(copy.results() == TestResults().results());
    }

    void shortestLength_data()
    {
        QTest::addColumn<QVector<int>>("lengths");
        QTest::addColumn<int>("expected");
        QTest::newRow("shortest") << QVector<int>{120, 0, 65535, 95} << 95;
        QTest::newRow("none") << QVector<int>{0, -1, 65535, 60000} << -1;
        QTest::newRow("just below the limit") << QVector<int>{59999, 60000, 60001, 0} << 59999;
    }

    void shortestLength()
    {
        QFETCH(QVector<int>, lengths);
        cable_struct block = cable_struct::untested();
        std::copy(lengths.cbegin(), lengths.cend(), std::begin(block.pair_length));
        TestResults results;
        results.setResults(block);
        QTEST(results.cableLength(), "expected");
    }
};

QTEST_GUILESS_MAIN(TestDataTest)
#include "tst_testdata.moc"
