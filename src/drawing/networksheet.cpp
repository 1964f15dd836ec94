#include "networksheet.h"

#include "cableways.h"
#include "drawingtext.h"
#include "freetextlines.h"
#include "labelplacement.h"
#include "sheetpen.h"
#include "units.h"
#include "vocabulary.h"

#include <algorithm>

namespace cabledoc {

namespace {

// Millimetres
constexpr double deviceSize = 9.0;
constexpr double bendSize = 1.2;
constexpr double nameSize = 2.8;
constexpr double infoSize = 2.2;
constexpr double labelMargin = 30.0; // around the elements
constexpr double sampleSize = 3.4;   // of symbols in the legend

constexpr double maximumIconScale = 4.0;

/// Draws a sheet with network devices.
class NetworkSheetBuilder
{
public:
    NetworkSheetBuilder(const JobSnapshot &job, int number, double factor, const TextMeasure &measure)
        : m_job(job)
        , m_number(number)
        , m_sheet(job.sheets().at(number))
        , m_factor(factor)
        , m_measure(measure)
    {
        m_content.name = m_sheet.id;
    }

    PlanContent build()
    {
        addConnections();
        addBends();
        addDevices();
        addTexts();
        placeLabels();
        for (const SceneItem &item : std::as_const(m_content.items))
            m_content.bounds |= boundsOf(item);
        addLegend();
        addListWithoutPlace(&m_content, DrawingText::tr("Devices without a place"), m_devicesWithoutPlace);
        addListWithoutPlace(&m_content, DrawingText::tr("Bends without a place"), m_bendsWithoutPlace);
        addListWithoutPlace(&m_content, DrawingText::tr("Texts without a place"), m_textsWithoutPlace);
        addListWithoutPlace(&m_content, DrawingText::tr("Connections without a way"), m_connectionsWithoutPlace);
        return std::move(m_content);
    }

private:
    void add(Layer layer, ElementKind kind, const QString &tag, const QString &title, const SceneShape &shape)
    {
        m_content.items.append({layer, kind, tag, title, shape});
    }

    template <typename Element> QPointF placeOf(const Element &element) const
    {
        return QPointF(element.x, element.y) * (millimetersInAnInch / pixelsInAnInch * m_factor);
    }

    /// Returns the sheet of an end of a connection, or -1 if there is none.
    int sheetOf(const snapshot::Target &end) const
    {
        if (!end.exists())
            return -1;
        return end.kind == ElementKind::Devices ? m_job.devices().at(end.position).holder
                                                : m_job.bends().at(end.position).holder;
    }

    /// Returns where a connection ends, or nothing if the end has no place.
    std::optional<QPointF> placeOfEnd(const snapshot::Target &end) const
    {
        const auto place = [this](const auto &element) {
            return isPlaced(element.x, element.y) ? std::optional<QPointF>(placeOf(element)) : std::nullopt;
        };
        return end.kind == ElementKind::Devices ? place(m_job.devices().at(end.position))
                                                : place(m_job.bends().at(end.position));
    }

    /// Finds the types of all connections, so that a type looks the same on all sheets.
    QStringList connectionTypes() const
    {
        QStringList types;
        for (const snapshot::Connection &connection : m_job.connections()) {
            if (!types.contains(connection.type))
                types.append(connection.type);
        }
        types.sort();
        return types;
    }

    /// Returns how connections of a type are drawn. The types can also be told apart without colours.
    static LineStyle styleOf(int type)
    {
        static const QVector<QColor> colors{{0x1f, 0x5a, 0x96}, {0xd5, 0x5e, 0x00}, {0x00, 0x7e, 0x5a},
                                            {0x7a, 0x3e, 0x9d}, {0xb8, 0x86, 0x0b}, {0x40, 0x40, 0x40}};
        static const QVector<LineStyle::Pattern> patterns{LineStyle::Solid, LineStyle::Dashed, LineStyle::Dotted};
        return {colors.at(type % int(colors.size())), 0.5, patterns.at(type % int(patterns.size()))};
    }

    void addConnections()
    {
        const QStringList types = connectionTypes();
        for (const snapshot::Connection &connection : m_job.connections()) {
            const bool isHere = sheetOf(connection.fromTarget) == m_number && sheetOf(connection.toTarget) == m_number;
            if (!isHere)
                continue;
            const std::optional<QPointF> from = placeOfEnd(connection.fromTarget);
            const std::optional<QPointF> to = placeOfEnd(connection.toTarget);
            if (!from || !to) {
                m_connectionsWithoutPlace.append(connection.id);
                continue;
            }
            const int type = int(types.indexOf(connection.type));
            add(Layer::Cables, ElementKind::Connections, connection.element, connection.id,
                SceneLine{{*from, *to}, styleOf(type)});
            m_lines.append({*from, *to});
            m_types.insert(type, connection.type);
        }
    }

    void addBends()
    {
        for (int i = m_sheet.bends.first; i < m_sheet.bends.end(); ++i) {
            const snapshot::Bend &bend = m_job.bends().at(i);
            if (!isPlaced(bend.x, bend.y)) {
                m_bendsWithoutPlace.append(bend.id);
                continue;
            }
            const QRectF area = squareAround(placeOf(bend), bendSize);
            add(Layer::Points, ElementKind::Vertices, bend.element, bend.id,
                rectangle(area, Qt::black, {Qt::black, 0.0}));
        }
    }

