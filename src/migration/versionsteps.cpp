#include "bkxmleditor.h"

#include "childelements.h"
#include "document.h"
#include "documentattributes.h"
#include "elementindex.h"
#include "words.h"

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QVector>

#include <set>

using namespace cabledoc;

namespace {

/// Returns the colour of a built-in cable type, or black for another type.
QString colorOfType(const QString &type)
{
    static const QMap<QString, QString> colors{
        {QStringLiteral("CAT5"), QStringLiteral("#11ff11")},     {QStringLiteral("CAT5E"), QStringLiteral("#2222dd")},
        {QStringLiteral("CAT6"), QStringLiteral("#333333")},     {QStringLiteral("CAT3_4P"), QStringLiteral("#ff00ff")},
        {QStringLiteral("CAT3"), QStringLiteral("#ee11dd")},     {QStringLiteral("CAT3_2P"), QStringLiteral("#448855")},
        {QStringLiteral("RG-6"), QStringLiteral("#66ffaa")},     {QStringLiteral("Fire"), QStringLiteral("#8800ff")},
        {QStringLiteral("Security"), QStringLiteral("#22dd88")}, {QStringLiteral("RG-58"), QStringLiteral("#3399ff")},
        {QStringLiteral("RG-59"), QStringLiteral("#3388ee")},    {QStringLiteral("Audio"), QStringLiteral("#777777")},
        {QStringLiteral("Tel_Cord"), QStringLiteral("#888888")}, {QStringLiteral("CAT5STP"), QStringLiteral("#22ee22")},
        {QStringLiteral("CAT5ESTP"), QStringLiteral("#33dd33")}, {QStringLiteral("CAT6STP"), QStringLiteral("#444444")},
    };
    return colors.value(type, TestDefFields().color);
}

TestDef newDefinition(const QString &type, const QString &color, const QString &expected)
{
    TestDef definition(type);
    definition.setColor(color);
    definition.setExpected(BKXMLEditor::stringToData(expected));
    return definition;
}

void setVersion(DocumentTree *tree, const QDomElement &root, const QString &number)
{
    tree->setAttribute(root.firstChildElement(words::Version), words::Number, number);
}

/// Brings test definitions to version 1.4. Up to 1.3 the tag of a definition was "T" and its type. Each definition gets
/// a generated tag and moves to the end of the list. Its expected block gets the fields that were added in 1.4. Its
/// length constant is divided by the given number.
void replaceDefinitions(DocumentTree *tree, const QDomElement &list, double lengthConstantDivisor)
{
    QVector<QDomElement> definitions;
    ElementIndex index;
    for (const QDomElement &definition : ChildElements(list)) {
        index.append(definition);
        if (definition.hasAttribute(words::Id))
            definitions.append(definition);
    }
    for (const QDomElement &definition : std::as_const(definitions)) {
        const TestDefFields fields = testDefAttributes().read(definition);
        const QDomElement named = index.element(QLatin1Char('T') + fields.id);
        const QString expected = (named.isNull() ? definition : named).attribute(words::Expected);

        index.remove(definition);
        const qint64 number = index.firstFreeTagNumber(words::TestDefTagPrefix, 1);
        tree->setTagName(definition, words::TestDefTagPrefix + QString::number(number));
        tree->move(definition, list);
        index.append(definition);
        if (!expected.isEmpty()) {
            const QString lengthened = expected + QString(24, QLatin1Char('0'));
            tree->setAttribute(definition, words::Expected, toText(BKXMLEditor::stringToData(lengthened)));
        }
        if (lengthConstantDivisor != 1.0) {
            const double lengthConstant = double(fields.lengthConstant) / lengthConstantDivisor;
            tree->setAttribute(definition, words::LengthConstant, toText(truncated(lengthConstant)));
        }
    }
}

/// Gives each definition a tag of its own. A definition keeps its tag if this has a digit from 1 to 9 and no definition
/// before it has the same tag.
void giveDefinitionsTheirOwnTags(DocumentTree *tree, const QDomElement &list)
{
    static const QRegularExpression number(QStringLiteral("[1-9][0-9]{0,}"));
    std::set<QString> used;
    int counter = 1;
    for (const QDomElement &definition : ChildElements(list)) {
        if (!definition.tagName().contains(number) || used.count(definition.tagName()) != 0) {
            while (used.count(words::TestDefTagPrefix + QString::number(counter)) != 0)
                ++counter;
            tree->setTagName(definition, words::TestDefTagPrefix + QString::number(counter));
        }
        used.insert(definition.tagName());
    }
}

void addColor(DocumentTree *tree, const QDomElement &definition)
{
    // A type is black only if the file says that it is not a default type. The earliest files do not say this.
    const bool isOwnType =
        definition.hasAttribute(words::DefaultType) && definition.attribute(words::DefaultType).toInt() == 0;
    tree->addAttribute(definition, words::Color,
                       isOwnType ? TestDefFields().color : colorOfType(definition.attribute(words::Id)));
}

/// Moves the text of the connector to the end of the comment.
void turnConnectorIntoComment(DocumentTree *tree, const QDomElement &definition)
{
    QStringList remarks{definition.attribute(words::Comment), definition.attribute(words::Connector)};
    remarks.removeAll(QString());
    tree->setAttribute(definition, words::Comment, remarks.join(QLatin1String(", ")));
    tree->removeAttribute(definition, words::Connector);
}

void addInventorySettings(BKXMLEditor *document, const QDomElement &printSettings)
{
    if (printSettings.firstChildElement(words::InventorySettings).isNull())
        document->setPrintSettings(initialPrintSettings(words::InventorySettings), words::InventorySettings);
}

struct ConversionStep
{
    QString from;
    bool (BKXMLEditor::*convert)(QDomElement *, QDomNode *);
};

} // namespace

