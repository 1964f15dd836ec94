#include "calls.h"
#include "testcases.h"
#include "testlanguage.h"

namespace {

/// Returns a callable for a member function. The first argument of a call is the record.
template <typename Record, typename Result, typename... Arguments>
Callable ofRecord(const char *name, Result (Record::*function)(Arguments...) const)
{
    return makeCallable<Result, Record, std::decay_t<Arguments>...>(name, std::mem_fn(function));
}

/// Returns a callable for a member function that changes the record. The first argument of a call is the record. The
/// answer is the changed record.
template <typename Record, typename... Arguments>
Callable changed(const char *name, void (Record::*function)(Arguments...))
{
    return makeCallable<Record, Record, std::decay_t<Arguments>...>(name,
                                                                    [function](Record record, const auto &...values) {
                                                                        (record.*function)(values...);
                                                                        return record;
                                                                    });
}

/// Returns a callable for a constructor.
template <typename Record, typename... Arguments> Callable made(const char *name)
{
    return makeCallable<Record, Arguments...>(name, [](const auto &...values) { return Record(values...); });
}

/// Returns all fields of a record with nothing in it.
template <typename Record> QString defaults()
{
    QStringList fields;
    for (const Field<Record> &field : fieldsOf<Record>())
        fields.append(field.name + '=' + field.get(Record()));
    return fields.join("; ");
}

/// Two functions for each kind of record. One returns the defaults, the other one what it is given.
template <typename... Records> QVector<Callable> recordFunctions(const QStringList &names)
{
    QVector<Callable> functions;
    auto name = names.cbegin();
    ((functions << callable(qPrintable(*name), defaults<Records>) << made<Records, Records>(qPrintable(*name)), ++name),
     ...);
    return functions;
}

/// Calls the function with all numbers of the block in the order of its members.
template <typename Function> void forNumbersOf(cable_struct *block, Function function)
{
    const auto forAll = [&function](auto &numbers) { std::for_each(std::begin(numbers), std::end(numbers), function); };
    forAll(block->flag_bytes);
    forAll(block->word_group_a);
    forAll(block->wire_map);
    function(block->map_flag);
    forAll(block->pair_length);
    function(block->byte_c);
    function(block->byte_d);
    forAll(block->word_group_c);
    forAll(block->word_group_d);
}

QStringList numbersIn(const QString &text)
{
    cable_struct block = BKXMLEditor::stringToData(text);
    QStringList numbers;
    forNumbersOf(&block, [&numbers](auto number) { numbers.append(QString::number(number)); });
    return numbers;
}

QString textOfNumbers(const QStringList &numbers)
{
    cable_struct block{};
    auto next = numbers.cbegin();
    forNumbersOf(&block, [&next](auto &number) { number = std::decay_t<decltype(number)>((*next++).toInt()); });
    return BKXMLEditor::dataToString(block);
}

/// Returns the first and the last sample of a curve, its count, and how many numbers of its header are 0. The last
/// entry is "whole" if the curve is written as the text that it was read from, and otherwise the written text.
QStringList curveIn(const QString &text)
{
    const TRUEPHY_PLOT_DATA curve = BKXMLEditor::responseStringToData(text);
    const QString own = BKXMLEditor::responseDataToString(curve);
    const auto zeros = std::count(std::begin(curve.header), std::end(curve.header), 0);
    return {QString::number(curve.plot_a[0]), QString::number(curve.plot_b[256]), QString::number(curve.count),
            QString::number(zeros), own == text.section(',', 0, 514) + ',' ? "whole" : own};
}

QStringList curveOf(const QString &firstSample, const QString &others, const QString &rest)
{
    return curveIn(firstSample + ',' + (others + ',').repeated(513) + rest);
}

int shortestLength(const QStringList &lengths)
{
    TestResults results;
    for (int pair = 0; pair < 4; ++pair)
        results.results().pair_length[pair] = lengths.at(pair).toInt();
    return results.cableLength();
}

} // namespace

/// Tests the functions of records.
class RecordsTest : public QObject
{
    Q_OBJECT

private:
    const QVector<Callable> m_functions{
        made<PrintSettings, QString, int, int, int, int, int>("PrintSettings"),
        made<PageSettings, QString, QString, int, int, int, double, double>("PageSettings"),
        made<ScaleSettings, QString, QString, int, int, double, double, int>("ScaleSettings"),
        made<ActiveTestResult, QString, QString, int, QString, QString, TextPairs>("ActiveTestResult"),
        made<TestResults, QString, QString, cable_struct, int>("TestResults"),
        made<TestResults, QString, QString, QString, QString, cable_struct, int>("TestResults"),
        ofRecord("PrintSettings.getPageWidthDimension", &PrintSettings::getPageWidthDimension),
        ofRecord("PrintSettings.getPageHeightDimension", &PrintSettings::getPageHeightDimension),
        ofRecord("PageSettings.getPageWidthDimension", &PageSettings::getPageWidthDimension),
        ofRecord("PageSettings.getPageHeightDimension", &PageSettings::getPageHeightDimension),
        callable("paperSizes", &cabledoc::SettingsStrings::paperSizes),
        ofRecord("scale", &ScaleSettings::scale),
        ofRecord("isMetric", &ScaleSettings::isMetric),
        ofRecord("validDef", &TestDef::validDef),
        ofRecord("length_constant", &TestDef::length_constant),
        ofRecord("max_length", &TestDef::max_length),
        ofRecord("carePair", &TestDef::carePair),
        changed("setPairMapping", &TestDef::setPairMapping),
        changed("setPairCare", &TestDef::setPairCare),
        callable("stringToData", numbersIn),
        callable("dataToString", textOfNumbers),
        callable("responseStringToData", curveIn),
        callable("responseStringToData", curveOf),
        callable("cableLength", shortestLength),
    };

private Q_SLOTS:
    void cases_data() { addCases({"cases/records.txt"}); }

