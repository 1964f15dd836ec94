#include "cableorder.h"
#include "cabletotals.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <random>

using namespace cabledoc;

namespace {

QString textOf(const CableGroup &group)
{
    return QString("%1: %2 cables, %3 measured %4, %5 estimated %6, %7 compared %8")
        .arg(group.name)
        .arg(group.cables)
        .arg(group.measured)
        .arg(group.measuredLength)
        .arg(group.estimated)
        .arg(group.estimatedLength)
        .arg(group.compared)
        .arg(group.difference);
}

QString namesIn(const JobSnapshot &job, const QVector<int> &cables)
{
    QStringList names;
    for (const int cable : cables)
        names.append(job.cables().at(cable).id);
    return names.join(", ");
}

QStringList textsOf(const JobSnapshot &job, const QVector<OrderItem> &items)
{
    QStringList texts;
    for (const OrderItem &item : items)
        texts.append(QString("%1%2: %3 runs of %4, longest %5, %6 coils of %7, %8 left, unknown (%9), too long (%10)")
                         .arg(item.isBundle ? "bundle " : "", item.name)
                         .arg(item.runs)
                         .arg(item.length)
                         .arg(item.longest)
                         .arg(item.coils)
                         .arg(item.coilLength)
                         .arg(item.left)
                         .arg(namesIn(job, item.unknown), namesIn(job, item.tooLong)));
    return texts;
}

} // namespace

