#include "jobeditorprobe.h"

#include <QtTest/QtTest>

/// What a job holds beside its plan: definitions, bundles, contractor, site, releases and notes.
class JobContentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(JobEditor::Instance().New("site")); }
    void cleanup() { JobEditor::Destroy(); }

    void testDefinitions()
    {
        JobEditor &job = JobEditor::Instance();
        TestDef definition("CAT6");
        const bool pairs[] = {true, false, true, false};
        definition.setPairInUse(pairs);
        definition.setPairMapping(0, 1);
        definition.setPairCare(2, 1, 1);
        definition.setDataRate(100);
        definition.setSNR(200);
        definition.setSkew(7);
        definition.setShield(true);
        definition.setLengthConstant(6500);
        definition.setMaxLength(-1);
        definition.setComment("a \"comment\"");
        definition.setCableCategory(6);
        definition.setDefaultType(true);
        definition.setColor("#123456");
        cable_struct expected = definition.expected();
        std::fill_n(expected.word_group_a, 4, 65535);
        std::fill_n(expected.pair_length, 4, 65535);
        definition.setExpected(expected);
        job.addTestDef(definition);
        QVERIFY(job.fileChanged());
        QVERIFY(job.getTestDef("CAT6") == definition);

        job.addTestDef(TestDef("CAT6"));
        QVERIFY(job.getTestDef("CAT6") == definition);
        TestDef fraction("Audio");
        fraction.setLengthConstant(6500.5F);
        job.addTestDef(fraction);
        QCOMPARE(double(job.getTestDef("Audio").fields().lengthConstant), 6500.0);
        job.addTestDef(TestDef("Fire"));
        job.removeTestDef("Audio");
        job.addTestDef(TestDef("Security"));
        job.renameTestDef("Fire", "Smoke");
        QCOMPARE(job.getTestDefElements().join(','), QString("TestDef1,TestDef3,TestDef2"));
        QCOMPARE(job.getTestDefNames().join(','), QString("CAT6,Smoke,Security"));
        QVERIFY(job.testDefExists("Smoke") && !job.testDefExists("TestDef3"));
        QVERIFY(job.testDefElementExists("TestDef3") && !job.testDefElementExists("Smoke"));
        QVERIFY(job.getTestDef("none") == TestDef("none"));
    }

    void bundles()
    {
        JobEditor &job = JobEditor::Instance();
        job.addBundledCableType("HTheatre", {"CAT5E", "Audio"}, "#ffaa7f", false);
        const QByteArray once = JobEditorProbe(job).text();
        QVERIFY(once.contains(" <BundledCable_List>\n"
                              "  <BundledCable1 id=\"HTheatre\" color=\"#ffaa7f\" default_type=\"0\">\n"
                              "   <BundledCableType_List>\n"
                              "    <BundledCableType1 id=\"CAT5E\"/>\n"
                              "    <BundledCableType2 id=\"Audio\"/>\n"
                              "   </BundledCableType_List>\n"
                              "  </BundledCable1>\n"));
        job.addBundledCableType("HTheatre", {"Fire"}, "red", true);
        QCOMPARE(JobEditorProbe(job).text(), once);

        const QStringList nine{"1", "2", "3", "4", "5", "6", "7", "8", "9"};
        job.addBundledCableType(BundledCable("given", "Nine", nine, "red", true));
        QVERIFY(job.getBundledCableType("Nine") == BundledCable("BundledCable2", "Nine", nine.mid(0, 8), "red", true));
        job.addBundledCableType("Three", {}, QString(), false);
        job.removeBundledCableTypeByTag("BundledCable2");
        job.renameBundledCableType("Three", "Four");
        job.addBundledCableType("Five", {}, QString(), false);
        QCOMPARE(job.getBundledCableTypeTags().join(','), QString("BundledCable1,BundledCable3,BundledCable2"));
        QCOMPARE(job.getBundledCableTypeIds().join(','), QString("HTheatre,Four,Five"));
        QCOMPARE(job.getBundledCableTypeIdByTag("BundledCable3"), QString("Four"));
        QCOMPARE(job.getBundledCableTypeTagById("Five"), QString("BundledCable2"));
        QVERIFY(job.bundledCableTypeIdExists("Four") && !job.bundledCableTypeTagExists("Four"));
        QCOMPARE(job.getBundledCableType("none").id(), QString("error"));
    }

    void contractorAndSite()
    {
        JobEditor &job = JobEditor::Instance();
        const Address address("1 Way", "Flat 2", "Town", "State", "123", "Land");
        const ContractorData contractor("Ann", "Wires", "a@b", "555", "logo.png", address);
        job.setContractorData(contractor);
        const SiteData site("Bob", "J7", "Mill", "556", "b@c", Address("2 Way", "", "", "", "", ""));
        job.setSiteData(site);
        QVERIFY(job.getContractorData() == contractor);
        QVERIFY(job.getSiteData() == site);
        const QByteArray text = JobEditorProbe(job).text();
        QVERIFY(text.contains("<Contractor_Info tester=\"Ann\" company=\"Wires\" email=\"a@b\" phone=\"555\" "
                              "logo=\"logo.png\">\n  <Address address1=\"1 Way\" address2=\"Flat 2\""));
        QVERIFY(text.contains("<Site_Info phone=\"556\" jobid=\"J7\" company=\"Mill\" email=\"b@c\" contact=\"Bob\">"));
        job.setDirty(false);
        job.setContractorEmail("a@b");
        QVERIFY(job.fileChanged());

        QDomElement root = JobEditorProbe(job).root();
        root.firstChildElement("Contractor_Info").removeAttribute("logo");
        job.setContractorLogo("new.png");
        QCOMPARE(job.getContractorLogo(), QString("new.png"));
        root.removeChild(root.firstChildElement("Site_Info"));
        job.setDirty(false);
        job.setSiteData(site);
        QVERIFY(job.getSiteData() == SiteData());
        QVERIFY(!job.fileChanged());
    }

    void releasesAndNotes()
    {
        JobEditor &job = JobEditor::Instance();
        job.addRelease("plan", "A");
        QCOMPARE(job.getRelease("plan"), QString("A"));
        job.error().clear();
        job.addRelease("no name", "A");
        QVERIFY(!job.error().isEmpty());
        job.setDirty(false);
        job.removeRelease("plan");
        QVERIFY(job.fileChanged());
        QCOMPARE(job.getRelease("plan"), QString());
        job.setRelease(7);
        QCOMPARE(job.getRelease(), 7);

        job.setJobNotesText("line\nline");
        job.setDirty(false);
        job.setJobNotesText("line\nline");
        QVERIFY(!job.fileChanged());
        QDomElement root = JobEditorProbe(job).root();
        root.removeChild(root.firstChildElement("JobNotes_Text"));
        job.setJobNotesText("again");
        QCOMPARE(job.getJobNotesText(), QString("again"));
        root.removeChild(root.firstChildElement("Connection_List"));
        QCOMPARE(job.getToJobNotesList().tagName(), QString("Connection_List"));
        QVERIFY(!job.getToConnectionList().isNull());
    }
};

QTEST_GUILESS_MAIN(JobContentsTest)
#include "tst_jobcontents.moc"
