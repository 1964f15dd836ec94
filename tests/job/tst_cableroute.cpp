#include "cableroute.h"
#include "jobeditor.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

#include <cmath>
#include <random>

using namespace cabledoc;

namespace {

QString nameOf(const RouteStation &station)
{
    return station.place.exists() ? station.id : '?' + station.tag;
}

/// Returns the route as a text such as "A1 drop 6, A1-Bend straight 20".
QString textOf(const CableRoute &route)
{
    static const char *kinds[] = {"drop", "straight", "floors"};
    QStringList parts;
    for (const RoutePart &part : route.parts) {
        QString stations = nameOf(route.stations.at(part.from));
        if (part.to != part.from)
            stations += '-' + nameOf(route.stations.at(part.to));
        parts.append(stations + ' ' + kinds[part.kind] + ' ' + (part.feet ? QString::number(*part.feet) : "?"));
    }
    return parts.join(", ") + (route.isComplete ? " = " : " > ") + QString::number(route.feet);
}

/// Makes jobs with random plans.
class RandomPlan
{
public:
    explicit RandomPlan(unsigned seed)
        : m_random(seed)
    {
    }

    void make(JobEditor *job)
    {
        const QStringList scales{"1\" = 20'0\"", "1 : 5", "no scale"};
        job->setScaleSettings(ScaleSettings(number(2) == 0 ? "English" : "Metric", oneOf(scales), 0, number(3), 1.0,
                                            number(200) - 20, number(8) == 0 ? 0 : 1 + number(2)),
                              "FloorPlan_Settings");
        for (int i = number(5); i >= 0; --i)
            job->addFloor(QString(), "Level ", number(130) / 10.0, QString(), 0);
        for (int i = 0; i < 20; ++i)
            addPlace(job);
        if (number(2) == 0)
            job->removeFloor(oneOf(job->getFloorTags()));
        for (int i = 0; i < 40; ++i) {
            QStringList path;
            for (int passed = number(4); passed > 0; --passed)
                path.append(place());
            job->addCable(QString(), QString(), QString(), place(), place(), QString(), QString(), QString(), QString(),
                          QString(), path, TestResults(), 0);
        }
    }

private:
    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }
    QString oneOf(const QStringList &list) { return list.at(number(int(list.size()))); }
    double position() { return number(1000) / 4.0; }
    QString place() { return number(20) == 0 ? "none" : oneOf(m_places); }

    void addPlace(JobEditor *job)
    {
        const QString floor = oneOf(job->getFloorTags());
        // Some ports and points have the tag of a vertical run.
        const int mode = number(4) == 0 ? 2 : 0;
        const QString tag = QString("VertRun%1").arg(1 + number(5));
        const double drop = number(100) == 0 ? std::nan("") : number(90) / 8.0;
        switch (number(3)) {
        case 0:
            m_places.append(
                job->addPort(floor, "Undefined", position(), position(), tag, "P", "data", 1.0, drop, mode));
            break;
        case 1:
            m_places.append(
                job->addVertRun(floor, "Undefined", position(), position(), tag, "R", "data", 1.0, drop, {}, {}, mode));
            break;
        default:
            m_places.append(job->addPoint(floor, position(), position(), tag, "Q", mode));
        }
    }

    std::mt19937 m_random;
    QStringList m_places{"none"};
};

} // namespace

