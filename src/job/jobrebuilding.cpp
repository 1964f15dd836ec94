#include "jobeditor.h"

#include "jobindex.h"

using namespace cabledoc;

void JobEditor::updateAllInternalLists()
{
    populateCurrentCablesLists();
    populateCableMap();
    populateConnectionMap();
    populateSheetMap();
    populateDeviceMap();
    populateVerticeMap();
    populateFreeTextMap();
    populateFloorMap();
    populateRoomMap();
    populatePortMap();
    populateActivePortMap();
    populateVerticalRunMap();
    populatePointMap();
    populateFloorFreeTextMap();
}

void JobEditor::populateCurrentCablesLists()
{
    m_index->references.reset();
    m_index->cables = CableLists(getToCableList());
}

void JobEditor::populateCableMap()
{
    populate(ElementKind::Cables);
}

void JobEditor::populateCableTypeMap()
{
    // One walk makes all lists of cables.
    populateCurrentCablesLists();
}

void JobEditor::populateConnectionMap()
{
    populate(ElementKind::Connections);
}

void JobEditor::populateSheetMap()
{
    populate(ElementKind::Sheets);
}

void JobEditor::populateDeviceMap()
{
    populate(ElementKind::Devices);
}

void JobEditor::populateVerticeMap()
{
    populate(ElementKind::Vertices);
}

void JobEditor::populateFreeTextMap()
{
    populate(ElementKind::FreeTexts);
}

void JobEditor::populateFloorMap()
{
    populate(ElementKind::Floors);
}

void JobEditor::populateRoomMap()
{
    populate(ElementKind::Rooms);
}

void JobEditor::populatePortMap()
{
    populate(ElementKind::Ports);
}

void JobEditor::populateActivePortMap()
{
    populate(ElementKind::ActivePorts);
}

void JobEditor::populateVerticalRunMap()
{
    populate(ElementKind::VerticalRuns);
}

void JobEditor::populatePointMap()
{
    populate(ElementKind::Points);
}

void JobEditor::populateFloorFreeTextMap()
{
    populate(ElementKind::FloorFreeTexts);
}

/// Rebuilds an index for a caller, who may also have changed what elements name.
void JobEditor::populate(ElementKind kind)
{
    m_index->references.reset();
    rebuildIndex(kind);
}

void JobEditor::rebuildIndex(ElementKind kind)
{
    m_index->rebuild(kind, m_document.firstChild().toElement());
}
