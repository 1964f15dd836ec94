#include "jobeditorprobe.h"
#include "testlanguage.h"

#include <QtTest/QtTest>

class JobCablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(JobEditor::Instance().New("site")); }
    void cleanup() { JobEditor::Destroy(); }

    void cablesAreStoredWhole()
    {
        JobEditor &job = JobEditor::Instance();
        TestResults results("noon", "PASS", "1.2", "S", cable_struct::untested(), 4);
        TRUEPHY_PLOT_DATA curve{};
        curve.plot_a[1] = -5;
        curve.count = 257;
        results.setChannel(curve);
        cable_struct block = cable_struct::untested();
        std::fill_n(block.word_group_a, 4, 1);
        std::fill_n(block.pair_length, 4, 2);
        results.setResults(block);
        Cable cable("C", "Id", "data", "P1", "P2", "CAT6", results, {"Point1", "Point2"}, "B", "1", "2", "#010203");
        QCOMPARE(job.addCable(cable, 0), QString(withGeneratedNames("Cable001")));
        QCOMPARE(job.getCableElement("Cable1"), QString("Cable1"));
        QCOMPARE(job.addCable(cable, 2), QString("Id"));
        QVERIFY(job.getCable("C") == cable);
        QVERIFY(job.getCableById("Id") == cable);
        QVERIFY(cable.inBundle() && cable.hasResponseData());
        QVERIFY(!Cable().inBundle() && !Cable().hasResponseData());
        QCOMPARE(job.getCablePath("C"), cable.path());
        QVERIFY(job.cableIsInBundle("C") && job.bundleGroupNumExists("2") && !job.bundleGroupNumExists("1"));
    }

    void coloursAndUses()
    {
        JobEditor &job = JobEditor::Instance();
        TestDef definition("CAT6");
        definition.setColor("#333333");
        job.addTestDef(definition);
        job.addCable("A", "A", "cable_box", "P1", "P2", "CAT6", 2);
        QCOMPARE(job.getCableUse("A"), QString("TV"));
        QCOMPARE(job.getCableColor("A"), QString("#333333"));
        const TestResults untested;
        job.addCable("B", "B", "data", "P1", "P2", "CAT6", "", "", "", "zz", QStringList(), untested, 2);
        QCOMPARE(job.getCableColor("B"), QString("#333333"));
        job.addCable("C", "C", "data", "P1", "P2", "none", "", "", "", "red", QStringList(), untested, 2);
        QCOMPARE(job.getCableColor("C"), QString("red"));
        QCOMPARE(job.getCablePath("C"), QStringList());
    }

    void singleFields()
    {
        using Get = QString (JobEditor::*)(const QString &) const;
        using Set = void (JobEditor::*)(const QString &, const QString &);
        const QVector<std::pair<Get, Set>> fields{
            {&JobEditor::getCableUse, &JobEditor::setCableUse},
            {&JobEditor::getCableTo, &JobEditor::setCableTo},
            {&JobEditor::getCableFrom, &JobEditor::setCableFrom},
            {&JobEditor::getCableID, &JobEditor::setCableID},
            {&JobEditor::getCableType, &JobEditor::setCableType},
            {&JobEditor::getCableBundleName, &JobEditor::setCableBundleName},
            {&JobEditor::getCableBundleNum, &JobEditor::setCableBundleNum},
            {&JobEditor::getCableBundleGroupNum, &JobEditor::setCableBundleGroupNum},
            {&JobEditor::getCableColor, &JobEditor::setCableColor},
        };
        JobEditor &job = JobEditor::Instance();
        job.addCable("C", "I", 2);
        for (int i = 0; i < fields.size(); ++i) {
            job.setDirty(false);
            (job.*fields.at(i).second)("Any", "x");
            QVERIFY(!job.fileChanged());
            (job.*fields.at(i).second)("C", QString::number(i));
            QVERIFY(job.fileChanged());
            QCOMPARE((job.*fields.at(i).first)("Any"), QString());
        }
        for (int i = 0; i < fields.size(); ++i)
            QCOMPARE((job.*fields.at(i).first)("C"), QString::number(i));
        QCOMPARE(job.getCablesByType("4"), QStringList("C"));
        QCOMPARE(job.getCables(false), QStringList("3"));
        job.setCableBundleName("C", QString());
        QVERIFY(!job.cableIsInBundle("C"));
        job.setCablePath("C", {"a", "b"});
        QCOMPARE(job.getCablePath("C"), QStringList({"a", "b"}));
        // A cable of an older program has the attribute; it is changed but never created.
        job.setCableDefaultType("C", true);
        QVERIFY(!job.getCableDefaultType("C"));
        job.getToCableList().firstChildElement().setAttribute("default_type", "0");
        job.setCableDefaultType("C", true);
        QVERIFY(job.getCableDefaultType("C") && job.getCable("C").defaultType());
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void cablesWithoutAStatusAreUntested()
    {
        JobEditor &job = JobEditor::Instance();
        job.addCable("A", "A", "data", "P1", "P2", "T", TestResults("", "PASS", cable_struct::untested(), 1), 2);
        job.addCable("B", "B", "data", "P1", "P2", "T", TestResults("", "", cable_struct::untested(), 1), 2);
        job.addCable("C", "C", 2);
        job.addCable("D", "D", 2);
        QDomElement withoutStatus = job.getToCableList().firstChildElement("C").firstChildElement();
        withoutStatus.removeAttribute("status");
        QDomElement withoutResults = job.getToCableList().firstChildElement("D");
        withoutResults.removeChild(withoutResults.firstChild());
        for (const QString &tag : {QString("C"), QString("D")}) {
            QCOMPARE(job.getCableStatus(tag), QString("UNTESTED"));
            QCOMPARE(job.getCableTestResults(tag).status(), QString("UNTESTED"));
        }
        QCOMPARE(job.getCableStatus("A") + job.getCableStatus("B") + job.getCableStatus("none"), QString("PASS"));
        QCOMPARE(job.getCablesByStatus("UNTESTED").join(','), QString("C,D"));
    }

    void lengths()
    {
        JobEditor &job = JobEditor::Instance();
        TestDef definition("T");
        definition.setLengthConstant(100);
        job.addTestDef(definition);
        definition = TestDef("Third");
        definition.setLengthConstant(300);
        job.addTestDef(definition);
        TestResults results;
        cable_struct block = cable_struct::untested();
        const int readings[] = {328, 99, 0, 1};
        std::copy(std::begin(readings), std::end(readings), block.pair_length);
        results.setResults(block);
        job.addCable("C", "C", "data", "P1", "P2", "T", results, 2);
        QCOMPARE(job.getRoundedCableLength("C", 0, false), 328.0F);
        QCOMPARE(job.getRoundedCableLength("C", 0, true), 100.0F);
        // 30.18 metres
        QCOMPARE(job.getRoundedCableLength("C", 1, true), 30.0F);
        QCOMPARE(job.getRoundedCableLength("C", 4, true), 0.0F);
        std::fill_n(block.pair_length + 1, 3, 0);
        results.setResults(block);
        job.setCableTestResults("C", results);
        QCOMPARE(job.getMaxRoundedCableLength("C", false, true), 328.0F);
        QCOMPARE(job.getMaxRoundedCableLength("C", true, true), 99.0F);
        QCOMPARE(job.getMaxRoundedCableLength("C", false, false), 328.0F);
        job.setCableType("C", "Third");
        QCOMPARE(job.getMaxRoundedCableLength("C", true, false), 33.5F);
        QCOMPARE(job.getMaxRoundedCableLength("C", false, false), 109.3F);
        QCOMPARE(job.getMaxRoundedCableLength("none", false, true), 0.0F);
        QVERIFY(job.getMaxRoundedCableLength("C2", false, false) <= 0.0F);
        job.setCableTestResults("C", TestResults());
        QCOMPARE(job.getMaxRoundedCableLength("C", false, false), -0.3F);
    }

    void lists()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.Load(testDataPath("site.job")));
        QCOMPARE(job.getCablesByUse("data").join(','), QString("Cable1"));
        QCOMPARE(job.getCablesByUse(QString()).join(','), QString());
        QCOMPARE(job.getCablesByBundle("HTheatre").join(','), QString("Cable1"));
        QCOMPARE(job.getCablesByBundleGroup("4").join(','), QString("Cable1"));
        QCOMPARE(job.getCablesByPort("P3").join(','), QString("Cable2,Cable3"));
        QCOMPARE(job.getCablesByPort("V1").join(','), QString("Cable2"));
        QCOMPARE(job.getCablesByFloor("FFloor_1").join(','), QString("Cable1,Cable2"));
        QCOMPARE(job.getCablesByStatus("PASS").join(','), QString("Cable1"));
        QVERIFY(job.getCablesByStatus("FAIL").isEmpty());
        QCOMPARE(job.getPortIdByTag("P3") + job.getVertRunIdByTag("V1"), QString("Jack 1Riser"));
        job.removeCable("Cable2");
        QCOMPARE(job.getCablesByPort("P3").join(','), QString("Cable3"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void connections()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(job.addConnection(QString(), "Link ", "D1", "D2", "3", 0), QString("Link 1"));
        const DeviceConnection mine("Mine", "Uplink", "D2", "D3", "x");
        QCOMPARE(job.addConnection(mine, 2), QString("Uplink"));
        QVERIFY(job.getConnection("Mine") == mine);
        QCOMPARE(job.getConnectionTagById("Link 1"), QString("Connection1"));
        QCOMPARE(job.getConnectionType("Connection1"), 3);
        QCOMPARE(job.getConnectionType("Mine"), 0);
        job.setConnectionTo("Mine", "D7");
        job.setConnectionFrom("Mine", "D8");
        job.setConnectionType("Mine", "9");
        QCOMPARE(job.getConnectionTo("Mine") + job.getConnectionFrom("Mine"), QString("D7D8"));
        QCOMPARE(job.getConnectionType("Mine"), 9);
        job.removeConnection("Connection1");
        job.removeConnection("none");
        QCOMPARE(job.getConnections(true), QStringList("Mine"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }
};

QTEST_GUILESS_MAIN(JobCablesTest)
#include "tst_jobcables.moc"