    void cases()
    {
        QFETCH(TestCase, testCase);
        QStringList expected = QString(testCase.given).trimmed().split('\n');
        for (QString &line : expected) {
            // The verdict "GOOD" is not translated, because callers compare it.
            const QString verdict = line.section(" = ", 1).replace("\\n", "\n");
            if (line.startsWith("validDef ") && verdict != "GOOD")
                line = callIn(line) + " = " + translated("TestDef", verdict).replace("\n", "\\n");
        }
        const auto records =
            recordFunctions<Address, ContractorData, SiteData, PrintSettings, PageSettings, ScaleSettings, BundledCable,
                            TestDef, TestResults, Floor, Sheet, Room, Port, VertRun, Point, Vertice, FreeText, Device,
                            DeviceConnection, ActiveTestResult, ActivePort, Cable>(
                QString("Address ContractorData SiteData PrintSettings PageSettings ScaleSettings BundledCable TestDef "
                        "TestResults Floor Sheet Room Port VertRun Point Vertice FreeText Device DeviceConnection "
                        "ActiveTestResult ActivePort Cable")
                    .split(' '));
        COMPARE_TEXTS(answered(m_functions + records, testCase.given), expected.join('\n'), testCase.place());
    }

    void everyPaperHasASize()
    {
        for (const QString &paper : cabledoc::SettingsStrings::paperSizes())
            QVERIFY2(PrintSettings(paper, 0, 100, 1, 1, 0).getPageWidthDimension() > 0, qPrintable(paper));
    }

    void everyScaleIsKnown()
    {
        static const QRegularExpression factor("^1(\" = | : )(\\d+)('0\")?$");
        for (const QString &scale : cabledoc::SettingsStrings::predefinedScales()) {
            ScaleSettings settings;
            settings.setStyle(1);
            settings.setPredefinedScale(scale);
            QVERIFY2(factor.match(scale).hasMatch(), qPrintable(scale));
            QCOMPARE(settings.scale(), factor.match(scale).captured(2).toInt());
        }
    }

    /// Constructors with all parts, and the functions that set them, make the same records.
    void partsOfRecords()
    {
        const cable_struct block = BKXMLEditor::stringToData(QString("0123456789ABCDEF").repeated(6));
        const bool flags[] = {false, true, true, false};
        TestDef definition("CAT6");
        definition.setExpected(block);
        definition.setPairInUse(flags);
        definition.setDataRate(100);
        definition.setSNR(250);
        definition.setSkew(400);
        definition.setShield(true);
        definition.setLengthConstant(1420);
        definition.setMaxLength(300);
        definition.setComment("good");
        definition.setCableCategory(6);
        definition.setDefaultType(true);
        definition.setColor("#123456");
        QVERIFY(definition
                == TestDef("CAT6", block, flags, 100, 250, 400, true, 1420, 300, "good", 6, true, "#123456"));
        QVERIFY(!definition.pair_in_use()[3] && definition.pair_in_use()[2]);

        TRUEPHY_PLOT_DATA curves[3] = {};
        for (int i = 0; i < 3; ++i)
            curves[i].plot_a[i] = i + 1;
        TestResults results("noon", "FAIL", "2.1", "SN", block, 3);
        results.setNEXT(curves[0]);
        results.setEcho(curves[1]);
        results.setChannel(curves[2]);
        QVERIFY(results == TestResults("noon", "2.1", "SN", "FAIL", 3, block, curves[0], curves[1], curves[2]));
    }

    void responseCurves()
    {
        TRUEPHY_PLOT_DATA curve{};
        curve.count = TRUEPHY_PLOT_DATA::sampleCount;
        for (const auto set : {&TestResults::setNEXT, &TestResults::setEcho, &TestResults::setChannel}) {
            Cable cable;
            QVERIFY(!cable.hasResponseData());
            TestResults results;
            (results.*set)(curve);
            cable.setTestResults(results);
            QVERIFY(cable.hasResponseData());
        }
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

    void resetOfTestResults()
    {
        TRUEPHY_PLOT_DATA curve{};
        curve.header[5] = 1;
        curve.plot_b[256] = 2;
        curve.count = 257;
        TestResults results;
        results.setEcho(curve);
        results.results().pair_length[0] = 120;
        QVERIFY(results != TestResults());
        results.initializeResponsePlotData();
        QCOMPARE(results.echo().count + results.echo().plot_b[256], 0);
        QCOMPARE(results.echo().header[5], 1);
        results.initializeCableStruct();
        QVERIFY(results.results() == TestResults().results());
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