QString BKXMLEditor::version() const
{
    return getChildAttr(words::Number, getElement(words::Version));
}

bool BKXMLEditor::convertToCurrentVersion(const std::function<bool()> &stepDone)
{
    static const ConversionStep steps[] = {
        {QStringLiteral("1.1"), &BKXMLEditor::convert11To14}, {QStringLiteral("1.2"), &BKXMLEditor::convert12To14},
        {QStringLiteral("1.3"), &BKXMLEditor::convert13To14}, {QStringLiteral("1.4"), &BKXMLEditor::convert14To21},
        {QStringLiteral("2.1"), &BKXMLEditor::convert21To22}, {QStringLiteral("2.2"), &BKXMLEditor::convert22To23},
        {QStringLiteral("2.3"), &BKXMLEditor::convert23To30},
    };
    QDomElement root = inside().tree().root();
    for (const ConversionStep &step : steps) {
        if (version() == step.from && !((this->*step.convert)(&root, &root) && stepDone()))
            return false;
    }
    return version() == words::CurrentVersion;
}

bool BKXMLEditor::convert11To14(QDomElement *root, QDomNode *rootNode)
{
    inside().tree().addAttribute(root->firstChildElement(words::ContractorInfo), words::Logo, QLatin1String(""));
    return convert12To14(root, rootNode);
}

bool BKXMLEditor::convert12To14(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, QStringLiteral("1.4"));
    // In 1.4 the unit of the length constant is ten times as large.
    replaceDefinitions(&inside().tree(), root->firstChildElement(words::TestDefList), 10.0);
    return true;
}

bool BKXMLEditor::convert13To14(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, QStringLiteral("1.4"));
    // This step does not divide, because 1.3 already has the unit of 1.4.
    replaceDefinitions(&inside().tree(), root->firstChildElement(words::TestDefList), 1.0);
    return true;
}

bool BKXMLEditor::convert14To21(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, QStringLiteral("2.1"));
    inside().tree().ensure(words::TestDefList, *root);
    const QString coaxial = QStringLiteral("RG-59");
    addTestDef(newDefinition(coaxial, colorOfType(coaxial),
                             QStringLiteral("FFFFFFFFFFFFFFFFFFFFFFFFEEFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"
                                            "00000000000000000000000000000000")));
    addSettingsList(root);
    return true;
}

