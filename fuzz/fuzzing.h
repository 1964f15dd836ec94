#pragma once

#include "xmlfile.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

#include <cstddef>
#include <cstdint>

class JobEditor;

/// Functions that all fuzzers use. Each fuzzer runs one input. libFuzzer makes the inputs.

/// Reports what is wrong, and ends the process.
[[noreturn]] void fail(const char *what);

/// Ends the process if the condition does not hold.
inline void expect(bool holds, const char *what)
{
    if (!holds)
        fail(what);
}

/// Writes the input to a file with the given name in a folder of the fuzzer's own. Returns the path of the file.
QString inputFile(const char *name, const std::uint8_t *data, std::size_t size);

/// Returns whether two trees have the same content in the same order. The order of attributes does not count.
bool equalTrees(const QDomNode &a, const QDomNode &b);

/// Expects that the snapshot of a job equals that of the file from which it was loaded or to which it was saved.
void expectEqualSnapshots(const JobEditor &job, const QString &fileName);
