#include "testcases.h"
#include "treebuilder.h"
#include "xmlfile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

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
        writeFile(m_directory.filePath("file.xml"), content);
        return m_directory.filePath("file.xml");
    }

    /// Returns an element with the given number of attributes.
    static QByteArray elementWith(int attributes)
    {
        QByteArray element = "<b";
        for (int i = 0; i < attributes; ++i)
            element += " a" + QByteArray::number(i) + "='>'";
        return element + "/>";
    }

    /// Returns a tree with the given number of levels around a text.
    static QByteArray nested(int levels, const QByteArray &text = QByteArray())
    {
        return QByteArray("<a>").repeated(levels) + text + QByteArray("</a>").repeated(levels);
    }

    /// The nodes below a node, one in a line, with their values.
    static QStringList nodesBelow(const QDomNode &parent)
    {
        QStringList nodes;
        for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
            QStringList values;
            for (int i = 0; i < node.attributes().count(); ++i)
                values.append(node.attributes().item(i).nodeName() + '=' + node.attributes().item(i).nodeValue());
            values.sort();
            nodes.append(QString("%1 %2: %3").arg(node.nodeType()).arg(node.nodeName(), node.nodeValue()));
            nodes += values + nodesBelow(node) + QStringList("end");
        }
        return nodes;
    }

    xmlfile::ReadResult read(const QByteArray &content) const
    {
        return xmlfile::read(fileWith(content), "Test", 1 << 30);
    }

