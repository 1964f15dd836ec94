#include "bkteditor.h"
#include "jobeditorprobe.h"
#include "operations.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

/// Returns how many times bigger than by default the big files are. CABLEDOC_TEST_SCALE sets this number.
int scale()
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue("CABLEDOC_TEST_SCALE", &isNumber);
    return isNumber ? number : 1;
}

/// Returns the number of elements in a long list.
int many()
{
    return 50000 * scale();
}

/// Returns many elements of the given form. In each of them its number replaces "%1".
QByteArray elements(const QByteArray &form)
{
    QByteArray all;
    for (int i = 0; i < many(); ++i)
        all += QByteArray(form).replace("%1", QByteArray::number(i));
    return all;
}

QByteArray job(const QByteArray &content)
{
    return "<Job><Version number='3.0'/>" + content + "</Job>";
}

} // namespace

/// Tests files that our programs did not write. Each is refused with a reason, or becomes a job that answers every
/// query and whose saved text is loaded as the same job. CTest ends a test that takes too long.
class HostileFilesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    /// Writes a new file. Some file systems wait for the disk when an existing file is emptied and written again.
    static void writeNewFile(const QString &fileName, const QByteArray &content)
    {
        QFile::remove(fileName);
        writeFile(fileName, content);
    }

    /// Loads, queries, saves and loads the content. Returns what is wrong, or an empty string if nothing is.
    QString faultOf(const QByteArray &content, bool *isLoaded = nullptr)
    {
        const QString fileName = m_directory.filePath("hostile.job");
        writeNewFile(fileName, content);
        JobEditor &editor = JobEditor::Instance();
        const JobEditorProbe probe(editor);
        editor.error().clear();
        const bool loaded = editor.Load(fileName);
        if (isLoaded != nullptr)
            *isLoaded = loaded;
        if (!loaded)
            return editor.error().isEmpty() ? "refused without a reason" : QString();
        callEveryQuery(editor);
        if (!probe.indexesMatchTheTree())
            return "an index differs from its rebuild";
        const QByteArray text = probe.text();
        writeNewFile(fileName, text);
        if (!editor.Load(fileName) || probe.text() != text)
            return "not loaded as it was saved: " + editor.error();
        return QString();
    }

