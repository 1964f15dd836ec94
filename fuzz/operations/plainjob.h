#pragma once

#include "plainvalues.h"

/// The place of an element. All pointers are null if it does not exist.
struct Place
{
    PlainElement *element = nullptr;
    PlainElement *list = nullptr;
    /// Room, floor or sheet.
    PlainElement *holder = nullptr;
    /// Floor of the room that holds the element.
    PlainElement *floor = nullptr;
};

/// A job as it is in its file. All answers come from walks through the whole file.
class PlainJob
{
public:
    explicit PlainJob(const PlainElement &root)
        : m_root(root)
    {
    }

    PlainElement &root() { return m_root; }
    /// Returns the element at the end of a path. Each name in the path means the first child with that name. Returns
    /// null if an element of the path is missing.
    PlainElement *at(const QStringList &way);
    /// Returns the lists of a kind that can be reached.
    std::vector<Place> lists(Kind kind);
    /// Returns the elements in these lists, in document order.
    std::vector<Place> all(Kind kind);
    /// Returns the first element of each tag.
    std::vector<Place> counted(Kind kind);
    Place first(Kind kind, const QString &tag);
    PlainElement *element(Kind kind, const QString &tag) { return first(kind, tag).element; }
    bool exists(Kind kind, const QString &text, bool byTag);
    bool isEnd(const QString &tag) { return exists(Kind::Ports, tag, true) || exists(Kind::VertRuns, tag, true); }
    /// Returns the first tag, in string order, with the given id.
    QString tagOfId(Kind kind, const QString &id);
    QStringList tags(Kind kind);
    Place room(const QString &floorTag, const QString &roomTag);
    /// Returns the first room with the given id on a floor.
    Place roomById(const QString &floorTag, const QString &id);
    /// Returns the cable with the given tag, or with the given id if no cable has that tag.
    PlainElement *cable(const QString &tagOrId);
    /// Returns the tags of all ports and vertical runs on a floor.
    QStringList endsOnFloor(const QString &floorTag);
    /// Returns the tags of the cables that end at one of the given tags, in document order.
    QStringList cablesEndingAt(const QStringList &ends);
    /// Returns the record of an element, with its tag and those of the elements that hold it. Returns the default
    /// record if the element does not exist.
    Fields record(Kind kind, const Place &place);

    /// Returns the room "Undefined" of a list of rooms. Adds it if it is missing.
    static PlainElement &undefinedRoom(PlainElement *roomList);
    /// These remove an element and everything that the manual says is removed with it.
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