private Q_SLOTS:
    void roundTrip_data() { addCases({"cases/xml.txt"}); }

    /// Reads and writes each given text and its expected text. Both are written as the expected text.
    void roundTrip()
    {
        QFETCH(TestCase, testCase);
        xmlfile::AttributeOrder order;
        order.inContainer.insert("List", {"first", "second"});
        order.ofElement.insert("own", {"z"});
        for (const QByteArray &text : {testCase.given, testCase.expected}) {
            const xmlfile::ReadResult result = read(text);
            QCOMPARE(result.problem.message, QString());
            QCOMPARE(xmlfile::toText(result.document, order).bytes, testCase.expected);
        }
    }

    void fastReader_data() { addCases({"cases/fast-reader.txt"}); }

    /// Each line is a text. Both readers make the same tree of it, or only Qt's parser makes one, or none does.
    void fastReader()
    {
        QFETCH(TestCase, testCase);
        const QStringList lines = QString::fromLatin1(testCase.given).split('\n');
        for (QString line : lines.mid(0, lines.size() - 1)) {
            const QByteArray text = line.replace("\\n", "\n").replace("\\t", "\t").replace("\\r", "\r").toLatin1();
            QDomDocument built{QString()};
            QDomDocument parsed;
            const bool isBuilt = buildTree(text, &built);
            const bool isParsed = parseTree(text, &parsed).message.isNull();
            QVERIFY2(isBuilt == (testCase.name == "read by both"), text.constData());
            QVERIFY2(isParsed == (testCase.name != "refused by both"), text.constData());
            if (isBuilt)
                COMPARE_TEXTS(nodesBelow(built).join('\n'), nodesBelow(parsed).join('\n'), line);
        }
    }

    void unsupportedCharacters()
    {
        QDomDocument document("Test");
        QDomElement root = document.createElement("a");
        document.appendChild(root);
        // The value is a letter beyond Latin-1, an emoji, half an emoji and two control characters.
        QString value = "\u0161\U0001F600|";
        value += QChar(0xD83D);
        value += '\x01';
        value += QChar(0);
        root.setAttribute("b", value + QChar(0xFF));
        const xmlfile::Text text = xmlfile::toText(document, NoOrder);
        QCOMPARE(text.bytes, QByteArray("<a b=\"??|???\xff\"/>\n"));
        QCOMPARE(text.replacedCharacters, 5);
        QCOMPARE(int(read(text.bytes).status), int(xmlfile::ReadResult::Read));

        // Comments and CDATA sections cannot hold references.
        root.appendChild(document.createTextNode("\u0161"));
        root.appendChild(document.createComment("\u0161"));
        root.appendChild(document.createCDATASection("\u0161"));
        const xmlfile::Text kept = xmlfile::toText(document, NoOrder, xmlfile::BeyondLatin1::AsReferences);
        QCOMPARE(kept.bytes, QByteArray("<a b=\"&#353;&#128512;|???\xff\">&#353;<!--?--><![CDATA[?]]></a>\n"));
        QCOMPARE(kept.replacedCharacters, 5);
        const QString read = this->read(kept.bytes).document.documentElement().attribute("b");
        QCOMPARE(read, QString("\u0161\U0001F600|???\u00FF"));
    }

    void refusedTexts_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("line");
        const auto row = [](const char *name, const QByteArray &content, int line) {
            QTest::newRow(name) << content << line;
        };
        row("empty", "", 0);
        row("blank", " \n\n", 0);
        row("cut off at the end of a line", "<a>\n<b>\n\n", 2);
        row("no XML", "floor plan", 1);
        row("unclosed", "<a>\n<b></a>", 2);
        row("cut off", "<a>\n<b c='", 2);
        row("two roots", "<a/>\n<b/>", 2);
        row("NUL", QByteArray("<a b='\0'/>", 9), 1);
        row("control character in a name", "<a>\n<b c\x01='1'/></a>", 2);
        row("too deep", '\n' + nested(257), 2);
        row("much too deep", QByteArray("<a>").repeated(1000000), 1);
        row("too deep behind a comment", "<!-- ' --><b c='</a>'/>" + nested(257), 1);
        row("too many attributes", '\n' + elementWith(maximumAttributes + 1), 2);
        row("entity bomb", "<!DOCTYPE a [<!ENTITY x 'xx'><!ENTITY y '&x;&x;'>]><a>&y;</a>", 1);
        row("outside declarations", "<!DOCTYPE a SYSTEM 'x'><a>&y;</a>", 1);
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

    void marksOfOtherEncodings()
    {
        const QVector<QPair<QByteArray, QString>> marks{
            {"\xEF\xBB\xBF", "UTF-8"}, {"\xFE\xFF", "UTF-16"}, {"\xFF\xFE", "UTF-16"}};
        for (const auto &[mark, encoding] : marks) {
            const XmlProblem problem = read(mark + "<a/>").problem;
            QVERIFY2(problem.message.contains(encoding) && problem.message.contains("ISO-8859-1"),
                     qPrintable(problem.message));
            QCOMPARE(problem.line + problem.column, 2);
        }
    }

    void acceptsTreesAtTheLimits()
    {
        const QByteArray content = nested(255, "<b/>" + elementWith(maximumAttributes));
        const xmlfile::ReadResult result = read(content);
        QCOMPARE(result.problem.message, QString());
        const xmlfile::Text text = xmlfile::toText(result.document, NoOrder);
        QCOMPARE(text.error, QString());
        QCOMPARE(int(read(text.bytes).status), int(xmlfile::ReadResult::Read));
    }

    void refusesTreesBeyondTheLimits()
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

    void saveReplacesTheFile()
    {
        const QDomDocument document = read("<new/>").document;
        const QString fileName = fileWith("old");
        QVERIFY(QFile::setPermissions(fileName, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        const auto permissions = QFile::permissions(fileName);
        const QString link = m_directory.filePath("link");
        QVERIFY(QFile::link(fileName, link));

        QCOMPARE(xmlfile::save(link, document, NoOrder).error, QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(readFile(fileName), QByteArray("<new/>\n"));
        QCOMPARE(QFile::permissions(fileName), permissions);
    }

    void refusesEmptyDocumentsAndFolders()
    {
        QVERIFY(!xmlfile::save(fileWith("kept"), QDomDocument(), NoOrder).error.isEmpty());
        QCOMPARE(readFile(m_directory.filePath("file.xml")), QByteArray("kept"));
        QCOMPARE(int(xmlfile::read(m_directory.path(), "Test", 1 << 30).status), int(xmlfile::ReadResult::NotOpened));
    }
};

QTEST_GUILESS_MAIN(XmlFileTest)
#include "tst_xmlfile.moc"
