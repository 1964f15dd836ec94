#pragma once

#include "bkxmleditor.h"
#include "cabledoc_export.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// Something in a file that is not as it should be.
struct Finding
{
    QString rule;    ///< its fixed name, from the table below
    int line = 0;    ///< where the element begins in the file
    QString element; ///< the element's path below the root, such as "Cable_List/Cable7"; empty for the root
    QString message; ///< what is wrong, translated
};

/// What checkFile() found.
struct CheckReport
{
    QString error;             ///< why the file cannot be read; empty when it can
    QVector<Finding> findings; ///< in the order of their lines
};

/// How checkFile() looks at a file.
struct CheckOptions
{
    /// Whether the file will be saved with character references, see BKXMLEditor::setCharacterReferences().
    bool characterReferences = false;
    qint64 maximumFileSize = BKXMLEditor::defaultMaximumFileSize; ///< bytes; a larger file is not read
};

/// Looks for what is wrong with a job or template file, and changes nothing. An older file is checked as it
/// will be when it has been brought to the current version.
///
///     rule                 what it finds
///     unknown-root         the file is neither a job nor a template; nothing else is looked at
///     unknown-version      its version is not known; nothing else is looked at
///     old-version          its version is not the current one
///     duplicate-tag        several elements of a kind have the same tag: only the first can be reached
///     duplicate-id         several elements of a list have the same id, or several bundles or definitions
///                          the same name
///     missing-reference    an element names another one that is not there
///     invalid-definition   a test definition that cannot be used, as TestDef::validDef() says
///     invalid-number       a number that is not finite, or that its field cannot hold
///     lost-character       a character that a save will write as "?"
CABLEDOC_EXPORT CheckReport checkFile(const QString &filename, const CheckOptions &options = {});

} // namespace cabledoc
