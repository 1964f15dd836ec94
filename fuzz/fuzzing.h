#pragma once

#include "xmlfile.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

#include <cstddef>
#include <cstdint>

/// What the fuzzers share. Each of them runs one input; libFuzzer invents the inputs.

/// Says what does not hold and ends the process.
[[noreturn]] void fail(const char *what);

/// Ends the process when something does not hold that must.
inline void expect(bool holds, const char *what)
{
    if (!holds)
        fail(what);
}

/// Writes the input to a file of that name in a folder of the fuzzer's own, and returns its path.
QString inputFile(const char *name, const std::uint8_t *data, std::size_t size);

/// Whether two trees hold the same, in the same order; attributes have none.
bool equalTrees(const QDomNode &a, const QDomNode &b);
