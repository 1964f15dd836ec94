#include "schedulereader.h"

#include "csvtext.h"
#include "jobwords.h"
#include "messagetext.h"
#include "qtcompat.h"
#include "xmlnames.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>

#include <algorithm>

namespace cabledoc {

namespace {

class ScheduleReader
{
    Q_DECLARE_TR_FUNCTIONS(Schedule)

public:
    explicit ScheduleReader(bool canHoldAll)
        : m_canHoldAll(canHoldAll)
    {
    }

    ScheduleFile read(const CsvText &text)
    {
        m_file.error = text.error();
        if (m_file.error.isEmpty())
            readRows(text);
        sortByPlace(m_file.problems);
        return m_file;
    }

private:
    void report(const CsvRow &row, int column, const QString &message)
    {
        m_file.problems.append({row.number, column, message});
    }

    void readRows(const CsvText &text)
    {
        const CsvProblem mistake = text.readTable([this](const CsvRow &heading) { return readHeading(heading); },
                                                  [this](const CsvRow &row) { readRow(row); });
        if (mistake.row > 0)
            m_file.problems.append(mistake);
    }

    /// Returns false if every row under this heading would be wrong.
    bool readHeading(const CsvRow &heading)
    {
        const auto problemsBefore = m_file.problems.size();
        m_fieldsInHeading = int(heading.fields.size());
        for (int field = 0; field < m_fieldsInHeading; ++field)
            readColumnName(heading, field);
        for (std::size_t column = 0; column < column::Count; ++column) {
            if (columnNames[column].isNeeded && !m_file.has[column])
                report(heading, m_fieldsInHeading + 1,
                       tr("the column \"%1\" is missing").arg(QLatin1String(columnNames[column].name)));
        }
        return m_file.problems.size() == problemsBefore;
    }

    void readColumnName(const CsvRow &heading, int field)
    {
        const QString &name = heading.fields.at(field);
        const auto *const found =
            std::find_if(columnNames.begin(), columnNames.end(),
                         [&name](const ColumnName &column) { return name == QLatin1String(column.name); });
        const auto column = std::size_t(found - columnNames.begin());
        if (column == column::Count)
            report(heading, field + 1, tr("unknown column \"%1\"").arg(excerpt(name)));
        else if (m_file.has[column])
            report(heading, field + 1, tr("the column \"%1\" occurs twice").arg(excerpt(name)));
        else {
            m_file.has.set(column);
            m_file.fieldOf[column] = field;
        }
    }

    void readRow(const CsvRow &row)
    {
        if (row.fields.size() > m_fieldsInHeading)
            report(row, m_fieldsInHeading + 1, m_tooManyFields);
        ScheduleRow texts;
        for (std::size_t column = 0; column < column::Count; ++column) {
            if (m_file.has[column] && m_file.fieldOf[column] < row.fields.size())
                texts[column] = readField(row, m_file.fieldOf[column]);
        }
        checkId(row, texts[column::Id]);
        checkEnd(row, texts, column::FromFloor);
        checkEnd(row, texts, column::ToFloor);
        const QString &color = texts[column::Color];
        if (!color.isEmpty() && !qtcompat::isColorName(color))
            report(row, m_file.fieldOf[column::Color] + 1, tr("\"%1\" is not a colour").arg(excerpt(color)));
        for (const std::size_t room : {column::FromRoom, column::ToRoom}) {
            if (texts[room] == words::Undefined)
                texts[room].clear();
        }
        if (m_file.problems.isEmpty())
            m_file.rows.append({row.number, texts});
        else
            m_file.rows.clear(); // no longer needed
    }

    QString readField(const CsvRow &row, int field)
    {
        const QString &text = row.fields.at(field);
        if (!firstLostCharacter(text, m_canHoldAll).isEmpty())
            report(row, field + 1, tr("\"%1\" contains a character that a job file cannot hold").arg(excerpt(text)));
        return text;
    }

    void checkId(const CsvRow &row, const QString &id)
    {
        const int column = m_file.fieldOf[column::Id] + 1;
        if (id.isEmpty())
            report(row, column, m_noId);
        else if (m_rowOfId.contains(id))
            report(row, column,
                   tr("the id \"%1\" is already used in row %2").arg(excerpt(id)).arg(m_rowOfId.value(id)));
        else
            m_rowOfId.insert(id, row.number);
    }

    void checkEnd(const CsvRow &row, const ScheduleRow &texts, std::size_t floorColumn)
    {
        const CableEnd end = endIn(texts, floorColumn);
        if (end == CableEnd())
            return;
        if (end.port.isEmpty())
            report(row, m_file.fieldOf[floorColumn + 2] + 1, m_noPort);
        else if (end.floor.isEmpty())
            report(row, m_file.fieldOf[floorColumn] + 1, m_noFloor);
    }

    // These are translated once, even if a million rows need them.
    const QString m_noPort = tr("the end has a floor or room, but no port");
    const QString m_noFloor = tr("the end has a port, but no floor");
    const QString m_noId = tr("the cable has no id");
    const QString m_tooManyFields = tr("the row has more fields than the heading");
    /// Whether the job can hold characters beyond Latin-1.
    bool m_canHoldAll;
    ScheduleFile m_file;
    int m_fieldsInHeading = 0;
    QMap<QString, int> m_rowOfId;
};

} // namespace

ScheduleFile readSchedule(const QByteArray &data, const CsvOptions &options, bool canHoldAll)
{
    return ScheduleReader(canHoldAll).read(CsvText(data, options));
}

} // namespace cabledoc
