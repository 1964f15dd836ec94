#pragma once

#include "choices.h"
#include "plainjob.h"

/// Returns a value of an attribute as a file may have it. Sometimes it does not fit the type.
QString randomValue(Choices &choices, Kind kind, const PlainAttribute &attribute);
/// Returns a value of an element without tags and ids.
QString randomValue(Choices &choices, const PlainAttribute &attribute);
/// Returns values of all attributes, in the form in which the library writes them.
Fields randomFields(Choices &choices, const PlainAttributes &attributes);
Fields randomFields(Choices &choices, Kind kind);

/// Returns a job of the current version with elements of all kinds. Some of them share tags and ids, lack attributes or
/// lists, or refer to elements that do not exist.
PlainElement randomJob(Choices &choices);
