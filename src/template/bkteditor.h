#pragma once

#include "bkxmleditor.h"
#include "cabledoc_export.h"

class JobEditor;

/// The template document: the one open template file of the process. It holds what new jobs start from: the
/// contractor, the settings of reports and views, test definitions and bundles of cable types.
class CABLEDOC_EXPORT BktEditor : public BKXMLEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(BktEditor)

public:
    // The instance

    /// The template document of the process, created empty on the first call.
    static BktEditor &Instance();
    /// Deletes the instance, if there is one, with everything that was not saved.
    static void Destroy();

    // Creating, loading and saving

    /// Replaces the document by a new template to be saved under that name: settings with their defaults, a
    /// contractor without data, no definitions and no bundles. Nothing is written yet. False, with a text in
    /// error(), for a null name; an empty one can be set later.
    bool New(const QString &filename);
    /// Replaces the document by the content of a file. An older file is brought to version 3.0 in steps, and
    /// is rewritten after each of them. False, with a text in error(), when the name is empty, or the file
    /// is missing, cannot be opened (the open template is as it was, under the new name), is no XML (the
    /// document is empty), has a version that is not supported or cannot be rewritten (the file then holds
    /// what the last completed step wrote).
    bool Load(const QString &filename);
    /// Does what Load() does, but leaves an older file as it is: only the document in memory is converted.
    bool LoadWithoutSaving(const QString &filename);
    /// Writes the document to its file. Returns false, with a text in error(), if it has no name or no content, if the
    /// last Load() failed (until New(), saveAs() or a Load() succeeds), if another program has changed the file since
    /// it was read or written, or if the file cannot be written. The file is then as it was. A file that was taken away
    /// is created again.
    bool save();
    /// Does what save() does, but replaces the file even if another program has changed it.
    bool saveAnyway();
    /// Writes the document to another file. The document still belongs to its own file, which save() writes,
    /// and counts as changed as it did before.
    bool saveAs(const QString &filename);

    /// Whether the document was changed since it was last created, loaded or saved.
    using BKXMLEditor::fileChanged;
    /// Whether the file name has the extension "bkt", in any case.
    static bool checkBktExtension(const QString &filename);

    /// Takes over the contractor of a job, and the test definitions and bundles that the template lacks. The
    /// settings stay as they are.
    void Import(JobEditor *job);

    /// Brings the tree to version 3.0 and saves it after each step. Load() does it. False, with a text in
    /// error(), when the tree is no template of a known version or cannot be saved.
    bool checkVersion();
    /// Each takes the tree from one version to the next: sets the version, adds what the newer one brought where it is
    /// missing, and returns true. Both arguments are the root. Nothing is saved.
    using BKXMLEditor::convert14To21;
    using BKXMLEditor::convert21To22;
    using BKXMLEditor::convert22To23;
    using BKXMLEditor::convert23To30;

protected:
    /// An empty document.
    BktEditor();
    /// Loads the file when it exists, and otherwise makes a new template of that name. A file that cannot be
    /// loaded ends the process with exit status -1.
    explicit BktEditor(const QString &filename);
    ~BktEditor() override;

private:
    bool load(const QString &filename, const std::function<bool()> &stepDone);
    bool checkVersion(const std::function<bool()> &stepDone);

    static BktEditor *s_instance;
};
