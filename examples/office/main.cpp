// Opens a job, names its floors, draws the same rooms on each of them, and saves it.

#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QRect>
#include <QtCore/QVector>

#include <cstdio>

namespace {

struct Outline
{
    QString name;
    /// In plan pixels.
    QRect rectangle;
};

void drawRooms(JobEditor &job, const QString &floorTag)
{
    const QVector<Outline> outlines{
        {QStringLiteral("Server room"), {0, 0, 240, 320}},
        {QStringLiteral("Reception"), {240, 0, 480, 320}},
        {QStringLiteral("Meeting room"), {720, 0, 360, 320}},
        {QStringLiteral("Open office"), {0, 400, 1080, 480}},
    };
    for (const Outline &outline : outlines) {
        Room room;
        room.setFloor(floorTag);
        room.setID(outline.name);
        room.setX(outline.rectangle.x());
        room.setY(outline.rectangle.y());
        room.setWidth(outline.rectangle.width());
        room.setHeight(outline.rectangle.height());
        room.setRoomNameX(outline.rectangle.center().x());
        room.setRoomNameY(outline.rectangle.center().y());
        // Mode 1: the id is given, the tag is generated.
        job.addRoom(room, 1);
    }
}

int fail(const QString &message)
{
    std::fprintf(stderr, "office: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().size() != 2)
        return fail(QStringLiteral("one job file is needed"));

    JobEditor &job = JobEditor::Instance();
    if (!job.Load(QCoreApplication::arguments().at(1)))
        return fail(job.error());

    const QStringList floors = job.getFloorTags();
    for (const QString &floorTag : floors) {
        job.setFloorId(floorTag, QStringLiteral("Level %1").arg(JobEditor::getFloorNumber(floorTag)));
        job.setFloorCeilingHeight(floorTag, 9.5);
        drawRooms(job, floorTag);
    }
    ScaleSettings scale = job.getScaleSettings(QStringLiteral("FloorPlan_Settings"));
    scale.setStyle(1);
    job.setScaleSettings(scale, QStringLiteral("FloorPlan_Settings"));

    if (!job.save())
        return fail(job.error());
    JobEditor::Destroy();
    return 0;
}
