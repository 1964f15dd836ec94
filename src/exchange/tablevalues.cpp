#include "tablevalues.h"

#include "document.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "messagetext.h"
#include "qtcompat.h"
#include "tabletext.h"
#include "units.h"
#include "vocabulary.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace cabledoc {

namespace {

/// Returns "1" or "0" for a flag as people write it, or a null text.
QString flagText(const QString &text)
{
    static const QStringList on{QStringLiteral("1"), QStringLiteral("yes"), QStringLiteral("true")};
    static const QStringList off{QStringLiteral("0"), QStringLiteral("no"), QStringLiteral("false")};
    const QString word = text.trimmed().toLower();
    if (on.contains(word))
        return on.constFirst();
    return off.contains(word) ? off.constFirst() : QString();
}

bool isAllEmpty(const QStringList &parts)
{
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) { return part.isEmpty(); });
}

/// Returns the name of an end, or an empty text if there is no end.
QString nameOfEnd(const QStringList &parts)
{
    return isAllEmpty(parts) ? QString() : nameText(parts);
}

/// Returns whether a number in a column loses its fraction.
bool holdsWholeNumbers(TableKind kind, const TableColumn &column)
{
    const QString fraction = QStringLiteral("0.5");
    return column.attribute->isValid == nullptr || canonicalText(kind, *column.attribute, fraction) != fraction;
}

/// Rounds a number that was calculated from another unit.
double rounded(double number)
{
    constexpr double precision = 1e6;
    return std::round(number * precision) / precision;
}

} // namespace

TableValues::TableValues(const ElementNames &names, TableKind kind, const TableFile &file, TablePlanData *plan)
    : m_names(names)
    , m_job(names.job())
    , m_kind(kind)
    , m_file(file)
    , m_plan(*plan)
    , m_reader(names, kind, TableReader::Names::Unique)
{
    std::set<const AttributeRow *> ends;
    for (const FileColumn &column : file.columns()) {
        const Content content = column.column->content;
        // The columns of one end are read together.
        const bool isRead = isEnd(content) && !ends.insert(column.column->attribute).second;
        if (content != Content::Tag && !isName(content) && isImported(content) && !isRead)
            m_columns.push_back(&column);
    }
}

void TableValues::report(const Field &field, const QString &message)
{
    m_plan.problems.append({field.row.number, field.column.field + 1, message});
}

void TableValues::warn(const Field &field, const QString &message)
{
    m_plan.warnings.append({field.row.number, field.column.field + 1, message});
}

void TableValues::read(const FileRow &row, int position, ElementChange *change)
{
    for (const FileColumn *column : m_columns) {
        if (isEnd(column->column->content))
            readEnd(row, *column, position, change);
        else
            readField({row, *column, position, TableFile::field(row, column->field),
                       m_reader.text(*column->column, column->unit, position)},
                      change);
    }
}

void TableValues::readField(const Field &field, ElementChange *change)
{
    // The default of an attribute may be another text than an empty one.
    if (field.text == field.before && (field.position >= 0 || field.column.column->attribute == nullptr))
        return;
    const Content content = field.column.column->content;
    if (content == Content::Connected || content == Content::Disconnected) {
        (content == Content::Connected ? change->connected : change->disconnected) = readRuns(field);
    } else if (content == Content::Types) {
        change->types = readTypes(field);
    } else if (content == Content::ReleaseValue) {
        change->releaseValue = field.text;
    } else {
        const AttributeRow &attribute = *field.column.column->attribute;
        const std::optional<QString> stored = attributeText(field);
        const QString present = field.position < 0 ? attribute.defaultText
                                : field.column.unit == TableUnit::Pixels
                                    ? field.before
                                    : m_reader.text(*field.column.column, TableUnit::Pixels, field.position);
        if (!stored || *stored == present)
            return;
        checkWord(field);
        change->attributes.append({attribute.name, *stored});
    }
    if (field.position >= 0)
        change->differences.push_back({field.column.name, field.before, field.text});
}

/// Returns the text that the attribute of a column is to have. Returns nothing if it stays as it is, or if there is a
/// problem.
std::optional<QString> TableValues::attributeText(const Field &field)
{
    const TableColumn &column = *field.column.column;
    switch (column.content) {
    case Content::Number:
    case Content::Position:
    case Content::Height:
    case Content::PictureX:
    case Content::PictureY:
        return readNumber(field);
    case Content::Flag:
        return readFlag(field);
    case Content::Path:
        return readPath(field);
    case Content::Use:
        return m_kind == TableKind::Cables ? storedCableUse(field.text) : field.text;
    case Content::Color:
        return m_kind == TableKind::Cables ? cableColor(m_job, field.text, typeOf(field)) : field.text;
    default:
        break;
    }
    const QString stored = canonicalText(m_kind, *column.attribute, field.text);
    if (stored == field.text)
        return field.text;
    report(field, TableText::tr("\"%1\" is not valid here").arg(excerpt(field.text)));
    return std::nullopt;
}

