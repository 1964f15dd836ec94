#include "bkteditor.h"
#include "childelements.h"
#include "document.h"
#include "elementnames.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "tablecolumns.h"
#include "tableplan_p.h"

#include <algorithm>
#include <map>
#include <set>

namespace cabledoc {

namespace {

/// Returns the fields of a new element.
template <typename Fields> Fields fieldsOf(const AttributeTable<Fields> &table, const ElementChange &change)
{
    Fields fields;
    for (const auto &[name, text] : change.attributes) {
        for (const AttributeRow &row : table.rows()) {
            if (row.name == name && row.parse != nullptr)
                row.parse(text, &fields);
        }
    }
    return fields;
}

/// Returns the new id, or an empty text if the element keeps its id.
QString newIdIn(const ElementChange &change)
{
    for (const auto &[name, text] : change.attributes) {
        if (name == words::Id)
            return text;
    }
    return QString();
}

/// An element that is found by its id, and what names it by this id: types of bundles, and cables.
struct SharedElement
{
    QDomElement element;
    QVector<QDomElement> bundleTypes;
    QStringList cables;
};

/// Makes changes in test definitions and bundles. Whatever names one of them gets its new name too.
class SharedChanges
{
public:
    /// The job is null if the document is a template.
    SharedChanges(BKXMLEditor *document, JobEditor *job, TableKind kind)
        : m_document(*document)
        , m_tree(Document::of(*document).tree())
        , m_job(job)
        , m_isOfDefinitions(kind == TableKind::TestDefinitions)
    {
    }

    void make(const std::vector<ElementChange> &changes)
    {
        // All elements are found before the first of them gets a new name, which another one may have had.
        std::vector<SharedElement> elements;
        elements.reserve(changes.size());
        for (const ElementChange &change : changes)
            elements.push_back(find(change));
        for (std::size_t number = 0; number < elements.size(); ++number)
            make(changes[number], elements[number]);
    }

private:
    SharedElement find(const ElementChange &change) const
    {
        SharedElement found;
        if (change.action == TableAction::Add)
            return found;
        const QDomElement bundles = m_tree.child(words::BundledCableList);
        found.element = m_isOfDefinitions ? m_tree.definition(change.id()) : childWithId(bundles, change.id());
        if (change.action == TableAction::Remove || newIdIn(change).isEmpty())
            return found;
        if (m_job != nullptr)
            found.cables =
                m_isOfDefinitions ? m_job->getCablesByType(change.id()) : m_job->getCablesByBundle(change.id());
        if (!m_isOfDefinitions)
            return found;
        for (const QDomElement &bundle : ChildElements(bundles)) {
            for (const QDomElement &type : ChildElements(bundle.firstChildElement(words::BundledCableTypeList))) {
                if (type.attribute(words::Id) == change.id())
                    found.bundleTypes.append(type);
            }
        }
        return found;
    }

    void make(const ElementChange &change, const SharedElement &found)
    {
        if (change.action == TableAction::Remove) {
            m_tree.remove(found.element);
            return;
        }
        if (change.action == TableAction::Add) {
            add(change);
            return;
        }
        for (const auto &[name, text] : change.attributes)
            m_tree.setAttribute(found.element, name, text);
        if (change.types)
            writeBundleTypes(&m_tree, found.element, *change.types);
        const QString newId = newIdIn(change);
        for (const QDomElement &type : found.bundleTypes)
            m_tree.setAttribute(type, words::Id, newId);
        if (m_job == nullptr)
            return;
        for (const QString &cable : found.cables)
            (m_job->*(m_isOfDefinitions ? &JobEditor::setCableType : &JobEditor::setCableBundleName))(cable, newId);
    }

    void add(const ElementChange &change)
    {
        m_tree.ensure(m_isOfDefinitions ? words::TestDefList : words::BundledCableList, m_tree.root());
        if (m_isOfDefinitions) {
            m_document.addTestDef(TestDef(fieldsOf(testDefAttributes(), change)));
            return;
        }
        BundledCableFields fields = fieldsOf(bundledCableAttributes(), change);
        fields.types = change.types.value_or(QStringList());
        m_document.addBundledCableType(BundledCable(fields));
    }

