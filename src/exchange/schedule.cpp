#include "schedule.h"

#include "csvtext.h"
#include "jobeditor_p.h"
#include "jobschedule.h"
#include "jobwords.h"
#include "planplaces.h"
#include "schedulereader.h"
#include "schedulewarnings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

using namespace cabledoc;

namespace {

/// A field of a cable that is a single text, unlike its ends.
struct TextField
{
    column::Column column;
    QString attribute;
    void (JobEditor::*set)(const QString &, const QString &);
};

const std::array<TextField, 6> &textFields()
{
    static const std::array<TextField, 6> fields{{
        {column::Type, words::Type, &JobEditor::setCableType},
        {column::Use, words::Use, &JobEditor::setCableUse},
        {column::Bundle, words::BundleName, &JobEditor::setCableBundleName},
        {column::BundleNumber, words::BundleNum, &JobEditor::setCableBundleNum},
        {column::BundleGroup, words::BundleGroupNum, &JobEditor::setCableBundleGroupNum},
        {column::Color, words::Color, &JobEditor::setCableColor},
    }};
    return fields;
}

/// Brings a job up to date with a schedule, or only counts the changes.
class ScheduleImport
{
public:
    ScheduleImport(JobEditor &job, bool dryRun)
        : m_job(job)
        , m_isDry(dryRun)
        , m_known(JobSnapshot(job), job.characterReferences())
        , m_firstFloor(job.getFloorTags().value(0))
    {
    }

    ScheduleReport import(const ScheduleFile &file)
    {
        m_report.warnings = scheduleWarnings(file, m_known);
        for (const NumberedRow &row : file.rows)
            import(row.texts, file.has);
        return m_report;
    }

private:
    void import(ScheduleRow row, const std::bitset<column::Count> &has)
    {
        const int cable = m_known.cableOfId.value(row[column::Id], -1);
        const ScheduleRow before = cable < 0 ? ScheduleRow() : m_known.row(cable);
        for (std::size_t column = 0; column < column::Count; ++column) {
            if (!has[column])
                row[column] = before[column];
        }
        row[column::Use] = storedCableUse(row[column::Use]);
        row[column::Color] = m_known.color(row[column::Color], row[column::Type]);
        if (cable < 0)
            addCable(row);
        else if (row != before)
            changeCable(m_known.tagOf(cable), row, before);
    }

    void addCable(const ScheduleRow &row)
    {
        ++m_report.cables;
        CableFields fields;
        fields.id = row[column::Id];
        fields.type = row[column::Type];
        fields.use = row[column::Use];
        fields.from = endTag(row, column::FromFloor);
        fields.to = endTag(row, column::ToFloor);
        fields.bundleName = row[column::Bundle];
        fields.bundleNum = row[column::BundleNumber];
        fields.bundleGroupNum = row[column::BundleGroup];
        fields.color = row[column::Color];
        if (!m_isDry)
            m_job.addCable(Cable(fields), addmode::GivenId);
    }

    void changeCable(const QString &cable, const ScheduleRow &row, const ScheduleRow &before)
    {
        ++m_report.changed;
        for (const TextField &field : textFields()) {
            if (row[field.column] != before[field.column])
                set(cable, field.attribute, row[field.column], field.set);
        }
        if (!(endIn(row, column::FromFloor) == endIn(before, column::FromFloor)))
            set(cable, words::From, endTag(row, column::FromFloor), &JobEditor::setCableFrom);
        if (!(endIn(row, column::ToFloor) == endIn(before, column::ToFloor)))
            set(cable, words::To, endTag(row, column::ToFloor), &JobEditor::setCableTo);
    }

    void set(const QString &cable, const QString &attribute, const QString &text,
             void (JobEditor::*setter)(const QString &, const QString &))
    {
        if (m_isDry)
            return;
        // The setters of cables do not add an attribute that an older file lacks.
        JobTree &tree = JobEditorPrivate::of(m_job).tree;
        tree.addAttribute(tree.element(ElementKind::Cables, cable), attribute, QString());
        (m_job.*setter)(cable, text);
    }

    // Ends of cables. If the job lacks an end, the import adds it. In a dry run the end counts as added, but has no
    // tag.

    QString endTag(const ScheduleRow &row, std::size_t floorColumn)
    {
        const CableEnd end = endIn(row, floorColumn);
        if (end == CableEnd())
            return QString();
        const auto found = m_known.tagOfEnd.find(end);
        if (found != m_known.tagOfEnd.end())
            return found->second;
        const QString tag = addPort(end, row[column::Use]);
        m_known.tagOfEnd.insert({end, tag});
        return tag;
    }

