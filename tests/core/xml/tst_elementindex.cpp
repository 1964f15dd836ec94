#include "elementindex.h"

#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

#include <map>
#include <random>
#include <set>

using namespace cabledoc;

class ElementIndexTest : public QObject
{
    Q_OBJECT

private:
    QDomDocument m_document{"Test"};

    QDomElement element(const QString &tag, const QString &id)
    {
        QDomElement element = m_document.createElement(tag);
        element.setAttribute("id", id);
        return element;
    }

private Q_SLOTS:
    /// Compares a NumberSet with a plain set of numbers.
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

    /// Compares the last name with that of a plain set. There are more names than are known, and the last ones go.
    void lastNameAgainstPlainSet()
    {
        std::mt19937 random(2);
        LastName names;
        std::set<QString> plain;
        const auto forEachName = [&plain](const auto &use) { std::for_each(plain.begin(), plain.end(), use); };
        for (int step = 0; step < 8000; ++step) {
            const bool isGrowing = step < 4000 || random() % 5 == 0;
            const QString name = isGrowing           ? QString::number(random() % 100000)
                                 : random() % 8 == 0 ? *plain.begin()
                                                     : *plain.rbegin();
            if (isGrowing && plain.insert(name).second)
                names.insert(name);
            else if (!isGrowing && plain.erase(name) != 0)
                names.remove(name);
            QCOMPARE(names.last(forEachName), plain.empty() ? QString() : *plain.rbegin());
            if (plain.size() > 1)
                QCOMPARE(names.last(forEachName, *plain.rbegin()), *std::next(plain.rbegin()));
        }
    }

    /// Compares the last tag of numbered ids with that of a plain map, for the prefixes of two languages.
    void lastTagsOfNumberedIds()
    {
        std::mt19937 random(3);
        TagsById ids("Cable", 3);
        std::map<QString, QString> idOfTag;
        for (int step = 0; step < 600; ++step) {
            const QString tag = 'T' + QString::number(random() % 40);
            if (const auto known = idOfTag.find(tag); known != idOfTag.end()) {
                ids.remove(known->second, tag);
                idOfTag.erase(known);
            } else {
                const QString prefix = QStringList{"Cable", "Kabel", "Kabel 7", ""}.at(int(random() % 4));
                const QString id = prefix + QString::number(random() % 12).rightJustified(int(random() % 4), '0');
                ids.insert(id, tag);
                idOfTag.emplace(tag, id);
            }
            const QString prefix = step % 100 < 50 ? "Cable" : "Kabel";
            QString expected;
            for (const auto &[known, id] : idOfTag) {
                if (QRegularExpression(QRegularExpression::anchoredPattern(prefix + "[0-9]{3}")).match(id).hasMatch())
                    expected = known;
            }
            QCOMPARE(ids.lastTagWithNumber(prefix), expected);
        }
    }

    void numbersOfNames()
    {
        ElementIndex index;
        for (const char *tag : {"T1", "T2", "T02", "T4", "T", "T3x", "U3", "T10", "T1000000000000000000000"})
            index.append(element(tag, tag));
        const QString prefix = "T";
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 3);
        QCOMPARE(index.firstFreeTagNumber(prefix, 10), 11);
        // "T10" is also "T1" and 0.
        QCOMPARE(index.firstFreeTagNumber("T1", 0), 1);
        // From here on the index keeps the numbers up to date.
        const QDomElement third = element("T3", "Plan 1");
        index.append(third);
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 5);
        index.remove(third);
        QCOMPARE(index.firstFreeTagNumber(prefix, 1), 3);
        QCOMPARE(index.ids().firstFreeNumber(QString(), 1), 1);
    }

    /// Removes tags with the same id in all orders. The index always finds the first of the tags that are left.
    void firstTagOfAnId()
    {
        const QStringList tags{"c", "a", "d", "b"};
        QStringList order = tags;
        order.sort();
        do {
            ElementIndex index;
            QMap<QString, QDomElement> elements;
            for (const QString &tag : tags) {
                elements[tag] = element(tag, "Plan");
                index.append(elements[tag]);
            }
            QCOMPARE(index.lastTag(), QString("d"));
            for (const QString &tag : std::as_const(order)) {
                QCOMPARE(index.ids().firstTag("Plan"), elements.firstKey());
                QCOMPARE(index.lastTag(), elements.lastKey());
                index.remove(elements.take(tag));
            }
            QVERIFY(!index.ids().contains("Plan"));
            QCOMPARE(index.lastTag(), QString());
            QVERIFY(index == ElementIndex());
        } while (std::next_permutation(order.begin(), order.end()));
    }

    void idsOfAContainer()
    {
        ContainerIndex index;
        const QDomElement first = element("b", "Hall1");
        const QDomElement second = element("a", "Hall1");
        index.append(first);
        index.append(second);
        QCOMPARE(index.element("Hall1"), first);
        QCOMPARE(index.firstFreeIdNumber("Hall", 1), 2);
        index.remove(first);
        QCOMPARE(index.element("Hall1"), second);
        QCOMPARE(index.firstFreeIdNumber("Hall", 1), 2);
        index.remove(second);
        QVERIFY(index.element("Hall1").isNull());
        QCOMPARE(index.firstFreeIdNumber("Hall", 1), 1);
    }
};

QTEST_GUILESS_MAIN(ElementIndexTest)
#include "tst_elementindex.moc"
