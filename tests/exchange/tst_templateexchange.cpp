#include "bkteditor.h"
#include "jobeditor.h"
#include "testfiles.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

const QStringList reports{
    "JobInfo_Settings",   "NetView_Settings",       "Inventory_Settings", "FloorPlan_Settings",
    "TestSched_Settings", "DetailedCable_Settings", "JobNotes_Settings",  "ActiveNetworkTestResults_Settings"};
const QStringList drawings{"NetView_Settings", "FloorPlan_Settings"};

TestDef definition(const QString &type, bool isDefault, const QString &comment)
{
    TestDef definition(type);
    definition.setDefaultType(isDefault);
    definition.setComment(comment);
    definition.setLengthConstant(1420);
    definition.setPairMapping(0, 1);
    return definition;
}

/// Gives a document something of everything that moves between documents; the mark tells one from another.
void fill(BKXMLEditor &document, int mark)
{
    const QString text = QString::number(mark);
    document.setContractorData("Ann " + text, "Co", "", "5", "logo.png", Address("1 Main St", "", "X", "", "", text));
    for (const QString &report : reports)
        document.setPrintSettings(PrintSettings("B", 0, ++mark, 2, 3, 1), report);
    for (const QString &drawing : drawings) {
        document.setPageSettings(PageSettings("B", "ANSI Engineering", 0, 2, 1, ++mark + 0.1, 4), drawing);
        document.setScaleSettings(ScaleSettings("Metric", "1 : 5", 1, 2, 1, ++mark + 0.1, 2), drawing);
    }
    document.addTestDef(definition("CAT5E", true, text));
    document.addTestDef(definition("own " + text, false, text));
    document.addTestDef(definition("default " + text, true, text));
    document.addBundledCableType("HTheatre", {"CAT5E", text}, "#ffaa7f", true);
    document.addBundledCableType("bundle " + text, {"CAT5E"}, "#000000", false);
}

} // namespace

/// What jobs and templates give each other.
class TemplateExchangeTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    QString path(const char *name) const { return m_directory.filePath(name); }

