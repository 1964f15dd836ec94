#include "addmode.h"
#include "cableways.h"
#include "curvedrawing.h"
#include "drawings.h"
#include "drawingtext.h"
#include "drawingwriters.h"
#include "jobeditor.h"
#include "jobsnapshot.h"
#include "networkdrawing.h"
#include "plandrawing.h"
#include "riserdrawing.h"
#include "snapshots.h"

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtTest/QtTest>

#include <limits>
#include <random>

using namespace cabledoc;

Q_DECLARE_METATYPE(TRUEPHY_PLOT_DATA)

namespace {

constexpr double pixel = 25.4 / 96.0; // millimetres

/// A job with all that drawings show. Each number is written as an attribute.
const QByteArray wholeJob =
    R"(<Job><Version number="3.0"/><Cable_List>
<C1 id="A" from="P1" to="P2" type="CAT6" path="Q1,V1"/><C2 id="B" from="P1" to="P2" path="Q1"/>
</Cable_List><Connection_List><N1 id="L" from="D1" to="E1"/></Connection_List><Floor_List>
<FFloor_1 id="Ground" ceiling_height="8" pic="" pic_x="4" pic_y="5"><Room_List>
<R1 id="Lab" x="10" y="20" width="300" height="200" namex="15" namey="30" layer="2" show_name="3" show_dimensions="3">
<Port_List><P1 id="1" x="30" y="40" icon_scale="2" drop_height="3" use="data"/>
<P2 id="2" x="90" y="40" icon_scale="1" drop_height="3"/></Port_List>
<VerticalRun_List><V1 id="Riser" x="200" y="100"/></VerticalRun_List></R1>
</Room_List><Point_List><Q1 id="Bend" x="60" y="150"/></Point_List>
<FreeText_List><T1 text="North" x="10" y="10" font_size="12"/></FreeText_List></FFloor_1></Floor_List>
<Sheet_List><SSheet_1 id="Net"><Device_List><D1 id="Core" type="switch" x="50" y="60" icon_scale="1" info="a"/></Device_List>
<Vertice_List><E1 id="B1" x="150" y="60"/></Vertice_List>
<FreeText_List><T2 text="Note" x="10" y="10" font_size="12"/></FreeText_List></SSheet_1></Sheet_List>
<Settings_List><PrintSettings_List><FloorPlan_Settings paper_size="A3: 297 mm. x 420 mm." orientation="1"/>
</PrintSettings_List><PageSettings_List><NetView_Settings page_size_style="2" custom_height="11" custom_width="17"/>
</PageSettings_List><ScaleSettings_List><FloorPlan_Settings style="2" height_units="1" custom_height="100"/>
</ScaleSettings_List></Settings_List></Job>)";

QStringList textsOf(const Drawing &drawing, Layer layer)
{
    QStringList texts;
    for (const Scene &page : drawing.pages) {
        for (const auto &[item, text] : shapesOf<SceneText>(page, layer))
            texts.append(text->text);
    }
    return texts;
}

/// Returns a picture of 40 x 20 pixels as a file of the given format.
QByteArray pictureIn(const QByteArray &format)
{
    if (format == "SVG")
        return R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="20"><path d="M0 0H9V9Z"/></svg>)";
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    return image.save(&content, format.constData()) ? content.data() : QByteArray();
}

/// Returns what is wrong with the places and texts of a drawing, or an empty text.
QString faultOf(const DrawingResult &result)
{
    if (result.error.isEmpty() == result.drawing.pages.isEmpty())
        return "neither a drawing nor an error";
    for (const Scene &page : result.drawing.pages) {
        QVector<double> numbers{page.size.width(), page.size.height()};
        for (const SceneItem &item : page.items) {
            const QRectF box = boundsOf(item);
            numbers += {box.x(), box.y(), box.width(), box.height()};
            const auto *text = std::get_if<SceneText>(&item.shape);
            if (text != nullptr && QString::fromUtf8(text->text.toUtf8()) != text->text)
                return "half a character in " + text->text;
        }
        if (!std::all_of(numbers.cbegin(), numbers.cend(), [](double number) { return std::abs(number) < 1e7; }))
            return "a place that cannot be drawn on " + page.title;
    }
    return QString();
}