/// An empty number stays as it is.
std::optional<QString> TableValues::readNumber(const Field &field)
{
    const TableColumn &column = *field.column.column;
    const QString text = withDecimalPoint(field.text.trimmed(), m_file.delimiter());
    if (text.isEmpty())
        return std::nullopt;
    bool isNumber = false;
    double number = text.toDouble(&isNumber);
    const bool isWhole = holdsWholeNumbers(m_kind, column);
    const bool isMeasure = field.column.unit != TableUnit::Pixels && hasUnit(column.content);
    if (isMeasure && isPosition(column.content)) {
        const double pixel = m_reader.pixelIn(field.column.unit);
        if (pixel <= 0.0) {
            report(field, missingScale(m_job, m_kind, field.column.unit));
            return std::nullopt;
        }
        number /= pixel;
    } else if (isMeasure && field.column.unit == TableUnit::Metres) {
        number *= feetInAMeter;
    }
    // A whole number of a drawing unit is not what a user counts in, so it is rounded. All other whole numbers must be
    // whole in the file.
    const QString exact = isMeasure ? toText(isWhole ? std::round(number) : rounded(number)) : text;
    const bool isValid =
        isNumber && std::isfinite(number) && (column.attribute->isValid == nullptr || column.attribute->isValid(exact));
    if (isValid && (isMeasure || !isWhole || isPosition(column.content) || number == std::round(number))) {
        const QString stored = canonicalText(m_kind, *column.attribute, exact);
        // The fields of a table share their memory.
        return stored == field.text ? field.text : stored;
    }
    report(field,
           isWhole && isNumber
               ? TableText::tr("\"%1\" is not a whole number in the range of this column").arg(excerpt(field.text))
               : TableText::tr("\"%1\" is not a number in the range of this column").arg(excerpt(field.text)));
    return std::nullopt;
}

/// An empty flag stays as it is.
std::optional<QString> TableValues::readFlag(const Field &field)
{
    const QString flag = flagText(field.text);
    if (flag.isEmpty() && !field.text.trimmed().isEmpty())
        report(field, TableText::tr("\"%1\" is neither 1 nor 0").arg(excerpt(field.text)));
    return flag.isEmpty() ? std::nullopt : std::make_optional(flag);
}

std::optional<QString> TableValues::readPath(const Field &field)
{
    QStringList tags;
    for (const QString &name : namesIn(field.text)) {
        const QStringList parts = partsOfName(name);
        const snapshot::Target target = parts.size() == 2
                                            ? m_names.find({TableKind::Points}, parts)
                                            : m_names.find({TableKind::Ports, TableKind::VerticalRuns}, parts);
        if (!target.exists()) {
            report(field, TableText::tr("there is no point, port or vertical run \"%1\"").arg(excerpt(name)));
            return std::nullopt;
        }
        tags.append(elementOf(m_job, tableOf(target.kind), target.position).tag);
    }
    return toText(tags);
}

std::optional<QStringList> TableValues::readRuns(const Field &field)
{
    QStringList tags;
    for (const QString &name : namesIn(field.text)) {
        const int run = m_names.find(TableKind::VerticalRuns, partsOfName(name));
        if (run < 0)
            report(field, TableText::tr("there is no vertical run \"%1\"").arg(excerpt(name)));
        else
            tags.append(m_job.verticalRuns().at(run).element);
    }
    return tags;
}

std::optional<QStringList> TableValues::readTypes(const Field &field)
{
    QStringList types;
    for (const QString &name : namesIn(field.text))
        types.append(partsOfName(name).constFirst());
    if (types.size() > maximumTypesOfBundle)
        report(field, TableText::tr("a bundle can have at most %1 types").arg(maximumTypesOfBundle));
    for (const QString &type : types) {
        if (m_job.definitionOfName(type) < 0)
            warn(field, TableText::tr("there is no test definition \"%1\"").arg(excerpt(type)));
    }
    return types;
}

/// Returns the field of a row in a column of an end.
QString TableValues::endField(const FileRow &row, const FileColumn &column)
{
    const QString part = TableFile::field(row, column.field);
    return column.column->content == Content::EndRoom && part == words::Undefined ? QString() : part;
}

/// Returns whether the columns of one end are as in the element.
bool TableValues::hasEqualEnd(const FileRow &row, const AttributeRow *attribute, int position) const
{
    const auto &columns = m_file.columns();
    return std::all_of(columns.cbegin(), columns.cend(), [&](const FileColumn &column) {
        return column.column->attribute != attribute
               || endField(row, column) == m_reader.text(*column.column, TableUnit::Pixels, position);
    });
}

