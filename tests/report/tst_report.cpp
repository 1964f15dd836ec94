#include "csvtext.h"
#include "jobsnapshot.h"
#include "pdfcontent.h"
#include "report.h"
#include "sampleoffice.h"
#include "snapshots.h"
#include "strangeids.h"
#include "testfiles.h"
#include "vocabulary.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

using namespace cabledoc;

Q_DECLARE_METATYPE(cabledoc::ReportKind)
Q_DECLARE_METATYPE(cabledoc::DrawingOptions::Orientation)

namespace {

constexpr double pointsInAMillimeter = 72.0 / 25.4;

const QVector<ReportKind> &allKinds()
{
    static const QVector<ReportKind> kinds{ReportKind::Test,     ReportKind::Summary, ReportKind::Inventory,
                                           ReportKind::Schedule, ReportKind::Notes,   ReportKind::Active};
    return kinds;
}

/// Returns what is outside of its page, and which numbers of pages are wrong.
QString problemsOf(const PdfContent &report)
{
    static const QRegularExpression number("(\\d+)\\D+(\\d+)$");
    QStringList problems;
    for (int i = 0; i < report.pages.size(); ++i) {
        const PdfPage &page = report.pages.at(i);
        const QRectF paper(QPointF(-0.1, -0.1), page.size + QSizeF(0.2, 0.2));
        for (const PdfWord &word : page.words) {
            if (!paper.contains(word.box))
                problems.append(QString("\"%1\" is outside of page %2").arg(word.text).arg(i + 1));
        }
        for (const PdfLink &link : report.links) {
            if (link.page == i && !paper.contains(link.area))
                problems.append(QString("a link is outside of page %1").arg(i + 1));
        }
        const QRegularExpressionMatch found = number.match(page.text());
        if (found.captured(1).toInt() != i + 1 || found.captured(2).toInt() != report.pages.size())
            problems.append(QString("page %1 ends with %2").arg(i + 1).arg(page.text().right(30)));
    }
    return problems.mid(0, 10).join("; ");
}

// What is read from an HTML file

/// Returns the elements with the given name inside an element, or all elements without a name.
QVector<QDomElement> elementsIn(const QDomElement &outer, const QString &name = {})
{
    QVector<QDomElement> elements;
    for (QDomElement inner = outer.firstChildElement(); !inner.isNull(); inner = inner.nextSiblingElement()) {
        if (name.isEmpty() || inner.tagName() == name)
            elements.append(inner);
        elements += elementsIn(inner, name);
    }
    return elements;
}

QStringList textsIn(const QDomElement &outer, const QString &name)
{
    QStringList texts;
    for (const QDomElement &element : elementsIn(outer, name))
        texts.append(element.text());
    return texts;
}

/// Reads an HTML file, whose elements have to be closed where XML demands it.
QDomElement readHtml(const QString &fileName)
{
    QString html = QString::fromUtf8(readFile(fileName));
    html.remove("<!DOCTYPE html>");
    html.replace(QRegularExpression("<(meta|img) ([^>]*)>"), "<\\1 \\2/>");
    QDomDocument document;
    QString problem;
    int line = 0;
    if (!document.setContent(html, &problem, &line))
        qFatal("line %d: %s", line, qPrintable(problem));
    return document.documentElement();
}

/// Returns the parts of a report about cables, by the headings of these.
QMap<QString, QDomElement> cableParts(const QDomElement &html)
{
    QMap<QString, QDomElement> parts;
    for (const QDomElement &section : elementsIn(html, "section")) {
        const QDomElement heading = section.firstChildElement("h3");
        if (section.attribute("id").startsWith("cable-"))
            parts.insert(heading.firstChild().nodeValue(), section);
    }
    return parts;
}

/// Returns the fields of the rows of all tables, without their headings.
QVector<QStringList> rowsIn(const QDomElement &outer)
{
    QVector<QStringList> rows;
    for (const QDomElement &row : elementsIn(outer, "tr")) {
        if (row.parentNode().nodeName() == "tbody")
            rows.append(textsIn(row, "td"));
    }
    return rows;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

QStringList unique(QStringList texts)
{
    texts.removeDuplicates();
    return sorted(texts);
}

QStringList firstColumnOf(const QByteArray &csv)
{
    QStringList column;
    const auto readRow = [&column](const CsvRow &row) { column.append(row.fields.constFirst()); };
    CsvText(csv, {}).readTable([](const CsvRow &) { return true; }, readRow);
    return column;
}

/// Returns a text without its blanks. A letter with a mark that has a character of its own becomes this character.
QString squeezed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C)
        .remove(QRegularExpression("\\s", QRegularExpression::UseUnicodePropertiesOption));
}

