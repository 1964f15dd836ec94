#pragma once

#include "xmlproblem.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

#include <vector>

/// The two ways from an XML text to a tree. Both give the same tree.
namespace cabledoc {

/// Values of the elements in one list. buildTree() notes them, because it takes much longer to read them from the tree
/// later.
struct ListNotes
{
    QString listName; ///< a child of the root; nothing is noted if this is empty
    QStringList attributes;
    QString childName; ///< a child of the elements in the list
    QString childAttribute;
    /// The values of each attribute, and at last those of the attribute of the child. They are in the order of the
    /// elements, and null where an element lacks an attribute. Empty if nothing was noted.
    std::vector<std::vector<QString>> values;
};

/// Reads a text that has the form of a save into an empty document. This is faster than parseTree() and takes less
/// memory, but the nodes have no line numbers. Returns false, and leaves a part of the tree, if only parseTree() can
/// read the text, or tell what is wrong with it.
bool buildTree(const QByteArray &text, QDomDocument *document, ListNotes *notes = nullptr);

/// Reads any text into a document with Qt's parser. The message of the result is null if this succeeds. If it fails, a
/// part of the tree may be left. The line and the column are 0 if the text is blank.
XmlProblem parseTree(const QByteArray &text, QDomDocument *document);

} // namespace cabledoc
