#pragma once

#include "pdffile.h"

#include <QtCore/QFile>
#include <QtCore/QRectF>

#include <vector>

namespace cabledoc {

class FileReplacement;

/// A link, with its area in the coordinates of PDF.
struct PdfLink
{
    int onPage;
    int toPage;
    QRectF area;
};

/// What QPdfWriter does not write.
struct PdfAdditions
{
    QString title;
    QString author;
    std::vector<PdfLink> links; ///< in the order of their pages
    QVector<OutlineEntry> outline;
};

/// Returns the message for a temporary file that could not be written. QPdfWriter does not keep the reason. Most often,
/// the disk is full.
QString temporaryFileProblem();

/// Writes a PDF file of QPdfWriter as another one, with additions. The date is that of SOURCE_DATE_EPOCH, or else the
/// present one. Returns an empty string, or why it could not be done.
///
/// The objects of the file are copied one by one. Libraries for PDF files keep all of them in memory, and a report of
/// ten thousand pages has seventy thousand.
QString completePdf(QFile *pages, const PdfAdditions &additions, FileReplacement *file);

} // namespace cabledoc
