#include "jobeditor_p.h"

using namespace cabledoc;

void JobEditor::updateAllInternalLists()
{
    d->tree.index().rebuild();
}

void JobEditor::populateCurrentCablesLists()
{
    d->tree.index().rebuild(ElementKind::Cables);
}

void JobEditor::populateCableMap()
{
    d->tree.index().rebuild(ElementKind::Cables);
}

void JobEditor::populateCableTypeMap()
{
    // One table answers all questions about lists of cables.
    populateCurrentCablesLists();
}

void JobEditor::populateConnectionMap()
{
    d->tree.index().rebuild(ElementKind::Connections);
}

void JobEditor::populateSheetMap()
{
    d->tree.index().rebuild(ElementKind::Sheets);
}

void JobEditor::populateDeviceMap()
{
    d->tree.index().rebuild(ElementKind::Devices);
}

void JobEditor::populateVerticeMap()
{
    d->tree.index().rebuild(ElementKind::Vertices);
}

void JobEditor::populateFreeTextMap()
{
    d->tree.index().rebuild(ElementKind::FreeTexts);
}

void JobEditor::populateFloorMap()
{
    d->tree.index().rebuild(ElementKind::Floors);
}

void JobEditor::populateRoomMap()
{
    d->tree.index().rebuild(ElementKind::Rooms);
}

void JobEditor::populatePortMap()
{
    d->tree.index().rebuild(ElementKind::Ports);
}

void JobEditor::populateActivePortMap()
{
    d->tree.index().rebuild(ElementKind::ActivePorts);
}

void JobEditor::populateVerticalRunMap()
{
    d->tree.index().rebuild(ElementKind::VerticalRuns);
}

void JobEditor::populatePointMap()
{
    d->tree.index().rebuild(ElementKind::Points);
}

void JobEditor::populateFloorFreeTextMap()
{
    d->tree.index().rebuild(ElementKind::FloorFreeTexts);
}