bool BKXMLEditor::convert21To22(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, QStringLiteral("2.2"));

    DocumentTree &tree = inside().tree();
    const QDomElement definitions = root->firstChildElement(words::TestDefList);
    giveDefinitionsTheirOwnTags(&tree, definitions);
    for (const QDomElement &definition : ChildElements(definitions)) {
        addColor(&tree, definition);
        turnConnectorIntoComment(&tree, definition);
    }

    inside().tree().ensure(words::BundledCableList, *root);
    const QString audio = QStringLiteral("Audio");
    const QString cat5e = QStringLiteral("CAT5E");
    const QString rg6 = QStringLiteral("RG-6");
    const QString rg59 = QStringLiteral("RG-59");
    addBundledCableType(QStringLiteral("HTheatre"), {cat5e, audio}, QStringLiteral("#ffaa7f"), true);
    addBundledCableType(QStringLiteral("MMCombo2"), {cat5e, rg6}, QStringLiteral("#00ff00"), true);
    addBundledCableType(QStringLiteral("MMCombo4"), {cat5e, rg6}, QStringLiteral("#0000ff"), true);
    addBundledCableType(QStringLiteral("ProFlex"), {cat5e, rg59, audio}, QStringLiteral("#55ff99"), true);

    addInventorySettings(this, getToPrintSettingsList());
    return true;
}

bool BKXMLEditor::convert22To23(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, QStringLiteral("2.3"));
    return true;
}

bool BKXMLEditor::convert23To30(QDomElement *root, QDomNode *)
{
    setVersion(&inside().tree(), *root, words::CurrentVersion);

    inside().tree().ensure(words::TestDefList, *root);
    // The expected results of cables with pairs 0 and 1 crossed, and of cables with all pairs crossed.
    const QString firstPairsCrossed =
        QStringLiteral("FFFFFFFFFFFFFFFFFFFFFFFF0001000203FFFFFFFFFFFFFFFFFFFFFFFFFF0FFFFFFFF"
                       "FFFFFFFFFFFFFFFFFFFFFFFFF");
    const QString allPairsCrossed =
        QStringLiteral("FFFFFFFFFFFFFFFFFFFFFFFF0001000302FFFFFFFFFFFFFFFFFFFFFFFFFF0FFFFFFFF"
                       "FFFFFFFFFFFFFFFFFFFFFFFFF");
    addTestDef(newDefinition(QStringLiteral("CAT5-X"), QStringLiteral("#ffaa00"), firstPairsCrossed));
    addTestDef(newDefinition(QStringLiteral("CAT5E-X"), QStringLiteral("#ffaa7f"), firstPairsCrossed));
    addTestDef(newDefinition(QStringLiteral("CAT6-X"), QStringLiteral("#ff557f"), firstPairsCrossed));
    addTestDef(newDefinition(QStringLiteral("CAT5-XX"), QStringLiteral("#aa00ff"), allPairsCrossed));
    addTestDef(newDefinition(QStringLiteral("CAT5E-XX"), QStringLiteral("#aa55ff"), allPairsCrossed));
    addTestDef(newDefinition(QStringLiteral("CAT6-XX"), QStringLiteral("#aaaaff"), allPairsCrossed));

    DocumentTree &tree = inside().tree();
    const QDomElement settings = getToPrintSettingsList();
    const QDomElement entry = settings.firstChildElement(words::NetworkDevicesSettings);
    if (entry.isNull()) {
        addInventorySettings(this, settings);
        return true;
    }
    for (QDomElement other = settings.firstChildElement(words::InventorySettings); !other.isNull();
         other = settings.firstChildElement(words::InventorySettings))
        tree.remove(other);
    tree.setTagName(entry, words::InventorySettings);
    setPrintSettings(PrintSettings(), words::InventorySettings);
    return true;
}