/// Tests what the cables of a job add up to, and what has to be ordered for them.
class CableTotalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void totals()
    {
        const CableTotals totals = totalsOf(JobSnapshot::read(testDataPath("trace.job")), false);
        QStringList texts{textOf(totals.all)};
        for (const auto &groups : {totals.byType, totals.byUse, totals.byBundle, totals.byStatus}) {
            for (const CableGroup &group : groups)
                texts.append(textOf(group));
        }
        for (const FloorGroup &group : totals.byFloor)
            texts.append(group.otherFloor + '/' + textOf(group));
        for (auto use = totals.portsByUse.begin(); use != totals.portsByUse.end(); ++use)
            texts.append(QString("%1 ports: %2").arg(use.key()).arg(use.value()));
        COMPARE_TEXTS(texts.join('\n'),
                      QString(": 10 cables, 1 measured 80, 8 estimated 227.784, 1 compared -31.2843\n"
                              ": 2 cables, 0 measured 0, 2 estimated 57.5, 0 compared 0\n"
                              "Audio: 1 cables, 0 measured 0, 1 estimated 10, 0 compared 0\n"
                              "CAT5E: 2 cables, 0 measured 0, 0 estimated 0, 0 compared 0\n"
                              "CAT6: 5 cables, 1 measured 80, 5 estimated 160.284, 1 compared -31.2843\n"
                              ": 6 cables, 0 measured 0, 6 estimated 102.5, 0 compared 0\n"
                              "data: 2 cables, 1 measured 80, 2 estimated 125.284, 1 compared -31.2843\n"
                              "voice: 2 cables, 0 measured 0, 0 estimated 0, 0 compared 0\n"
                              ": 7 cables, 1 measured 80, 5 estimated 187.784, 1 compared -31.2843\n"
                              "Duo: 3 cables, 0 measured 0, 3 estimated 40, 0 compared 0\n"
                              "PASS: 1 cables, 1 measured 80, 1 estimated 111.284, 1 compared -31.2843\n"
                              "UNTESTED: 9 cables, 0 measured 0, 7 estimated 116.5, 0 compared 0\n"
                              "/Ground: 2 cables, 0 measured 0, 1 estimated 26, 0 compared 0\n"
                              "Upper/Ground: 3 cables, 1 measured 80, 2 estimated 142.784, 1 compared -31.2843\n"
                              "/Upper: 5 cables, 0 measured 0, 5 estimated 59, 0 compared 0\n"
                              " ports: 7\n"
                              "data ports: 2\n"
                              "voice ports: 1"),
                      "trace.job");
    }

    void orders()
    {
        const JobSnapshot job = JobSnapshot::read(testDataPath("trace.job"));
        COMPARE_TEXTS(
            textsOf(job, orderOf(job, {}, false)).join('\n'),
            QString(": 2 runs of 57.5, longest 31.5, 0 coils of 0, 0 left, unknown (), too long ()\n"
                    "CAT5E: 0 runs of 0, longest 0, 0 coils of 0, 0 left, unknown (Lost, Direct), too long ()\n"
                    "CAT6: 3 runs of 130.284, longest 111.284, 0 coils of 0, 0 left, unknown (), too long ()\n"
                    "bundle Duo: 2 runs of 30, longest 20, 0 coils of 0, 0 left, unknown (), too long ()"),
            "trace.job");
        OrderOptions options;
        options.spare = 0.1;
        options.coilLength = 22;
        options.coilLengths = {{"", 100}};
        COMPARE_TEXTS(
            textsOf(job, orderOf(job, options, false)).join('\n'),
            QString(": 2 runs of 63.25, longest 34.65, 1 coils of 100, 36.75 left, unknown (), too long ()\n"
                    "CAT5E: 0 runs of 0, longest 0, 0 coils of 22, 0 left, unknown (Lost, Direct), too long ()\n"
                    "CAT6: 3 runs of 143.313, longest 122.413, 1 coils of 22, 1.1 left, unknown (), too long (H1)\n"
                    "bundle Duo: 2 runs of 33, longest 22, 2 coils of 22, 11 left, unknown (), too long ()"),
            "trace.job");
    }

    /// The cables of a group in a bundle are one run, as long as the longest of them.
    void bundles()
    {
        QTemporaryDir folder;
        QByteArray content = testData("trace.job");
        for (const char *id : {"id=\"Patch\"", "id=\"Lost\""})
            content.replace(id, QByteArray(id) + " bundleName=\"Duo\" bundleGroupNum=\"1\"");
        writeFile(folder.filePath("bundles.job"), content);
        const JobSnapshot job = JobSnapshot::read(folder.filePath("bundles.job"));
        QCOMPARE(textsOf(job, orderOf(job, {}, false)).constLast(),
                 QString("bundle Duo: 2 runs of 34, longest 20, 0 coils of 0, 0 left, unknown (), too long ()"));
    }

    void coils_data()
    {
        QTest::addColumn<QVector<double>>("pieces");
        QTest::addColumn<double>("coil");
        QTest::addColumn<bool>("metric");
        QTest::addColumn<int>("coils");
        using P = QVector<double>;
        QTest::newRow("nothing") << P{} << 305.0 << true << 0;
        QTest::newRow("exactly one coil") << P(10, 30.5) << 305.0 << true << 1;
        QTest::newRow("exactly one coil in feet") << P{333.3333, 333.3333, 333.3333} << 1000.0 << false << 1;
        QTest::newRow("a millimetre too much") << P{152.501, 152.5} << 305.0 << true << 2;
        QTest::newRow("no splices") << P{200, 200, 200} << 305.0 << true << 3;
        QTest::newRow("long ones first") << P{50, 250, 55, 255} << 305.0 << true << 2;
        QTest::newRow("longer than a coil") << P{306, 100} << 305.0 << true << 1;
        QTest::newRow("no coil") << P{1} << 0.0 << true << 0;
    }

    void coils()
    {
        QFETCH(QVector<double>, pieces);
        QFETCH(double, coil);
        QFETCH(bool, metric);
        QTEST(coilsFor(pieces, coil, metric), "coils");
    }

    /// Compares with a search through all coils.
    void randomCoils()
    {
        std::mt19937 random(1);
        const auto number = [&random](int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); };
        for (int round = 0; round < 300; ++round) {
            const int coil = 100 + number(100);
            QVector<double> pieces;
            std::vector<int> lengths;
            for (int i = number(60); i > 0; --i) {
                lengths.push_back(number(coil + 1));
                pieces.append(lengths.back());
            }
            std::sort(lengths.begin(), lengths.end(), std::greater<>());
            std::vector<int> rests;
            for (const int length : lengths) {
                auto rest = std::find_if(rests.begin(), rests.end(), [length](int left) { return left >= length; });
                if (rest == rests.end())
                    rest = rests.insert(rests.end(), coil);
                *rest -= length;
            }
            QCOMPARE(coilsFor(pieces, coil, true), int(rests.size()));
        }
    }
};

QTEST_GUILESS_MAIN(CableTotalsTest)
#include "tst_cabletotals.moc"