private Q_SLOTS:
    void cleanupTestCase() { JobEditor::Destroy(); }

    void bytesInEveryPlace()
    {
        const QByteArray text = job("<!--c--><?p d?><Cable_List><C1 id=\"a&amp;\" to='b'/>t<![CDATA[s]]></Cable_List>");
        QByteArray bytes;
        for (char byte = 0; byte < 0x7F; ++byte)
            bytes += byte;
        // Above ASCII: control characters, a blank, a sign and letters
        bytes += "\x7F\x80\x9F\xA0\xD7\xE4\xFF";
        for (int place = 0; place < text.size(); ++place) {
            for (const char byte : std::as_const(bytes)) {
                QByteArray changed = text;
                changed[place] = byte;
                const QString fault = faultOf(changed);
                QVERIFY2(fault.isEmpty(),
                         qPrintable(QString("%1 in place %2: %3").arg(uchar(byte)).arg(place).arg(fault)));
            }
        }
    }

    void fileCutOffAtEveryByte()
    {
        const QByteArray text = testData("site.job");
        for (int size = 0; size < text.size(); ++size) {
            bool isLoaded = false;
            const QString fault = faultOf(text.left(size), &isLoaded);
            QVERIFY2(fault.isEmpty(), qPrintable(QString("%1 bytes: %2").arg(size).arg(fault)));
            // Only the line break at the end can be missing.
            QCOMPARE(isLoaded, size == text.size() - 1);
        }
    }

    /// Tests each attribute with values that are not numbers or out of range.
    void oddValues()
    {
        const QByteArrayList values{
            "",         "-1",  "1e999", "-1e999", "nan",      "inf",    "-2147483649", "99999999999999999999",
            "0.1e-999", "1,5", "0x10",  " 1 ",    "\xff\xfe", "a,,b,,", "&#x20AC;",    QByteArray(10000, '9')};
        const QString text = QString::fromLatin1(testData("site.job"));
        int attributes = 0;
        auto attribute = QRegularExpression(" \\w+=\"([^\"]*)\"").globalMatch(text);
        while (attribute.hasNext()) {
            const QRegularExpressionMatch match = attribute.next();
            ++attributes;
            for (const QByteArray &value : values) {
                QByteArray changed = text.toLatin1();
                changed.replace(int(match.capturedStart(1)), int(match.capturedLength(1)), value);
                const QString fault = faultOf(changed);
                QVERIFY2(fault.isEmpty(), qPrintable(match.captured() + " as " + value.left(30) + ": " + fault));
            }
        }
        QVERIFY(attributes > 50);
    }

    void unknownVersions()
    {
        const QByteArrayList versions{"", "3", "3.00", " 3.0", "03.0", "2.0", "4.0", "-3.0", "3.0\xa0", "nan", "30"};
        for (const QByteArray &version : versions) {
            bool isLoaded = true;
            QCOMPARE(faultOf("<Job><Version number='" + version + "'/></Job>", &isLoaded), QString());
            QVERIFY2(!isLoaded, version.constData());
        }
    }

    void bigFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isLoaded");
        const auto row = [](const char *name, const QByteArray &content, bool isLoaded) {
            QTest::newRow(name) << job(content) << isLoaded;
        };
        row("cables", "<Cable_List>" + elements("<C%1 id='%1'/>") + "</Cable_List>", true);
        // The two parts have the same hash in Qt 5 with every seed. So have all names that are made of them.
        constexpr int collisions = 50000;
        QByteArray cablesOfOneHash;
        QByteArray path;
        for (int i = 0; i < collisions; ++i) {
            QByteArray name = "C";
            for (int bits = i + collisions; bits > 0; bits /= 2)
                name += bits % 2 == 0 ? "THC7XkgK" : "xwnH4GNw";
            cablesOfOneHash += '<' + name + " id='" + name + "'/>";
            path += name + ',';
        }
        row("cables of one hash", "<Cable_List>" + cablesOfOneHash + "</Cable_List>", true);
        row("path of one hash", "<Cable_List><C path='" + path + "'/></Cable_List>", true);
        row("floors of one hash", "<Floor_List>" + cablesOfOneHash + "</Floor_List>", true);
        row("cables of one tag", "<Cable_List>" + elements("<C id='%1'/>") + "</Cable_List>", true);
        row("cables of one id", "<Cable_List>" + elements("<C%1 id='a'/>") + "</Cable_List>", true);
        row("lists of cables", elements("<Cable_List><C%1/></Cable_List>"), true);
        row("rooms of one tag and id",
            "<Floor_List><F><Room_List>" + elements("<R id='a'><Port_List><P/></Port_List></R>")
                + "</Room_List></F></Floor_List>",
            true);
        row("floors", "<Floor_List>" + elements("<F%1 id='%1'/>") + "</Floor_List>", true);
        row("long path", "<Cable_List><C path='" + elements("P%1,") + "'/></Cable_List>", true);
        row("comments", elements("<!--%1-->"), true);
        row("long value", "<Other a='" + QByteArray(10000000 * scale(), 'x') + "'/>", true);
        row("value to be escaped", "<Other a='" + elements("&amp;&#13;") + "'/>", true);
        row("long text", "<Other>" + QByteArray(10000000 * scale(), 'x') + "</Other>", true);
        row("long name", '<' + QByteArray(4000, 'x') + "/>", true);
        row("very long name", '<' + QByteArray(1000000 * scale(), 'x') + "/>", false);
        row("attributes", "<Other" + elements(" a%1=''") + "/>", false);
        row("levels", QByteArray("<a>").repeated(many()) + QByteArray("</a>").repeated(many()), false);
    }

    void bigFiles()
    {
        QFETCH(QByteArray, content);
        bool isLoaded = false;
        QCOMPARE(faultOf(content, &isLoaded), QString());
        QTEST(isLoaded, "isLoaded");
    }

    /// A job imports a big template. A second import adds nothing.
    void bigTemplate()
    {
        const QString fileName = m_directory.filePath("big.bkt");
        const QByteArray version = "<Version number='3.0'/>";
        writeFile(fileName, "<Bkt>" + version + "<TestDef_List>" + elements("<T%1 id='%1'/>")
                                + "</TestDef_List><BundledCable_List>" + elements("<B%1 id='%1'/>")
                                + "</BundledCable_List></Bkt>");
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY2(bkt.Load(fileName), qPrintable(bkt.error()));
        JobEditor &editor = JobEditor::Instance();
        writeFile(m_directory.filePath("taker.job"), job("<TestDef_List/><BundledCable_List/>"));
        QVERIFY2(editor.Load(m_directory.filePath("taker.job")), qPrintable(editor.error()));
        for (int import = 0; import < 2; ++import) {
            editor.Import(&bkt);
            QCOMPARE(editor.getTestDefNames(), bkt.getTestDefNames());
            QCOMPARE(editor.getBundledCableTypeIds(), bkt.getBundledCableTypeIds());
            QCOMPARE(editor.getTestDefElements().last(), QString("TestDef%1").arg(many()));
            QCOMPARE(editor.getBundledCableTypeTags().last(), QString("BundledCable%1").arg(many()));
        }
        BktEditor::Destroy();
    }
};

QTEST_GUILESS_MAIN(HostileFilesTest)
#include "tst_hostilefiles.moc"