/// Tests the routes of cables and their estimated lengths.
class CableRouteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void routes()
    {
        const JobSnapshot job = JobSnapshot::read(testDataPath("trace.job"));
        QCOMPARE(job.error(), QString());
        QStringList routes;
        for (int cable = 0; cable < job.cables().size(); ++cable)
            routes.append(textOf(routeOf(job, cable)));
        COMPARE_TEXTS(
            routes.join('\n'),
            QString("A1 drop 6, A1-Bend straight 20, Bend-Riser straight 28.2843, Riser-Riser above straight 0, "
                    "Riser-Riser above floors 10, Riser above-A1 straight 40, A1 drop 7 = 111.284\n"
                    "Desk drop 7, Desk-A1 straight 0, A1 drop 7 = 14\n"
                    "A2 drop 6, A2-?P9 straight ?, ?P9 drop ? > 6\n"
                    "A2 drop 6, A2-Wall straight 0, A2-Wall floors ?, Wall drop 1.5 > 7.5\n"
                    "A2 drop 6, A2-Riser straight 20, Riser drop 0 = 26\n"
                    "Riser drop 0, Riser-Wall straight 20, Riser-Wall floors 10, Wall drop 1.5 = 31.5\n"
                    "Loop 1 drop 0, Loop 1-Loop 2 straight 10, Loop 2 drop 0 = 10\n"
                    "Loop 2 drop 0, Loop 2-Loop 1 straight 10, Loop 1 drop 0 = 10\n"
                    "Amp drop 0, Amp-Riser above straight 20, Riser above drop 0 = 20\n"
                    "Riser above drop 0, Riser above-Speaker straight 5, Speaker drop 0 = 5"),
            "trace.job");
        QCOMPARE(textOf(routeOf(job, 5, RouteDirection::Backward)),
                 QString("Wall drop 1.5, Wall-Riser straight 20, Wall-Riser floors 10, Riser drop 0 = 31.5"));

        const RouteStation port = routeOf(job, 0).stations.constLast();
        QCOMPARE(port.tag, QString("P3"));
        QCOMPARE(job.rooms().at(port.room).id, QString("Office"));
        QCOMPARE(job.floors().at(port.floor).id, QString("Upper"));
        QCOMPARE(port.position, QPointF(96, 192));
        QCOMPARE(routeOf(job, 0).stations.at(1).room, -1);
        QCOMPARE(routeOf(job, 99).cable, -1);
        QVERIFY(routeOf(job, -1).stations.isEmpty());
    }

    void withoutAScale()
    {
        QTemporaryDir folder;
        writeFile(folder.filePath("x.job"), testData("trace.job").replace("style=\"1\"", "style=\"0\""));
        const JobSnapshot job = JobSnapshot::read(folder.filePath("x.job"));
        QCOMPARE(textOf(routeOf(job, 5)),
                 QString("Riser drop 0, Riser-Wall straight ?, Riser-Wall floors 10, Wall drop 1.5 > 11.5"));
        QCOMPARE(job.estimatedLength(5, false), -1.0);
    }

    void chains()
    {
        const JobSnapshot job = JobSnapshot::read(testDataPath("trace.job"));
        QStringList chains;
        for (const RouteDirection direction : {RouteDirection::Forward, RouteDirection::Backward}) {
            for (int cable = 0; cable < job.cables().size(); ++cable) {
                const CableChain chain = chainOf(job, cable, direction);
                QStringList names;
                for (const CableRoute &route : chain.routes)
                    names.append(job.cables().at(route.cable).id + " to " + nameOf(route.stations.constLast()));
                chains.append(QString("%1: %2 %3%4 (%5, %6)%7")
                                  .arg(job.cables().at(cable).id, names.join(", "), chain.isComplete ? "" : "at least ")
                                  .arg(chain.feet)
                                  .arg(chain.othersAtBegin)
                                  .arg(chain.othersAtEnd)
                                  .arg(chain.isRing ? " ring" : ""));
            }
        }
        COMPARE_TEXTS(chains.join('\n'),
                      QString("H1: H1 to A1, Patch to Desk 125.284 (0, 0)\n"
                              "Patch: Patch to A1, H1 to A1 125.284 (0, 0)\n"
                              "Lost: Lost to ?P9 at least 6 (2, 0)\n"
                              "Direct: Direct to Wall, Riser 2 to Riser, Riser 1 to A2 at least 65 (2, 2)\n"
                              "Riser 1: Riser 1 to Riser, Riser 2 to Wall, Direct to A2 at least 65 (2, 2)\n"
                              "Riser 2: Riser 1 to Riser, Riser 2 to Wall, Direct to A2 at least 65 (2, 2)\n"
                              "Ring 1: Ring 1 to Loop 2, Ring 2 to Loop 1 20 (0, 0) ring\n"
                              "Ring 2: Ring 2 to Loop 1, Ring 1 to Loop 2 20 (0, 0) ring\n"
                              "A1: A1 to Riser above 20 (0, 1)\n"
                              "Shaft: Shaft to Speaker 5 (1, 0)\n"
                              "H1: Patch to A1, H1 to A1 125.284 (0, 0)\n"
                              "Patch: H1 to A1, Patch to Desk 125.284 (0, 0)\n"
                              "Lost: Lost to A2 at least 6 (0, 2)\n"
                              "Direct: Riser 1 to Riser, Riser 2 to Wall, Direct to A2 at least 65 (2, 2)\n"
                              "Riser 1: Direct to Wall, Riser 2 to Riser, Riser 1 to A2 at least 65 (2, 2)\n"
                              "Riser 2: Direct to Wall, Riser 2 to Riser, Riser 1 to A2 at least 65 (2, 2)\n"
                              "Ring 1: Ring 1 to Loop 1, Ring 2 to Loop 2 20 (0, 0) ring\n"
                              "Ring 2: Ring 2 to Loop 2, Ring 1 to Loop 1 20 (0, 0) ring\n"
                              "A1: A1 to Amp 20 (1, 0)\n"
                              "Shaft: Shaft to Riser above 5 (0, 1)"),
                      "trace.job");
        QVERIFY(chainOf(job, 99).routes.isEmpty());
    }

    /// Both ends of a cable at one place count as two ends.
    void cableBackToItsBegin()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.Load(testDataPath("trace.job")));
        job.setCableTo("Cable2", "P4");
        QCOMPARE(chainOf(JobSnapshot(job), 1).routes.size(), 1);
        job.setCableTo("Cable10", "P4");
        job.setCableFrom("Cable10", "P11");
        QCOMPARE(chainOf(JobSnapshot(job), 9).routes.size(), 1);
    }

    void randomPlans_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 60; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    /// The lengths of a snapshot are those of the document, and the parts of a route add up to them.
    void randomPlans()
    {
        QFETCH(unsigned, seed);
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New("random.job"));
        RandomPlan(seed).make(&job);
        const JobSnapshot snapshot(job);
        const QMap<QString, double> feet = job.estimateCableLengths(false);
        QCOMPARE(snapshot.cables().size(), 40);
        QCOMPARE(feet.size(), 40);
        for (int cable = 0; cable < 40; ++cable) {
            const QString tag = snapshot.cables().at(cable).element;
            for (const bool metric : {false, true}) {
                const double expected = job.estimateCableLength(tag, metric);
                const double found = snapshot.estimatedLength(cable, metric);
                QVERIFY2(found == expected || (std::isnan(found) && std::isnan(expected)),
                         qPrintable(QString("%1: %2, expected %3").arg(tag).arg(found).arg(expected)));
            }
            const double expected = feet.value(tag);
            for (const RouteDirection direction : {RouteDirection::Forward, RouteDirection::Backward}) {
                const CableRoute route = routeOf(snapshot, cable, direction);
                QCOMPARE(route.isComplete, expected != -1.0 && !std::isnan(expected));
                QVERIFY(!route.isComplete || std::fabs(route.feet - expected) < 1e-9 * expected + 1e-9);
            }
        }
    }
};

QTEST_GUILESS_MAIN(CableRouteTest)
#include "tst_cableroute.moc"
