#include "cablecolors.h"

#include "drawingtext.h"
#include "qtcompat.h"
#include "texthash.h"
#include "verdicts.h"
#include "vocabulary.h"

namespace cabledoc {

namespace {

const QColor unknownColor(0x8a, 0x8a, 0x8a);
const QColor mixedColor(0x5b, 0x2a, 0x86);

/// Returns the colour with the given name, or grey if the name is not that of a colour.
QColor colorNamed(const QString &name)
{
    if (!qtcompat::isColorName(name))
        return unknownColor;
    QColor color(name);
    color.setAlpha(255);
    return color;
}

/// Returns the colour of a use. The colours can be told apart by most people who see some colours only.
QColor colorOfUse(const QString &use)
{
    static const QVector<QColor> colors{{0x00, 0x72, 0xb2}, {0xd5, 0x5e, 0x00}, {0x00, 0x9e, 0x73}, {0xcc, 0x79, 0xa7},
                                        {0xb8, 0x86, 0x0b}, {0x56, 0xb4, 0xe9}, {0x7a, 0x3e, 0x9d}, {0xc6, 0x28, 0x28},
                                        {0x4e, 0x6b, 0x1f}, {0x6d, 0x4c, 0x41}, {0x9e, 0x9e, 0x9e}, unknownColor};
    const int number = int(Vocabulary::portUses().words().indexOf(use));
    return number < 0 ? unknownColor : colors.value(number, unknownColor);
}

QString orElse(const QString &name, const QString &otherwise)
{
    return name.isEmpty() ? otherwise : name;
}

// The groups of test results, from the best to the worst
enum Status { Passed, Untested, Unknown, Failed };

QVector<ColorGroup> statusGroups()
{
    return {{DrawingText::tr("Passed"), QColor(0x1a, 0x7f, 0x37), LineStyle::Solid, QString(QChar(0x2713))},
            {DrawingText::tr("Untested"), QColor(0x5f, 0x6b, 0x7a), LineStyle::Dashed, QString(QChar(0x25CB))},
            {DrawingText::tr("Unknown result"), QColor(0xb8, 0x86, 0x0b), LineStyle::Dashed, QStringLiteral("?")},
            {DrawingText::tr("Failed"), QColor(0xc6, 0x28, 0x28), LineStyle::Dotted, QString(QChar(0x2717))}};
}

Status statusOf(const snapshot::Cable &cable)
{
    // A cable that has passed within the accuracy of the tester has passed.
    const QString &status = cable.test.status;
    if (status == verdicts::Pass || status == verdicts::PassWithinAccuracy)
        return Passed;
    if (status == verdicts::Untested || status.isEmpty())
        return Untested;
    return status == verdicts::Fail ? Failed : Unknown;
}

ColorGroup groupFor(const JobSnapshot &job, const snapshot::Cable &cable, CableColors colors)
{
    switch (colors) {
    case CableColors::Type:
        return {orElse(cable.type, DrawingText::tr("No type")),
                cable.definition < 0 ? unknownColor : colorNamed(job.definitions().at(cable.definition).color)};
    case CableColors::Use:
        return {orElse(Vocabulary::portUses().name(cable.use), DrawingText::tr("No use")), colorOfUse(cable.use)};
    case CableColors::Bundle:
        return {orElse(cable.bundleName, DrawingText::tr("No bundle")),
                cable.bundle < 0 ? unknownColor : colorNamed(job.bundles().at(cable.bundle).color)};
    default:
        return {colorNamed(cable.color).name(), colorNamed(cable.color)};
    }
}

} // namespace

CablePalette::CablePalette(const JobSnapshot &job, CableColors colors)
    : m_worstCounts(colors == CableColors::Status)
{
    m_groupOfCable.reserve(job.cables().size());
    if (m_worstCounts)
        m_groups = statusGroups();
    TextMap<int> known;
    for (const snapshot::Cable &cable : job.cables()) {
        if (m_worstCounts) {
            m_groupOfCable.append(statusOf(cable));
            continue;
        }
        const ColorGroup group = groupFor(job, cable, colors);
        const auto [found, isNew] = known.try_emplace(group.name, int(m_groups.size()));
        if (isNew)
            m_groups.append(group);
        m_groupOfCable.append(found->second);
    }
    m_groups.append({DrawingText::tr("Several of these"), mixedColor});
}

int CablePalette::groupOfAll(const QMap<int, int> &groups) const
{
    return groups.size() == 1 || m_worstCounts ? groups.lastKey() : mixedGroup();
}

} // namespace cabledoc