/// Returns whether a straight segment covers a place.
bool covers(const QLineF &segment, const QPointF &place)
{
    const QLineF a(segment.p1(), place);
    const QLineF b(place, segment.p2());
    return qAbs(a.length() + b.length() - segment.length()) < 1e-6;
}

bool isParallel(const QLineF &a, const QLineF &b)
{
    return qAbs(a.dx() * b.dy() - a.dy() * b.dx()) < 1e-6;
}

} // namespace

/// Tests drawings of jobs that are unlike the sample office.
class UnusualDrawingsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    JobSnapshot jobOf(const QByteArray &content) const { return writtenJob(path("drawing.job"), content); }

    /// Writes a page as SVG. Returns the values of an attribute of all elements with the given name.
    QStringList attributesInSvg(const Scene &page, const QString &name, const QString &attribute) const
    {
        if (const QString error = writeSvg(page, path("page.svg")); !error.isEmpty())
            qFatal("%s", qPrintable(error));
        QXmlStreamReader svg(readFile(path("page.svg")));
        QStringList values;
        while (!svg.atEnd()) {
            if (svg.readNext() == QXmlStreamReader::StartElement && svg.name() == name)
                values.append(svg.attributes().value("http://www.w3.org/1999/xlink", attribute).toString());
        }
        if (svg.hasError())
            qFatal("%s", qPrintable(svg.errorString()));
        return values;
    }

