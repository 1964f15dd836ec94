#include "jobeditor.h"

#include "childelements.h"
#include "jobwords.h"

using namespace cabledoc;

bool JobEditor::checkVersion()
{
    // The first child of the document has to be the root: nothing skips a comment.
    const QDomElement root = m_document.firstChild().toElement();
    if (root.tagName() != words::Job)
        return false;
    if (version() == words::CurrentVersion)
        return true;
    // Nothing is written: the job on the disk stays of its version until it is saved.
    if (!convertToCurrentVersion([] { return true; }))
        return false;
    addMissingContainers(root);
    return true;
}

/// Gives a job what the operations of today expect of every job.
void JobEditor::addMissingContainers(const QDomElement &root)
{
    addSkeleton(root);
    for (const QDomElement &floor : ChildElements(getElement(words::FloorList))) {
        const QDomElement rooms = ensureElement(words::RoomList, floor);
        if (rooms.firstChildElement(words::Undefined).isNull())
            appendElement(words::Undefined, rooms).setAttribute(words::Id, words::Undefined);
        for (const QDomElement &room : ChildElements(rooms))
            addRoomContainers(room);
    }
    for (const QDomElement &sheet : ChildElements(getElement(words::SheetList)))
        addSheetContainers(sheet);
}
