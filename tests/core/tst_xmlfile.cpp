#include "xmlfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace cabledoc;

namespace {

const xmlfile::AttributeOrder NoOrder;

} // namespace

class XmlFileTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    QString fileWith(const QByteArray &content) const
    {
        QFile file(m_directory.filePath("file.xml"));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot prepare the file");
        return file.fileName();
    }

    xmlfile::ReadResult read(const QByteArray &content) const { return xmlfile::read(fileWith(content), "Test"); }

private Q_SLOTS:
    /// What is read is written in the one form of our files, and read and written again stays as it is.
    void roundTrip_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("indentation") << QByteArray("<a><b><c/></b><d></d></a>")
                                     << QByteArray("<a>\n <b>\n  <c/>\n </b>\n <d/>\n</a>\n");
        QTest::newRow("attributes by name")
            << QByteArray("<a c='3' a='1' b='2'/>") << QByteArray("<a a=\"1\" b=\"2\" c=\"3\"/>\n");
        QTest::newRow("order of a container")
            << QByteArray("<List><x a='1' second='2' first='3'/></List>")
            << QByteArray("<List>\n <x first=\"3\" second=\"2\" a=\"1\"/>\n</List>\n");
        QTest::newRow("order of an element")
            << QByteArray("<own a='1' z='2'/>") << QByteArray("<own z=\"2\" a=\"1\"/>\n");
        QTest::newRow("declaration and document type")
            << QByteArray("<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE a><a>\xe9</a>")
            << QByteArray("<a>\xe9</a>\n");
        QTest::newRow("comments and instructions") << QByteArray("<a><!-- <b> & --><?do it now?></a><!--end-->")
                                                   << QByteArray("<a>\n <!-- <b> & -->\n <?do it now?>\n</a>\n"
                                                                 "<!--end-->\n");
        QTest::newRow("text keeps its blanks")
            << QByteArray("<a> one <b><c/></b>\n two</a>") << QByteArray("<a> one <b><c/></b>\n two</a>\n");
        QTest::newRow("escapes in text") << QByteArray("<a>&lt;&amp;&gt;]]&gt;\"&#13;</a>")
                                         << QByteArray("<a>&lt;&amp;&gt;]]&gt;\"&#13;</a>\n");
        QTest::newRow("escapes in values") << QByteArray("<a b=\"&lt;&gt;&amp;&quot;'&#9;&#10;&#13;\"/>")
                                           << QByteArray("<a b=\"&lt;&gt;&amp;&quot;'&#9;&#10;&#13;\"/>\n");
        QTest::newRow("CDATA") << QByteArray("<a><![CDATA[<x>&]]></a>") << QByteArray("<a><![CDATA[<x>&]]></a>\n");
        QTest::newRow("undeclared prefix") << QByteArray("<p:a q:b='1'/>") << QByteArray("<p:a q:b=\"1\"/>\n");
        QTest::newRow("quotes and angles in values")
            << QByteArray("<a b='\">' c=\"'>\"/>") << QByteArray("<a b=\"&quot;&gt;\" c=\"'&gt;\"/>\n");
    }

    void roundTrip()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, expected);
        xmlfile::AttributeOrder order;
        order.inContainer.insert("List", {"first", "second"});
        order.ofElement.insert("own", {"z"});
        for (const QByteArray &text : {content, expected}) {
            const xmlfile::ReadResult result = read(text);
            QCOMPARE(result.problem.message, QString());
            QCOMPARE(xmlfile::toText(result.document, order).bytes, expected);
        }
    }

    void charactersBeyondTheFormat()
    {
        QDomDocument document("Test");
        QDomElement root = document.createElement("a");
        document.appendChild(root);
        // A letter beyond Latin-1, an emoji, half an emoji, two control characters.
        QString value = "\u0161\U0001F600|";
        value += QChar(0xD83D);
        value += '\x01';
        value += QChar(0);
        root.setAttribute("b", value + QChar(0xFF));
        const xmlfile::Text text = xmlfile::toText(document, NoOrder);
        QCOMPARE(text.bytes, QByteArray("<a b=\"??|???\xff\"/>\n"));
        QCOMPARE(text.replacedCharacters, 5);
        QCOMPARE(int(read(text.bytes).status), int(xmlfile::ReadResult::Read));
    }

    void refusedTexts_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("line");
        const QByteArray open("<a>");
        const QByteArray close("</a>");
        QByteArray attributes;
        for (int i = 0; i <= maximumAttributes; ++i)
            attributes += " a" + QByteArray::number(i) + "='>'";
        QTest::newRow("empty") << QByteArray() << 1;
        QTest::newRow("no XML") << QByteArray("floor plan") << 1;
        QTest::newRow("unclosed") << QByteArray("<a>\n<b></a>") << 2;
        QTest::newRow("cut off") << QByteArray("<a>\n<b c='") << 2;
        QTest::newRow("two roots") << QByteArray("<a/>\n<b/>") << 2;
        QTest::newRow("NUL") << QByteArray("<a b='\0'/>", 9) << 1;
        QTest::newRow("control character in a name") << QByteArray("<a>\n<b c\x01='1'/></a>") << 2;
        QTest::newRow("too deep") << QByteArray("\n") + open.repeated(257) + close.repeated(257) << 2;
        QTest::newRow("much too deep") << open.repeated(1000000) << 1;
        QTest::newRow("too deep behind a comment") << "<!-- ' --><b c='</a>'/>" + open.repeated(257) << 1;
        QTest::newRow("too many attributes") << "<a\n" + attributes + "/>" << 2;
        QTest::newRow("entity bomb") << QByteArray("<!DOCTYPE a [<!ENTITY x 'xx'><!ENTITY y '&x;&x;'>]><a>&y;</a>")
                                     << 1;
        QTest::newRow("outside declarations") << QByteArray("<!DOCTYPE a SYSTEM 'x'><a>&y;</a>") << 1;
    }

    void refusedTexts()
    {
        QFETCH(QByteArray, content);
        const xmlfile::ReadResult result = read(content);
        QCOMPARE(int(result.status), int(xmlfile::ReadResult::NotParsed));
        QVERIFY(!result.problem.message.isEmpty());
        QTEST(result.problem.line, "line");
        QVERIFY(!result.document.hasChildNodes());
    }

    void takesWhatTheLimitsAllow()
    {
        QByteArray attributes;
        for (int i = 0; i < maximumAttributes; ++i)
            attributes += " a" + QByteArray::number(i) + "=''";
        const QByteArray content =
            QByteArray("<a>").repeated(255) + "<b/><b" + attributes + "></b>" + QByteArray("</a>").repeated(255);
        const xmlfile::ReadResult result = read(content);
        QCOMPARE(result.problem.message, QString());
        const xmlfile::Text text = xmlfile::toText(result.document, NoOrder);
        QCOMPARE(text.error, QString());
        QCOMPARE(int(read(text.bytes).status), int(xmlfile::ReadResult::Read));
    }

    void refusesTreesThatCouldNotBeRead()
    {
        QDomDocument document("Test");
        QVERIFY(!xmlfile::toText(document, NoOrder).error.isEmpty());
        document.appendChild(document.createElement("a"));
        QVERIFY(xmlfile::toText(document, NoOrder).error.isEmpty());

        QDomElement wide = document.documentElement();
        for (int i = 0; i <= maximumAttributes; ++i)
            wide.setAttribute(QString("a%1").arg(i), 0);
        QVERIFY(!xmlfile::toText(document, NoOrder).error.isEmpty());
        wide.removeAttribute("a0");
        QVERIFY(xmlfile::toText(document, NoOrder).error.isEmpty());

        QDomNode deepest = wide;
        for (int level = 2; level <= maximumDepth; ++level)
            deepest = deepest.appendChild(document.createElement("b"));
        QVERIFY(xmlfile::toText(document, NoOrder).error.isEmpty());
        deepest.appendChild(document.createElement("b"));
        QVERIFY(!xmlfile::toText(document, NoOrder).error.isEmpty());

        QDomDocument twoRoots("Test");
        twoRoots.appendChild(twoRoots.createElement("a"));
        twoRoots.appendChild(twoRoots.createElement("b"));
        QVERIFY(!xmlfile::toText(twoRoots, NoOrder).error.isEmpty());
    }

    void writeReplacesTheFile()
    {
        const QString fileName = fileWith("old");
        QVERIFY(QFile::setPermissions(fileName, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        const auto permissions = QFile::permissions(fileName);
        const QString link = m_directory.filePath("link");
        QVERIFY(QFile::link(fileName, link));

        QCOMPARE(xmlfile::write(link, "new"), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("new"));
        QCOMPARE(file.permissions(), permissions);
    }

    void writeReportsFailures()
    {
        QVERIFY(!xmlfile::write(m_directory.path(), "x").isEmpty());
        QVERIFY(!xmlfile::write(m_directory.filePath("none/file"), "x").isEmpty());
        QVERIFY(!xmlfile::write(fileWith("x") + "/file", "x").isEmpty());
        QCOMPARE(int(xmlfile::read(m_directory.path(), "Test").status), int(xmlfile::ReadResult::NotOpened));
    }
};

QTEST_GUILESS_MAIN(XmlFileTest)
#include "tst_xmlfile.moc"