    QString addPort(const CableEnd &end, const QString &use)
    {
        ++m_report.ports;
        RoomPlace &room = roomPlace(end);
        const QPointF place = placeOfPort(room.ports++, room.area);
        PortFields fields;
        fields.id = end.port;
        fields.x = place.x();
        fields.y = place.y();
        fields.use = use;
        fields.room = room.tag;
        fields.floor = room.floorTag;
        return m_isDry ? QString() : m_job.addPort(Port(fields), addmode::GivenId);
    }

    RoomPlace &roomPlace(const CableEnd &end)
    {
        FloorPlace &floor = floorPlace(end.floor);
        const auto found = m_known.rooms.find({end.floor, end.room});
        return found != m_known.rooms.end() ? found->second : addRoom(end, floor);
    }

    RoomPlace &addRoom(const CableEnd &end, FloorPlace &floor)
    {
        const bool isUndefined = end.room.isEmpty();
        RoomFields fields;
        if (!isUndefined) {
            ++m_report.rooms;
            fields = placeOfRoom(floor.newRooms++, floor.bottom);
        }
        fields.element = words::Undefined;
        fields.id = isUndefined ? words::Undefined : end.room;
        fields.floor = floor.tag;
        QString tag;
        if (!m_isDry) {
            ensureRoomList(floor);
            tag = m_job.addRoom(Room(fields), isUndefined ? addmode::GivenNames : addmode::GivenId);
        }
        const QRectF area(fields.x, fields.y, fields.width, fields.height);
        return m_known.rooms[{end.floor, end.room}] = {floor.tag, tag, area, 0};
    }

    /// Adds a list of rooms to a floor without one. Only floors that the import has not added can lack it.
    void ensureRoomList(const FloorPlace &floor)
    {
        JobTree &tree = JobEditorPrivate::of(m_job).tree;
        if (m_job.getToRoomList(floor.tag).isNull())
            tree.append(words::RoomList, tree.element(ElementKind::Floors, floor.tag));
    }

    FloorPlace &floorPlace(const QString &id)
    {
        const auto found = m_known.floors.find(id);
        if (found != m_known.floors.end())
            return *found;
        ++m_report.floors;
        const QString tag = m_isDry ? QString()
                                    : m_job.addFloor(QString(), id, m_job.getFloorCeilingHeight(m_firstFloor),
                                                     QString(), addmode::GivenId);
        m_known.rooms[{id, QString()}] = {tag, words::Undefined, QRectF(), 0};
        return *m_known.floors.insert(id, {tag, 0.0, 0});
    }

    JobEditor &m_job;
    bool m_isDry;
    JobSchedule m_known;
    QString m_firstFloor;
    ScheduleReport m_report;
};

QByteArray textOf(const JobSchedule &schedule, const CsvStyle &style)
{
    QStringList fields;
    for (const ColumnName &column : columnNames)
        fields.append(QLatin1String(column.name));
    QByteArray text = csvBeginning(style) + csvLine(fields, style);
    for (const int cable : schedule.cables) {
        fields.clear();
        for (const QString &field : schedule.row(cable))
            fields.append(field);
        text += csvLine(fields, style);
    }
    return text;
}

} // namespace

ScheduleReport cabledoc::importSchedule(JobEditor &job, const QString &fileName, const CsvOptions &options, bool dryRun)
{
    QFile file(fileName);
    QByteArray text;
    if (file.open(QIODevice::ReadOnly))
        text = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return importScheduleText(job, text, options, dryRun);
    ScheduleReport report;
    report.error = file.errorString();
    return report;
}

ScheduleReport cabledoc::importSchedule(JobEditor &job, const QString &fileName, bool dryRun)
{
    return importSchedule(job, fileName, CsvOptions(), dryRun);
}

ScheduleReport cabledoc::importScheduleText(JobEditor &job, const QByteArray &text, const CsvOptions &options,
                                            bool dryRun)
{
    const ScheduleFile file = readSchedule(text, options, job.characterReferences());
    ScheduleReport report;
    report.error = file.error;
    report.problems = file.problems;
    const QDomElement root = job.getToCableList().parentNode().toElement();
    if (report.error.isEmpty() && floorKind().listIn(root).isNull())
        report.error = QCoreApplication::translate("Schedule", "%1 has no list of cables or no list of floors")
                           .arg(job.filename());
    if (!report.error.isEmpty() || !report.problems.isEmpty())
        return report;
    return ScheduleImport(job, dryRun).import(file);
}

QByteArray cabledoc::exportSchedule(const JobEditor &job, const CsvStyle &style)
{
    return textOf(JobSchedule(JobSnapshot(job), job.characterReferences()), style);
}

QByteArray cabledoc::exportSchedule(const JobSnapshot &job, const CsvStyle &style)
{
    return textOf(JobSchedule(job, true), style);
}
