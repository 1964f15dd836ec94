// Tests what applications rely on when they are compiled. Each block is a way to call the library. If an answer is not
// the expected one, the program prints the line and returns 1.

#include <cabledoc/BktEditor>
#include <cabledoc/DeviceValidator>
#include <cabledoc/FileValidator>
#include <cabledoc/JobEditor>
#include <cabledoc/TestDef>
#include <cabledoc/TestResults>
#include <cabledoc/TranslatableDate>
#include <cabledoc/VertRun>
#include <cabledoc/Vocabulary>
#include <cabledoc/bkutilities.h>
#include <cabledoc/documentcheck.h>
#include <cabledoc/schedule.h>
#include <cabledoc/settingsstrings.h>
#include <cabledoc/translations.h>
#include <cabledoc/version.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QVersionNumber>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <type_traits>

namespace {

#define EXPECT(condition)                                                                                              \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                       \
            std::exit(1);                                                                                              \
        }                                                                                                              \
    } while (false)

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// Returns the sum of numbers. Has the form of a C function that takes an array.
qint32 sumOf(const qint32 *numbers, int count)
{
    qint32 sum = 0;
    for (int i = 0; i < count; ++i)
        sum += numbers[i];
    return sum;
}

void testData()
{
    const unsigned char record[sizeof(cable_struct)] = {7};
    cable_struct block;
    std::memcpy(&block, record, sizeof block);
    const qint32 readings[] = {1, 2, 3, 4};
    std::copy(readings, readings + 4, block.pair_length);
    EXPECT(block.flag_bytes[0] == 7 && sumOf(block.pair_length, 4) == 10);
    static_assert(std::is_array_v<decltype(TRUEPHY_PLOT_DATA::header)>);

    TRUEPHY_PLOT_DATA next{};
    TRUEPHY_PLOT_DATA echo{};
    TRUEPHY_PLOT_DATA channel{};
    next.count = 1;
    echo.count = 2;
    channel.count = 3;
    TestResults results(text("now"), text("2.0"), text("S1"), text("PASS"), 4, block, next, echo, channel);
    EXPECT(results.time() == text("now") && results.softwareVersion() == text("2.0"));
    EXPECT(results.serialNumber() == text("S1") && results.status() == text("PASS") && results.BERTResults() == 4);
    EXPECT(results.results() == block && results.next() == next && results.echo() == echo);
    EXPECT(results.channel() == channel);
    results.results().pair_length[0] = 9;
    EXPECT(std::as_const(results).results().pair_length[0] == 9);

    const bool pairs[] = {true, false, true, false};
    TestDef definition(text("CAT6"), block, pairs, 1000, 200, 500, true, 1500.0F, 300.0F, text("note"), 6, true,
                       text("#123456"));
    EXPECT(definition.id() == text("CAT6") && definition.expected() == block);
    EXPECT(std::equal(pairs, pairs + 4, definition.pair_in_use()));
    EXPECT(definition.data_rate() == 1000 && definition.SNR() == 200 && definition.skew() == 500);
    EXPECT(definition.shield() && definition.length_constant() == 1500 && definition.max_length() == 300);
    EXPECT(definition.comment() == text("note") && definition.cable_category() == 6 && definition.default_type());
    EXPECT(definition.color() == text("#123456"));
    const TestDef before = definition;
    bool *flags = definition.pair_in_use();
    flags[1] = true;
    EXPECT(definition != before && std::as_const(definition).pair_in_use()[1]);
}

void validatorsAndDates()
{
    const DeviceValidator withoutParent;
    FileValidator file;
    const DeviceValidator withParent(&file);
    EXPECT(withoutParent.parent() == nullptr && withParent.parent() == &file);

    const TranslatableDate date = QDate(2010, 3, 1);
    EXPECT(date.toString(text("d MMMM yyyy")) == text("1 March 2010"));
    EXPECT(date.toString(Qt::ISODate) == text("2010-03-01"));
    EXPECT(date.toString(QStringView(u"yyyy")) == text("2010"));
    EXPECT(date.toString(text("yyyy"), QCalendar()) == text("2010"));
    EXPECT(!date.toString().isEmpty());
}

void templates()
{
    BktEditor &bkt = BktEditor::Instance();
    EXPECT(bkt.New(text("site.bkt")));
    QDomDocument document;
    QDomElement root = document.createElement(text("Bkt"));
    bkt.addSettingsList(&root);
    EXPECT(!root.firstChildElement(text("Settings_List")).isNull());
    root.appendChild(document.createElement(text("Version")));
    for (const auto convert :
         {&BktEditor::convert14To21, &BktEditor::convert21To22, &BktEditor::convert22To23, &BktEditor::convert23To30})
        EXPECT((bkt.*convert)(&root, &root));
    EXPECT(root.firstChildElement(text("Version")).attribute(text("number")) == text("3.0"));
    BktEditor::Destroy();
}

