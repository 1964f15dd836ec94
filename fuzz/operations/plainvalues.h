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

/// An attribute of a kind of element.
struct PlainAttribute
{
    QString name;
    Value value;
    /// Text that is used if the attribute is missing.
    QString missing;
    /// Which elements have the attribute.
    enum Use {
        /// New elements have it.
        New,
        /// New elements have it, and readers add it if it is missing.
        Completed,
        /// New elements do not have it.
        Optional,
    } use = New;
};
using PlainAttributes = std::vector<PlainAttribute>;

/// A kind of elements with tags and ids, as job files have them.
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
/// Returns the lists of print, page and scale settings.
const std::vector<PlainSettings> &plainSettings();

/// Values by the names of attributes, in the form in which the library writes them.
using Fields = std::map<QString, QString>;

/// Returns the number in the form of C's "%g" that reads back as the same value, with at least six digits.
QString plainNumber(double number);
/// Returns the number in a text without its fraction: the nearest int for a number that is too large, and 0 for a text
/// that is not a number.
int wholePart(const QString &text);
/// Returns the value in a text in the form in which the library writes it.
QString canonical(Value value, const QString &text);
/// Returns the values of an element, with the defaults for missing ones. Returns the defaults for a null element.
Fields fieldsOf(const PlainAttributes &attributes, const PlainElement *element);
/// Returns the attributes of a new element.
Fields newFields(const PlainAttributes &attributes, const Fields &fields);
/// Adds the missing attributes that readers add.
void complete(const PlainAttributes &attributes, PlainElement *element);
/// Returns the entries of a text with commas.
QStringList entriesOf(const QString &text);
