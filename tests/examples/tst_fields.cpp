#include "fieldswindow.h"
#include "testlanguage.h"

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

/// Types into the window of the example as a user does.
class FieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typing_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        const QString forty = "0123456789abcdefghijABCDEFGHIJ.;-_/+()[]";
        QTest::newRow("device, and on from there")
            << "DeviceValidator" << forty.left(28) << forty.left(20) + forty.mid(26, 2);
        QTest::newRow("cable type") << "TypeValidator"
                                    << "CAT5ESTP"
                                    << "CAT5E";
        QTest::newRow("length with a letter and a comma") << "LengthValidator"
                                                          << "12a3,4"
                                                          << "1234";
        QTest::newRow("length, too long") << "LengthValidator"
                                          << "1234567890123"
                                          << "123456789";
        QTest::newRow("hidden file") << "FileValidator"
                                     << "..job"
                                     << "job";
        QTest::newRow("file with forbidden characters") << "FileValidator"
                                                        << "a;b<c>d|e&f?g$h*i\"j k.job"
                                                        << "abcdefghij k.job";
    }

    void typing()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        FieldsWindow window(QDate(2010, 3, 1));
        auto *edit = window.findChild<QLineEdit *>(field);
        QVERIFY(edit != nullptr);
        QTest::keyClicks(edit, typed);
        QTEST(edit->text(), "shown");
        // The return key does not change the text.
        QTest::keyClick(edit, Qt::Key_Return);
        QTEST(edit->text(), "shown");
    }

    void correcting()
    {
        FieldsWindow window(QDate(2010, 3, 1));
        auto *file = window.findChild<QLineEdit *>("FileValidator");
        QTest::keyClicks(file, "plan");
        QTest::keyClick(file, Qt::Key_Home);
        QTest::keyClicks(file, ".");
        QCOMPARE(file->text(), QString("plan"));
        QGuiApplication::clipboard()->setText("a*b");
        QTest::keySequence(file, QKeySequence::Paste);
        QCOMPARE(file->text(), QString("plan"));
        QGuiApplication::clipboard()->setText("my ");
        QTest::keySequence(file, QKeySequence::Paste);
        QCOMPARE(file->text(), QString("my plan"));

        auto *type = window.findChild<QLineEdit *>("TypeValidator");
        QTest::keyClicks(type, "CAT6");
        QTest::keyClick(type, Qt::Key_Home);
        // The text is cut at its end if it becomes too long.
        QTest::keyClicks(type, "S/");
        QCOMPARE(type->text(), QString("S/CAT"));
    }

    void languages()
    {
        useLanguage(QLocale::c());
        FieldsWindow window(QDate(2010, 3, 1));
        auto *language = window.findChild<QComboBox *>();
        language->setCurrentIndex(0);
        QStringList shown;
        for (int i = 0; i < language->count(); ++i) {
            // The window changes its language when it receives an event.
            QCoreApplication::processEvents();
            QStringList texts;
            for (const auto *label : window.findChildren<QLabel *>())
                texts.append(label->text());
            shown.append(texts.filter("2010"));
            QTest::keyClick(language, Qt::Key_Down);
        }
        QCOMPARE(shown, QStringList({"Monday 1 March 2010", QString::fromUtf8("Montag 1 M\u00e4rz 2010"),
                                     "lunes 1 marzo 2010", "lundi 1 mars 2010"}));
    }
};

QTEST_MAIN(FieldsTest)
#include "tst_fields.moc"
