#include "curvedrawing.h"
#include "drawings.h"
#include "drawingwriters.h"
#include "jobsnapshot.h"
#include "networkdrawing.h"
#include "plandrawing.h"
#include "riserdrawing.h"
#include "sampleoffice.h"
#include "settingsstrings.h"
#include "snapshots.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtTest/QtTest>

#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

using namespace cabledoc;

namespace {

constexpr double pointsInAMillimeter = 72.0 / 25.4;

/// Reads the rectangles that a page of a PDF file draws, in millimetres.
class RectangleReader : public QPDFObjectHandle::ParserCallbacks
{
public:
    void handleObject(QPDFObjectHandle object) override
    {
        if (!object.isOperator()) {
            // The number of qpdf would depend on the locale.
            m_operands.push_back(QByteArray::fromStdString(object.unparse()).toDouble());
            return;
        }
        handleOperator(object.getOperatorValue());
        m_operands.clear();
    }
    void handleEOF() override {}

    QVector<QRectF> rectangles;

private:
    double operand(std::size_t number) const { return m_operands.at(number); }

    void handleOperator(const std::string &name)
    {
        if (name == "q") {
            m_saved.append(m_matrix);
        } else if (name == "Q") {
            m_matrix = m_saved.takeLast();
        } else if (name == "cm") {
            m_matrix = QTransform(operand(0), operand(1), operand(2), operand(3), operand(4), operand(5)) * m_matrix;
        } else if (name == "m") {
            m_path = QPolygonF({m_matrix.map(QPointF(operand(0), operand(1)))});
        } else if (name == "l") {
            m_path.append(m_matrix.map(QPointF(operand(0), operand(1))));
        } else if (name == "h" && m_path.size() == 5 && m_path.isClosed()) {
            const QRectF box = m_path.boundingRect();
            rectangles.append({box.topLeft() / pointsInAMillimeter, box.size() / pointsInAMillimeter});
        }
    }

    std::vector<double> m_operands;
    QTransform m_matrix;
    QVector<QTransform> m_saved;
    QPolygonF m_path;
};

/// A floor with 10,000 ports. In each row of rooms, the ports stand closer together than in the row before. Those of
/// the last row all stand at the same place.
QByteArray bigFloor()
{
    QByteArray rooms;
    for (int room = 0; room < 100; ++room) {
        const int x = room % 10 * 300;
        const int y = room / 10 * 300;
        rooms += QStringLiteral("<Room%1 id=\"Room %1\" x=\"%2\" y=\"%3\" width=\"300\" height=\"300\" show_name=\"3\" "
                                "show_dimensions=\"3\"><Port_List>")
                     .arg(room)
                     .arg(x)
                     .arg(y)
                     .toUtf8();
        const int distance = QVector<int>{60, 27, 20, 14, 10, 7, 4, 2, 1, 0}.at(room / 10);
        for (int port = 0; port < 100; ++port)
            rooms += QStringLiteral("<Port%1 id=\"Jack %2\" use=\"data\" x=\"%3\" y=\"%4\"/>")
                         .arg(room * 100 + port)
                         .arg(port)
                         .arg(x + 2 + port % 10 * distance)
                         .arg(y + 40 + port / 10 * distance)
                         .toUtf8();
        rooms += QStringLiteral("</Port_List></Room%1>").arg(room).toUtf8();
    }
    return jobWith(rooms);
}

/// Returns whether a tile has a mark of a join from its top to its bottom.
bool hasMark(const Scene &tile, double x)
{
    const auto marks = shapesOf<SceneLine>(tile, Layer::Sheet);
    return std::any_of(marks.cbegin(), marks.cend(), [&](const auto &mark) {
        const QRectF box = boundsOf(*mark.first);
        return qAbs(box.left() - x) < 0.001 && box.width() == 0.0 && box.height() > 0.9 * tile.window.height();
    });
}

/// Returns the labels that overlap, as a text.
QString overlaps(const Scene &scene)
{
    QVector<QPair<QRectF, QString>> boxes;
    for (const auto &[item, text] : shapesOf<SceneText>(scene, Layer::Labels))
        boxes.append({boxOf(*text), text->text});
    std::sort(boxes.begin(), boxes.end(), [](const auto &a, const auto &b) { return a.first.left() < b.first.left(); });
    QStringList found;
    for (int i = 0; i < boxes.size(); ++i) {
        for (int j = i + 1; j < boxes.size() && boxes.at(j).first.left() < boxes.at(i).first.right(); ++j) {
            if (boxes.at(i).first.intersects(boxes.at(j).first))
                found.append(boxes.at(i).second + " on " + boxes.at(j).second);
        }
    }
    return found.join("; ");
}

/// Returns the ports of a floor that no label and no list names.
QStringList unnamedPorts(const JobSnapshot &job, int floor, const Drawing &drawing)
{
    QSet<QString> names;
    QSet<QString> onSheets;
    for (const Scene &page : drawing.pages) {
        for (const auto &[item, text] : shapesOf<SceneText>(page, Layer::Sheet))
            onSheets.insert(text->text);
    }
    for (const auto &[item, text] : shapesOf<SceneText>(drawing.pages.constFirst(), Layer::Labels)) {
        // A number has to be explained.
        const bool isNumber = QRegularExpression("^\\d+$").match(text->text).hasMatch();
        if (isNumber && item->title.contains('/') && !onSheets.contains(text->text))
            continue;
        for (const QString &name : item->title.split("; "))
            names.insert(name);
    }
    QStringList unnamed;
    for (const snapshot::Port &port : job.ports()) {
        const snapshot::Room &room = job.rooms().at(port.holder);
        if (room.holder == floor && !names.contains(room.id + '/' + port.id))
            unnamed.append(room.id + '/' + port.id);
    }
    return unnamed;
}

} // namespace

