#include "columnwidths.h"
#include "reportpages.h"
#include "testlanguage.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <random>

using namespace cabledoc;

namespace {

/// Makes random blocks. Their texts are of small letters. All other texts begin with a capital letter.
class RandomBlocks
{
public:
    explicit RandomBlocks(unsigned seed)
        : m_numbers(seed)
    {
    }

    int number(int first, int last) { return std::uniform_int_distribution<int>(first, last)(m_numbers); }

    QString text(int longest)
    {
        QString text;
        for (int length = number(0, longest); length > 0; --length)
            text += number(0, 7) == 0 ? QChar(' ') : QChar('a' + number(0, 25));
        return text;
    }

    /// Returns a text that is rarely long.
    QString cell() { return text(number(0, 60) == 0 ? 1500 : 14); }

    TableBlock table()
    {
        TableBlock table;
        for (int column = number(1, 11); column > 0; --column)
            table.columns.append({"H", ReportColumn::Kind(number(0, 1))});
        QVector<ReportRow> rows(number(0, 70));
        for (ReportRow &row : rows) {
            for (int column = 0; column < table.columns.size(); ++column)
                row.append({cell()});
        }
        table.rowCount = int(rows.size());
        table.row = [rows](int row) { return rows.at(row); };
        return table;
    }

    ReportBlock block()
    {
        switch (number(0, 3)) {
        case 0:
            return HeadingBlock{text(80), HeadingBlock::Level(number(0, 3)), text(20)};
        case 1:
            return ParagraphBlock{text(number(0, 10) == 0 ? 20000 : 300)};
        case 2:
            return FactsBlock{{{text(6), cell()}, {text(6), cell()}, {text(6), cell()}}, {}, number(1, 2)};
        default:
            return table();
        }
    }

    QVector<ReportGroup> groups()
    {
        QVector<ReportGroup> groups(number(1, 12));
        for (int i = 0; i < groups.size(); ++i) {
            groups[i].anchor = QString("Group %1").arg(i);
            groups[i].startsPage = number(0, 3) == 0;
            groups[i].blocks.append(HeadingBlock{groups.at(i).anchor, HeadingBlock::Subject});
            for (int block = number(0, 4); block > 0; --block)
                groups[i].blocks.append(this->block());
        }
        return groups;
    }

private:
    std::mt19937 m_numbers;
};

QString textOf(const HeadingBlock &heading)
{
    return heading.text + heading.verdict;
}

QString textOf(const ParagraphBlock &paragraph)
{
    return paragraph.text;
}

QString textOf(const FactsBlock &block)
{
    QString text;
    for (const auto &[name, value] : block.facts)
        text += name + value;
    return text;
}

QString textOf(const TableBlock &table)
{
    QString text;
    for (int row = 0; row < table.rowCount; ++row) {
        for (const ReportCell &cell : table.row(row))
            text += cell.text;
    }
    return text;
}

QString textOf(const FigureBlock &)
{
    return {};
}

/// Returns the small letters of a text in the order of the alphabet.
QString lettersOf(QString text)
{
    text.remove(QRegularExpression("[^a-z]"));
    std::sort(text.begin(), text.end());
    return text;
}

PageStyle styleOf(const QSizeF &paper, double zoom)
{
    return {paper, zoom, {}, {}, {}};
}

QVector<SceneText> textsOf(const Scene &page)
{
    QVector<SceneText> texts;
    for (const SceneItem &item : page.items) {
        if (const auto *text = std::get_if<SceneText>(&item.shape))
            texts.append(*text);
    }
    return texts;
}

bool isPageNumber(const QString &text)
{
    return text.startsWith(translated("Report", "Page %1 of %2").section('%', 0, 0));
}

/// Returns what is wrong with the places of the texts of a page, or an empty string.
QString faultOf(const Scene &page, double zoom)
{
    const double foot = page.size.height() - 16.9 * zoom;
    const QVector<SceneText> texts = textsOf(page);
    for (int i = 0; i < texts.size(); ++i) {
        const QRectF box = boxOf(texts.at(i));
        if (!QRectF(QPointF(), page.size).contains(box))
            return QString("\"%1\" is outside of the page").arg(texts.at(i).text);
        if (box.bottom() > foot && !isPageNumber(texts.at(i).text))
            return QString("\"%1\" is in the foot of the page").arg(texts.at(i).text);
        for (int other = 0; other < i; ++other) {
            if (box.intersects(boxOf(texts.at(other))))
                return QString("\"%1\" covers \"%2\"").arg(texts.at(i).text, texts.at(other).text);
        }
    }
    return {};
}

} // namespace

