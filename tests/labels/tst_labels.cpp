#include "drawingwriters.h"
#include "elementtable.h"
#include "jobsnapshot.h"
#include "labelpattern.h"
#include "labels.h"
#include "programs.h"
#include "snapshots.h"
#include "strangeids.h"
#include "testfiles.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>
#include <QtTest/QtTest>

using namespace cabledoc;

Q_DECLARE_METATYPE(cabledoc::LabelCode)

namespace {

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

/// Returns whether there is a dark pixel near a place. One pixel is 0.1 mm.
bool isDarkNear(const QImage &image, const QPointF &place, bool isVerticalEdge)
{
    constexpr double pixelsInAMillimeter = 10.0;
    const QPoint pixel = (place * pixelsInAMillimeter).toPoint();
    for (int distance = -2; distance <= 2; ++distance) {
        const QPoint there = pixel + (isVerticalEdge ? QPoint(distance, 0) : QPoint(0, distance));
        if (image.rect().contains(there) && qGray(image.pixel(there)) < 200)
            return true;
    }
    return false;
}

} // namespace

/// Tests labels, their codes and their sheets.
class LabelsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Returns a job whose cables have the given names.
    JobSnapshot jobOf(const QStringList &ids) const
    {
        QByteArray job = "<Job><Version number=\"3.0\"/><Cable_List>";
        for (int i = 0; i < ids.size(); ++i)
            job += "<Cable" + QByteArray::number(i) + " id=\"" + escaped(ids.at(i)) + "\" type=\"T"
                   + QByteArray::number(i) + "\"/>";
        return writtenJob(path("labels.job"), job + "</Cable_List></Job>");
    }

    /// Makes labels for all cables of a job.
    LabelResult labelsOf(const QStringList &ids, const LabelOptions &options) const
    {
        const JobSnapshot job = jobOf(ids);
        const ElementTable table(job, TableKind::Cables);
        QVector<int> rows;
        for (int row = 0; row < table.rowCount(); ++row)
            rows.append(row);
        return makeLabels(table, rows, options);
    }

    /// Returns the texts of the codes on a page.
    QStringList decoded(const Scene &page) const
    {
        constexpr double dpi = 300.0;
        if (!writePng(page, path("codes.png"), dpi).isEmpty())
            qFatal("there is no picture");
        return QString::fromUtf8(printedBy(CABLEDOC_ZBARIMG, {"-q", "--raw", "--nodbus", path("codes.png")}))
            .split('\n', Qt::SkipEmptyParts);
    }

