#include "elementindex.h"

#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

#include <random>
#include <set>

using namespace cabledoc;

class ElementIndexTest : public QObject
{
    Q_OBJECT

private:
    QDomDocument m_document{QStringLiteral("Test")};

    QDomElement element(const QString &tag, const QString &id)
    {
        QDomElement element = m_document.createElement(tag);
        element.setAttribute(QStringLiteral("id"), id);
        return element;
    }

private Q_SLOTS:
    /// The intervals answer as a plain set of numbers does.
    void numberSetAgainstPlainSet()
    {
        std::mt19937 random(1);
        NumberSet numbers;
        std::set<qint64> plain;
        for (int step = 0; step < 20000; ++step) {
            const qint64 number = std::uniform_int_distribution<int>(0, 60)(random);
            if (random() % 2 == 0) {
                numbers.insert(number);
                plain.insert(number);
            } else {
                numbers.remove(number);
                plain.erase(number);
            }
            const qint64 from = std::uniform_int_distribution<int>(-1, 62)(random);
            qint64 expected = from;
            while (plain.count(expected) != 0)
                ++expected;
            QCOMPARE(numbers.firstFree(from), expected);
        }
    }

    void numbersOfNames()
    {
        ElementIndex index;
        for (const char *tag : {"T1", "T2", "T02", "T4", "T", "T3x", "U3", "T10", "T1000000000000000000000"})
            index.append(element(QString::fromLatin1(tag), QString::fromLatin1(tag)));
        const QString prefix = QStringLiteral("T");
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 3);
        QCOMPARE(index.firstFreeTagNumber(prefix, 10), 11);
        // "T10" is also "T1" and 0.
        QCOMPARE(index.firstFreeTagNumber(QStringLiteral("T1"), 0), 1);
        // From here on the numbers are kept in step.
        const QDomElement third = element(QStringLiteral("T3"), QStringLiteral("Plan 1"));
        index.append(third);
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 5);
        index.remove(third);
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 3);
        QCOMPARE(index.firstFreeIdNumber(QString(), 1), 1);
    }

    void idsAreSharedAndChange()
    {
        ElementIndex index;
        QDomElement a = element(QStringLiteral("a"), QStringLiteral("Plan 1"));
        const QDomElement b = element(QStringLiteral("b"), QStringLiteral("Plan 1"));
        index.append(b);
        index.append(a);
        QCOMPARE(index.tagOfId(QStringLiteral("Plan 1")), QStringLiteral("a"));
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Plan "), 1), 2);
        a.setAttribute(QStringLiteral("id"), QStringLiteral("Plan 2"));
        index.updateId(a);
        QCOMPARE(index.tagOfId(QStringLiteral("Plan 1")), QStringLiteral("b"));
        QCOMPARE(index.ids().join(QLatin1Char(',')), QStringLiteral("Plan 2,Plan 1"));
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Plan "), 1), 3);
        index.remove(b);
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Plan "), 1), 1);
        QCOMPARE(index.lastId(), QStringLiteral("Plan 2"));
    }

    void idsOfAContainer()
    {
        ContainerIndex index;
        const QDomElement first = element(QStringLiteral("b"), QStringLiteral("Hall1"));
        const QDomElement second = element(QStringLiteral("a"), QStringLiteral("Hall1"));
        index.append(first);
        index.append(second);
        QCOMPARE(index.element(QStringLiteral("Hall1")), first);
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Hall"), 1), 2);
        index.remove(first);
        QCOMPARE(index.element(QStringLiteral("Hall1")), second);
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Hall"), 1), 2);
        index.remove(second);
        QVERIFY(index.element(QStringLiteral("Hall1")).isNull());
        QCOMPARE(index.firstFreeIdNumber(QStringLiteral("Hall"), 1), 1);
    }

    void firstOfATagCounts()
    {
        ElementIndex index;
        const QDomElement first = element(QStringLiteral("t"), QStringLiteral("1"));
        QDomElement second = element(QStringLiteral("t"), QStringLiteral("2"));
        index.append(first);
        index.append(second);
        QCOMPARE(index.tags().size(), 1);
        QCOMPARE(index.element(QStringLiteral("t")), first);
        QVERIFY(index.isRepeated(QStringLiteral("t")));
        QVERIFY(!index.containsId(QStringLiteral("2")));
        second.setAttribute(QStringLiteral("id"), QStringLiteral("3"));
        index.updateId(second);
        QVERIFY(!index.containsId(QStringLiteral("3")));
        index.remove(first);
        QCOMPARE(index.element(QStringLiteral("t")), second);
        QCOMPARE(index.tagOfId(QStringLiteral("3")), QStringLiteral("t"));
        QVERIFY(!index.isRepeated(QStringLiteral("t")));
        index.forgetElements();
        QVERIFY(index.containsTag(QStringLiteral("t")));
        QVERIFY(index.element(QStringLiteral("t")).isNull());
    }
};

QTEST_APPLESS_MAIN(ElementIndexTest)
#include "tst_elementindex.moc"