/// Tests how reports are divided among pages.
class ReportPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(loadDrawingFonts(), QString()); }

    /// Each text is on the pages once, where nothing covers it, and each group is where the numbers say.
    void nothingIsLostOrCovered()
    {
        const QVector<PageStyle> styles{styleOf({210.0, 297.0}, 1.0), styleOf({297.0, 210.0}, 0.4),
                                        styleOf({148.0, 210.0}, 1.4)};
        for (unsigned seed = 0; seed < 60; ++seed) {
            RandomBlocks random(seed);
            const QVector<ReportGroup> groups = random.groups();
            const PageStyle &style = styles.at(random.number(0, 2));
            const TextMeasure measure;
            QVector<Scene> pages;
            ReportPages report(style, measure, {}, [&pages](const Scene &page) { pages.append(page); });
            QString expected;
            for (const ReportGroup &group : groups) {
                report.add(group);
                for (const ReportBlock &block : group.blocks)
                    expected += std::visit([](const auto &actual) { return textOf(actual); }, block);
            }
            const PageNumbers numbers = report.finish();
            QCOMPARE(numbers.count, int(pages.size()));
            QString found;
            for (int page = 0; page < pages.size(); ++page) {
                const QString fault = faultOf(pages.at(page), style.zoom);
                QVERIFY2(fault.isEmpty(), qPrintable(QString("seed %1, page %2: %3").arg(seed).arg(page).arg(fault)));
                for (const SceneText &text : textsOf(pages.at(page))) {
                    if (text.text.startsWith("Group"))
                        QCOMPARE(numbers.pageOf(text.text), page);
                    else if (text.text != "H" && !isPageNumber(text.text))
                        found += text.text;
                }
            }
            expected.remove(QRegularExpression("Group \\d+"));
            QCOMPARE(lettersOf(found), lettersOf(expected));
        }
    }

    /// A page that a table continues on begins with its headings, and a group that starts a page is the first on one.
    void pagesBeginAsTheyShould()
    {
        TableBlock table;
        table.columns = {{"Head"}};
        table.rowCount = 500;
        table.row = [](int row) { return ReportRow{{QString("row %1").arg(row)}}; };
        const QVector<ReportGroup> groups{{"first", false, {ParagraphBlock{"before"}, table}},
                                          {"second", true, {ParagraphBlock{"second"}}},
                                          {"third", false, {ParagraphBlock{"third"}}}};
        const TextMeasure measure;
        QStringList beginnings;
        ReportPages report(styleOf({210.0, 297.0}, 1.0), measure, {},
                           [&beginnings](const Scene &page) { beginnings.append(textsOf(page).constFirst().text); });
        for (const ReportGroup &group : groups)
            report.add(group);
        const PageNumbers numbers = report.finish();
        QVERIFY(numbers.count > 5);
        QCOMPARE(beginnings.takeFirst(), QString("before"));
        QCOMPARE(beginnings.takeLast(), QString("second"));
        QCOMPARE(beginnings.count("Head"), int(beginnings.size()));
        QCOMPARE(numbers.pageOf("second"), numbers.count - 1);
        QCOMPARE(numbers.pageOf("third"), numbers.count - 1);
        QCOMPARE(numbers.pageOf("fourth"), -1);
    }

    /// Letters are made smaller before fields are broken into lines.
    void columnsFitTheWidth()
    {
        constexpr double largest = 2.7;
        constexpr double smallest = 2.4;
        constexpr double padding = 3.2;
        const TextMeasure measure;
        for (unsigned seed = 0; seed < 200; ++seed) {
            RandomBlocks random(seed);
            const TableBlock table = random.table();
            const double width = random.number(75, 300);
            const TableMeasures measures = measuresOf(table, largest, smallest, padding, width, measure);
            double sum = 0.0;
            bool isWhole = true;
            for (int i = 0; i < table.columns.size(); ++i) {
                sum += measures.widths.at(i);
                for (int row = 0; row < table.rowCount; ++row) {
                    const double needed = measure.width(table.row(row).at(i).text, measures.size) + padding;
                    isWhole = isWhole && needed < measures.widths.at(i) + 1e-6;
                }
            }
            QVERIFY2(sum < width + 1e-6, qPrintable(QString("seed %1: %2 mm of %3").arg(seed).arg(sum).arg(width)));
            QVERIFY(measures.size <= largest && measures.size >= smallest);
            // Smaller letters fill the width. Those that cannot be smaller need several lines.
            QVERIFY(isWhole || measures.size == smallest);
            QVERIFY(measures.size == largest || sum > width - 1e-6);
        }
    }
};

QTEST_MAIN(ReportPagesTest)
#include "tst_reportpages.moc"