private Q_SLOTS:
    void formatsFitTheirPaper()
    {
        QStringList names;
        for (const LabelFormat &format : labelFormats()) {
            QVERIFY2(!names.contains(format.name), qPrintable(format.name));
            names.append(format.name);
            QCOMPARE(labelFormatOfName(format.name)->label, format.label);
            QVERIFY2(QRectF(QPointF(), format.label).contains(format.printedPart()), qPrintable(format.name));
            if (format.isTape())
                continue;
            // Sheets have the same margins on both sides.
            const QRectF last = format.place(format.labelsOnSheet() - 1);
            const QSizeF end(format.paper.width() - last.right(), format.paper.height() - last.bottom());
            QVERIFY2(qAbs(end.width() - format.first.x()) < 0.1, qPrintable(format.name));
            QVERIFY2(qAbs(end.height() - format.first.y()) < 0.1, qPrintable(format.name));
            const bool overlaps =
                format.pitch.width() < format.label.width() || format.pitch.height() < format.label.height();
            QVERIFY2(!overlaps, qPrintable(format.name));
        }
    }

    void sheetsAreExact_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"a4-3x7", "a4-5x13", "a4-7x27", "a4-wrap-7x8", "letter-3x10"})
            QTest::newRow(name) << name;
    }

    void sheetsAreExact()
    {
        QFETCH(QString, name);
        LabelOptions options;
        options.format = labelFormatOfName(name);
        options.outlines = true;
        options.start = 2;
        QStringList ids;
        for (int i = 0; i < options.format->labelsOnSheet(); ++i)
            ids.append(QString::number(i));
        const LabelResult labels = labelsOf(ids, options);
        QCOMPARE(labels.sheets.drawing.pages.size(), 2);
        QCOMPARE(writePdf(labels.sheets.drawing, path("sheets.pdf")), QString());
        printedBy(CABLEDOC_PDFTOPPM, {"-r", "254", "-png", path("sheets.pdf"), path("sheets")});
        const QImage first(path("sheets-1.png"));
        const QImage second(path("sheets-2.png"));
        const QRectF unused = options.format->place(0);
        const QPointF middleOfEdge(unused.left(), unused.center().y());
        QVERIFY(!isDarkNear(first, middleOfEdge, true));
        QVERIFY(isDarkNear(second, middleOfEdge, true));
        QVERIFY(!isDarkNear(second, options.format->place(1).center() - QPointF(0.0, 3.0), true));
        for (int place = 1; place < options.format->labelsOnSheet(); ++place) {
            const QRectF label = options.format->place(place);
            QVERIFY(isDarkNear(first, {label.left(), label.center().y()}, true));
            QVERIFY(isDarkNear(first, {label.right(), label.center().y()}, true));
            QVERIFY(isDarkNear(first, {label.center().x(), label.top()}, false));
            QVERIFY(isDarkNear(first, {label.center().x(), label.bottom()}, false));
        }
    }

    void codesDecode_data()
    {
        QTest::addColumn<LabelCode>("code");
        QTest::addColumn<QStringList>("ids");
        QStringList ascii;
        for (const QString &id : strangeIds()) {
            if (id.toLatin1().size() == id.toUtf8().size() && id.size() < 30)
                ascii.append(id);
        }
        QVERIFY(ascii.size() == 6);
        QTest::newRow("QR") << LabelCode::Qr << strangeIds() + QStringList{QString::fromUtf8("東京/東-7")};
        QTest::newRow("Code 128") << LabelCode::Code128 << ascii;
    }

    void codesDecode()
    {
        QFETCH(LabelCode, code);
        QFETCH(QStringList, ids);
        LabelOptions options;
        options.code = code;
        options.pattern = "{type}"; // there may be no font for the names
        options.format = LabelFormat{"large", {400, 600}, {120, 60}, 3, 9, {10, 10}, {130, 65}, {}};
        const LabelResult labels = labelsOf(ids, options);
        for (const LabelProblem &problem : labels.problems)
            QFAIL(qPrintable(problem.element + ": " + problem.message));
        QCOMPARE(labels.sheets.drawing.pages.size(), 1);
        QCOMPARE(sorted(decoded(labels.sheets.drawing.pages.constFirst())), sorted(ids));
    }

    void smallCodesDecode()
    {
        for (const LabelCode code : {LabelCode::Qr, LabelCode::Code128}) {
            LabelOptions options;
            options.code = code;
            options.format = labelFormatOfName(code == LabelCode::Qr ? "a4-7x27" : "tape-9");
            const LabelResult labels = labelsOf({"1-A01"}, options);
            QCOMPARE(labels.problems.size(), 0);
            QCOMPARE(decoded(labels.sheets.drawing.pages.constFirst()), QStringList("1-A01"));
        }
    }

    void modulesThatTouchHaveNoGap()
    {
        LabelOptions options;
        options.code = LabelCode::Qr;
        options.pattern = ".";
        options.format = labelFormatOfName("a4-4x16");
        const LabelResult labels = labelsOf({"1-A01"}, options);
        constexpr double dpi = 397.0; // the edges of modules are between pixels
        QCOMPARE(writePng(labels.sheets.drawing.pages.constFirst(), path("gaps.png"), dpi), QString());
        const QRectF label = options.format->place(0);
        const QImage image = QImage(path("gaps.png"))
                                 .copy(QRectF(label.topLeft() * dpi / 25.4, label.size() * dpi / 25.4).toRect())
                                 .convertToFormat(QImage::Format_Grayscale8);
        const auto isDark = [&image](int x, int y) { return qGray(image.pixel(x, y)) < 20; };
        int dark = 0;
        for (int y = 2; y < image.height() - 2; ++y) {
            for (int x = 2; x < image.width() - 2; ++x) {
                const bool isInside = (isDark(x - 2, y) && isDark(x + 2, y)) || (isDark(x, y - 2) && isDark(x, y + 2));
                QVERIFY2(!isInside || isDark(x, y), qPrintable(QString("%1, %2").arg(x).arg(y)));
                dark += isInside ? 1 : 0;
            }
        }
        QVERIFY(dark > 1000);
    }

    void textsAreTheNames()
    {
        LabelOptions options;
        options.format = labelFormatOfName("a4-2x7");
        options.format->rows = 20;
        const LabelResult labels = labelsOf(strangeIds().mid(0, 14), options);
        for (const LabelProblem &problem : labels.problems)
            QFAIL(qPrintable(problem.element + ": " + problem.message));
        QCOMPARE(writeSvg(labels.sheets.drawing.pages.constFirst(), path("labels.svg")), QString());
        QXmlStreamReader svg(readFile(path("labels.svg")));
        QStringList texts;
        while (!svg.atEnd()) {
            if (svg.readNext() == QXmlStreamReader::StartElement && svg.name() == QLatin1String("text"))
                texts.append(svg.readElementText());
        }
        QCOMPARE(texts, strangeIds().mid(0, 14));
    }

    void contentStaysOnItsLabel_data()
    {
        QTest::addColumn<QString>("name");
        for (const LabelFormat &format : labelFormats())
            QTest::newRow(qPrintable(format.name)) << format.name;
    }

    void contentStaysOnItsLabel()
    {
        QFETCH(QString, name);
        for (const LabelCode code : {LabelCode::None, LabelCode::Qr, LabelCode::Code128}) {
            LabelOptions options;
            options.code = code;
            options.format = labelFormatOfName(name);
            const LabelResult labels = labelsOf({"1-A01", "2"}, options);
            QCOMPARE(labels.problems.size(), 0);
            const Scene &page = labels.sheets.drawing.pages.constFirst();
            QRectF content;
            for (const SceneItem &item : page.items)
                content |= boundsOf(item);
            QRectF allowed = options.format->printedPart().translated(options.format->first);
            if (options.format->isTape())
                allowed.setWidth(page.size.width());
            else
                allowed |= options.format->printedPart().translated(options.format->place(1).topLeft());
            QVERIFY2(allowed.contains(content), qPrintable(name));
        }
    }

    void patterns_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("expected");
        QTest::newRow("fields") << "{id} to {room}"
                                << "A to Lab";
        QTest::newRow("lines") << "{id}\\n{room}\n{id}"
                               << "A|Lab|A";
        QTest::newRow("a default") << "{empty|?}{id|?}"
                                   << "?A";
        QTest::newRow("no default") << "{empty}{empty|}-"
                                    << "-";
        QTest::newRow("an empty line") << "{id}\\n{empty}\\n{room}"
                                       << "A|Lab";
        QTest::newRow("braces") << "{{{id}}}"
                                << "{A}";
        QTest::newRow("backslashes") << "\\\\n\\x"
                                     << "\\n\\x";
        QTest::newRow("an open brace") << "{id"
                                       << "! the pattern has a \"{\" without a \"}\"; write \"{{\" for a brace";
        QTest::newRow("a closing brace") << "id}"
                                         << "! the pattern has a \"}\" without a \"{\"; write \"}}\" for a brace";
        QTest::newRow("no name") << "{|x}"
                                 << "! the pattern has a field without a name";
    }

    void patterns()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, expected);
        const QHash<QString, QString> values{{"id", "A"}, {"room", "Lab"}};
        const LabelPattern read(pattern);
        const QStringList lines = read.lines([&values](const QString &field) { return values.value(field); });
        if (expected.startsWith('!') && !qEnvironmentVariableIsSet("CABLEDOC_TEST_LOCALE"))
            QCOMPARE("! " + read.error(), expected);
        else if (expected.startsWith('!'))
            QVERIFY(!read.error().isEmpty());
        else
            QCOMPARE(lines.join('|'), expected);
    }
};

QTEST_MAIN(LabelsTest)
#include "tst_labels.moc"
