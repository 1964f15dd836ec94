#pragma once

#include "scene.h"

#include <memory>

namespace cabledoc {

/// An entry in the outline of a PDF file.
struct OutlineEntry
{
    QString title;
    int page = 0;  ///< number of the page to which the entry leads, counted from 0
    int level = 0; ///< 0 for the entries that are always seen. Those below an entry have the next level.
};

/// A PDF file that is written page by page. Pages that are added are in a temporary file, so that the memory does not
/// grow with what is on them. The fonts of drawings must be loaded.
class PdfFile
{
public:
    PdfFile(const QString &title, const QString &author);
    ~PdfFile();
    Q_DISABLE_COPY(PdfFile)

    /// Adds a page at its exact size.
    void addPage(const Scene &page);
    /// Adds a warning if no font has some of the characters of the pages, which are then missing.
    void warn(QStringList *warnings) const;
    /// Writes the file whole or not at all, and replaces a file of the same name. Returns an empty string, or why the
    /// file could not be written. Nothing can be added afterwards.
    QString save(const QString &fileName, const QVector<OutlineEntry> &outline);

private:
    struct Data;

    const std::unique_ptr<Data> d;
};

} // namespace cabledoc
