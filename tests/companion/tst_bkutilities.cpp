#include "bkutilities.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

class BKUtilitiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { BKUtilities::setSettingsFile(QString()); }

    void settings_data()
    {
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("height");
        QTest::newRow("no file") << QByteArray() << documents << "8";
        QTest::newRow("other keys only") << QByteArray("[Settings]\n2=x\n") << documents << "8";
        QTest::newRow("both") << QByteArray("[Settings]\n1=/srv/jobs\n24=9.5\n") << "/srv/jobs"
                              << "9.5";
        QTest::newRow("empty") << QByteArray("[Settings]\n1=\n24=\n") << documents << "8";
        QTest::newRow("no height") << QByteArray("[Settings]\n24=high\n") << documents << "8";
        QTest::newRow("zero") << QByteArray("[Settings]\n24=0\n") << documents << "8";
        QTest::newRow("endless") << QByteArray("[Settings]\n24=inf\n") << documents << "8";
    }

    void settings()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir directory;
        if (!content.isEmpty()) {
            QFile file(directory.filePath("settings.ini"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
            BKUtilities::setSettingsFile(file.fileName());
        }
        const auto texts = BKUtilities::readSettings({BKUtils::NewJobDirectory, BKUtils::DefaultCeilingHeight});
        QCOMPARE(texts.size(), 2);
        QTEST(texts.value(BKUtils::NewJobDirectory), "directory");
        QTEST(texts.value(BKUtils::DefaultCeilingHeight), "height");
        QCOMPARE(BKUtilities::readSettings({BKUtils::DefaultCeilingHeight}).size(), 1);
    }

    void rounding_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("half");
        QTest::addColumn<float>("tenths");
        QTest::newRow("tie") << 0.25F << 0.5F << 0.3F;
        QTest::newRow("tie of tenths") << 0.05F << 0.0F << 0.1F;
        QTest::newRow("tie that is none in binary") << 0.35F << 0.5F << 0.4F;
        QTest::newRow("tie below zero") << -0.25F << -0.5F << -0.3F;
        QTest::newRow("below the tie") << 99.74F << 99.5F << 99.7F;
        QTest::newRow("kept") << 328.0F << 328.0F << 328.0F;
    }

    void rounding()
    {
        QFETCH(float, value);
        QTEST(BKUtilities::roundToHalf(value), "half");
        QTEST(BKUtilities::roundToTenths(value), "tenths");
    }

    void distance()
    {
        QCOMPARE(BKUtilities::getDistance({1, 2}, {4, -2}), 5.0);
        QCOMPARE(BKUtilities::getDistance({7, 7}, {7, 7}), 0.0);
    }
};

QTEST_GUILESS_MAIN(BKUtilitiesTest)
#include "tst_bkutilities.moc"