void jobs()
{
    JobEditor &job = JobEditor::Instance();
    EXPECT(job.New(text("site")));

    job.addConnection(QString(), text("A"), QString(), QString(), 7, 1);
    job.addConnection(QString(), text("B"), QString(), QString(), 0, 1);
    job.addConnection(QString(), text("C"), QString(), QString(), "3", 1);
    const QString tag = job.getConnectionTagById(text("A"));
    EXPECT(job.getConnectionType(tag) == 7);
    EXPECT(job.getConnectionType(job.getConnectionTagById(text("C"))) == 3);
    job.setConnectionType(tag, 0);
    EXPECT(job.getConnection(tag).type() == text("0"));
    job.setConnectionType(tag, "9");
    job.setConnectionType(tag, job.getConnectionType(tag) + 1);
    EXPECT(job.getConnectionType(tag) == 10);

    const QString floor = text("FFloor_1");
    const QString room = job.addRoom(floor, 0, 0, 1, 1, QString(), text("Lab"), 0, 0, 3, 3, 3, 1);
    EXPECT(job.roomExistsOnFloor(room, floor, true) && job.roomExistsOnFloor(floor, room, true));
    EXPECT(job.roomExistsOnFloor(text("Lab"), floor, false) && job.roomExistsOnFloor(floor, text("Lab"), false));
    EXPECT(!job.roomExistsOnFloor(floor, floor, true) && !job.roomExistsOnFloor(room, text("none"), true));
    // A room with the tag of a floor shows that the order of the arguments is room, floor.
    const QString upper = job.addFloor(QString(), text("Upper"), 8.0, QString(), 1);
    job.addRoom(floor, 0, 0, 1, 1, upper, text("Odd"), 0, 0, 3, 3, 3, 2);
    EXPECT(job.roomExistsOnFloor(upper, floor, true) && !job.roomExistsOnFloor(floor, upper, true));

    // The id that addCable() returns can be passed to other operations.
    TestDef definition(text("Wire"));
    definition.setLengthConstant(100.0F);
    job.addTestDef(definition);
    const QString id = job.addCable(QString(), text("Link"), QString(), QString(), QString(), text("Wire"), 1);
    TestResults results;
    results.setStatus(text("PASS"));
    results.results().pair_length[0] = 120;
    job.setCableTestResults(id, results);
    EXPECT(job.getCableTestResults(id).status() == text("PASS") && job.getCableStatus(text("Cable1")) == text("PASS"));
    EXPECT(job.getRoundedCableLength(id, 0, false) == 120.0F
           && job.getMaxRoundedCableLength(id, false, false) == 120.0F);
    // If the text is the tag of one cable and the id of another, the tag counts.
    job.addCable(id, text("Other"), 2);
    EXPECT(job.getCableTestResults(id).status() == text("UNTESTED"));
    EXPECT(job.getMaxRoundedCableLength(id, false, true) == 0.0F);

    const cabledoc::ScheduleReport report = cabledoc::importSchedule(job, text("none.csv"));
    EXPECT(!report.error.isEmpty() && !cabledoc::exportSchedule(job).isEmpty());
    JobEditor::Destroy();
}

void namesOfOurOwn()
{
    const cabledoc::Vocabulary &uses = cabledoc::Vocabulary::portUses();
    EXPECT(uses.contains(text("data")));
    EXPECT(cabledoc::SettingsStrings::scaleStyles().contains(cabledoc::SettingsStrings::english()));
    const cabledoc::CheckReport report = cabledoc::checkFile(text("none.job"));
    EXPECT(report.findings.isEmpty() && !report.error.isEmpty());
    EXPECT(cabledoc::installTranslations(QLocale::c()));
    const cabledoc::VertRunFields cables{{text("Cable1")}, {}};
    const VertRun vertRun(cabledoc::PortFields(), cables);
    const cabledoc::Record<cabledoc::PortFields> &record = vertRun;
    EXPECT(record.fields().iconScale == 1.0 && vertRun.connected().size() == 1);
    EXPECT(BKUtilities::getDistance({0.0, 0.0}, {3.0, 4.0}) == 5.0);
    EXPECT(text(CABLEDOC_VERSION_STR) == text(PACKAGE_VERSION));
    EXPECT(QVersionNumber(CABLEDOC_VERSION >> 16, CABLEDOC_VERSION >> 8 & 0xff, CABLEDOC_VERSION & 0xff)
           == QVersionNumber::fromString(text(PACKAGE_VERSION)));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    testData();
    validatorsAndDates();
    templates();
    jobs();
    namesOfOurOwn();
    return 0;
}
