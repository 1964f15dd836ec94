#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "operations.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

#include <random>

namespace {

/// A kind of elements. The path names the lists that lead to them, and "*" means each element of the list before. If
/// two elements have the same tag, the first one hides the other.
struct Kind
{
    QString name;
    QString path;
    QString prefix; ///< of generated tags
};

const QVector<Kind> kinds{
    {"FLOORTEXT", "Floor_List/*/FreeText_List", "TText"},
    {"FLOOR", "Floor_List", "FFloor_"},
    {"SHEET", "Sheet_List", "SSheet_"},
    {"ROOM", "Floor_List/*/Room_List", "Room"},
    {"ACTIVEPORT", "ActiveNetworkTest_List/ActivePort_List", "ActivePort"},
    {"PORT", "Floor_List/*/Room_List/*/Port_List", "Port"},
    {"RUN", "Floor_List/*/Room_List/*/VerticalRun_List", "VertRun"},
    {"POINT", "Floor_List/*/Point_List", "Point"},
    {"DEVICE", "Sheet_List/*/Device_List", "Device"},
    {"BEND", "Sheet_List/*/Vertice_List", "Vertice"},
    {"TEXT", "Sheet_List/*/FreeText_List", "Text"},
    {"CABLE", "Cable_List", "Cable"},
    {"CONNECTION", "Connection_List", "Connection"},
};

/// Returns the elements at the end of a path.
QVector<QDomElement> elementsAt(const QDomElement &root, const QString &path)
{
    QVector<QDomElement> parents{root};
    for (const QString &step : (path + "/+").split('/')) {
        QVector<QDomElement> next;
        for (const QDomElement &parent : std::as_const(parents)) {
            QSet<QString> tags;
            for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
                const bool isFirst = !tags.contains(child.tagName());
                tags.insert(child.tagName());
                if (step == "+" || (isFirst && (step == "*" || step == child.tagName())))
                    next.append(child);
            }
        }
        parents = next;
    }
    return parents;
}

/// The tags of the elements, and the ids of the first of each tag.
struct Names
{
    explicit Names(const QVector<QDomElement> &elements)
    {
        for (const QDomElement &element : elements) {
            if (!tags.contains(element.tagName()))
                ids.append(element.attribute("id"));
            tags.append(element.tagName());
        }
    }

    QStringList tags;
    QStringList ids;
};

} // namespace

