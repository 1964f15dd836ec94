#pragma once

#include "choices.h"
#include "plainjob.h"

/// A value of an attribute, as a file may have it: sometimes none of its type.
QString randomValue(Choices &choices, Kind kind, const PlainAttribute &attribute);
/// The same for what has no tags and ids.
QString randomValue(Choices &choices, const PlainAttribute &attribute);
/// Values of all attributes, in the form in which the library writes them.
Fields randomFields(Choices &choices, const PlainAttributes &attributes);
Fields randomFields(Choices &choices, Kind kind);

/// A job of the current version: elements of all kinds, of which some share tags and ids, lack attributes or lists, or
/// name what is not there.
PlainElement randomJob(Choices &choices);