    void addDevices()
    {
        for (int i = m_sheet.devices.first; i < m_sheet.devices.end(); ++i) {
            const snapshot::Device &device = m_job.devices().at(i);
            if (!isPlaced(device.x, device.y)) {
                m_devicesWithoutPlace.append(device.id);
                continue;
            }
            const double scale = device.iconScale > 0.0 ? std::min(device.iconScale, maximumIconScale) : 1.0;
            const QRectF area = squareAround(placeOf(device), deviceSize * scale * m_factor);
            const QString type = Vocabulary::deviceTypes().name(device.type);
            add(Layer::Ports, ElementKind::Devices, device.element, QStringLiteral("%1 (%2)").arg(device.id, type),
                SceneSymbol{SceneSymbol::DeviceType, device.type, area});
            m_obstacles.append(area);
            ++m_deviceTypes[device.type];
            m_devices.append({area, &device});
        }
    }

    void addTexts()
    {
        for (int i = m_sheet.texts.first; i < m_sheet.texts.end(); ++i) {
            const snapshot::FreeText &text = m_job.sheetTexts().at(i);
            if (!isPlaced(text.x, text.y)) {
                m_textsWithoutPlace.append(text.text);
                continue;
            }
            for (const SceneText &line : linesOf(text, placeOf(text), m_factor, m_measure)) {
                add(Layer::Texts, ElementKind::FreeTexts, text.element, {}, line);
                m_obstacles.append(boxOf(line));
            }
        }
    }

    void placeLabels()
    {
        QRectF area;
        for (const SceneItem &item : std::as_const(m_content.items))
            area |= boundsOf(item);
        LabelPlacement placement(area.marginsAdded({labelMargin, labelMargin, labelMargin, labelMargin}),
                                 int(m_obstacles.size()) * 3, int(m_lines.size()), m_measure);
        for (const QRectF &obstacle : std::as_const(m_obstacles))
            placement.addObstacle(obstacle);
        for (const QLineF &line : std::as_const(m_lines))
            placement.addLine(line);
        for (const auto &[symbol, device] : std::as_const(m_devices))
            placeDeviceLabels(&placement, symbol, *device);
    }

    /// Writes the name of a device, and what is to be known about it in the line below.
    void placeDeviceLabels(LabelPlacement *placement, const QRectF &symbol, const snapshot::Device &device)
    {
        const PlacedLabel name = placement->place({device.id, symbol, nameSize, true});
        addLabel(name, device.id);
        if (device.info.isEmpty())
            return;
        const QString info = device.info.simplified();
        Label label{info, symbol, infoSize, false, dimColor};
        const QRectF box = boxOf(name.text);
        constexpr double distance = 0.4;
        label.corner = QPointF(box.center().x() - m_measure.width(info, infoSize) / 2, box.bottom() + distance);
        addLabel(placement->place(label), QStringLiteral("%1: %2").arg(device.id, info));
    }

    void addLabel(const PlacedLabel &label, const QString &text)
    {
        if (label.leader)
            add(Layer::Labels, ElementKind::None, {}, {},
                SceneLine{{label.leader->p1(), label.leader->p2()}, {dimColor, 0.12, LineStyle::Solid}});
        if (!label.text.text.isEmpty())
            add(Layer::Labels, ElementKind::None, {}, text, label.text);
        if (label.number == 0)
            return;
        if (m_content.lists.isEmpty())
            m_content.lists.append(ColumnEntry::heading(DrawingText::tr("Numbers on the plan")));
        m_content.lists.append(ColumnEntry::listed(QString::number(label.number), text));
    }

    void addLegend()
    {
        QVector<ColumnEntry> &legend = m_content.legend;
        for (auto type = m_deviceTypes.cbegin(); type != m_deviceTypes.cend(); ++type) {
            const SceneSymbol symbol{SceneSymbol::DeviceType, type.key(), squareAround({}, sampleSize)};
            const QString name = Vocabulary::deviceTypes().name(type.key());
            legend.append(ColumnEntry::explaining({symbol}, QStringLiteral("%1 (%2)").arg(name).arg(*type)));
        }
        for (auto type = m_types.cbegin(); type != m_types.cend(); ++type) {
            const SceneLine line{{{-sampleSize, 0.0}, {sampleSize, 0.0}}, styleOf(type.key())};
            legend.append(ColumnEntry::explaining({line}, DrawingText::tr("Connection of type %1").arg(*type)));
        }
        if (!legend.isEmpty())
            legend.prepend(ColumnEntry::heading(DrawingText::tr("Legend")));
    }

    const JobSnapshot &m_job;
    const int m_number;
    const snapshot::Sheet &m_sheet;
    const double m_factor;
    const TextMeasure &m_measure;
    PlanContent m_content;

    QVector<QRectF> m_obstacles;
    QVector<QLineF> m_lines;
    QVector<QPair<QRectF, const snapshot::Device *>> m_devices;

    // What the legend explains
    QMap<QString, int> m_deviceTypes; ///< numbers of devices
    QMap<int, QString> m_types;       ///< of connections

    QStringList m_devicesWithoutPlace;
    QStringList m_bendsWithoutPlace;
    QStringList m_textsWithoutPlace;
    QStringList m_connectionsWithoutPlace;
};

} // namespace

PlanContent networkSheet(const JobSnapshot &job, int sheet, double factor, const TextMeasure &measure)
{
    return NetworkSheetBuilder(job, sheet, factor, measure).build();
}

} // namespace cabledoc
