#include "fieldvalidators.h"

#include <QtCore/QTranslator>
#include <QtTest/QtTest>

#include <memory>

namespace {

using Make = std::function<std::unique_ptr<QValidator>()>;

template <typename Validator> Make make()
{
    return [] { return std::make_unique<Validator>(nullptr); };
}

/// A language that allows and forbids more characters.
class MoreCharacters : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        const QByteArray text = QByteArray(context) + '/' + comment;
        if (text == "LengthValidator/" || text == "FileValidator/forbidden characters in field")
            return QString::fromLatin1(source) + "x";
        return QString();
    }
};

} // namespace

Q_DECLARE_METATYPE(Make)

class FieldValidatorsTest : public QObject
{
    Q_OBJECT

private:
    static void addRow(const char *name, const Make &validator, const QString &input, const QString &left,
                       bool isAccepted = true)
    {
        QTest::addRow("%s: %s", name, qPrintable(input)) << validator << input << left << isAccepted;
    }

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<Make>("validator");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("left");
        QTest::addColumn<bool>("isAccepted");
        const struct
        {
            const char *name;
            Make validator;
            int limit;
            int cut;
        } limits[] = {
            {"device", make<DeviceValidator>(), 25, 20}, {"id", make<IDValidator>(), 25, 25},
            {"info", make<InfoValidator>(), 44, 44},     {"port", make<PortValidator>(), 20, 20},
            {"type", make<TypeValidator>(), 5, 5},
        };
        for (const auto &[name, validator, limit, cut] : limits) {
            const QString text = QString("ab;. 9").repeated(10);
            addRow(name, validator, "", "");
            addRow(name, validator, text.left(limit), text.left(limit));
            addRow(name, validator, text.left(limit + 1), text.left(cut));
        }
        const Make length = make<LengthValidator>();
        addRow("length", length, "", "");
        addRow("length", length, "123456789", "123456789");
        addRow("length", length, "1234567890123", "123456789");
        addRow("length", length, "12a", "12a", false);
        addRow("length", length, "12345678901a", "12345678901a", false);
        addRow("length", length, "1.5", "1.5", false);
        addRow("length", length, "\u0663", "\u0663", false);
        const Make file = make<FileValidator>();
        addRow("file", file, "", "");
        addRow("file", file, "my job.job", "my job.job");
        addRow("file", file, "a[b]^-\\c", "a[b]^-\\c");
        addRow("file", file, ".job", ".job", false);
        for (const char character : QByteArray(";<>|&?$*\""))
            addRow("file", file, QString("a%1b").arg(character), QString("a%1b").arg(character), false);
    }

    void texts()
    {
        QFETCH(Make, validator);
        QFETCH(QString, input);
        QFETCH(QString, left);
        QFETCH(bool, isAccepted);
        int position = 1;
        const auto state = validator()->validate(input, position);
        QCOMPARE(int(state), int(isAccepted ? QValidator::Acceptable : QValidator::Invalid));
        QCOMPARE(input, left);
        QCOMPARE(position, 1);
    }

    void fileNamesAreFixedByUnderscores()
    {
        QString name = "my  job";
        FileValidator(nullptr).fixup(name);
        QCOMPARE(name, QString("my__job"));
    }

    void translationsAddCharacters()
    {
        int position = 0;
        QString length = "12x";
        QString file = "12x";
        QCOMPARE(int(LengthValidator(nullptr).validate(length, position)), int(QValidator::Invalid));
        QCOMPARE(int(FileValidator(nullptr).validate(file, position)), int(QValidator::Acceptable));
        MoreCharacters more;
        QVERIFY(QCoreApplication::installTranslator(&more));
        QCOMPARE(int(LengthValidator(nullptr).validate(length, position)), int(QValidator::Acceptable));
        QCOMPARE(int(FileValidator(nullptr).validate(file, position)), int(QValidator::Invalid));
        QCoreApplication::removeTranslator(&more);
    }
};

QTEST_GUILESS_MAIN(FieldValidatorsTest)
#include "tst_fieldvalidators.moc"