private Q_SLOTS:
    void init() { QVERIFY(JobEditor::Instance().New(path("site.job"))); }

    void cleanup()
    {
        JobEditor::Destroy();
        BktEditor::Destroy();
    }

    void exportedAndImportedAgain()
    {
        JobEditor &job = JobEditor::Instance();
        fill(job, 100);
        QVERIFY2(job.Export(path("shop.bkt")), qPrintable(job.error()));
        QVERIFY(job.saveAs(path("site.job")));
        BktEditor &bkt = BktEditor::Instance();
        QCOMPARE(bkt.filename(), path("shop.bkt"));
        QVERIFY(!bkt.fileChanged());

        job.Unload();
        QVERIFY(job.New(path("next.job")));
        QVERIFY(bkt.Load(path("shop.bkt")));
        job.Import(&bkt);
        QVERIFY(job.fileChanged());
        QVERIFY(job.saveAs(path("next.job")));
        QCOMPARE(readFile(path("next.job")), readFile(path("site.job")));
    }

    void importKeepsWhatIsThere()
    {
        JobEditor &job = JobEditor::Instance();
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(path("shop.bkt")));
        fill(job, 100);
        fill(bkt, 500);
        job.Import(&bkt);
        QVERIFY(job.getContractorData() == bkt.getContractorData());
        for (const QString &report : reports)
            QVERIFY2(job.getPrintSettings(report) == bkt.getPrintSettings(report), qPrintable(report));
        for (const QString &drawing : drawings) {
            QVERIFY2(job.getPageSettings(drawing) == bkt.getPageSettings(drawing), qPrintable(drawing));
            QVERIFY2(job.getScaleSettings(drawing) == bkt.getScaleSettings(drawing), qPrintable(drawing));
        }
        QCOMPARE(job.getTestDefNames(), QStringList({"CAT5E", "own 100", "default 100", "own 500", "default 500"}));
        QCOMPARE(job.getTestDef("CAT5E").comment(), QString("100"));
        QVERIFY(job.getTestDef("own 500") == bkt.getTestDef("own 500"));
        QCOMPARE(job.getBundledCableTypeIds(), QStringList({"HTheatre", "bundle 100", "bundle 500"}));
        QCOMPARE(job.getBundledCableType("HTheatre").types().last(), QString("100"));
        QCOMPARE(job.getBundledCableType("bundle 500").types(), QStringList("CAT5E"));
    }

    void missingDefaults()
    {
        JobEditor &job = JobEditor::Instance();
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(path("shop.bkt")));
        fill(bkt, 500);
        job.ImportMissingDefaultCableTypes(&bkt);
        QCOMPARE(job.getTestDefNames(), QStringList({"CAT5E", "default 500"}));
        QCOMPARE(job.getBundledCableTypeIds(), QStringList({"HTheatre", "bundle 500"}));
        QVERIFY(job.getContractorTester().isEmpty());
        QVERIFY(job.saveAs(path("site.job")));
        job.ImportMissingDefaultCableTypes(&bkt);
        QVERIFY(!job.fileChanged());
    }

    void templateTakesFromJob()
    {
        JobEditor &job = JobEditor::Instance();
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(path("shop.bkt")));
        fill(job, 100);
        fill(bkt, 500);
        const PrintSettings kept = bkt.getPrintSettings("Inventory_Settings");
        bkt.Import(&job);
        QVERIFY(bkt.getContractorData() == job.getContractorData());
        QVERIFY(bkt.getPrintSettings("Inventory_Settings") == kept);
        QCOMPARE(bkt.getTestDefNames(), QStringList({"CAT5E", "own 500", "default 500", "own 100", "default 100"}));
        QCOMPARE(bkt.getBundledCableTypeIds(), QStringList({"HTheatre", "bundle 500", "bundle 100"}));
    }

    /// Elements without a name, and those behind another one of their name.
    void whatNoNameFindsIsNotTaken()
    {
        writeFile(path("odd.bkt"), "<Bkt><Version number='3.0'/><TestDef_List><TestDef1/><TestDef2 id='a'/>"
                                   "<TestDef3 id='a' default_type='1'/></TestDef_List><BundledCable_List>"
                                   "<BundledCable1/><BundledCable2 id='b' color='red'/>"
                                   "<BundledCable3 id='b' color='blue'/></BundledCable_List></Bkt>");
        BktEditor &bkt = BktEditor::Instance();
        JobEditor &job = JobEditor::Instance();
        QVERIFY(bkt.Load(path("odd.bkt")));
        job.ImportMissingDefaultCableTypes(&bkt);
        QVERIFY(job.getTestDefNames().isEmpty());
        job.Import(&bkt);
        QCOMPARE(job.getTestDefNames(), QStringList("a"));
        QCOMPARE(job.getBundledCableTypeIds(), QStringList("b"));
        QCOMPARE(job.getBundledCableType("b").color(), QString("red"));
    }

    void failedExports()
    {
        BktEditor &bkt = BktEditor::Instance();
        JobEditor &job = JobEditor::Instance();
        QVERIFY(bkt.New(path("before.bkt")));
        for (const QString &name : {QString(), QString(".bkt"), m_directory.path()}) {
            QVERIFY(!job.Export(name));
            QCOMPARE(job.error(),
                     JobEditor::tr(name.size() > 4 ? "Filename given is a directory" : "Filename is Empty"));
            QCOMPARE(bkt.filename(), path("before.bkt"));
        }
        QVERIFY(!job.Export(path("none/shop.bkt")));
        QCOMPARE(job.error(), bkt.error());
        QVERIFY(!job.error().isEmpty());
        QCOMPARE(bkt.filename(), path("none/shop.bkt"));
    }
};

QTEST_GUILESS_MAIN(TemplateExchangeTest)
#include "tst_templateexchange.moc"