/// Returns the characters of a text that are written from right to left, in their order in Unicode. Their forms within
/// words count as the letters.
QString lettersFromRightToLeft(const QString &text)
{
    QString letters;
    for (const QChar character : text.normalized(QString::NormalizationForm_KC)) {
        if (character.direction() == QChar::DirR || character.direction() == QChar::DirAL)
            letters += character;
    }
    std::sort(letters.begin(), letters.end());
    return letters;
}

} // namespace

/// Tests reports as PDF and HTML files.
class ReportTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QByteArray printedByCabledoc(const QStringList &arguments) const
    {
        return printedBy(CABLEDOC_PROGRAM_FOLDER "/cabledoc", arguments, m_folder.path(), programEnvironment());
    }

    JobSnapshot jobOf(const QByteArray &content) const { return writtenJob(path("a.job"), content); }

    JobSnapshot office() const { return JobSnapshot::read(path("office.job")); }

    /// Returns options for a report of a kind with all cables of the job.
    static ReportOptions optionsFor(const JobSnapshot &job, ReportKind kind)
    {
        ReportOptions options;
        options.kind = kind;
        for (int cable = 0; cable < job.cables().size(); ++cable)
            options.cables.append(cable);
        return options;
    }

    PdfContent pdfOf(const JobSnapshot &job, const ReportOptions &options) const
    {
        const ReportResult result = writePdfReport(job, options, path("a.pdf"));
        if (!result.error.isEmpty())
            qFatal("%s", qPrintable(result.error));
        PdfContent report = readPdf(path("a.pdf"));
        if (result.pages != report.pages.size())
            qFatal("the number of pages is wrong");
        return report;
    }

    QDomElement htmlOf(const JobSnapshot &job, const ReportOptions &options) const
    {
        const ReportResult result = writeHtmlReport(job, options, path("a.html"));
        if (!result.error.isEmpty())
            qFatal("%s", qPrintable(result.error));
        return readHtml(path("a.html"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        planOffice(m_folder.path());
        QCOMPARE(office().floors().size(), 3);
    }

    void linksLeadToTheirCables()
    {
        const JobSnapshot job = office();
        ReportOptions options = optionsFor(job, ReportKind::Test);
        std::reverse(options.cables.begin(), options.cables.end());
        const PdfContent report = pdfOf(job, options);
        QMap<QString, int> pageOfCable;
        for (const PdfEntry &entry : report.outline) {
            QVERIFY2(entry.page >= 0, qPrintable(entry.path.join('/')));
            const int cable = job.positionOfId(ElementKind::Cables, entry.path.constLast());
            if (cable < 0)
                continue;
            const snapshot::Target &end = job.cables().at(cable).toTarget;
            const snapshot::Room &room = job.rooms().at(job.ports().at(end.position).holder);
            QCOMPARE(entry.path, QStringList({job.floors().at(room.holder).id, room.id, job.cables().at(cable).id}));
            pageOfCable.insert(entry.path.constLast(), entry.page);
        }
        QCOMPARE(pageOfCable.size(), job.cables().size());
        // Entries of floors and rooms lead to their first cables.
        for (int i = 1; i < report.outline.size(); ++i) {
            if (report.outline.at(i).path.size() > report.outline.at(i - 1).path.size())
                QCOMPARE(report.outline.at(i).page, report.outline.at(i - 1).page);
        }
        for (auto cable = pageOfCable.cbegin(); cable != pageOfCable.cend(); ++cable) {
            const QString &status = job.cables().at(job.positionOfId(ElementKind::Cables, cable.key())).test.status;
            QVERIFY2(report.pages.at(cable.value()).headings().contains(cable.key() + ' ' + status),
                     qPrintable(cable.key()));
        }
        // The tables link each cable, and say the numbers of the pages.
        const int summary = report.outline.at(1).page;
        const int index = report.outline.constLast().page;
        QMap<int, QStringList> linked; // by the pages at which the tables begin
        for (const PdfLink &link : report.links) {
            const auto isInLink = [&link](const QRectF &box) { return link.area.contains(box.center()); };
            QStringList words = report.pages.at(link.page).lines(isInLink).value(0).split(' ');
            const int table = link.page < summary ? 0 : link.page < index ? summary : index;
            if (table == summary)
                words = QStringList{words.value(0), words.value(words.size() - 1)};
            QVERIFY(!words.isEmpty());
            // Cables that are neighbours in a table and stand on the same page have one link.
            for (int i = 0; i < words.size(); i += 2) {
                QCOMPARE(pageOfCable.value(words.at(i), -1), link.target);
                QCOMPARE(words.value(i + 1), QString::number(link.target + 1));
                linked[table].append(words.at(i));
            }
        }
        QStringList ids;
        QStringList inNeed;
        for (const int position : options.cables) {
            const snapshot::Cable &cable = job.cables().at(position);
            ids.append(cable.id);
            if (cable.test.status == "FAIL" || cable.test.status == "UNTESTED")
                inNeed.append(cable.id);
        }
        QCOMPARE(linked.value(summary), ids);
        QCOMPARE(sorted(linked.value(index)), sorted(ids));
        QCOMPARE(sorted(linked.value(0)), sorted(inNeed));
    }

    void htmlIsWellFormed_data()
    {
        QTest::addColumn<ReportKind>("kind");
        QTest::addColumn<QString>("job");
        for (const ReportKind kind : allKinds()) {
            for (const QString &job : {path("office.job"), testDataPath("results.job"), testDataPath("site.job")})
                QTest::addRow("%d of %s", int(kind), qPrintable(QFileInfo(job).fileName())) << kind << job;
        }
    }

    void htmlIsWellFormed()
    {
        QFETCH(ReportKind, kind);
        QFETCH(QString, job);
        const JobSnapshot read = JobSnapshot::read(job);
        const QDomElement html = htmlOf(read, optionsFor(read, kind));
        QSet<QString> ids;
        QStringList targets;
        for (const QDomElement &element : elementsIn(html)) {
            QVERIFY2(element.tagName() != "script", "there is a script");
            const QString id = element.attribute("id");
            QVERIFY2(id.isEmpty() || !ids.contains(id), qPrintable(id));
            ids.insert(id);
            for (const char *name : {"href", "src"}) {
                const QString address = element.attribute(name);
                QVERIFY2(address.isEmpty() || address.startsWith('#'), qPrintable(address));
                if (!address.isEmpty())
                    targets.append(address.mid(1));
            }
            // What is not known is not shown.
            QVERIFY2(element.tagName() != "dd" || !element.text().isEmpty(), "a value is empty");
            if (element.tagName() == "table")
                QVERIFY2(!rowsIn(element).isEmpty(), "a table is empty");
        }
        for (const QString &target : targets)
            QVERIFY2(ids.contains(target), qPrintable(target));
        QCOMPARE(targets.isEmpty(), kind != ReportKind::Test);
        if (kind != ReportKind::Test)
            return;
        const QMap<QString, QDomElement> parts = cableParts(html);
        for (const QDomElement &link : elementsIn(html, "a"))
            QCOMPARE("#" + parts.value(link.text()).attribute("id"), link.attribute("href"));
        QCOMPARE(parts.size(), read.cables().size());
    }

    void idsAreTheSameEverywhere()
    {
        const QStringList ids = strangeIds()
                                + QStringList{QString(500, 'W'),
                                              QString::fromUtf8("東京/東-7"),
                                              QString::fromUtf8("e\u0301a\u030aq\u0303"),
                                              "<&>\"'<b>x</b>&lt;",
                                              "a  b   c",
                                              "([{x}])",
                                              "office ffl \\n %1 {id}"};
        QByteArray cables;
        QByteArray ports;
        for (int i = 0; i < ids.size(); ++i) {
            cables +=
                QString("<Cable%1 from=\"Near%1\" to=\"Far%1\" id=\"").arg(i).toUtf8() + escaped(ids.at(i)) + "\"/>";
            ports += QString("<Near%1 id=\"N%1\" x=\"%2\" y=\"10\"/><Far%1 id=\"F%1\" x=\"%2\" y=\"190\"/>")
                         .arg(i)
                         .arg(20 + i * 10)
                         .toUtf8();
        }
        const JobSnapshot job = jobOf("<Job><Version number=\"3.0\"/><Cable_List>" + cables
                                      + "</Cable_List><Floor_List><Floor1 id=\"Ground\" pic=\"\"><Room_List><Room1 "
                                        "id=\"Lab\" x=\"0\" y=\"0\" width=\"400\" height=\"200\"><Port_List>"
                                      + ports + "</Port_List></Room1></Room_List></Floor1></Floor_List></Job>");
        // The HTML reports, the tables and the plan
        const QDomElement html = htmlOf(job, optionsFor(job, ReportKind::Test));
        QStringList inSchedule;
        for (const QStringList &row : rowsIn(htmlOf(job, optionsFor(job, ReportKind::Schedule))))
            inSchedule.append(row.constFirst());
        printedByCabledoc({"labels", "a.job", "-o", "labels.csv", "--columns", "id"});
        printedByCabledoc({"plan", "a.job", "-o", "plan.svg"});
        QDomDocument plan;
        QVERIFY(plan.setContent(readFile(path("plan.svg"))));
        QStringList inPlan = textsIn(plan.documentElement(), "title");
        for (const QString &title : QStringList(inPlan)) {
            if (!ids.contains(title))
                inPlan.removeAll(title); // of a port or a room
        }
        QCOMPARE(unique(cableParts(html).keys()), unique(ids));
        QCOMPARE(unique(textsIn(html, "a")), unique(ids));
        QCOMPARE(unique(inSchedule), unique(ids));
        QCOMPARE(unique(inPlan), unique(ids));
        QCOMPARE(unique(firstColumnOf(readFile(path("labels.csv")))), unique(ids));
        QCOMPARE(unique(firstColumnOf(printedByCabledoc({"schedule", "export", "a.job"}))), unique(ids));
        // The PDF reports. There may be no font for the ids of China. Blanks are not in PDF files as such.
        const PdfContent report = pdfOf(job, optionsFor(job, ReportKind::Test));
        const QString schedule = pdfOf(job, optionsFor(job, ReportKind::Schedule)).text();
        QStringList inOutline;
        for (const PdfEntry &entry : report.outline) {
            const QString &id = entry.path.constLast();
            if (entry.path.size() != 3)
                continue;
            inOutline.append(id);
            if (std::any_of(id.cbegin(), id.cend(), [](QChar c) { return c.script() == QChar::Script_Han; }))
                continue;
            for (const QString &text : {report.pages.at(entry.page).text(), schedule}) {
                if (lettersFromRightToLeft(id).isEmpty())
                    QVERIFY2(squeezed(text).contains(squeezed(id)), qPrintable(id + " in " + text));
                else
                    QVERIFY2(lettersFromRightToLeft(text).contains(lettersFromRightToLeft(id)), qPrintable(id));
            }
        }
        QCOMPARE(unique(inOutline), unique(ids));
    }

    void totalsAreThoseOfTheJob_data()
    {
        QTest::addColumn<bool>("isMetric");
        QTest::newRow("feet") << false;
        QTest::newRow("metres") << true;
    }

    void totalsAreThoseOfTheJob()
    {
        QFETCH(bool, isMetric);
        const JobSnapshot job = office();
        ReportOptions options = optionsFor(job, ReportKind::Summary);
        options.metric = isMetric;
        QStringList command{"totals", "office.job", "--json"};
        if (isMetric)
            command.append("--metric");
        const QJsonObject totals = QJsonDocument::fromJson(printedByCabledoc(command)).object();
        const QString dash(QChar(0x2013));
        const auto length = [&](const QJsonObject &group, const char *name, int count) {
            const double sum = group.value(QLatin1String(name)).toDouble();
            return count == 0 ? dash : QString::number(sum, 'f', 1) + (isMetric ? " m" : " ft");
        };
        const auto cellsOf = [&](const QJsonObject &group) {
            const int cables = group.value("cables").toInt();
            const int measured = cables - group.value("unmeasured").toInt();
            const int estimated = cables - group.value("unestimated").toInt();
            return QStringList{QString::number(cables), length(group, "measuredLength", measured),
                               QString::number(measured), length(group, "estimatedLength", estimated),
                               QString::number(estimated)};
        };
        QVector<QStringList> expected{cellsOf(totals.value("all").toObject())};
        for (const QString &kind : QStringList{"byType", "byUse", "byBundle", "byStatus", "byFloor", "portsByUse"}) {
            QVERIFY2(!totals.value(kind).toArray().isEmpty(), qPrintable(kind));
            for (const auto &value : totals.value(kind).toArray()) {
                const QJsonObject group = value.toObject();
                QString name = group.value("name").toString();
                if (kind.endsWith("Use"))
                    name = Vocabulary::portUses().name(name);
                QStringList row(name.isEmpty() ? dash : name);
                if (kind == "byFloor")
                    row += group.value("otherFloor").toString();
                expected.append(row
                                + (kind == "portsByUse" ? QStringList(QString::number(group.value("ports").toInt()))
                                                        : cellsOf(group)));
            }
        }
        QVector<QStringList> rows = rowsIn(htmlOf(job, options));
        rows[0] = rows.at(0).mid(rows.at(0).size() - expected.at(0).size()); // the sums may have a name
        const QString text = squeezed(pdfOf(job, options).text());
        for (const QStringList &row : expected) {
            QVERIFY2(rows.contains(row), qPrintable(row.join('|')));
            QVERIFY2(text.contains(squeezed(row.join(QString()))), qPrintable(row.join('|')));
        }
    }

    void verdictsAreCounted()
    {
        QByteArray cables;
        int number = 0;
        for (const char *status :
             {"PASS", "PASS", "PASS*", "FAIL", "FAIL", "FAIL", "WARN", "WARN", "<?>", "UNTESTED"}) {
            ++number;
            cables += QString("<C%1 id=\"%1\" type=\"T\"><Test_Results status=\"%2\"/></C%1>")
                          .arg(number)
                          .arg(QString(status).toHtmlEscaped())
                          .toUtf8();
        }
        const JobSnapshot job =
            jobOf("<Job><Version number=\"3.0\"/><Cable_List>" + cables + "<C11 id=\"11\"/></Cable_List></Job>");
        const QVector<QPair<QString, int>> expected{{"PASS", 2},     {"PASS*", 1}, {"FAIL", 3},
                                                    {"UNTESTED", 2}, {"WARN", 2},  {"<?>", 1}};
        const QDomElement html = htmlOf(job, optionsFor(job, ReportKind::Test));
        const QDomElement title = elementsIn(html, "section").constFirst();
        const PdfContent report = pdfOf(job, optionsFor(job, ReportKind::Test));
        QSet<QString> meanings;
        for (const auto &[status, count] : expected) {
            QStringList found;
            for (const QStringList &row : rowsIn(title)) {
                if (row.constFirst() == status)
                    found = row;
            }
            QCOMPARE(found.value(1), QString::number(count));
            meanings.insert(found.value(2));
            QVERIFY2(report.pages.constFirst().text().contains(found.join(' ')), qPrintable(found.join(' ')));
        }
        QCOMPARE(meanings.size(), 5); // both unknown ones have the same
        QStringList numbers;
        for (const QString &sentence : textsIn(title, "p"))
            numbers += sentence.split(QRegularExpression("\\D+"), Qt::SkipEmptyParts);
        QCOMPARE(numbers.mid(0, 3), QStringList({"11", "9", "2"}));
        const QMap<QString, QDomElement> parts = cableParts(html);
        for (int i = 0; i < job.cables().size(); ++i) {
            const QDomElement heading = parts.value(QString::number(i + 1)).firstChildElement("h3");
            QCOMPARE(heading.firstChildElement("span").text(), job.cables().at(i).test.status);
        }
        // The job has only these facts about the cables.
        QCOMPARE(textsIn(parts.value("7"), "dd"), QStringList("T"));
        QCOMPARE(textsIn(parts.value("11"), {}).mid(2).join(QString()), QString());
    }

    void testsAreReportedWhole_data()
    {
        QTest::addColumn<QString>("job");
        QTest::newRow("office") << path("office.job");
        QTest::newRow("results") << testDataPath("results.job");
    }

    /// What the job has about the tests of a cable is in its part of the report.
    void testsAreReportedWhole()
    {
        QFETCH(QString, job);
        const JobSnapshot read = JobSnapshot::read(job);
        const ReportOptions options = optionsFor(read, ReportKind::Test);
        const QMap<QString, QDomElement> parts = cableParts(htmlOf(read, options));
        const PdfContent report = pdfOf(read, options);
        QMap<QString, QString> pages;
        for (const PdfEntry &entry : report.outline)
            pages.insert(entry.path.constLast(), squeezed(report.pages.at(entry.page).text()));
        const auto factsOf = [](const TestResults &results, const TestDetails &details) {
            QStringList facts = results.time().split('T');
            facts += {results.status(), results.serialNumber(), details.operatorName(), details.wireMap()};
            for (const TestParameter &parameter : details.parameters()) {
                if (!parameter.margin.isEmpty())
                    facts += {parameter.name, parameter.margin};
            }
            return facts;
        };
        for (int cable = 0; cable < read.cables().size(); ++cable) {
            const snapshot::Cable &fields = read.cables().at(cable);
            const TestDetails details = read.testDetails(cable);
            QStringList facts = factsOf(read.testResults(cable), details);
            facts += {fields.test.softwareVersion, details.limit(), details.standard(),
                      details.linkType(),          details.nvp(),   details.temperature(),
                      details.attachment()};
            for (const TestParameter &parameter : details.parameters())
                facts += {parameter.name, parameter.value, parameter.frequency, parameter.pair, parameter.end};
            QStringList rows;
            for (const QStringList &row : rowsIn(parts.value(fields.id)))
                rows.append(row.join(' '));
            for (const CableTest &test : read.testHistory(cable)) {
                const QStringList earlier = factsOf(test.results, test.details);
                facts += earlier;
                const bool hasRow = std::any_of(rows.cbegin(), rows.cend(), [&earlier](const QString &row) {
                    return std::all_of(earlier.cbegin(), earlier.cend(),
                                       [&row](const QString &fact) { return row.contains(fact); });
                });
                QVERIFY2(hasRow, qPrintable(fields.id + ": " + earlier.join(' ')));
            }
            const auto lengthConstant = fields.definition < 0 ? TestDefFields().lengthConstant
                                                              : read.definitions().at(fields.definition).lengthConstant;
            for (const int reading : fields.test.results.pair_length) {
                if (reading > 0 && reading < 60000 && lengthConstant < 6500.0F)
                    facts += QString::number(reading * 100.0 / double(lengthConstant), 'f', 1) + " ft";
            }
            const QString text = parts.value(fields.id).text();
            for (const QString &fact : facts) {
                QVERIFY2(text.contains(fact), qPrintable(fields.id + ": " + fact));
                QVERIFY2(pages.value(fields.id).contains(squeezed(fact)), qPrintable(fields.id + ": " + fact));
            }
            const bool isTested = read.testResults(cable).status() != "UNTESTED";
            QVERIFY2(isTested || elementsIn(parts.value(fields.id), "svg").isEmpty(), qPrintable(fields.id));
        }
    }

    void wireMapsShowWhereWiresEnd()
    {
        const JobSnapshot job = JobSnapshot::read(testDataPath("results.job"));
        const QMap<QString, QDomElement> parts = cableParts(htmlOf(job, optionsFor(job, ReportKind::Test)));
        // Returns the far pins of the near pins 1 to 8, with a mark if the wire is drawn like no right one.
        const auto wiresOf = [&parts](const QString &id) {
            static const QRegularExpression form("^M5 ([\\d.]+)L37 ([\\d.]+)$");
            QStringList pins{"", "", "", "", "", "", "", ""};
            for (const QDomElement &line : elementsIn(parts.value(id).firstChildElement("div"), "path")) {
                const QRegularExpressionMatch match = form.match(line.attribute("d"));
                const auto pin = [&match](int end) { return qRound(match.captured(end).toDouble() / 3.6 + 0.5); };
                if (match.hasMatch())
                    pins[pin(1) - 1] = QString::number(pin(2)) + (line.attribute("stroke") == "#c00000" ? "!" : "");
            }
            return pins.join(' ');
        };
        QCOMPARE(wiresOf("Good"), QString("1 2 3 4 5 6 7 8"));
        QCOMPARE(wiresOf("Pairs swapped"), QString("3! 6! 1! 4 5 2! 7 8"));
        QCOMPARE(wiresOf("Straight"), QString("1! 2! 3! 4 5 6! 7 8"));
        QCOMPARE(wiresOf("Open"), QString("1 2  4 5  7 8"));
        QCOMPARE(wiresOf("New"), QString("       "));
    }

    void curvesAreThoseOfTheTest()
    {
        const JobSnapshot job = office();
        const int cable = job.positionOfId(ElementKind::Cables, "1-A02");
        ReportOptions options;
        options.cables = {cable};
        const TestResults results = job.testResults(cable);
        QVector<QVector<double>> expected;
        for (const TRUEPHY_PLOT_DATA &curve : {results.next(), results.echo(), results.channel()}) {
            QCOMPARE(curve.count, TRUEPHY_PLOT_DATA::sampleCount);
            for (const auto &samples : {curve.plot_a, curve.plot_b})
                expected.append(QVector<double>(samples, samples + curve.count));
        }
        static const QRegularExpression form("(-?[\\d.]+) ?(-?[\\d.]+)");
        QVector<QVector<QPointF>> lines;
        for (const QDomElement &path : elementsIn(htmlOf(job, options), "path")) {
            const QString steps = path.attribute("d");
            QVector<QPointF> points;
            for (auto match = form.globalMatch(steps); match.hasNext();) {
                const QStringList numbers = match.next().capturedTexts();
                const QPointF step(numbers.at(1).toDouble(), numbers.at(2).toDouble());
                points.append(steps.startsWith('m') && !points.isEmpty() ? points.constLast() + step : step);
            }
            if (points.size() > 100)
                lines.append(points);
        }
        QCOMPARE(lines.size(), expected.size());
        for (int i = 0; i < lines.size(); ++i) {
            const QVector<double> &samples = expected.at(i);
            QCOMPARE(lines.at(i).size(), samples.size());
            const auto [low, high] = std::minmax_element(samples.cbegin(), samples.cend());
            const double top = lines.at(i).at(int(high - samples.cbegin())).y();
            const double bottom = lines.at(i).at(int(low - samples.cbegin())).y();
            QVERIFY(bottom > top);
            for (int sample = 0; sample < samples.size(); ++sample) {
                const double height = (bottom - lines.at(i).at(sample).y()) / (bottom - top);
                QVERIFY(qAbs(height - (samples.at(sample) - *low) / (*high - *low)) < 0.01);
                QVERIFY(sample == 0 || lines.at(i).at(sample).x() > lines.at(i).at(sample - 1).x());
            }
        }
    }

    void pagesHoldTheirContent_data()
    {
        QTest::addColumn<ReportKind>("kind");
        QTest::addColumn<QString>("paper");
        QTest::addColumn<DrawingOptions::Orientation>("orientation");
        QTest::addColumn<int>("zoom");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("mostPages");
        const auto add = [](const char *name, ReportKind kind, const char *paper, int zoom, double scale,
                            DrawingOptions::Orientation orientation = DrawingOptions::Portrait, int mostPages = 0) {
            QTest::newRow(name) << kind << QString(paper) << orientation << zoom << scale << mostPages;
        };
        // Pages that are narrower than A6 at 100 % are made smaller.
        add("tests", ReportKind::Test, "A4", 100, 1.0);
        add("tests in landscape", ReportKind::Test, "Letter", 100, 1.0, DrawingOptions::Landscape);
        add("tests on small paper", ReportKind::Test, "A6", 100, 1.0);
        add("tests on tiny paper", ReportKind::Test, "B10", 100, 32.0 / 105.0);
        add("small tests", ReportKind::Test, "A4", 50, 0.5);
        add("large tests", ReportKind::Test, "A4", 400, 2.0);
        add("large tests on small paper", ReportKind::Test, "A6", 400, 1.0);
        add("a schedule", ReportKind::Schedule, "A4", 100, 1.0, DrawingOptions::Landscape);
        add("a large schedule", ReportKind::Schedule, "A3", 150, 1.5);
        add("a schedule on two pages", ReportKind::Schedule, "A4", 400, 0.0, DrawingOptions::Portrait, 2);
        add("a summary", ReportKind::Summary, "A5", 100, 1.0);
        add("a summary on one page", ReportKind::Summary, "A6", 400, 0.0, DrawingOptions::Landscape, 1);
        add("an inventory", ReportKind::Inventory, "A5", 100, 1.0);
        add("notes", ReportKind::Notes, "A6", 100, 1.0);
        add("active ports", ReportKind::Active, "A6", 100, 1.0);
    }

    void pagesHoldTheirContent()
    {
        QFETCH(ReportKind, kind);
        QFETCH(QString, paper);
        QFETCH(DrawingOptions::Orientation, orientation);
        QFETCH(int, zoom);
        QFETCH(double, scale);
        QFETCH(int, mostPages);
        QByteArray content = readFile(path("office.job"));
        content.replace("print_zoom=\"100\" fit_to_across=\"1\" fit_to_down=\"1\" print_zoom_style=\"0\"",
                        QString("print_zoom=\"%1\" fit_to_across=\"1\" fit_to_down=\"%2\" print_zoom_style=\"%3\"")
                            .arg(zoom)
                            .arg(mostPages)
                            .arg(mostPages > 0 ? 1 : 0)
                            .toLatin1());
        const JobSnapshot job = jobOf(content);
        ReportOptions options = optionsFor(job, kind);
        if (kind == ReportKind::Test)
            options.cables = options.cables.mid(0, 40);
        options.page.paper = paper;
        options.page.orientation = orientation;
        const PdfContent report = pdfOf(job, options);
        QCOMPARE(problemsOf(report), QString());
        const QSizeF size = report.pages.constFirst().size;
        QCOMPARE(size.width() > size.height(), orientation == DrawingOptions::Landscape);
        constexpr double footHeight = 7.92; // points at 100 %
        const double found = report.pages.constFirst().footHeight() / footHeight;
        if (mostPages > 0)
            QVERIFY(report.pages.size() <= mostPages && found < 1.0);
        else
            QVERIFY2(qAbs(found - scale) < 0.01, qPrintable(QString::number(found)));
        // The headings of a table stand on each page of it.
        int firstPage = 0;
        int afterLastPage = int(report.pages.size());
        if (kind == ReportKind::Test) {
            firstPage = report.outline.at(1).page;
            afterLastPage = report.outline.at(2).page;
        }
        const QDomElement html = htmlOf(job, options);
        for (const QDomElement &table : elementsIn(html, "table")) {
            if (rowsIn(table).size() < options.cables.size())
                continue;
            const QString headings = squeezed(textsIn(table, "th").join(QString()));
            for (int page = firstPage; page < afterLastPage; ++page)
                QVERIFY2(squeezed(report.pages.at(page).text()).contains(headings), qPrintable(headings));
        }
        // The part of a cable begins on a new page if it does not fit below others. On upright A4, all fit on a page.
        if (kind != ReportKind::Test || scale > 1.0 || paper != "A4")
            return;
        const auto isBody = [scale](const QRectF &box) { return box.top() > 16.0 * pointsInAMillimeter * scale; };
        for (int page = afterLastPage + 1; page < report.outline.constLast().page; ++page)
            QCOMPARE(report.pages.at(page).lines(isBody).constFirst(), report.pages.at(page).headings().value(0));
    }

    void figuresStayOnTheirPage()
    {
        const JobSnapshot job = office();
        ReportOptions options;
        options.cables = {job.positionOfId(ElementKind::Cables, "1-A02")};
        options.page.orientation = DrawingOptions::Landscape;
        for (const QString &paper : QStringList{"A4", "A6", "DLE"}) {
            options.page.paper = paper;
            const int pages = int(pdfOf(job, options).pages.size());
            for (int page = 1; page <= pages; ++page) {
                printedBy(CABLEDOC_PDFTOPPM, {"-r", "50.8", "-png", "-singlefile", "-f", QString::number(page),
                                              path("a.pdf"), path("page")});
                const QImage image = QImage(path("page.png")).convertToFormat(QImage::Format_Grayscale8);
                const QRect inner = image.rect().adjusted(10, 10, -10, -10); // 5 mm
                QVERIFY(inner.isValid());
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x)
                        QVERIFY2(inner.contains(x, y) || qGray(image.pixel(x, y)) == 255, qPrintable(paper));
                }
            }
        }
    }

    void longNamesTakeSeveralPages_data()
    {
        QTest::addColumn<ReportKind>("kind");
        for (const ReportKind kind : allKinds())
            QTest::addRow("%d", int(kind)) << kind;
    }

    void longNamesTakeSeveralPages()
    {
        QFETCH(ReportKind, kind);
        constexpr int length = 10000;
        const auto at = [](const char *attribute, char letter) {
            return QByteArray(attribute) + "=\"" + QByteArray(length, letter) + "\" ";
        };
        const JobSnapshot job =
            jobOf("<Job><Version number=\"3.0\"/><Cable_List><C1 from=\"P1\" " + at("id", 'C') + at("type", 'T')
                  + at("use", 'U') + at("bundleName", 'B') + "><Test_Results " + at("status", 'S') + at("serial", 'R')
                  + at("time", 'D') + "/></C1></Cable_List><Floor_List><F1 pic=\"\" " + at("id", 'F')
                  + "><Room_List><R1 " + at("id", 'Q') + "><Port_List><P1 use=\"data\" " + at("id", 'P')
                  + "/></Port_List></R1></Room_List></F1></Floor_List><Site_Info " + at("company", 'X')
                  + "/><Contractor_Info " + at("company", 'Y') + "/><JobNotes_Text " + at("text", 'N') + "/></Job>");
        const PdfContent report = pdfOf(job, optionsFor(job, kind));
        QCOMPARE(problemsOf(report), QString());
        const QDomElement html = htmlOf(job, optionsFor(job, kind)).lastChildElement("body");
        for (const char letter : QByteArray("CTUBSRDFQPXYN"))
            QVERIFY2(report.text().count(letter) >= html.text().count(letter) / length * length, &letter);
    }
};

QTEST_MAIN(ReportTest)
#include "tst_report.moc"
