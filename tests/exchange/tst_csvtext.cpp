#include "csvtext.h"
#include "testcases.h"

#include <random>

using namespace cabledoc;

/// Tests the reading and writing of CSV.
class CsvTextTest : public QObject
{
    Q_OBJECT

private:
    static CsvOptions optionsNamed(const QByteArray &name)
    {
        CsvOptions options;
        if (name == "delimiter=;")
            options.delimiter = ';';
        else if (name == "windows-1252")
            options.encoding = CsvEncoding::Windows1252;
        else if (name == "UTF-16")
            options.encoding = CsvEncoding::Utf16;
        else if (name == "unprotect")
            options.removeProtection = true;
        else if (name != "default")
            qFatal("no options %s", name.constData());
        return options;
    }

    static QString described(const QByteArray &data, const CsvOptions &options)
    {
        const CsvText text(data, options);
        if (!text.error().isEmpty())
            return "error\n";
        QString lines = QString("delimiter %1\n").arg(text.delimiter());
        const CsvProblem mistake = text.read([&lines](const CsvRow &row) {
            QString fields = row.fields.join('|');
            fields.replace('\n', "\\n").replace('\r', "\\r");
            lines += QString("%1: %2\n").arg(QString::number(row.number), fields);
        });
        if (mistake.row > 0)
            lines += QString("wrong %1:%2\n").arg(mistake.row).arg(mistake.column);
        return lines.replace('\t', "\\t");
    }

    QString randomText()
    {
        static const QStringList parts{"=", "+", "-", "@", "\t", "\r",     "\n",         "'",      "'",
                                       "1", "2", ".", ",", ";",  "\"",     " ",          "a",      "e",
                                       "",  "",  "é", "ł", "€",  "\u00A0", "\U0001F600", "\uFEFF", "\uFFFD"};
        QString text;
        for (auto length = random(6); length > 0; --length)
            text += parts.at(int(random(unsigned(parts.size()))));
        return text;
    }

    unsigned random(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(m_random); }

    /// Returns the rows of a text without errors.
    static QVector<QStringList> rowsOf(const QByteArray &data, const CsvOptions &options)
    {
        QVector<QStringList> rows;
        const CsvText text(data, options);
        const CsvProblem mistake = text.read([&rows](const CsvRow &row) { rows.append(row.fields); });
        return text.error().isEmpty() && mistake.row == 0 ? rows : QVector<QStringList>();
    }

    std::mt19937 m_random{18};

private Q_SLOTS:
    void reading_data() { addCases({"cases/csv.txt"}); }

    /// A case has the options in its first line, then the text without its last line break.
    void reading()
    {
        QFETCH(TestCase, testCase);
        const auto endOfOptions = testCase.given.indexOf('\n');
        const QByteArray data = testCase.given.mid(endOfOptions + 1).chopped(1);
        const QString found = described(data, optionsNamed(testCase.given.left(endOfOptions)));
        COMPARE_TEXTS(found, QString::fromUtf8(testCase.expected), testCase.place());
    }

    /// What is written is read as the same texts, in every style and encoding.
    void writtenTextsAreReadBack()
    {
        static const QRegularExpression number(QRegularExpression::anchoredPattern("[-+][0-9][0-9.,eE+-]*"));
        for (int run = 0; run < 3000; ++run) {
            CsvStyle style;
            style.delimiter = ",;\t"[random(3)];
            style.byteOrderMark = random(2) == 1;
            style.protectFormulas = random(2) == 1;
            QVector<QStringList> rows{{"id", "name"}};
            QByteArray data = csvBeginning(style) + csvLine(rows.constFirst(), style);
            for (int row = 0; row < 5; ++row) {
                rows.append({randomText(), randomText()});
                data += csvLine(rows.constLast(), style);
            }
            CsvOptions options;
            options.removeProtection = style.protectFormulas;
            QCOMPARE(rowsOf(data, options), rows);

            const QString text = QString::fromUtf8(data);
            const QByteArray utf16(reinterpret_cast<const char *>(text.utf16()), int(text.size()) * 2);
            QCOMPARE(rowsOf(utf16, options), rows);

            if (!style.protectFormulas)
                continue;
            const QVector<QStringList> shown = rowsOf(data, CsvOptions());
            for (const QStringList &fields : shown) {
                for (const QString &field : fields)
                    QVERIFY2(field.isEmpty() || !QString("=+-@\t\r").contains(field.front())
                                 || number.match(field).hasMatch(),
                             qPrintable(field));
            }
        }
    }

    void decimalCommas()
    {
        QCOMPARE(withDecimalPoint("3,5", ';'), QString("3.5"));
        QCOMPARE(withDecimalPoint("-12,25", '\t'), QString("-12.25"));
        QCOMPARE(withDecimalPoint("3,5", ','), QString("3,5"));
        QCOMPARE(withDecimalPoint("1.234,5", ';'), QString("1.234,5"));
        QCOMPARE(withDecimalPoint("1,234,567", ';'), QString("1,234,567"));
        QCOMPARE(withDecimalPoint("3.5", ';'), QString("3.5"));
    }
};

QTEST_GUILESS_MAIN(CsvTextTest)
#include "tst_csvtext.moc"
