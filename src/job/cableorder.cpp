#include "cableorder.h"

#include "texthash.h"
#include "units.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace cabledoc {

namespace {

/// Coils of equal length, in millimetres. The coils are the leaves of a tree. Each node of the tree has the length of
/// the longest rest below it.
class Coils
{
public:
    Coils(std::size_t count, qint64 length)
    {
        while (m_leaves < count)
            m_leaves *= 2;
        m_rests.assign(2 * m_leaves, length);
    }

    /// Cuts a piece from the first coil that has enough left. Returns the number of the coil.
    std::size_t cut(qint64 piece)
    {
        std::size_t node = 1;
        while (node < m_leaves)
            node = m_rests[2 * node] >= piece ? 2 * node : 2 * node + 1;
        const std::size_t coil = node - m_leaves;
        m_rests[node] -= piece;
        for (node /= 2; node > 0; node /= 2)
            m_rests[node] = std::max(m_rests[2 * node], m_rests[2 * node + 1]);
        return coil;
    }

private:
    std::size_t m_leaves = 1;
    std::vector<qint64> m_rests; ///< the root is the node 1, those below a node n are 2n and 2n + 1
};

double millimetres(double length, bool metric)
{
    constexpr double longest = 1e15;
    return std::round(std::min((metric ? length : length / feetInAMeter) * 1000.0, longest));
}

bool fits(double piece, double coilLength, bool metric)
{
    return millimetres(piece, metric) <= millimetres(coilLength, metric);
}

/// A cable, or the cables that are pulled together.
struct Run
{
    std::optional<double> length; ///< of the longest cable
    QVector<int> cables;
};

/// The runs of a type or bundle.
struct Runs
{
    std::vector<Run> runs;
    TextMap<std::size_t> runOfGroup;

    Run &runOf(const QString &group)
    {
        if (!group.isEmpty()) {
            const auto [entry, isNew] = runOfGroup.insert({group, runs.size()});
            if (!isNew)
                return runs[entry->second];
        }
        return runs.emplace_back();
    }
};

void add(Run *run, int cable, double length)
{
    run->cables.append(cable);
    if (length >= 0.0 && std::isfinite(length))
        run->length = std::max(length, run->length.value_or(0.0));
}

OrderItem itemOf(const QString &name, const Runs &runs, const OrderOptions &options, bool metric)
{
    OrderItem item;
    item.name = name;
    item.coilLength = options.coilLengths.value(name, options.coilLength);
    QVector<double> pieces;
    double cut = 0.0;
    for (const Run &run : runs.runs) {
        if (!run.length) {
            item.unknown += run.cables;
            continue;
        }
        const double length = *run.length * (1.0 + options.spare);
        ++item.runs;
        item.length += length;
        item.longest = std::max(item.longest, length);
        if (item.coilLength <= 0.0)
            continue;
        if (!fits(length, item.coilLength, metric)) {
            item.tooLong += run.cables;
            continue;
        }
        pieces.append(length);
        cut += length;
    }
    item.coils = coilsFor(pieces, item.coilLength, metric);
    item.left = item.coils * item.coilLength - cut;
    return item;
}

} // namespace

QVector<OrderItem> orderOf(const JobSnapshot &job, const OrderOptions &options, bool metric)
{
    std::map<QString, Runs> types;
    std::map<QString, Runs> bundles;
    int position = 0;
    for (const snapshot::Cable &cable : job.cables()) {
        Run &run = cable.bundleName.isEmpty() ? types[cable.type].runOf(QString())
                                              : bundles[cable.bundleName].runOf(cable.bundleGroupNum);
        add(&run, position, job.estimatedLength(position, metric));
        ++position;
    }
    QVector<OrderItem> items;
    for (const auto &[name, runs] : types)
        items.append(itemOf(name, runs, options, metric));
    for (const auto &[name, runs] : bundles) {
        items.append(itemOf(name, runs, options, metric));
        items.last().isBundle = true;
    }
    return items;
}

int coilsFor(const QVector<double> &pieces, double coilLength, bool metric)
{
    std::vector<qint64> lengths;
    for (const double piece : pieces) {
        if (fits(piece, coilLength, metric))
            lengths.push_back(qint64(millimetres(piece, metric)));
    }
    std::sort(lengths.begin(), lengths.end(), std::greater<>());
    Coils coils(lengths.size(), qint64(millimetres(coilLength, metric)));
    std::size_t used = 0;
    for (const qint64 length : lengths)
        used = std::max(used, coils.cut(length) + 1);
    return int(used);
}

} // namespace cabledoc
