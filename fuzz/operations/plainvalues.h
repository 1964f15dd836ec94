#pragma once

#include "plaintree.h"

#include <vector>

enum class Kind {
    Cables,
    Connections,
    ActivePorts,
    Floors,
    Sheets,
    Rooms,
    Ports,
    VertRuns,
    Points,
    FloorTexts,
    Devices,
    Vertices,
    Texts,
};

enum class Value {
    Text,
    Whole,
    Real,
    Float,
    Flag,
    Pairs,
    List,
    Block,
    Curve,
};

struct PlainAttribute
{
    QString name;
    Value value;
    QString missing; ///< what stands for a missing attribute
    enum Use {
        New,       ///< new elements have it
        Completed, ///< new elements have it, and readers add it where it is missing
        Optional,  ///< new elements lack it
    } use = New;
};
using PlainAttributes = std::vector<PlainAttribute>;

/// What a job file has of elements with tags and ids.
struct PlainKind
{
    Kind kind;
    QString list;
    QString tagPrefix;
    PlainAttributes attributes;
};
const std::vector<PlainKind> &plainKinds();
const PlainKind &plainKind(Kind kind);
const PlainAttributes &testResultsAttributes();
const PlainAttributes &activeTestResultAttributes();
const PlainAttributes &testDefAttributes();
const PlainAttributes &addressAttributes();

/// One of the lists of settings.
struct PlainSettings
{
    QString list;
    QStringList entries;
    PlainAttributes attributes;
};
/// Those of print, page and scale settings.
const std::vector<PlainSettings> &plainSettings();

/// Values by the names of attributes, in the form in which the library writes them.
using Fields = std::map<QString, QString>;

/// The number in the form of C's "%g" that reads back as the same value, with at least six digits.
QString plainNumber(double number);
/// The number of a text without its fraction; the nearest int, and 0 for no number.
int wholePart(const QString &text);
/// The value that the text stands for, as the library writes it.
QString canonical(Value value, const QString &text);
/// What the element holds; the defaults for a null element.
Fields fieldsOf(const PlainAttributes &attributes, const PlainElement *element);
/// The attributes of a new element.
Fields newFields(const PlainAttributes &attributes, const Fields &fields);
/// Adds the attributes that readers add.
void complete(const PlainAttributes &attributes, PlainElement *element);
/// The entries of a text with commas.
QStringList entriesOf(const QString &text);
