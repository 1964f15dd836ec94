#include "papersizes.h"

#include <QtCore/QVector>

#include <algorithm>

using namespace cabledoc;

namespace {

struct PaperSize
{
    QString name;
    double width; // inches, in portrait
    double height;
};

/// Returns all paper sizes in the order in which a user interface offers them. The dimensions are constants of the file
/// format and are not computed from the millimetres: 210 mm are 8.26 inches in the width of A4, but 8.267 inches in the
/// height of A5.
const QVector<PaperSize> &paperSizeTable()
{
    static const QVector<PaperSize> table{
        {QStringLiteral("Letter: 8.5 in. x 11 in."), 8.5, 11.0},
        {QStringLiteral("Folio: 8.5 in. x 13 in."), 8.5, 13.0},
        {QStringLiteral("Legal: 8.5 in. x 14 in."), 8.5, 14.0},
        {QStringLiteral("Executive: 7.5 in. x 10 in."), 7.5, 10.0},
        {QStringLiteral("Tabloid: 11 in. x 17 in."), 11.0, 17.0},
        {QStringLiteral("DLE: 110 mm. x 220 mm."), 4.331, 8.661},
        {QStringLiteral("C5E: 163 mm. x 229 mm."), 6.417, 9.016},
        {QStringLiteral("B10: 32 mm. x 45 mm."), 1.26, 1.772},
        {QStringLiteral("B9: 45 mm. x 64 mm."), 1.772, 2.52},
        {QStringLiteral("B8: 64 mm. x 91 mm."), 2.52, 3.583},
        {QStringLiteral("B7: 91 mm. x 128 mm."), 3.583, 5.039},
        {QStringLiteral("B6: 128 mm. x 182 mm."), 5.039, 7.165},
        {QStringLiteral("B5: 182 mm. x 257 mm."), 7.165, 10.118},
        {QStringLiteral("B4: 257 mm. x 364 mm."), 10.118, 14.331},
        {QStringLiteral("B3: 364 mm. x 515 mm."), 14.331, 20.275},
        {QStringLiteral("B2: 515 mm. x 728 mm."), 20.275, 28.661},
        {QStringLiteral("B1: 728 mm. x 1030 mm."), 28.661, 40.551},
        {QStringLiteral("B0: 1030 mm. x 1456 mm."), 40.551, 57.323},
        {QStringLiteral("A9: 37 mm. x 52 mm."), 1.4567, 2.047},
        {QStringLiteral("A8: 52 mm. x 74 mm."), 2.047, 2.913},
        {QStringLiteral("A7: 74 mm. x 105 mm."), 2.913, 4.134},
        {QStringLiteral("A6: 105 mm. x 148 mm."), 4.134, 5.827},
        {QStringLiteral("A5: 148 mm. x 210 mm."), 5.826, 8.267},
        {QStringLiteral("A4: 210 mm. x 297 mm."), 8.26, 11.692},
        {QStringLiteral("A3: 297 mm. x 420 mm."), 11.692, 16.535},
        {QStringLiteral("A2: 420 mm. x 594 mm."), 16.535, 23.386},
        {QStringLiteral("A1: 594 mm. x 841 mm."), 23.386, 33.11},
        {QStringLiteral("A0: 841 mm. x 1189 mm."), 33.11, 46.811},
        {QStringLiteral("A: 8.5 in. x 11 in."), 8.5, 11.0},
        {QStringLiteral("B: 11 in. x 17 in."), 11.0, 17.0},
        {QStringLiteral("C: 17 in. x 22 in."), 17.0, 22.0},
        {QStringLiteral("D: 22 in. x 34 in."), 22.0, 34.0},
        {QStringLiteral("E: 34 in. x 44 in."), 34.0, 44.0},
        {QStringLiteral("9 in. x 12 in."), 9.0, 12.0},
        {QStringLiteral("12 in. x 18 in."), 12.0, 18.0},
        {QStringLiteral("18 in. x 24 in."), 18.0, 24.0},
        {QStringLiteral("24 in. x 36 in."), 24.0, 36.0},
        {QStringLiteral("30 in. x 42 in."), 30.0, 42.0},
    };
    return table;
}

} // namespace

QStringList cabledoc::paperSizeNames()
{
    QStringList names;
    for (const PaperSize &paper : paperSizeTable())
        names.append(paper.name);
    return names;
}

QString cabledoc::paperSizeNamed(const QString &text)
{
    for (const PaperSize &paper : paperSizeTable()) {
        if (paper.name.compare(text, Qt::CaseInsensitive) == 0
            || paper.name.startsWith(text + QLatin1Char(':'), Qt::CaseInsensitive))
            return paper.name;
    }
    return QString();
}

QSizeF cabledoc::paperDimensions(const QString &name, int orientation)
{
    const QVector<PaperSize> &table = paperSizeTable();
    const auto paper =
        std::find_if(table.cbegin(), table.cend(), [&name](const PaperSize &size) { return size.name == name; });
    if (paper == table.cend() || orientation < 0 || orientation > 1)
        return noDimensions();
    const QSizeF portrait(paper->width, paper->height);
    return orientation == 0 ? portrait : portrait.transposed();
}

QSizeF cabledoc::noDimensions()
{
    return {-1.0, -1.0};
}
