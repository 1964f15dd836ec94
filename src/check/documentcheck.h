#pragma once

#include "bkxmleditor.h"
#include "cabledoc_export.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// One thing in a file that is not as it should be.
struct Finding
{
    /// Fixed name of the rule, see checkFile().
    QString rule;
    /// Line of the file in which the element begins.
    int line = 0;
    /// Path of the element below the root, such as "Cable_List/Cable7". Empty for the root.
    QString element;
    /// Translated description of what is wrong.
    QString message;
};

/// What checkFile() has found.
struct CheckReport
{
    /// Why the file cannot be read, or empty if it can.
    QString error;
    /// Findings in the order of their lines.
    QVector<Finding> findings;
};

/// Options of checkFile().
struct CheckOptions
{
    /// Whether the file will be saved with character references, see BKXMLEditor::setCharacterReferences().
    bool characterReferences = false;
    /// Whether the attachments of tests are looked for in the folder that attachmentFolder() returns, and read.
    bool attachments = true;
    /// Size in bytes above which a file is not read.
    qint64 maximumFileSize = BKXMLEditor::defaultMaximumFileSize;
};

/// Checks a job or template file and returns its findings. The file is not changed. An older file is checked in the
/// form that it has after its conversion to the current version.
///
///     rule                 what it finds
///     unknown-root         The file is neither a job nor a template. Nothing else is checked.
///     unknown-version      The version of the file is not known. Nothing else is checked.
///     old-version          The version of the file is not the current one.
///     duplicate-tag        Several elements of a kind have the same tag. Only the first can be reached.
///     duplicate-id         Several elements of a list have the same id, or several bundles or test
///                          definitions have the same name.
///     missing-reference    An element refers to another one that does not exist.
///     invalid-definition   A test definition cannot be used, see TestDef::validDef().
///     invalid-number       A number is not finite, or its field cannot hold it.
///     missing-attachment   An attachment of a test cannot be read, or its content is not that of the test.
///     lost-character       A save will write a character as "?".
CABLEDOC_EXPORT CheckReport checkFile(const QString &filename, const CheckOptions &options = {});

} // namespace cabledoc
