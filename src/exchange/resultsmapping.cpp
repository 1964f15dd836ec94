#include "resultsmapping.h"

#include "messagetext.h"
#include "resultscolumns.h"
#include "resultstext.h"

// The whole library is in its header. It leaves the text in UTF-8.
#define SI_IMPLEMENTATION
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include <algorithm>
#include <set>

namespace cabledoc {

namespace {

/// The names of a section and its keys.
namespace keys {
const QString Columns = QStringLiteral("columns");
const QString Format = QStringLiteral("format");
const QString Verdicts = QStringLiteral("verdicts");
const QString LengthUnit = QStringLiteral("length_unit");
const QString DecimalMark = QStringLiteral("decimal_mark");
const QString DateFormat = QStringLiteral("date_format");
} // namespace keys

/// Reads the entries of a mapping.
class MappingReader
{
public:
    explicit MappingReader(ResultsMapping *mapping)
        : m_mapping(*mapping)
    {
    }

    /// Takes an entry. Returns what is wrong with it, or an empty text.
    QString take(const QString &section, const QString &key, const QString &value)
    {
        const QString place = ResultsText::tr("[%1] %2").arg(excerpt(section), excerpt(key));
        if (value.isEmpty())
            return ResultsText::tr("%1: there is no value").arg(place);
        if (section == keys::Columns)
            return takeHeading(place, key, value);
        if (section == keys::Format)
            return takeFormat(place, key, value);
        if (section != keys::Verdicts)
            return ResultsText::tr("%1: there is no such section").arg(place);
        const QStringList known{verdicts::Pass, verdicts::PassWithinAccuracy, verdicts::Fail, verdicts::Untested};
        if (!known.contains(value))
            return ResultsText::tr("%1: \"%2\" is not one of %3")
                .arg(place, excerpt(value), known.join(QLatin1String(", ")));
        return insert(place, key, value, &m_mapping.verdicts);
    }

private:
    static QString insert(const QString &place, const QString &key, const QString &value,
                          QMap<QString, QString> *values)
    {
        if (values->contains(key))
            return ResultsText::tr("%1 occurs twice").arg(place);
        values->insert(key, value);
        return QString();
    }

    QString takeHeading(const QString &place, const QString &key, const QString &heading)
    {
        const auto &parameters = parameterColumns();
        const bool isParameter =
            std::any_of(parameters.cbegin(), parameters.cend(), [&key](const ParameterColumn &column) {
                return key.startsWith(column.prefix) && key.size() > column.prefix.size();
            });
        if (!isParameter && !resultsColumnOfName(key))
            return ResultsText::tr("%1: there is no such column").arg(place);
        if (!m_known.insert(heading).second)
            return ResultsText::tr("%1: another column has the heading \"%2\"").arg(place, excerpt(heading));
        return insert(place, key, heading, &m_mapping.headings);
    }

    QString takeFormat(const QString &place, const QString &key, const QString &value)
    {
        if (key == keys::LengthUnit && (value == QLatin1String("m") || value == QLatin1String("ft"))) {
            m_mapping.lengthUnit = value;
        } else if (key == keys::DecimalMark && (value == QLatin1String(",") || value == QLatin1String("."))) {
            m_mapping.decimalMark = value.at(0).toLatin1();
        } else if (key == keys::DateFormat) {
            m_mapping.dateFormat = value;
        } else {
            const bool isKnown = key == keys::LengthUnit || key == keys::DecimalMark;
            return isKnown ? ResultsText::tr("%1: \"%2\" is not possible").arg(place, excerpt(value))
                           : ResultsText::tr("%1: there is no such key").arg(place);
        }
        return QString();
    }

    ResultsMapping &m_mapping;
    std::set<QString> m_known; ///< the headings so far
};

} // namespace

ResultsMappingReport readResultsMapping(const QByteArray &data)
{
    ResultsMappingReport report;
    QString text = QString::fromUtf8(data);
    // A text that is not UTF-8 gets replacement characters.
    if (text.contains(QChar(QChar::ReplacementCharacter)) || text.contains(QChar(QChar::Null))) {
        report.error = ResultsText::tr("the mapping is not a text in UTF-8");
        return report;
    }
    CSimpleIniCaseA file(true, true, false);
    // A line without "=" is an entry without a value, and not skipped.
    file.SetAllowKeyOnly(true);
    if (file.LoadData(data.constData(), std::size_t(data.size())) < 0) {
        report.error = ResultsText::tr("the mapping cannot be read");
        return report;
    }
    MappingReader reader(&report.mapping);
    CSimpleIniCaseA::TNamesDepend sections;
    file.GetAllSections(sections);
    sections.sort(CSimpleIniCaseA::Entry::LoadOrder());
    for (const auto &section : sections) {
        CSimpleIniCaseA::TNamesDepend names;
        file.GetAllKeys(section.pItem, names);
        names.sort(CSimpleIniCaseA::Entry::LoadOrder());
        for (const auto &name : names) {
            CSimpleIniCaseA::TNamesDepend values;
            file.GetAllValues(section.pItem, name.pItem, values);
            for (const auto &value : values) {
                report.error = reader.take(QString::fromUtf8(section.pItem), QString::fromUtf8(name.pItem),
                                           QString::fromUtf8(value.pItem));
                if (!report.error.isEmpty())
                    return report;
            }
        }
    }
    return report;
}

} // namespace cabledoc
