#pragma once

#include "plandrawing.h"

#include <QtCore/QMap>

namespace cabledoc {

/// Cables that are drawn in the same way.
struct ColorGroup
{
    QString name;                                  ///< what the legend calls them
    QColor color;                                  ///< colour of the lines
    LineStyle::Pattern pattern = LineStyle::Solid; ///< gaps of the lines
    QString mark = {};                             ///< mark at the ports, or empty
};

/// The colours of the cables of a job.
class CablePalette
{
public:
    CablePalette(const JobSnapshot &job, CableColors colors);

    /// Returns the group of the cable at the given position.
    int groupOf(int cable) const { return m_groupOfCable.at(cable); }
    /// Returns the group of a way that cables of different groups share.
    int mixedGroup() const { return int(m_groups.size()) - 1; }
    /// Returns the group of a way whose cables are in the given groups, which are the keys of the map. This is the
    /// worst of several groups of test results, and otherwise mixedGroup().
    int groupOfAll(const QMap<int, int> &groups) const;
    const QVector<ColorGroup> &groups() const { return m_groups; }

private:
    QVector<ColorGroup> m_groups; ///< the last one is for cables of several groups
    QVector<int> m_groupOfCable;
    bool m_worstCounts;
};

} // namespace cabledoc
