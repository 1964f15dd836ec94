#pragma once

#include "bkxmleditor.h"
#include "cabledoc_export.h"

class JobEditor;

/// The template document: the one open template file of the process. It holds what new jobs start from: the contractor,
/// the settings of reports and views, test definitions and bundles of cable types.
class CABLEDOC_EXPORT BktEditor : public BKXMLEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(BktEditor)

public:
    /// @name The instance
    /// @{

    /// Returns the template document of the process. The first call creates it as an empty document.
    static BktEditor &Instance();
    /// Deletes the template document of the process, including all changes that are not saved. Does nothing if there is
    /// none.
    static void Destroy();
    /// @}

    /// @name Creating, loading and saving
    /// These operations return true if they succeed. Otherwise they return false, and error() tells why.
    /// @{

    /// Replaces the document by a new template with the given file name. It has default settings, an empty contractor,
    /// no test definitions and no bundles, and is not marked as changed. The file is not written yet. Fails for a null
    /// name. An empty name is allowed: it can be set later.
    bool New(const QString &filename);
    /// Replaces the document by the content of the given file. An older template is converted to version 3.0 step by
    /// step, and the file is saved after each step.
    ///
    /// Fails in these cases:
    ///
    /// - The name is empty. The document stays as it is.
    /// - The file does not exist, is larger than maximumFileSize(), or cannot be opened. The document keeps its
    ///   content, but has the new name.
    /// - The file is not valid XML. The document is empty.
    /// - The version of the file is not supported. The document holds the file as it was read.
    /// - The file cannot be saved after a step. It then holds what the last complete step has written.
    bool Load(const QString &filename);
    /// Loads a template like Load(), but does not save it: an older template is converted in memory only.
    bool LoadWithoutSaving(const QString &filename);
    /// Writes the document to its file and clears the mark of a change. Creates the file again if it has been removed.
    ///
    /// Fails in these cases, in which the file stays as it is and the document stays marked as changed:
    ///
    /// - The document has no name or no content.
    /// - The last Load() failed, and neither New(), saveAs() nor a Load() has succeeded since.
    /// - Another program has changed the file since it was read or written. See saveAnyway().
    /// - The file cannot be written.
    bool save();
    /// Writes the document to its file like save(), but replaces the file even if another program has changed it.
    bool saveAnyway();
    /// Writes the document to another file. Replaces an existing file. The document still belongs to its own file, and
    /// stays marked as changed if it was.
    bool saveAs(const QString &filename);

    /// Returns whether the document has been changed since it was last created, loaded or saved.
    using BKXMLEditor::fileChanged;
    /// Returns whether the file name has the extension "bkt", in upper or lower case.
    static bool checkBktExtension(const QString &filename);
    /// @}

    /// @name Jobs
    /// @{

    /// Copies the contractor of a job to the template, and adds the test definitions and bundles that the template
    /// lacks. The settings stay as they are. Does nothing for a null pointer.
    void Import(JobEditor *job);
    /// @}

    /// @name Converting older files
    /// @{

    /// Converts the tree to version 3.0 and saves the file after each step. Load() calls this operation. Returns false,
    /// with a text in error(), if the tree is not a template of a known version, or if a step cannot be saved.
    bool checkVersion();
    /// Converts a tree of version 1.4 to version 2.1 and returns true. Both arguments are the root. Nothing is saved.
    using BKXMLEditor::convert14To21;
    /// Converts a tree of version 2.1 to version 2.2 and returns true. Both arguments are the root. Nothing is saved.
    using BKXMLEditor::convert21To22;
    /// Converts a tree of version 2.2 to version 2.3 and returns true. Both arguments are the root. Nothing is saved.
    using BKXMLEditor::convert22To23;
    /// Converts a tree of version 2.3 to version 3.0 and returns true. Both arguments are the root. Nothing is saved.
    using BKXMLEditor::convert23To30;
    /// @}

protected:
    /// Creates an empty document.
    BktEditor();
    /// Creates a document and loads the given file, or makes a new template with that name if the file does not exist.
    /// Ends the process with exit status -1 if the file exists but cannot be loaded.
    explicit BktEditor(const QString &filename);
    /// Destroys the document. Changes are not saved.
    ~BktEditor() override;

private:
    bool load(const QString &filename, const std::function<bool()> &stepDone);
    bool checkVersion(const std::function<bool()> &stepDone);

    static BktEditor *s_instance;
};
