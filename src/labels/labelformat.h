#pragma once

#include "cabledoc_export.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <optional>

namespace cabledoc {

/// How labels lie on their paper. All lengths are in millimetres.
///
/// An application can make formats of its own. The labels must lie on the paper and must not overlap.
struct CABLEDOC_EXPORT LabelFormat
{
    /// Name of the format, such as "a4-5x13".
    QString name;
    /// Size of a sheet. It is empty for a continuous tape.
    QSizeF paper;
    /// Size of a label. On a tape, the height is the width of the tape, and the width is the length of the longest
    /// label.
    QSizeF label;
    /// Number of labels beside each other.
    int columns = 1;
    /// Number of labels below each other.
    int rows = 1;
    /// Left upper corner of the first label on a sheet.
    QPointF first;
    /// Distance from the left upper corner of a label to that of the next one.
    QSizeF pitch;
    /// Part of a label that is printed, from its left upper corner. The rest of a label that is wound around a cable is
    /// transparent. If the area is empty, all of the label is printed.
    QRectF printed;

    /// Returns whether this is a continuous tape. Each label is a page of its own, as long as its text needs.
    bool isTape() const { return paper.isEmpty(); }
    /// Returns the part of a label that is printed.
    QRectF printedPart() const { return printed.isEmpty() ? QRectF(QPointF(), label) : printed; }
    /// Returns the number of labels on a sheet.
    int labelsOnSheet() const { return columns * rows; }
    /// Returns the place of a label on its sheet, counted from 0 in rows from left to right.
    QRectF place(int number) const;
};

/// Returns the known formats: sheets of A4 and Letter with their numbers of columns and rows, sheets with labels that
/// are wound around cables, and tapes with their width.
CABLEDOC_EXPORT const QVector<LabelFormat> &labelFormats();
/// Returns the known format with the given name, or nothing if there is none.
CABLEDOC_EXPORT std::optional<LabelFormat> labelFormatOfName(const QString &name);

} // namespace cabledoc