/// Tests drawings and the files that they are written to.
class DrawingTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    JobSnapshot jobOf(const QByteArray &content) const { return writtenJob(path("drawing.job"), content); }

    JobSnapshot office() const { return JobSnapshot::read(path("office.job")); }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        planOffice(m_folder.path());
        QCOMPARE(office().floors().size(), 3);
    }

    void lengthsAreToScale_data()
    {
        QTest::addColumn<QString>("scale");
        QTest::newRow("1:50") << "1:50";
        QTest::newRow("1:100") << "1:100";
        QTest::newRow("1in=20ft") << "1in=20ft";
    }

    void lengthsAreToScale()
    {
        QFETCH(QString, scale);
        PlanOptions options;
        options.scale = DrawingScale::read(scale);
        // A room that is 100 mm wide and high on paper
        const double pixelsInAMillimeter = 96.0 / 25.4 * options.scale->factor / 100.0;
        const JobSnapshot job = jobOf(jobWith(QStringLiteral("<Room1 id=\"Bar\" x=\"0\" y=\"0\" width=\"%1\" "
                                                             "height=\"%1\" show_name=\"3\"/>")
                                                  .arg(qRound(100.0 * pixelsInAMillimeter))
                                                  .toUtf8()));
        for (const QString &paper : SettingsStrings::paperSizes()) {
            options.paper = paper;
            const DrawingResult result = drawFloorPlans(job, options);
            QCOMPARE(result.error, QString());
            QCOMPARE(writePdf(result.drawing, path("bar.pdf")), QString());
            QPDF pdf;
            pdf.processFile(qPrintable(path("bar.pdf")));
            std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
            QVector<QRectF> all;
            // The first of several pages is an overview, which is not to scale.
            for (std::size_t page = pages.size() > 1 ? 1 : 0; page < pages.size(); ++page) {
                RectangleReader reader;
                pages[page].parseContents(&reader);
                all += reader.rectangles;
            }
            const auto isBar = [](const QRectF &box) {
                return qAbs(box.width() - 100.0) <= 0.1 && qAbs(box.height() - 100.0) <= 0.1;
            };
            QVERIFY2(std::any_of(all.cbegin(), all.cend(), isBar), qPrintable(paper));
        }
    }

    void tilesJoin()
    {
        PlanOptions options;
        options.floor = office().floors().constFirst().element;
        options.scale = DrawingScale::read("1:50");
        options.paper = "A4";
        const DrawingResult result = drawFloorPlans(office(), options);
        QVERIFY(result.drawing.pages.size() > 4);
        // Where each of two neighbouring tiles has the marks of their join, the plan is the same.
        QMap<QString, QPointF> corners;
        int joins = 0;
        for (int page = 1; page + 1 < result.drawing.pages.size(); ++page) {
            const Scene &left = result.drawing.pages.at(page);
            const Scene &right = result.drawing.pages.at(page + 1);
            const double leftMark = left.window.right() - 5.0;
            const double rightMark = right.window.left() + 5.0;
            if (!hasMark(left, leftMark) || !hasMark(right, rightMark))
                continue; // the last tile of a row
            for (const auto &[item, area] : shapesOf<SceneArea>(left, Layer::Rooms)) {
                for (const auto &[other, otherArea] : shapesOf<SceneArea>(right, Layer::Rooms)) {
                    const QPointF here = area->corners.constFirst();
                    const QPointF there = otherArea->corners.constFirst();
                    const bool isSameRow = qAbs(here.y() - there.y()) < 0.001;
                    if (item->tag != other->tag || !isSameRow)
                        continue;
                    QVERIFY(qAbs((here.x() - leftMark) - (there.x() - rightMark)) <= 0.1);
                    ++joins;
                }
            }
        }
        QVERIFY(joins > 4);
    }

    void everyElementIsDrawnOnce()
    {
        PlanOptions options;
        options.overflow = PlanOptions::Grow;
        const JobSnapshot job = office();
        for (const snapshot::Floor &floor : job.floors()) {
            options.floor = floor.element;
            QCOMPARE(writeSvg(drawFloorPlans(job, options).drawing.pages.constFirst(), path("floor.svg")), QString());
            QXmlStreamReader svg(readFile(path("floor.svg")));
            QStringList ids;
            while (!svg.atEnd()) {
                if (svg.readNext() == QXmlStreamReader::StartElement && svg.attributes().hasAttribute("id"))
                    ids.append(svg.attributes().value("id").toString());
            }
            QVERIFY2(!svg.hasError(), qPrintable(svg.errorString()));
            QStringList expected;
            for (int r = floor.rooms.first; r < floor.rooms.end(); ++r) {
                const snapshot::Room &room = job.rooms().at(r);
                if (room.id != "Undefined")
                    expected.append("room-" + room.element);
                for (int i = room.ports.first; i < room.ports.end(); ++i)
                    expected.append("port-" + job.ports().at(i).element);
                for (int i = room.verticalRuns.first; i < room.verticalRuns.end(); ++i)
                    expected.append("vertical-run-" + job.verticalRuns().at(i).element);
            }
            for (int i = floor.points.first; i < floor.points.end(); ++i)
                expected.append("point-" + job.points().at(i).element);
            for (int i = floor.texts.first; i < floor.texts.end(); ++i)
                expected.append("floor-text-" + job.floorTexts().at(i).element);
            QVERIFY(expected.size() > 150);
            QStringList drawn = ids.filter(QRegularExpression("^(room|port|vertical-run|point|floor-text)-"));
            expected.sort();
            drawn.sort();
            QCOMPARE(drawn, expected);
        }
    }

    void labelsOfTheOffice()
    {
        PlanOptions options;
        const JobSnapshot job = office();
        for (int floor = 0; floor < job.floors().size(); ++floor) {
            options.floor = job.floors().at(floor).element;
            const Drawing drawing = drawFloorPlans(job, options).drawing;
            QCOMPARE(overlaps(drawing.pages.constFirst()), QString());
            QCOMPARE(unnamedPorts(job, floor, drawing).join("; "), QString());
        }
    }

    void labelsOfACrowdedFloor()
    {
        const JobSnapshot job = jobOf(bigFloor());
        PlanOptions options;
        options.overflow = PlanOptions::Grow;
        const Drawing drawing = drawFloorPlans(job, options).drawing;
        QCOMPARE(overlaps(drawing.pages.constFirst()), QString());
        QCOMPARE(unnamedPorts(job, 0, drawing).join("; "), QString());
    }

    void longListsGoOnOverSheets()
    {
        QByteArray ports;
        constexpr int count = 10000;
        for (int port = 0; port < count; ++port)
            ports += QStringLiteral("<Port%1 id=\"Jack_%2\" x=\"20\" y=\"50\"/>").arg(port).arg(port * 2).toUtf8();
        const JobSnapshot job =
            jobOf(jobWith("<Room1 id=\"Lab\" x=\"0\" y=\"0\" width=\"300\" height=\"200\"><Port_List>" + ports
                          + "</Port_List></Room1>"));
        PlanOptions options;
        options.paper = "A4";
        QSet<QString> words;
        for (const Scene &page : drawFloorPlans(job, options).drawing.pages) {
            for (const auto &[item, text] : shapesOf<SceneText>(page, Layer::Sheet)) {
                QVERIFY2(QRectF(QPointF(), page.size).contains(boxOf(*text)), qPrintable(text->text));
                for (const QString &word : text->text.split(QRegularExpression("[ ,]+")))
                    words.insert(word);
            }
        }
        for (int port = 0; port < count; ++port)
            QVERIFY2(words.contains(QString("Jack_%1").arg(port * 2)), qPrintable(QString::number(port)));
    }

    void roomsAreNamedWhereTheirFlagsSay_data()
    {
        QTest::addColumn<int>("flags");
        QTest::addColumn<bool>("onScreen");
        QTest::addColumn<bool>("onPaper");
        QTest::newRow("hidden") << 0 << false << false;
        QTest::newRow("on screen") << 1 << true << false;
        QTest::newRow("on paper") << 2 << false << true;
        QTest::newRow("both") << 3 << true << true;
    }

    void roomsAreNamedWhereTheirFlagsSay()
    {
        QFETCH(int, flags);
        QFETCH(bool, onScreen);
        QFETCH(bool, onPaper);
        const JobSnapshot job = jobOf(jobWith(QStringLiteral("<Room1 id=\"Lab\" x=\"0\" y=\"0\" width=\"300\" "
                                                             "height=\"200\" show_name=\"%1\" show_dimensions=\"%1\"/>")
                                                  .arg(flags)
                                                  .toUtf8()));
        for (const auto &[medium, isShown] :
             {qMakePair(PlanOptions::OnScreen, onScreen), qMakePair(PlanOptions::OnPaper, onPaper)}) {
            PlanOptions options;
            options.medium = medium;
            QStringList labels;
            const Drawing drawing = drawFloorPlans(job, options).drawing;
            for (const auto &[item, text] : shapesOf<SceneText>(drawing.pages.constFirst(), Layer::Labels))
                labels.append(text->text);
            QCOMPARE(labels, isShown ? QStringList({"Lab", QString("7.9 m \u00d7 5.3 m")}) : QStringList());
        }
    }

    void elementsWithoutAPlaceAreListed()
    {
        const JobSnapshot job = jobOf(jobWith("<Room1 id=\"Lab\" x=\"0\" y=\"0\" width=\"300\" height=\"200\">"
                                              "<Port_List><P1 id=\"Lost\" x=\"-1\" y=\"-1\"/></Port_List></Room1>",
                                              "<Point_List><Point1 id=\"Gone\"/></Point_List>"));
        QStringList words;
        const Drawing drawing = drawFloorPlans(job, {}).drawing;
        for (const auto &[item, text] : shapesOf<SceneText>(drawing.pages.constFirst(), Layer::Sheet))
            words.append(text->text);
        QVERIFY(words.contains("Lab/Lost"));
        QVERIFY(words.contains("Gone"));
    }

    void filesShowTheSame()
    {
        const JobSnapshot job = office();
        PlanOptions plan;
        plan.floor = job.floors().constFirst().element;
        NetworkOptions network;
        network.sheet = job.sheets().constFirst().element;
        const int tested = job.positionOfId(ElementKind::Cables, "1-A02");
        for (const DrawingResult &result :
             {drawFloorPlans(job, plan), drawNetwork(job, network), drawRiser(job, {}), drawCurves(job, tested, {})}) {
            QCOMPARE(result.error, QString());
            QCOMPARE(writePdf(result.drawing, path("page.pdf")), QString());
            QCOMPARE(writePng(result.drawing.pages.constFirst(), path("page.png"), 100.0), QString());
            printedBy(CABLEDOC_PDFTOPPM, {"-r", "100", "-png", "-singlefile", path("page.pdf"), path("rendered")});
            const QImage png = QImage(path("page.png")).convertToFormat(QImage::Format_Grayscale8);
            const QImage rendered = QImage(path("rendered.png")).convertToFormat(QImage::Format_Grayscale8);
            QVERIFY(qAbs(png.width() - rendered.width()) <= 1 && qAbs(png.height() - rendered.height()) <= 1);
            // Both are made smaller, so that it does not matter how edges are smoothed.
            constexpr int width = 100;
            const QImage a =
                png.scaledToWidth(width, Qt::SmoothTransformation).convertToFormat(QImage::Format_Grayscale8);
            const QImage b = rendered.scaled(a.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_Grayscale8);
            int ink = 0;
            for (int y = 0; y < a.height(); ++y) {
                for (int x = 0; x < a.width(); ++x) {
                    const int difference = qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
                    constexpr int tolerance = 40;
                    QVERIFY2(difference <= tolerance,
                             qPrintable(
                                 QString("%1: %2 at %3, %4").arg(result.drawing.title).arg(difference).arg(x).arg(y)));
                    ink += qGray(a.pixel(x, y)) < 250 ? 1 : 0;
                }
            }
            QVERIFY(ink > width);
        }
    }
};

QTEST_MAIN(DrawingTest)
#include "tst_drawing.moc"
