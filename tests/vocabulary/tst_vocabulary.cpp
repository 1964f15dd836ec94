#include "testlanguage.h"
#include "vocabulary.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>

using namespace cabledoc;

namespace {

const QString PortUses = "data voice TV cable_box audio video security fire control power spare other";
const QString DeviceTypes = "computer laptop server printer phone switch router modem access_point television camera "
                            "speaker panel rack other";

QImage picture(const Vocabulary &vocabulary, const QString &word, int size)
{
    return vocabulary.pixmap(word, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class VocabularyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedWordsDoNotChange()
    {
        QCOMPARE(Vocabulary::portUses().words().join(' '), PortUses);
        QCOMPARE(Vocabulary::deviceTypes().words().join(' '), DeviceTypes);
    }

    void names()
    {
        useLanguage(QLocale::c());
        QCOMPARE(Vocabulary::portUses().name("cable_box"), QString("Cable box"));
        QStringList names;
        for (const QString &type : Vocabulary::deviceTypes().words())
            names.append(Vocabulary::deviceTypes().name(type));
        QCOMPARE(names.join(','),
                 QString("Computer,Laptop,Server,Printer,Phone,Switch,Router,Modem,Access point,Television,"
                         "Camera,Speaker,Patch panel,Rack,Other"));
        useLanguage(QLocale("de"));
        QCOMPARE(Vocabulary::portUses().name("cable_box"), QString("Kabelreceiver"));
        QCOMPARE(Vocabulary::deviceTypes().name("panel"), QString("Rangierfeld"));
    }

    void everyWordHasItsOwnPicture()
    {
        for (const int size : {16, 64}) {
            QImage blank(size, size, QImage::Format_ARGB32);
            blank.fill(Qt::transparent);
            QVector<QImage> seen{blank};
            for (const Vocabulary *vocabulary : {&Vocabulary::portUses(), &Vocabulary::deviceTypes()}) {
                for (const QString &word : vocabulary->words()) {
                    const QImage image = picture(*vocabulary, word, size);
                    QCOMPARE(image.size(), QSize(size, size));
                    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
                    QVERIFY2(!seen.contains(image), qPrintable(word));
                    seen.append(image);
                }
            }
        }
    }

    void unknownWordsAreShownAsOther()
    {
        const Vocabulary &uses = Vocabulary::portUses();
        for (const QString word : {"", "tv", "../data", "computer"}) {
            QVERIFY(!uses.contains(word));
            QCOMPARE(uses.name(word), word);
            QCOMPARE(picture(uses, word, 16), picture(uses, "other", 16));
        }
        QVERIFY(uses.contains("TV"));
    }

    void picturesAreSharpAtAnySize()
    {
        QImage image(400, 200, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        Vocabulary::portUses().paint(&painter, "data", image.rect());
        painter.end();
        QCOMPARE(image.copy(100, 0, 200, 200), picture(Vocabulary::portUses(), "data", 200));
        QCOMPARE(image.pixelColor(99, 133).alpha(), 0); // the picture does not leave the square in the middle
    }

    void picturesAsFiles()
    {
        const QByteArray data = Vocabulary::portUses().svg("data");
        QVERIFY(data.startsWith("<svg ") && data.contains("viewBox=\"0 0 24 24\""));
        QVERIFY(data != Vocabulary::portUses().svg("voice"));
        QCOMPARE(Vocabulary::portUses().svg("computer"), Vocabulary::portUses().svg("other"));
    }

    void noPictureWithoutSize()
    {
        QVERIFY(Vocabulary::portUses().pixmap("data", 0).isNull());
        QVERIFY(Vocabulary::portUses().pixmap("data", -1).isNull());
    }
};

QTEST_MAIN(VocabularyTest)
#include "tst_vocabulary.moc"