private Q_SLOTS:
    void pictures_data()
    {
        QTest::addColumn<bool>("isShown");
        for (const char *format : {"PNG", "JPG", "BMP", "PPM", "SVG"})
            QTest::newRow(format) << true;
        QTest::newRow("broken") << false;
    }

    /// A picture is in the file as it is, in a format that all programs show. Without it, the rest is drawn.
    void pictures()
    {
        QFETCH(bool, isShown);
        const QByteArray data = isShown ? pictureIn(QTest::currentDataTag()) : "PNG";
        QVERIFY(!data.isEmpty());
        writeFile(path("picture"), data);
        const JobSnapshot job = jobOf(QByteArray(wholeJob)
                                          .replace("pic=\"\"", "pic=\"picture\"")
                                          .replace("<Cable_List>", "<Contractor_Info logo=\"picture\"/><Cable_List>"));
        PlanOptions options;
        options.folder = m_folder.path();
        const DrawingResult result = drawFloorPlans(job, options);
        QCOMPARE(result.error, QString());
        QCOMPARE(int(result.warnings.size()), isShown ? 0 : 2);
        const Scene &page = result.drawing.pages.constFirst();
        const auto rooms = shapesOf<SceneArea>(page, Layer::Rooms);
        const auto pictures = shapesOf<ScenePicture>(page, Layer::Background);
        QCOMPARE(int(rooms.size()), 1);
        QCOMPARE(int(pictures.size()), isShown ? 1 : 0);
        const QStringList links = attributesInSvg(page, "image", "href");
        QCOMPARE(int(links.size()), isShown ? 2 : 0);
        if (!isShown)
            return;
        const QRectF place = pictures.constFirst().second->area;
        const QPointF offset = rooms.constFirst().second->corners.constFirst() - place.topLeft();
        QVERIFY(qAbs(offset.x() - 6 * pixel) < 0.01 && qAbs(offset.y() - 15 * pixel) < 0.01);
        QVERIFY(qAbs(place.width() - 40 * pixel) < 0.01 && qAbs(place.height() - 20 * pixel) < 0.01);
        QVERIFY(!rooms.constFirst().second->fill.isValid()); // it would hide the picture
        for (const QString &link : links) {
            static const QRegularExpression form("^data:image/(png|jpeg|svg\\+xml);base64,(.*)$");
            const QRegularExpressionMatch match = form.match(link);
            QVERIFY2(match.hasMatch(), qPrintable(link.left(40)));
            const QByteArray content = QByteArray::fromBase64(match.captured(2).toLatin1());
            const QMap<QString, QByteArray> begins{{"png", "\x89PNG"}, {"jpeg", "\xFF\xD8"}, {"svg+xml", "<svg"}};
            QVERIFY2(content.startsWith(begins.value(match.captured(1))), qPrintable(match.captured(1)));
            QCOMPARE(QImage::fromData(content).convertToFormat(QImage::Format_RGB32),
                     QImage::fromData(data).convertToFormat(QImage::Format_RGB32));
        }
    }

    void north()
    {
        const JobSnapshot job = jobOf(wholeJob);
        PlanOptions options;
        const auto without = shapesOf<SceneArea>(drawFloorPlans(job, options).drawing.pages.at(0), Layer::Sheet).size();
        for (const double degrees : {0.0, 90.0, -45.0, 360.0, 200.0}) {
            options.north = degrees;
            const Scene page = drawFloorPlans(job, options).drawing.pages.constFirst();
            const auto areas = shapesOf<SceneArea>(page, Layer::Sheet);
            QCOMPARE(areas.size(), without + 2);
            QRectF letter;
            for (const auto &[item, text] : shapesOf<SceneText>(page, Layer::Sheet)) {
                if (text->text == DrawingText::tr("N", "north"))
                    letter = boxOf(*text);
            }
            const auto isPart = [&](const auto &area) { // of the arrow
                return QLineF(area.second->corners.boundingRect().center(), letter.center()).length() < 20.0;
            };
            QRectF arrow;
            for (const auto &area : areas)
                arrow |= isPart(area) ? area.second->corners.boundingRect() : QRectF();
            // The letter is in the direction of north from the middle of the arrow.
            const double turned = QLineF(QPointF(), QPointF(0.0, -1.0)).angle() - degrees;
            QLineF expected(arrow.center(), arrow.center() + QPointF(1.0, 0.0));
            expected.setAngle(turned);
            const double difference = expected.angleTo(QLineF(arrow.center(), letter.center()));
            QVERIFY2(std::min(difference, 360.0 - difference) < 8.0, qPrintable(QString::number(difference)));
        }
    }

    void papers_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QSizeF>("size");
        const QByteArray print = "<PrintSettings_List><FloorPlan_Settings paper_size=\"A2: 420 mm. x 594 mm.\" "
                                 "orientation=\"1\"/></PrintSettings_List>";
        const auto page = [](const QByteArray &attributes) {
            return "<PageSettings_List><FloorPlan_Settings " + attributes + "/></PageSettings_List>";
        };
        QTest::newRow("of the printer") << print + page("page_size_style=\"0\"") << QSizeF(594, 420);
        QTest::newRow("by its name")
            << print + page("orientation=\"0\" page_size_style=\"1\" page_size=\"Tabloid: 11 in. x 17 in.\"")
            << QSizeF(279.4, 431.8);
        QTest::newRow("in inches") << print + page("page_size_style=\"2\" custom_height=\"20\" custom_width=\"15.5\"")
                                   << QSizeF(393.7, 508);
        QTest::newRow("too small") << page("page_size_style=\"2\" custom_height=\"1\" custom_width=\"1\"") << QSizeF();
        QTest::newRow("too large") << page("page_size_style=\"2\" custom_height=\"1\" custom_width=\"1e9\"")
                                   << QSizeF();
        QTest::newRow("unknown") << page("page_size_style=\"1\" page_size=\"Napkin\"") << QSizeF();
    }

    void papers()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QSizeF, size);
        QByteArray content = jobWith("<R1 id=\"Lab\" x=\"0\" y=\"0\" width=\"9\" height=\"9\"/>");
        const JobSnapshot job = jobOf(content.replace("<Settings_List>", "<Settings_List>" + settings));
        const DrawingResult result = drawFloorPlans(job, {});
        QCOMPARE(result.error.isEmpty(), !size.isEmpty());
        QCOMPARE(faultOf(result), QString());
        if (!size.isEmpty())
            QVERIFY(qAbs(result.drawing.pages.at(0).size.width() - size.width()) < 0.01
                    && qAbs(result.drawing.pages.at(0).size.height() - size.height()) < 0.01);
        PlanOptions options;
        options.paper = "A4";
        options.orientation = DrawingOptions::Portrait;
        QCOMPARE(drawFloorPlans(job, options).drawing.pages.at(0).size, QSizeF(210, 297));
    }

    void numbersOfSheets()
    {
        const JobSnapshot one = jobOf(wholeJob);
        const JobSnapshot two =
            jobOf(QByteArray(wholeJob).replace("</Floor_List>", "<FFloor_2 id=\"Upper\"/></Floor_List>"));
        PlanOptions options;
        QVERIFY(textsOf(drawFloorPlans(two, options).drawing, Layer::Sheet).contains("2/2"));
        options.sheetNumber = "S7";
        QVERIFY(textsOf(drawFloorPlans(one, options).drawing, Layer::Sheet).contains("S7"));
        QVERIFY(textsOf(drawFloorPlans(two, options).drawing, Layer::Sheet).contains("S7-2/2"));
    }

    void tooLarge()
    {
        const JobSnapshot job = jobOf(jobWith("<R1 id=\"Lab\" x=\"0\" y=\"0\" width=\"90000\" height=\"90000\"/>"));
        PlanOptions options;
        options.paper = "A4";
        QVERIFY(!drawFloorPlans(job, options).error.isEmpty());
        QVERIFY(drawFloorPlans(job, options).drawing.pages.isEmpty());
        options.overflow = PlanOptions::Grow;
        const DrawingResult grown = drawFloorPlans(job, options);
        QCOMPARE(faultOf(grown), QString());
        QVERIFY(!writePng(grown.drawing.pages.constFirst(), path("large.png"), 300).isEmpty());
        QVERIFY(!QFile::exists(path("large.png")));
    }

    /// Each number of a job is replaced by others. Whatever they are, drawings have places that can be drawn.
    void oddNumbers()
    {
        static const QRegularExpression attribute("(\\w+)=\"\\d+\"");
        const QString text = QString::fromLatin1(wholeJob);
        QSet<QString> names;
        for (auto match = attribute.globalMatch(text); match.hasNext();)
            names.insert(match.next().captured(1));
        QVERIFY(names.size() > 15);
        for (const QString &name : std::as_const(names)) {
            for (const char *number : {"nan", "inf", "-1e300", "1e300", "1000000", "-7", "0", "1e-300", "x"}) {
                QString changed = text;
                changed.replace(QRegularExpression(name + "=\"\\d+\""), QString("%1=\"%2\"").arg(name, number));
                const JobSnapshot job = jobOf(changed.toLatin1());
                PlanOptions options;
                options.overflow = PlanOptions::Grow;
                for (const DrawingResult &result :
                     {drawFloorPlans(job, options), drawNetwork(job, {}), drawRiser(job, {})})
                    QVERIFY2(faultOf(result).isEmpty(),
                             qPrintable(QString("%1 %2: %3").arg(name, number, faultOf(result))));
            }
        }
    }

    /// Names are cut between characters, and lists have all of a name.
    void longNames()
    {
        const QString emoji = QString::fromUtf8("\U0001F600\U0001F50C\U0001F4A1").repeated(40);
        QByteArray reference;
        for (const uint character : emoji.toUcs4())
            reference += "&#" + QByteArray::number(character) + ';';
        QByteArray content = wholeJob;
        for (const char *id : {"Lab", "1", "Riser", "Bend", "Ground", "Core", "B1", "Net", "L", "A"})
            content.replace("id=\"" + QByteArray(id) + '"', "id=\"" + reference + '"');
        content.replace("x=\"90\"", "x=\"-1\"").replace("y=\"40\"", "y=\"-1\"");
        const JobSnapshot job = jobOf(content.replace("type=\"CAT6\"", "type=\"" + reference + '"'));
        for (const DrawingResult &result : {drawFloorPlans(job, {}), drawNetwork(job, {}), drawRiser(job, {})})
            QCOMPARE(faultOf(result), QString());
        const QString listed = textsOf(drawFloorPlans(job, {}).drawing, Layer::Sheet).join(QString());
        QVERIFY(listed.contains(emoji + "/2"));
    }

    void sheetsAreReduced()
    {
        QByteArray devices;
        std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same devices in each run
        for (int i = 0; i < 60; ++i)
            devices += "<D" + QByteArray::number(i) + " id=\"Switch\" type=\"switch\" x=\""
                       + QByteArray::number(int(random() % 20000)) + "\" y=\""
                       + QByteArray::number(int(random() % 9000)) + "\"/>";
        const JobSnapshot job =
            jobOf(jobWith({}).replace("<Floor_List>", "<Sheet_List><SSheet_1 id=\"Net\"><Device_List>" + devices
                                                          + "</Device_List></SSheet_1></Sheet_List><Floor_List>"));
        NetworkOptions options;
        options.paper = "A3";
        const DrawingResult result = drawNetwork(job, options);
        QCOMPARE(int(result.warnings.size()), 1);
        const Scene &page = result.drawing.pages.constFirst();
        QCOMPARE(page.size, QSizeF(420, 297));
        QMap<QString, QPointF> centers;
        for (const auto &[item, symbol] : shapesOf<SceneSymbol>(page, Layer::Ports)) {
            centers.insert(item->tag, symbol->area.center());
            QVERIFY(page.window.contains(symbol->area));
        }
        QCOMPARE(int(centers.size()), int(job.devices().size()));
        // All distances are reduced alike.
        const snapshot::Device &first = job.devices().constFirst();
        const snapshot::Device &last = job.devices().constLast();
        const double factor = (centers.value(last.element).x() - centers.value(first.element).x()) / (last.x - first.x);
        QVERIFY(factor > 0.0 && factor < pixel);
        for (const snapshot::Device &device : job.devices()) {
            const QPointF expected =
                centers.value(first.element) + QPointF(device.x - first.x, device.y - first.y) * factor;
            QVERIFY(QLineF(expected, centers.value(device.element)).length() < 0.01);
        }
    }

    void elementsWithoutAPlaceAreListed()
    {
        QString content = QString::fromLatin1(wholeJob);
        content.replace(QRegularExpression(" x=\"\\d+\" y=\"\\d+\""), " x=\"-1\" y=\"-1\"");
        const JobSnapshot job = jobOf(content.replace("id=\"Lab\" x=\"-1\"", "id=\"Lab\" x=\"2000000\"").toLatin1());
        const Drawing plan = drawFloorPlans(job, {}).drawing;
        const Drawing network = drawNetwork(job, {}).drawing;
        for (const auto &[drawing, names] :
             {qMakePair(&plan, QStringList({"Lab", "Lab/1", "Lab/2", "Riser", "Bend", "North"})),
              qMakePair(&network, QStringList({"Core", "B1", "Note", "L"}))}) {
            const QStringList listed = textsOf(*drawing, Layer::Sheet);
            for (const QString &name : names)
                QVERIFY2(listed.contains(name), qPrintable(name));
            for (const SceneItem &item : drawing->pages.constFirst().items)
                QVERIFY2(item.layer == Layer::Sheet, qPrintable(item.title));
        }
    }

    /// Ways cover what the cables cover, and no more is divided than has to be.
    void ways()
    {
        std::mt19937 random(3); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same cables in each run
        const auto number = [&random](int below) { return int(random() % unsigned(below)); };
        int wholeWays = 0;
        for (int round = 0; round < 60; ++round) {
            QByteArray points;
            for (int i = 0; i < 9; ++i)
                points += QString("<Q%1 x=\"%2\" y=\"%3\"/>").arg(i).arg(i % 3 * 10).arg(i / 3 * 10).toLatin1();
            QByteArray cables;
            for (int i = 0; i < 4; ++i)
                cables += QString("<C%1 path=\"Q%2,Q%3,Q%4\" color=\"#%5\"/>")
                              .arg(i)
                              .arg(number(9))
                              .arg(number(9))
                              .arg(number(9))
                              .arg(number(2), 6, 16, QLatin1Char('0'))
                              .toLatin1();
            const JobSnapshot job = jobOf(jobWith({}, "<Point_List>" + points + "</Point_List>")
                                              .replace("<Cable_List/>", "<Cable_List>" + cables + "</Cable_List>"));
            const CablePalette palette(job, CableColors::Cable);
            QVector<QPair<int, QLineF>> segments; // with the cable
            double length = 0.0;
            for (int cable = 0; cable < job.cables().size(); ++cable) {
                const auto &places = job.cables().at(cable).pathTargets;
                for (int i = 0; i + 1 < places.size(); ++i) {
                    const snapshot::Point &from = job.points().at(places.at(i).position);
                    const snapshot::Point &to = job.points().at(places.at(i + 1).position);
                    segments.append({cable, QLineF(from.x, from.y, to.x, to.y)});
                    length += segments.constLast().second.length();
                }
            }
            const auto cablesOn = [&segments](const QLineF &line) {
                QVector<int> found;
                for (const auto &[cable, segment] : std::as_const(segments)) {
                    if (isParallel(segment, line) && covers(segment, line.pointAt(0.4)))
                        found.append(cable);
                }
                std::sort(found.begin(), found.end());
                return found;
            };
            const QVector<CableWay> ways = waysOnFloor(job, 0, palette);
            for (const CableWay &way : ways) {
                const QLineF line(way.from, way.to);
                const QVector<int> found = cablesOn(line);
                QCOMPARE(way.count, int(found.size()));
                QCOMPARE(way.cable, found.size() == 1 ? found.constFirst() : -1);
                QMap<int, int> groups;
                for (const int cable : found)
                    ++groups[palette.groupOf(cable)];
                QCOMPARE(way.group, groups.size() == 1 ? groups.firstKey() : palette.mixedGroup());
                length -= line.length() * way.count;
                wholeWays += line.length() > 15.0 ? 1 : 0;
                for (const CableWay &next : ways) {
                    const QLineF other(next.from, next.to);
                    QVERIFY(way.to != next.from || !isParallel(line, other) || cablesOn(other) != found);
                }
            }
            QVERIFY2(qAbs(length) < 1e-6, qPrintable(QString::number(length)));
        }
        QVERIFY(wholeWays > 20);
    }

    void riser()
    {
        QByteArray floors;
        for (const int floor : {3, 1, 2}) {
            const QString text =
                "<FFloor_%1 id=\"Level %1\"><Room_List><R%1 id=\"Lab\"><Port_List><P%1 id=\"1\"/></Port_List>"
                "<VerticalRun_List><V%1 id=\"East\"/><W%1 id=\"West\"/></VerticalRun_List></R%1>"
                "</Room_List></FFloor_%1>";
            floors += text.arg(floor).toLatin1();
        }
        const QByteArray cables = "<C1 from=\"P1\" to=\"P3\" path=\"V1,V3\"/>" // over level 2
                                  "<C2 from=\"P2\" to=\"V1\" path=\"V2\"/>"
                                  "<C3 from=\"P1\" to=\"P2\" path=\"V1,W2\"/>" // changes the run
                                  "<C4 from=\"P3\" to=\"P2\"/><C5 from=\"P2\" to=\"P3\" path=\"V2,W2\"/>"
                                  "<C6 from=\"P9\" to=\"P3\"/>";
        const JobSnapshot job = jobOf("<Job><Version number=\"3.0\"/><Cable_List>" + cables
                                      + "</Cable_List><Floor_List>" + floors + "</Floor_List></Job>");
        const DrawingResult result = drawRiser(job, {});
        const Scene &page = result.drawing.pages.constFirst();
        QMap<double, QStringList> titles; // by their places from the top
        for (const auto &[item, line] : shapesOf<SceneLine>(page, Layer::Cables))
            titles[line->points.constFirst().y()].append(item->title);
        const auto cablesText = [](int count) { return DrawingText::tr("%1 cables").arg(count); };
        const QList<QStringList> expected{{cablesText(1)}, {cablesText(3)}};
        QCOMPARE(titles.values(), expected);
        const QStringList texts = textsOf(result.drawing, Layer::Sheet);
        for (const QString &text : {DrawingText::tr("%1: at most %2 cables").arg("East").arg(3),
                                    DrawingText::tr("%1: at most %2 cables").arg("West").arg(0),
                                    DrawingText::tr("From %1 to %2: %3 cables").arg("East", "West").arg(1),
                                    DrawingText::tr("Cables between floors without a vertical run: %1").arg(2)})
            QVERIFY2(texts.contains(text), qPrintable(text + " in " + texts.join('|')));
        QVERIFY(!texts.contains(DrawingText::tr("From %1 to %2: %3 cables").arg("West", "East").arg(1)));
        const QStringList names = textsOf(result.drawing, Layer::Labels).filter("Level");
        QCOMPARE(names.size(), 3);
        // A job without anything has an empty riser.
        QCOMPARE(faultOf(drawRiser(jobOf("<Job><Version number=\"3.0\"/></Job>"), {})), QString());
    }

    void curves_data()
    {
        QTest::addColumn<TRUEPHY_PLOT_DATA>("curve");
        constexpr int count = TRUEPHY_PLOT_DATA::sampleCount;
        const auto row = [](const char *name, const std::function<qint32(int)> &value) {
            TRUEPHY_PLOT_DATA curve{};
            curve.count = count;
            for (int i = 0; i < count; ++i) {
                curve.plot_a[i] = value(i);
                curve.plot_b[i] = value(count - 1 - i);
            }
            QTest::newRow(name) << curve;
        };
        row("rising", [](int i) { return i * i; });
        row("below zero", [](int i) { return -1000 - i; });
        row("all the same", [](int) { return 0; });
        row("as far as it goes",
            [](int i) { return i % 2 == 0 ? std::numeric_limits<qint32>::max() : std::numeric_limits<qint32>::min(); });
    }

    void curves()
    {
        QFETCH(TRUEPHY_PLOT_DATA, curve);
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path("curves.job")));
        job.addCable("", "A", addmode::GivenId);
        TestResults results("", "PASS", cable_struct::untested(), 0);
        results.setEcho(curve);
        job.setCableTestResults("A", results);
        const DrawingResult result = drawCurves(JobSnapshot(job), 0, {});
        JobEditor::Destroy();
        QCOMPARE(result.error, QString());
        const Scene &page = result.drawing.pages.constFirst();
        QCOMPARE(int(textsOf(result.drawing, Layer::Sheet).count(DrawingText::tr("No samples"))), 2);
        int series = 0;
        for (const auto &[item, line] : shapesOf<SceneLine>(page, Layer::Sheet)) {
            if (line->points.size() != curve.count)
                continue;
            const qint32 *samples = series++ == 0 ? curve.plot_a : curve.plot_b;
            const auto [low, high] = std::minmax_element(samples, samples + curve.count);
            const double height = line->points.at(int(low - samples)).y() - line->points.at(int(high - samples)).y();
            QVERIFY(*low == *high || height > 1.0);
            for (int i = 0; i < curve.count; ++i) {
                const QPointF &point = line->points.at(i);
                QVERIFY(page.window.contains(point));
                QVERIFY(i == 0 || point.x() > line->points.at(i - 1).x());
                // A greater value is higher, unless both are in the same dot.
                const double rise = line->points.at(0).y() - point.y();
                QVERIFY(samples[i] > samples[0] ? rise > -1e-6 : rise < 1e-6);
                QVERIFY(samples[i] != samples[0] || qAbs(rise) < 1e-6);
            }
        }
        QCOMPARE(series, 2);
    }

    void lengths()
    {
        const auto text = [](const char *scale, double millimeters) {
            return DrawingScale::read(scale)->lengthText(millimeters);
        };
        QCOMPARE(text("1:100", 45.0), QString("4.5 m"));
        QCOMPARE(text("1:20", 45.0), QString("0.90 m"));
        QCOMPARE(text("1 in = 20 ft", 25.4), QString("20' 0\""));
        QCOMPARE(text("20 ft", 12.8), QString("10' 1\""));
        for (const char *scale : {"1:1", "1 : 999999", "1\"=7'", "12ft"})
            QCOMPARE(DrawingScale::read(DrawingScale::read(scale)->text())->factor, DrawingScale::read(scale)->factor);
        for (const char *scale : {"1:0", "1:1000000", "2:100", "0 ft", "1:1.5", "", "1in=20m"})
            QVERIFY2(!DrawingScale::read(scale), scale);
    }
};

QTEST_MAIN(UnusualDrawingsTest)
#include "tst_unusualdrawings.moc"