    BKXMLEditor &m_document;
    DocumentTree &m_tree;
    JobEditor *m_job;
    bool m_isOfDefinitions;
};

/// Makes changes in the elements of a job.
class JobChanges
{
public:
    JobChanges(JobEditor *job, TableKind kind)
        : m_job(*job)
        , m_tree(JobEditorPrivate::of(*job).tree)
        , m_kind(kind)
    {
    }

    void make(const ElementChange &change)
    {
        if (change.action == TableAction::Remove) {
            remove(change);
            return;
        }
        const bool isMoved = change.action != TableAction::Add && !change.newHolders.isEmpty();
        if (isMoved)
            m_tree.moveTo(element(holderKind(m_kind), change.newHolders), schemaOf(elementKind(m_kind)), change.tag);
        const QDomElement changed =
            change.action == TableAction::Add
                ? add(change)
                : element(m_kind, QStringList(change.tag) + (isMoved ? change.newHolders : QStringList(change.floor)));
        for (const auto &[name, text] : change.attributes) {
            if (change.action != TableAction::Add || !isWrittenWithRecord(name))
                m_tree.setAttribute(changed, elementKind(m_kind), name, text);
        }
        noteRuns(changed.tagName(), words::Connected, change.connected);
        noteRuns(changed.tagName(), words::Disconnected, change.disconnected);
    }

    /// Changes the lists of cables in the vertical runs. Must be called after the last change.
    void finish()
    {
        for (const auto &[place, changes] : m_runs) {
            const QDomElement run = m_tree.element(ElementKind::VerticalRuns, place.first);
            QStringList cables;
            std::set<QString> listed;
            for (const QString &cable : entriesIn(run.attribute(place.second)) + changes.added) {
                if (changes.removed.count(cable) == 0 && listed.insert(cable).second)
                    cables.append(cable);
            }
            m_tree.setAttribute(run, place.second, toText(cables));
        }
    }

private:
    /// Returns the element with the first of the tags. The others are those of its holders.
    QDomElement element(TableKind kind, const QStringList &tags)
    {
        if (kind != TableKind::Rooms)
            return m_tree.element(elementKind(kind), tags.constFirst());
        const QDomElement floor = m_tree.element(ElementKind::Floors, tags.constLast());
        return tags.constFirst() == words::Undefined ? m_tree.undefinedRoom(floor)
                                                     : m_tree.room(tags.constLast(), tags.constFirst());
    }

    void remove(const ElementChange &change)
    {
        if (m_kind == TableKind::Rooms)
            m_job.removeRoom(change.floor, change.tag);
        else
            m_tree.remove(elementKind(m_kind), change.tag);
    }

    QDomElement add(const ElementChange &change)
    {
        ensureList(change);
        switch (elementKind(m_kind)) {
        case ElementKind::Floors:
            return element(m_kind, {m_job.addFloor(Floor(newFields(floorKind(), change)), mode(change))});
        case ElementKind::Rooms: {
            const QString tag = m_job.addRoom(Room(newFields(roomKind(), change)), mode(change));
            return m_tree.room(change.newHolders.constFirst(), tag);
        }
        case ElementKind::Cables:
            m_job.addCable(Cable(newFields(cableKind(), change)), mode(change));
            return m_job.getToCableList().lastChildElement();
        case ElementKind::Ports:
            return addTo(portKind(), change);
        case ElementKind::VerticalRuns:
            return addTo(vertRunKind(), change);
        case ElementKind::Points:
            return addTo(pointKind(), change);
        case ElementKind::FloorFreeTexts:
            return addTo(floorFreeTextKind(), change);
        case ElementKind::Sheets:
            return addTo(sheetKind(), change);
        case ElementKind::Devices:
            return addTo(deviceKind(), change);
        case ElementKind::Vertices:
            return addTo(verticeKind(), change);
        case ElementKind::FreeTexts:
            return addTo(freeTextKind(), change);
        case ElementKind::Connections:
            return addTo(connectionKind(), change);
        case ElementKind::ActivePorts:
        case ElementKind::None:
            break;
        }
        return addTo(activePortKind(), change);
    }