/// Tests long random sequences of operations. After each operation every index must equal one that is rebuilt.
class RandomOperationsTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int stepsOfARun = 400;

    QTemporaryDir m_directory;
    std::mt19937 m_random;
    QString m_floor; ///< the floor that the current operation names

    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    QString oneOf(const QStringList &list) { return list.isEmpty() ? QString() : list.at(number(int(list.size()))); }

    /// Returns the path of a kind. For rooms, this is the path on the floor that the operation names.
    QString pathOf(const Kind &kind) const
    {
        return kind.name == "ROOM" && !m_floor.isEmpty() ? "Floor_List/" + m_floor + "/Room_List" : kind.path;
    }

    /// Returns a random word for a placeholder. Most tags are those of existing elements.
    QString wordFor(const QString &placeholder, const QDomElement &root)
    {
        const QStringList otherTags{"", "none", "no name", "FFloor_2", "SSheet_3", "Room2", "Mine", "Undefined"};
        const QStringList ids{"", "Hall", "Hall ", "Hall1", "7", "<\u00dc\"&'>\r\n\t", "Undefined", "Room"};
        const QMap<QString, QString> others{{"ID", oneOf(ids)},
                                            {"NUMBER", QString::number(number(9))},
                                            {"THREE", QString::number(number(20)).rightJustified(3, '0')},
                                            {"FRACTION", QString::number(number(100) / 7.0, 'g', 17)},
                                            {"FLAG", number(2) == 0 ? "true" : "false"},
                                            {"MODE", QString::number(number(5))}};
        if (others.contains(placeholder))
            return others.value(placeholder);
        for (const Kind &kind : kinds) {
            const Names names(elementsAt(root, pathOf(kind)));
            if (placeholder == kind.name + "ID")
                return oneOf(names.ids);
            if (placeholder != kind.name)
                continue;
            const QString tag = number(4) == 0 ? oneOf(otherTags) : oneOf(names.tags);
            m_floor = kind.name == "FLOOR" ? tag : m_floor;
            return tag;
        }
        qFatal("no such placeholder: %s", qPrintable(placeholder));
    }

    QString filled(QString word, const QDomElement &root)
    {
        static const QRegularExpression placeholders("(?<![A-Z])(IDNUMBER|[A-Z]{2,}(\\|[A-Z]{2,})*)");
        int from = 0;
        for (auto match = placeholders.match(word); match.hasMatch(); match = placeholders.match(word, from)) {
            const QString chosen = match.captured() == "IDNUMBER" ? wordFor("ID", root) + wordFor("NUMBER", root)
                                                                  : wordFor(oneOf(match.captured().split('|')), root);
            word.replace(match.capturedStart(), match.capturedLength(), chosen);
            from = int(match.capturedStart() + chosen.size());
        }
        return word;
    }

    /// Calls an operation with random arguments. The form is a text such as "addPoint FLOOR 1 2 tag=POINT id=ID MODE".
    void apply(JobEditor &job, const QString &form)
    {
        const QDomElement root = JobEditorProbe(job).root();
        m_floor.clear();
        QStringList words{form.section(' ', 0, 0)};
        QString tag;
        QString id;
        for (const QString &part : form.split(' ').mid(1)) {
            words.append(filled(QString(part).remove(QRegularExpression("^(tag|id)=(?=[A-Z])")), root));
            if (part.startsWith("tag="))
                tag = words.constLast();
            if (part.startsWith("id="))
                id = words.constLast();
        }
        const QRegularExpressionMatch kindName = QRegularExpression(" tag=([A-Z]+)").match(form);
        if (!kindName.hasMatch()) {
            answerTo(operations(), words);
            return;
        }
        const Kind kind = *std::find_if(kinds.begin(), kinds.end(), [&kindName](const Kind &candidate) {
            return candidate.name == kindName.captured(1);
        });
        const Names before(elementsAt(root, kind.path));
        const Names inScope(elementsAt(root, pathOf(kind)));
        const QVector<QDomElement> elements = elementsAt(root, kind.path);
        const QString answer = answerTo(operations(), words);
        for (const QDomElement &element : elementsAt(root, kind.path)) {
            if (!elements.contains(element))
                checkNames(kind, element, before.tags, inScope.ids, tag, id, words.constLast().toInt(), answer);
        }
    }

    /// Checks that the names of an added element are those that the mode asks for.
    static void checkNames(const Kind &kind, const QDomElement &element, const QStringList &tags,
                           const QStringList &ids, const QString &givenTag, const QString &givenId, int mode,
                           const QString &answer)
    {
        const bool isCable = kind.name == "CABLE";
        const QString tag = element.tagName();
        const QString id = element.attribute("id");
        QCOMPARE(answer, isCable || kind.name == "CONNECTION" ? (id.isEmpty() ? "-" : id) : tag);
        if (mode == 2 || mode == 3) {
            QCOMPARE(tag, givenTag);
        } else if (isCable || kind.name == "ROOM") {
            QVERIFY2(!tags.contains(tag) && QRegularExpression('^' + kind.prefix + "\\d+$").match(tag).hasMatch(),
                     qPrintable(tag));
        } else {
            int free = 1;
            while (tags.contains(kind.prefix + QString::number(free)))
                ++free;
            QCOMPARE(tag, kind.prefix + QString::number(free));
        }
        if (mode == 1 || mode == 2) {
            QCOMPARE(id, givenId);
        } else {
            const QString form =
                isCable ? JobEditor::tr("Cable") + "\\d{3,}" : QRegularExpression::escape(givenId) + "\\d+";
            QVERIFY2(!ids.contains(id) && QRegularExpression('^' + form + '$').match(id).hasMatch(), qPrintable(id));
        }
    }

    /// Returns the references to generated tags. Other references may have been made to elements that never existed.
    static QStringList generatedOnly(const QStringList &references)
    {
        return references.filter(QRegularExpression(": (Port|VertRun|Point|Device|Vertice|Cable)[0-9]+$"));
    }

    /// Returns a random form of an operation. The names of the groups of forms begin with their weights.
    QString someForm()
    {
        static const QVector<TestCase> groups = casesIn("cases/random-operations.txt");
        QVector<int> weighted;
        for (int group = 0; group < groups.size(); ++group)
            weighted.insert(weighted.end(), groups.at(group).name.split(' ').constFirst().toInt(), group);
        const TestCase &group = groups.at(weighted.at(number(int(weighted.size()))));
        return oneOf(QString(group.given).trimmed().split('\n'));
    }

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void runs_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void runs()
    {
        QFETCH(unsigned, seed);
        m_random.seed(seed);
        JobEditor &job = JobEditor::Instance();
        const QString name = m_directory.filePath("random.job");
        if (seed % 2 == 0) {
            writeFile(name, testData("site.job"));
            QVERIFY(job.Load(name));
        } else {
            QVERIFY(job.New(name));
        }
        const JobEditorProbe probe(job);
        for (int i = 0; i < stepsOfARun; ++i) {
            const QByteArray before = probe.text();
            const QString form = someForm();
            // Each copy doubles the elements, so big jobs are not copied.
            if (form.startsWith("copy") && before.size() > 100000)
                continue;
            job.setDirty(false);
            apply(job, form);
            const QString step = QString("step %1, %2").arg(i).arg(form);
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(step));
            QVERIFY2(probe.indexesMatchTheTree(), qPrintable(step));
            // The job may be marked as changed by an equal value. But a changed job must always be marked.
            QVERIFY2(job.fileChanged() || probe.text() == before, qPrintable(step));
            const QStringList dangling = generatedOnly(probe.danglingReferences());
            QVERIFY2(dangling.isEmpty(), qPrintable(step + ": " + dangling.join(' ')));
        }
        const QByteArray text = probe.text();
        QVERIFY(job.save());
        QVERIFY(cabledoc::JobSnapshot::read(name) == cabledoc::JobSnapshot(job));
        QVERIFY2(job.Load(name), qPrintable(job.error()));
        QCOMPARE(probe.text(), text);
        QCOMPARE(readFile(name), text);
        QVERIFY(probe.indexesMatchTheTree());
    }
};

QTEST_GUILESS_MAIN(RandomOperationsTest)
#include "tst_randomoperations.moc"
