#include "bkxmleditor.h"

#include <QtTest/QtTest>

namespace {

const QString NetView = "NetView_Settings";
const QString A4 = "A4: 210 mm. x 297 mm.";

class SettingsEditor : public BKXMLEditor
{
public:
    SettingsEditor()
        : BKXMLEditor("Test")
    {
        QDomElement root = document().appendChild(document().createElement("Test")).toElement();
        addSettingsList(&root);
        setDirty(false);
    }

    using BKXMLEditor::fileChanged;
    using BKXMLEditor::getToPrintSettingsList;
    using BKXMLEditor::setDirty;

    QString text() const { return document().toString(); }
    void clear() { document().removeChild(document().documentElement()); }
    QDomElement printEntry(const QString &name) const { return getToPrintSettingsList().firstChildElement(name); }
};

template <typename Settings> QString text(const Settings &settings)
{
    return QString("%1 x %2").arg(settings.getPageWidthDimension()).arg(settings.getPageHeightDimension());
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dimensions_data()
    {
        QTest::addColumn<QString>("paper");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QString>("expected");
        QTest::newRow("portrait") << A4 << 0 << "8.26 x 11.692";
        QTest::newRow("landscape") << A4 << 1 << "11.692 x 8.26";
        QTest::newRow("A5 is higher than A4 is wide") << "A5: 148 mm. x 210 mm." << 0 << "5.826 x 8.267";
        QTest::newRow("last of the table") << "30 in. x 42 in." << 0 << "30 x 42";
        QTest::newRow("other orientation") << A4 << 2 << "-1 x -1";
        QTest::newRow("unknown paper") << "A4" << 0 << "-1 x -1";
    }

    void dimensions()
    {
        QFETCH(QString, paper);
        QFETCH(int, orientation);
        QTEST(text(PrintSettings(paper, orientation, 100, 1, 1, 0)), "expected");
        PageSettings page(paper, "Standard", orientation, 1, 0, 30.0, 20.0);
        QTEST(text(page), "expected");
        page.setPageSizeStyle(2);
        QCOMPARE(text(page), QString("30 x 20"));
        for (const int style : {-1, 0, 3}) {
            page.setPageSizeStyle(style);
            QCOMPARE(text(page), QString("-1 x -1"));
        }
        QCOMPARE(text(PageSettings()), QString("-1 x -1"));
    }

    void paperSizesOfferedInOrder()
    {
        const QStringList sizes = cabledoc::SettingsStrings::paperSizes();
        QCOMPARE(sizes.size(), 38);
        QCOMPARE(sizes.mid(4, 4).join('|'),
                 QString("Tabloid: 11 in. x 17 in.|DLE: 110 mm. x 220 mm.|C5E: 163 mm. x 229 mm.|"
                         "B10: 32 mm. x 45 mm."));
        QCOMPARE(sizes.at(17), QString("B0: 1030 mm. x 1456 mm."));
        QCOMPARE(sizes.at(18), QString("A9: 37 mm. x 52 mm."));
        for (const QString &size : sizes)
            QVERIFY2(PrintSettings(size, 0, 100, 1, 1, 0).getPageWidthDimension() > 0, qPrintable(size));
    }

    void scales()
    {
        ScaleSettings scale;
        QCOMPARE(scale.scale(), 20);
        QVERIFY(!scale.isMetric());
        scale.setPredefinedStyle("Metric");
        scale.setWidthUnits(1);
        scale.setHeightUnits(2);
        QVERIFY(!scale.isMetric());
        scale.setStyle(1);
        QVERIFY(scale.isMetric());
        scale.setPredefinedScale("1 : 5");
        QCOMPARE(scale.scale(), 5);
        scale.setPredefinedScale("1 : 3");
        QCOMPARE(scale.scale(), 10);
        scale.setStyle(2);
        scale.setCustomHeight(2.9);
        QCOMPARE(scale.scale(), 2);
        scale.setCustomHeight(1e300);
        QCOMPARE(scale.scale(), std::numeric_limits<int>::max());
        QVERIFY(scale.isMetric());
        scale.setHeightUnits(0);
        QVERIFY(!scale.isMetric());
    }

    void recordsAreValues()
    {
        QObject parent;
        ScaleSettings original;
        original.setParent(&parent);
        original.setObjectName("name");
        original.setCustomWidth(3.0);
        const ScaleSettings copy(original);
        QVERIFY(copy == original);
        QVERIFY(copy.parent() == nullptr && copy.objectName().isEmpty());
        QVERIFY(copy != ScaleSettings());
        ScaleSettings assigned;
        assigned = original;
        QVERIFY(assigned == original);
        original.setParent(nullptr);
    }

    void storesWhatDiffers()
    {
        SettingsEditor editor;
        const PrintSettings print(A4, 0, 75, 2, 3, 1);
        const PageSettings page(A4, "Metric (ISO)", 0, 2, 1, 0.1, 1.0 / 3);
        const ScaleSettings scale("Metric", "1 : 2", 1, 2, 1e-7, 12345678.5, 2);
        editor.setPrintSettings(print, NetView);
        QVERIFY(editor.fileChanged());
        editor.setPageSettings(page, NetView);
        editor.setScaleSettings(scale, NetView);
        editor.setDirty(false);
        editor.setPrintSettings(print, NetView);
        editor.setPageSettings(page, NetView);
        editor.setScaleSettings(scale, NetView);
        QVERIFY(!editor.fileChanged());
        QVERIFY(editor.getPrintSettings(NetView) == print);
        QVERIFY(editor.getPageSettings(NetView) == page);
        QVERIFY(editor.getScaleSettings(NetView) == scale);
    }

    void fetchCompletesOlderFiles()
    {
        SettingsEditor editor;
        editor.getToPrintSettingsList().removeChild(editor.printEntry(NetView));
        QVERIFY(editor.getPrintSettings(NetView) == PrintSettings());
        QVERIFY(editor.fileChanged());
        QCOMPARE(editor.printEntry(NetView).attribute("print_zoom"), QString("100"));

        editor.setDirty(false);
        editor.printEntry(NetView).removeAttribute("print_zoom");
        QCOMPARE(editor.getPrintSettings(NetView).printZoom(), 100);
        QVERIFY(editor.fileChanged());
        QVERIFY(editor.printEntry(NetView).hasAttribute("print_zoom"));
    }

    void unknownNamesAndMissingLists()
    {
        SettingsEditor editor;
        const QString before = editor.text();
        editor.setPageSettings(PageSettings(A4, A4, 0, 1, 1, 1, 1), "JobInfo_Settings");
        QVERIFY(editor.getPageSettings("JobInfo_Settings") == PageSettings());
        QCOMPARE(editor.text(), before);
        editor.clear();
        editor.setPrintSettings(PrintSettings(A4, 0, 1, 1, 1, 1), NetView);
        QVERIFY(editor.getPrintSettings(NetView) == PrintSettings());
        QVERIFY(!editor.fileChanged());
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "tst_settings.moc"
