#pragma once

#include "xmlproblem.h"

#include <QtCore/QByteArray>

/// Limits of a file. A file beyond them could make the parser or the tree fail.
namespace cabledoc {

/// With some thousands of levels, the recursive functions of the tree crash the process.
constexpr int maximumDepth = 256;
/// The parser's time grows with the square of the number of attributes of an element.
constexpr int maximumAttributes = 4096;

/// Searches an undecoded XML text for anything that the parser must not see: the mark of another encoding, control
/// characters, too many levels or attributes, and document types with declarations or quoted names. These could define
/// entities that expand without end or that cannot be resolved. The parser finds errors of syntax.
XmlProblem scanXml(const QByteArray &text);

} // namespace cabledoc