/// Reads the columns of one end of a cable, a connection or an active port.
void TableValues::readEnd(const FileRow &row, const FileColumn &first, int position, ElementChange *change)
{
    if (hasEqualEnd(row, first.column->attribute, position))
        return;
    const QString &attribute = first.column->attribute->name;
    QStringList before;
    QStringList parts;
    for (const TableColumn &column : columnsOf(m_kind)) {
        if (!isEnd(column.content) || column.attribute != first.column->attribute)
            continue;
        before.append(m_reader.text(column, TableUnit::Pixels, position));
        const FileColumn *inFile = m_file.columnOf(column);
        parts.append(inFile == nullptr ? before.constLast() : endField(row, *inFile));
    }
    const bool isEmpty = isAllEmpty(parts);
    const snapshot::Target target = isEmpty ? snapshot::Target() : findEnd(parts);
    if (!isEmpty && !target.exists()) {
        const int place = placeOfEnd(first.column->attribute).field + 1;
        m_plan.problems.append({row.number, place, missingEnd().arg(excerpt(nameText(parts)))});
        return;
    }
    change->attributes.append(
        {attribute, isEmpty ? QString() : elementOf(m_job, tableOf(target.kind), target.position).tag});
    if (position >= 0)
        change->differences.push_back({attribute, nameOfEnd(before), nameOfEnd(parts)});
}

/// Returns the last column of an end that the file has. This is where problems are reported.
const FileColumn &TableValues::placeOfEnd(const AttributeRow *attribute) const
{
    const auto &columns = m_file.columns();
    return *std::find_if(columns.crbegin(), columns.crend(),
                         [attribute](const FileColumn &column) { return column.column->attribute == attribute; });
}

/// Returns the message about an end that does not exist. "%1" is its name.
QString TableValues::missingEnd() const
{
    switch (m_kind) {
    case TableKind::Connections:
        return TableText::tr("there is no device or bend \"%1\"");
    case TableKind::Cables:
        return TableText::tr("there is no port or vertical run \"%1\"");
    default:
        return TableText::tr("there is no port \"%1\"");
    }
}

snapshot::Target TableValues::findEnd(const QStringList &parts) const
{
    switch (m_kind) {
    case TableKind::Connections:
        return m_names.find({TableKind::Devices, TableKind::Bends}, parts);
    case TableKind::Cables:
        return m_names.find({TableKind::Ports, TableKind::VerticalRuns}, parts);
    default:
        return m_names.find({TableKind::Ports}, parts);
    }
}

/// Warns of a word that may be a mistake, although a file can hold it.
void TableValues::checkWord(const Field &field)
{
    const QString &text = field.text;
    // Each word is worth one warning, however many rows have it.
    if (text.isEmpty() || !m_checkedWords.insert({field.column.column->name + QLatin1Char('=') + text, true}).second)
        return;
    switch (field.column.column->content) {
    case Content::Definition:
        if (m_job.definitionOfName(text) < 0)
            warn(field, TableText::tr("there is no test definition \"%1\"").arg(excerpt(text)));
        break;
    case Content::Bundle:
        if (m_job.bundleOfName(text) < 0)
            warn(field, TableText::tr("there is no bundle \"%1\"").arg(excerpt(text)));
        break;
    case Content::Use:
        if (!isKnownUse(text))
            warn(field, TableText::tr("unknown use \"%1\"").arg(excerpt(text)));
        break;
    case Content::Color:
        if (!qtcompat::isColorName(text))
            warn(field, TableText::tr("\"%1\" is not a colour").arg(excerpt(text)));
        break;
    default:
        break;
    }
}

/// Returns whether the vocabulary has a use, or a port or cable of the job has it.
bool TableValues::isKnownUse(const QString &use)
{
    if (m_knownUses.empty()) {
        for (const QString &word : Vocabulary::portUses().words())
            m_knownUses.insert({word, true});
        for (const snapshot::Port &port : m_job.ports())
            m_knownUses.insert({port.use, true});
        for (const snapshot::Cable &cable : m_job.cables())
            m_knownUses.insert({cable.use, true});
    }
    return m_knownUses.find(use) != m_knownUses.end();
}

/// Returns the type that a cable has after the change.
QString TableValues::typeOf(const Field &field) const
{
    const int number = m_file.fieldOf(Content::Definition);
    if (number >= 0)
        return TableFile::field(field.row, number);
    return field.position < 0 ? QString() : m_job.cables().at(field.position).type;
}

} // namespace cabledoc
