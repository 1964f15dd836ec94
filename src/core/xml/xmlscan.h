#pragma once

#include "xmlproblem.h"

#include <QtCore/QByteArray>

/// Limits that a file must keep, so that neither the parser nor the tree can be made to fail.
namespace cabledoc {

/// Beyond some thousands of levels the tree's recursive functions end the process.
constexpr int maximumDepth = 256;
/// The parser's time grows with the square of the attributes of one element.
constexpr int maximumAttributes = 4096;

/// Looks through an undecoded XML text for what the parser must not see: the mark of another encoding, control
/// characters, too many levels or attributes, and document types that say more than a name (they could hold entities
/// that grow without end, or that cannot be resolved). Faults of syntax are left to the parser.
XmlProblem scanXml(const QByteArray &text);

} // namespace cabledoc
