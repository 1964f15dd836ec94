#pragma once

#include "xmlproblem.h"

#include <QtCore/QByteArray>
#include <QtXml/QDomDocument>

/// The two ways from an XML text to a tree. Both give the same tree.
namespace cabledoc {

/// Reads a text that has the form of a save into an empty document. This is faster than parseTree() and takes less
/// memory, but the nodes have no line numbers. Returns false, and leaves a part of the tree, if only parseTree() can
/// read the text, or tell what is wrong with it.
bool buildTree(const QByteArray &text, QDomDocument *document);

/// Reads any text into a document with Qt's parser. The message of the result is null if this succeeds. If it fails, a
/// part of the tree may be left. The line and the column are 0 if the text is blank.
XmlProblem parseTree(const QByteArray &text, QDomDocument *document);

} // namespace cabledoc
