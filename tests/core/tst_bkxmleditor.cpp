#include "bkxmleditor.h"

#include <QtTest/QtTest>

#include <array>

namespace {

/// A document whose protected operations the test can call.
class OpenEditor : public BKXMLEditor
{
public:
    explicit OpenEditor(const QString &content = QString())
        : BKXMLEditor("Test")
    {
        document().setContent(content);
    }
    OpenEditor(OpenEditor &) = default;
    OpenEditor &operator=(const OpenEditor &) = default;

    using BKXMLEditor::boolArrayToString;
    using BKXMLEditor::fileChanged;
    using BKXMLEditor::getChildAttr;
    using BKXMLEditor::getChildElement;
    using BKXMLEditor::getDomNodeFirstChild;
    using BKXMLEditor::getElement;
    using BKXMLEditor::getElementId;
    using BKXMLEditor::getToBundledCableTypeList;
    using BKXMLEditor::getToPageSettingsList;
    using BKXMLEditor::getToPrintSettingsList;
    using BKXMLEditor::getToScaleSettingsList;
    using BKXMLEditor::getToTestDefList;
    using BKXMLEditor::hasChildElement;
    using BKXMLEditor::setChildAttr;
    using BKXMLEditor::setDirty;
    using BKXMLEditor::setElementId;
    using BKXMLEditor::stringToBoolArray;
};

} // namespace

class BKXMLEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        OpenEditor editor;
        QVERIFY(!editor.filename().isNull());
        QCOMPARE(editor.filename() + editor.error(), QString());
        QVERIFY(!editor.fileChanged());
        QVERIFY(editor.getDomNodeFirstChild().isNull());
        QVERIFY(editor.getElement("a").isNull());
    }

    void copiesShareTheTreeButNotTheDirtyFlag()
    {
        QObject parent;
        OpenEditor original("<r><a id='1'/></r>");
        original.setParent(&parent);
        original.filename() = "name";
        original.error() = "failure";
        original.setDirty(true);
        original.setCharacterReferences(true);

        OpenEditor copy(original);
        QVERIFY(copy.characterReferences());
        QCOMPARE(copy.parent(), &parent);
        QCOMPARE(copy.filename(), QString("name"));
        QCOMPARE(copy.error(), QString("failure"));
        QVERIFY(!copy.fileChanged());
        QDomElement shared = copy.getElement("a");
        copy.setElementId("2", shared);
        QCOMPARE(OpenEditor::getElementId(original.getElement("a")), QString("2"));

        OpenEditor clean;
        clean = original;
        QCOMPARE(clean.filename(), QString("name"));
        QVERIFY(!clean.fileChanged());
        original = clean;
        QVERIFY(original.fileChanged());
        copy.setParent(nullptr);
        original.setParent(nullptr);
    }

    void findsOnlySiblings()
    {
        const OpenEditor editor("<r><!--c--><a n='1'><b/></a><c/><a n='2'/></r>");
        const QDomNode start = editor.getDomNodeFirstChild();
        QVERIFY(start.isComment());
        const QDomElement first = OpenEditor::getChildElement("a", start);
        QCOMPARE(OpenEditor::getChildAttr("n", first), QString("1"));
        QCOMPARE(OpenEditor::getChildElement("a", first), first);
        QVERIFY(!OpenEditor::hasChildElement("b", start));
        QVERIFY(!OpenEditor::hasChildElement("A", start));
        QVERIFY(!OpenEditor::hasChildElement(QString(), start));
        QVERIFY(!OpenEditor::hasChildElement("a", QDomNode()));
    }

    void firstNodeIsTheRoot()
    {
        const OpenEditor editor("<!--c--><r><a/></r>");
        QVERIFY(editor.getElement("a").isNull());
    }

    void writesOnlyAttributesThatExist()
    {
        OpenEditor editor("<r><a x='1'/></r>");
        QDomElement element = editor.getElement("a");
        editor.setElementId("new", element);
        QVERIFY(!element.hasAttribute("id"));
        QVERIFY(OpenEditor::getElementId(element).isNull());
        editor.setChildAttr("x", "2", element);
        QCOMPARE(OpenEditor::getChildAttr("x", element), QString("2"));
        QDomElement none;
        editor.setChildAttr("x", "2", none);
        QVERIFY(none.isNull());
    }

    void flagsAsText()
    {
        const std::array<bool, 4> given{true, false, false, true};
        QCOMPARE(OpenEditor::boolArrayToString(given.data()), QString("1001"));

        std::array<bool, 4> flags{false, true, true, true};
        QVERIFY(!OpenEditor::stringToBoolArray("10x1", flags.data()));
        QCOMPARE(flags, (std::array<bool, 4>{true, false, true, true}));
        QVERIFY(!OpenEditor::stringToBoolArray("010", flags.data()));
        QCOMPARE(flags, (std::array<bool, 4>{false, true, false, true}));
        QVERIFY(OpenEditor::stringToBoolArray("1010more", flags.data()));
        QCOMPARE(flags, (std::array<bool, 4>{true, false, true, false}));
    }
};

QTEST_GUILESS_MAIN(BKXMLEditorTest)
#include "tst_bkxmleditor.moc"
