#pragma once

#include "plainvalues.h"

/// Where an element stands. Null pointers when it does not exist.
struct Place
{
    PlainElement *element = nullptr;
    PlainElement *list = nullptr;
    PlainElement *holder = nullptr; ///< room, floor or sheet
    PlainElement *floor = nullptr;  ///< of the room that holds it
};

/// A job as the file has it. Answers by walking through all of it.
class PlainJob
{
public:
    explicit PlainJob(const PlainElement &root)
        : m_root(root)
    {
    }

    PlainElement &root() { return m_root; }
    /// The element that a way of first children leads to; null when a step is missing.
    PlainElement *at(const QStringList &way);
    /// The lists of a kind that can be reached.
    std::vector<Place> lists(Kind kind);
    /// The elements in them, in document order.
    std::vector<Place> all(Kind kind);
    /// The first element of each tag.
    std::vector<Place> counted(Kind kind);
    Place first(Kind kind, const QString &tag);
    PlainElement *element(Kind kind, const QString &tag) { return first(kind, tag).element; }
    bool exists(Kind kind, const QString &text, bool byTag);
    bool isEnd(const QString &tag) { return exists(Kind::Ports, tag, true) || exists(Kind::VertRuns, tag, true); }
    /// The first tag, in string order, that has the id.
    QString tagOfId(Kind kind, const QString &id);
    QStringList tags(Kind kind);
    Place room(const QString &floorTag, const QString &roomTag);
    /// The first room with that id in the list of rooms.
    Place roomById(const QString &floorTag, const QString &id);
    /// The cable with that tag, or if there is none with that id.
    PlainElement *cable(const QString &tagOrId);
    /// The tags of all ports and vertical runs on a floor.
    QStringList endsOnFloor(const QString &floorTag);
    /// The tags of the cables in document order that lead to one of the ends.
    QStringList cablesEndingAt(const QStringList &ends);
    /// The whole record of an element, with its tag and what holds it; the default record if there is none.
    Fields record(Kind kind, const Place &place);

    /// The room "Undefined" of a list of rooms.
    static PlainElement &undefinedRoom(PlainElement *roomList);
    /// Each removes an element, with all that the manual says goes with it.
    void remove(Kind kind, const QString &tag);
    void removeFloor(const QString &tag);
    void removeSheet(const QString &tag);
    void removeRoom(const QString &floorTag, const QString &tag);

private:
    void removeNaming(Kind kind, const QString &tag, const QStringList &attributes);
    void forget(const std::vector<PlainElement *> &elements, const QString &tag, const QStringList &attributes);
    std::vector<PlainElement *> allVertRuns();
    void dropReferences(Kind kind, const QString &tag);

    PlainElement m_root;
};