    bool isWrittenWithRecord(const QString &attribute) const
    {
        const QVector<AttributeRow> &rows = attributesOf(m_kind).rows();
        return std::any_of(rows.cbegin(), rows.cend(), [&](const AttributeRow &row) {
            return row.name == attribute && row.text != nullptr && row.parse != nullptr;
        });
    }

    template <typename Fields> QDomElement addTo(const Kind<Fields> &kind, const ElementChange &change)
    {
        return JobEditorPrivate::of(m_job).add(kind, newFields(kind, change), mode(change));
    }

    /// Returns the fields of a new element, with the tags of its holders.
    template <typename Fields> Fields newFields(const Kind<Fields> &kind, const ElementChange &change)
    {
        Fields fields = fieldsOf(kind.table, change);
        fields.element = change.tag;
        for (int holder = 0; holder < kind.holders.size(); ++holder)
            fields.*kind.holders.at(holder) = change.newHolders.at(holder);
        return fields;
    }

    static int mode(const ElementChange &change)
    {
        return change.tag.isEmpty() ? addmode::GivenId : addmode::GivenNames;
    }

    /// Adds the list of the kind, and the room "Undefined", if a damaged file lacks them.
    void ensureList(const ElementChange &change)
    {
        const ElementSchema &schema = schemaOf(elementKind(m_kind));
        QDomElement parent =
            change.newHolders.isEmpty() ? m_tree.root() : element(holderKind(m_kind), change.newHolders);
        for (const QString &name : schema.list)
            parent = m_tree.ensure(name, parent);
    }

    /// Notes the vertical runs that are to name a cable in an attribute, and those that are not to name it any more.
    void noteRuns(const QString &cable, const QString &attribute, const std::optional<QStringList> &runs)
    {
        if (!runs)
            return;
        for (const QDomElement &run : m_tree.index().elementsNaming(cable)) {
            const bool isRun = run.parentNode().nodeName() == words::VerticalRunList;
            if (isRun && !runs->contains(run.tagName()))
                m_runs[{run.tagName(), attribute}].removed.insert(cable);
        }
        for (const QString &run : *runs)
            m_runs[{run, attribute}].added.append(cable);
    }

    /// Changes in the list of cables of a vertical run.
    struct RunChanges
    {
        std::set<QString> removed;
        QStringList added;
    };

    JobEditor &m_job;
    JobTree &m_tree;
    TableKind m_kind;
    std::map<std::pair<QString, QString>, RunChanges> m_runs; ///< by the tag of the run and the attribute
};

void makeReleases(JobEditor *job, const std::vector<ElementChange> &changes)
{
    // Names that are lost go first, because another release may get one of them.
    QMap<QString, QString> values;
    for (const ElementChange &change : changes) {
        if (change.action != TableAction::Remove) {
            const QString newId = newIdIn(change);
            values.insert(newId.isEmpty() ? change.id() : newId,
                          change.releaseValue.value_or(job->getRelease(change.id())));
        }
    }
    for (const ElementChange &change : changes) {
        if (change.action != TableAction::Add && !values.contains(change.id()))
            job->removeRelease(change.id());
    }
    JobTree &tree = JobEditorPrivate::of(*job).tree;
    if (!values.isEmpty())
        tree.ensure(words::Release, tree.root()); // a damaged file may lack it
    for (auto release = values.cbegin(); release != values.cend(); ++release)
        job->addRelease(release.key(), release.value());
}

} // namespace

void TablePlan::applyTo(JobEditor &job) const
{
    if (isTableOfTemplates(d->kind)) {
        SharedChanges(&job, &job, d->kind).make(d->elements);
    } else if (d->kind == TableKind::Releases) {
        makeReleases(&job, d->elements);
    } else {
        JobChanges changes(&job, d->kind);
        for (const ElementChange &change : d->elements)
            changes.make(change);
        changes.finish();
    }
}

void TablePlan::applyTo(BktEditor &bkt) const
{
    if (isTableOfTemplates(d->kind))
        SharedChanges(&bkt, nullptr, d->kind).make(d->elements);
}

} // namespace cabledoc
