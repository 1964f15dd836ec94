#include "documentcheck.h"
#include "testfiles.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// What is found in a file. The root's first line is line 1.
class DocumentCheckTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    CheckReport check(const QByteArray &content)
    {
        const QString fileName = m_directory.filePath("checked");
        writeFile(fileName, content);
        CheckReport report = checkFile(fileName);
        if (readFile(fileName) != content)
            report.error = "the file was changed";
        return report;
    }

    static QStringList summary(const CheckReport &report)
    {
        QStringList lines;
        for (const Finding &finding : report.findings) {
            lines.append(QString("%1 %2 %3").arg(finding.line).arg(finding.rule, finding.element));
            if (finding.message.isEmpty())
                lines.append("without a message");
        }
        return lines;
    }

private Q_SLOTS:
    void contents_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("findings");
        const QByteArray job = "<Job><Version number='3.0'/>\n";
        const QByteArray bkt = "<Bkt><Version number='3.0'/>\n";
        const QStringList nothing;

        QTest::newRow("empty template") << bkt + "</Bkt>" << nothing;
        QTest::newRow("new job") << testData("new.job") << nothing;
        QTest::newRow("another root") << QByteArray("<Other/>") << QStringList("1 unknown-root ");
        QTest::newRow("comment first") << "<!-- -->\n" + job + "</Job>" << QStringList("2 unknown-root ");
        QTest::newRow("no version") << QByteArray("<Job>\n<Cable_List/></Job>") << QStringList("1 unknown-version ");
        QTest::newRow("unknown version") << QByteArray("<Bkt>\n<Version number='2.0'/></Bkt>")
                                         << QStringList("2 unknown-version Version");
        // What conversion brings has nothing wrong that the file could be blamed for.
        QTest::newRow("old version") << QByteArray("<Bkt>\n<Version number='1.4'/></Bkt>")
                                     << QStringList("2 old-version Version");
        QTest::newRow("old tags") << QByteArray(
            "<Bkt><Version number='2.1'/>\n<TestDef_List><T id='a' color='#000000'/>"
            "<T id='b' color='#000000'/></TestDef_List></Bkt>")
                                  << QStringList("1 old-version Version");

        QTest::newRow("list that is there twice")
            << job + "<Cable_List/>\n<Cable_List/></Job>" << QStringList("3 duplicate-tag Cable_List");
        QTest::newRow("cables")
            << job + "<Cable_List><Cable1 id='a'/>\n<Cable1 id='b'/>\n<Cable2 id='a'/></Cable_List></Job>"
            << QStringList({"3 duplicate-tag Cable_List/Cable1", "4 duplicate-id Cable_List/Cable2"});
        QTest::newRow("ids that are missing or empty")
            << job + "<Cable_List><Cable1/><Cable2/><Cable3 id=''/><Cable4 id=''/></Cable_List></Job>" << nothing;
        QTest::newRow("rooms and ports")
            << job
                   + "<Floor_List><FFloor_1><Room_List><Undefined id='Undefined'/><Room1 id='Lab'>\n"
                     "<Port_List><P1 id='1'/><P2 id='1'/></Port_List></Room1></Room_List></FFloor_1>\n"
                     "<FFloor_2><Room_List><Undefined id='Undefined'/><Room2 id='Lab'>\n"
                     "<Port_List><P1 id='2'/></Port_List></Room2>\n"
                     "<Undefined/></Room_List></FFloor_2></Floor_List></Job>"
            << QStringList({"3 duplicate-id Floor_List/FFloor_1/Room_List/Room1/Port_List/P2",
                            "5 duplicate-tag Floor_List/FFloor_2/Room_List/Room2/Port_List/P1",
                            "6 duplicate-tag Floor_List/FFloor_2/Room_List/Undefined"});
        QTest::newRow("texts of floors and of sheets")
            << job
                   + "<Floor_List><F1><FreeText_List><T1 id='x'/></FreeText_List></F1>\n"
                     "<F2><FreeText_List><T1 id='x'/></FreeText_List></F2></Floor_List>\n"
                     "<Sheet_List><S1><FreeText_List><T1 id='x'/></FreeText_List></S1></Sheet_List></Job>"
            << QStringList("3 duplicate-tag Floor_List/F2/FreeText_List/T1");

        const QByteArray plan = "<Floor_List><F1><Room_List><R1><Port_List><P1/></Port_List><VerticalRun_List><V1/>"
                                "</VerticalRun_List></R1></Room_List><Point_List><B1/></Point_List></F1></Floor_List>"
                                "<TestDef_List><TestDef1 id='CAT5E'/></TestDef_List><BundledCable_List><BundledCable1 "
                                "id='Pair'/></BundledCable_List>\n";
        QTest::newRow("cable whose things are there") << job + plan
                                                             + "<Cable_List><C1 from='P1' to='V1' path='B1,V1' "
                                                               "type='CAT5E' bundleName='Pair'/></Cable_List></Job>"
                                                      << nothing;
        const QString cable = "3 missing-reference Cable_List/C1";
        QTest::newRow("cable whose things are not")
            << job + plan
                   + "<Cable_List><C1 from='B1' to='X' path='P1,V1,X' type='CAT6' bundleName='Set'/></Cable_List></Job>"
            << QStringList({cable, cable, cable, cable, cable, cable});
        QTest::newRow("connections")
            << job
                   + "<Sheet_List><S1><Device_List><D1/></Device_List><Vertice_List><V1/></Vertice_List></S1></"
                     "Sheet_List>"
                     "<Connection_List><C1 from='D1' to='V1'/>\n<C2 from='D2' to=''/></Connection_List></Job>"
            << QStringList("3 missing-reference Connection_List/C2");

        QTest::newRow("active ports and vertical runs")
            << job
                   + "<Floor_List><F1><Room_List><R1><Port_List><P1/></Port_List><VerticalRun_List>"
                     "<V1 connected='C1' disconnected=''/>\n<V2 connected='' disconnected='C1,C2'/></VerticalRun_List>"
                     "</R1></Room_List></F1></Floor_List><Cable_List><C1/></Cable_List><ActiveNetworkTest_List>"
                     "<ActivePort_List><A1 port='P1'/>\n<A2 port='V1'/>\n<A1/></ActivePort_List>"
                     "</ActiveNetworkTest_List></Job>"
            << QStringList({"3 missing-reference Floor_List/F1/Room_List/R1/VerticalRun_List/V2",
                            "4 missing-reference ActiveNetworkTest_List/ActivePort_List/A2",
                            "5 duplicate-tag ActiveNetworkTest_List/ActivePort_List/A1"});

        QTest::newRow("definitions")
            << bkt
                   + "<TestDef_List><TestDef1 id='a'/>\n<TestDef2 id='a' color='greenish'/>\n"
                     "<TestDef3 id='long' max_length='-1'/></TestDef_List>\n"
                     "<BundledCable_List><B1 id='p'><BundledCableType_List><T1 id='a'/><T2 id='a'/><T3 id='c'/>"
                     "</BundledCableType_List></B1>\n<B2 id='p'/></BundledCable_List></Bkt>"
            << QStringList({"3 duplicate-id TestDef_List/TestDef2", "3 invalid-definition TestDef_List/TestDef2",
                            "5 missing-reference BundledCable_List/B1", "6 duplicate-id BundledCable_List/B2"});
        QTest::newRow("characters")
            << bkt + "<Contractor_Info company='&#x20AC;' tester='\xE9'/>\n<Other>&#x1F600;</Other></Bkt>"
            << QStringList({"2 lost-character Contractor_Info", "3 lost-character Other"});
    }

    void contents()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, findings);
        const CheckReport report = check(content);
        QCOMPARE(report.error, QString());
        QCOMPARE(summary(report), findings);
    }

    void filesThatCannotBeRead()
    {
        QVERIFY(check("<Job>").error.contains("line 1, column 5"));
        QVERIFY(!check("").error.isEmpty());
        QVERIFY(checkFile(m_directory.filePath("missing")).error.contains("missing"));
        QVERIFY(!checkFile(m_directory.path()).error.isEmpty());
        QVERIFY(!checkFile(QString()).error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(DocumentCheckTest)
#include "tst_documentcheck.moc"
