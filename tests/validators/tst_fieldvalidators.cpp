#include "calls.h"
#include "fieldvalidators.h"
#include "testcases.h"

#include <QtCore/QTranslator>

namespace {

/// Returns a callable that validates a text. The answer tells whether the text is accepted, and what is left of it.
template <typename Validator> Callable validator(const char *name)
{
    return makeCallable<QString, QString>(name, [](QString text) {
        int position = 1;
        const auto state = Validator(nullptr).validate(text, position);
        const QString verdict = state == QValidator::Acceptable ? "accepted [%1]" : "refused [%1]";
        return position == 1 ? verdict.arg(text) : QString("the cursor was moved");
    });
}

/// A translation that allows and forbids more characters.
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

class FieldValidatorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addCases({"cases/validators.txt"}); }

    void texts()
    {
        QFETCH(TestCase, testCase);
        const QVector<Callable> validators{
            validator<DeviceValidator>("device"), validator<FileValidator>("file"), validator<IDValidator>("id"),
            validator<InfoValidator>("info"),     validator<PortValidator>("port"), validator<TypeValidator>("type"),
            validator<LengthValidator>("length"),
        };
        const QString expected = QString(testCase.given).trimmed();
        COMPARE_TEXTS(answered(validators, expected), expected, testCase.place());
    }

    void fixupReplacesBlanksWithUnderscores()
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
        QString otherDigit = "\u0663";
        QCOMPARE(int(LengthValidator(nullptr).validate(otherDigit, position)), int(QValidator::Invalid));
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
