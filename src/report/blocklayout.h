#pragma once

#include "drawingfonts.h"
#include "reportblocks.h"
#include "texthash.h"

#include <functional>
#include <memory>

namespace cabledoc {

// What all that is on a page has in common, in millimetres
constexpr double smallSize = 2.4; ///< of letters
constexpr double gap = 3.0;       ///< between blocks
inline const LineStyle rowLine{QColor(0xC8, 0xC8, 0xC8), 0.12, LineStyle::Solid};

/// Where the groups of a report are.
struct PageNumbers
{
    TextMap<int> ofAnchors; ///< numbers of the pages, counted from 0
    int count = 0;          ///< number of pages

    /// Returns the page of an anchor, or -1 if it is not known.
    int pageOf(const QString &anchor) const
    {
        const auto found = ofAnchors.find(anchor);
        return found == ofAnchors.end() ? -1 : found->second;
    }
};

/// Something that is not divided, at the origin.
struct Piece
{
    double height = 0.0;
    QVector<SceneItem> items;
    double keptHeight = 0.0;                    ///< what must fit below it on the same page
    std::shared_ptr<const Piece> repeated = {}; ///< stands above it if it is the first on a page
};

using PieceSink = std::function<void(const Piece &piece)>;

/// Where blocks are laid out.
struct BlockSpace
{
    QSizeF size; ///< the width of all blocks, and the largest height of a picture
    const TextMeasure &measure;
    const PageNumbers &numbers; ///< of the groups to which blocks lead
};

/// Lays a block out. Gives its pieces to a sink, from top to bottom.
void layOut(const ReportBlock &block, const BlockSpace &space, const PieceSink &sink);

} // namespace cabledoc
