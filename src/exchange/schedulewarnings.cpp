#include "schedulewarnings.h"

#include "csvtext.h"
#include "jobattributes.h"
#include "messagetext.h"
#include "vocabulary.h"

#include <QtCore/QCoreApplication>

#include <set>

namespace cabledoc {

namespace {

/// Where a schedule takes a cable away from a port or room.
struct Departure
{
    int row = 0;
    column::Column column = column::FromPort;
};

class ScheduleWarnings
{
    Q_DECLARE_TR_FUNCTIONS(Schedule)

public:
    ScheduleWarnings(const ScheduleFile &file, const JobSchedule &job)
        : m_file(file)
        , m_job(job)
    {
    }

    QVector<ScheduleProblem> find()
    {
        std::vector<bool> isInSchedule(std::size_t(m_job.cableCount()));
        for (const NumberedRow &row : m_file.rows) {
            checkType(row);
            checkUse(row);
            const int cable = m_job.cableOfId.value(row.texts[column::Id], -1);
            if (cable < 0)
                continue;
            isInSchedule[std::size_t(cable)] = true;
            const auto [from, to] = m_job.endsOf(cable);
            leave(from, endIn(row.texts, column::FromFloor), {row.number, column::FromPort});
            leave(to, endIn(row.texts, column::ToFloor), {row.number, column::ToPort});
        }
        if (!m_leftEnds.empty())
            warnOfLeftEnds(isInSchedule);
        sortByPlace(m_warnings);
        return m_warnings;
    }

private:
    void warn(int row, column::Column column, const QString &message)
    {
        m_warnings.append({row, m_file.fieldOf[column] + 1, message});
    }

    void checkType(const NumberedRow &row)
    {
        const QString &type = row.texts[column::Type];
        if (type.isEmpty() || !m_checkedTypes.insert(type).second || m_job.hasDefinition(type))
            return;
        warn(row.number, column::Type, tr("there is no test definition \"%1\"").arg(excerpt(type)));
    }

    void checkUse(const NumberedRow &row)
    {
        const QString use = storedCableUse(row.texts[column::Use]);
        if (use.isEmpty() || Vocabulary::portUses().contains(use))
            return;
        if (m_knownUses.empty())
            m_knownUses = m_job.uses();
        if (m_knownUses.insert(use).second)
            warn(row.number, column::Use, tr("unknown use \"%1\"").arg(excerpt(use)));
    }

    // Places that the cables of the schedule leave. They are kept by the cables that end there after the import.

    void leave(const CableEnd &before, const CableEnd &after, const Departure &departure)
    {
        if (before == CableEnd() || before == after)
            return;
        m_leftEnds.insert({before, departure});
        if (!before.room.isEmpty())
            m_leftRooms.insert({roomOf(before), departure});
    }

    void keep(const CableEnd &end)
    {
        m_leftEnds.erase(end);
        m_leftRooms.erase(roomOf(end));
    }

    void warnOfLeftEnds(const std::vector<bool> &isInSchedule)
    {
        for (const NumberedRow &row : m_file.rows) {
            keep(endIn(row.texts, column::FromFloor));
            keep(endIn(row.texts, column::ToFloor));
        }
        for (int cable = 0; cable < m_job.cableCount(); ++cable) {
            if (isInSchedule[std::size_t(cable)])
                continue;
            for (const CableEnd &end : m_job.endsOf(cable))
                keep(end);
        }
        for (const auto &[room, departure] : m_leftRooms)
            warn(departure, tr("no cable ends in \"%1\" any more"), room);
        for (const auto &[end, departure] : m_leftEnds) {
            if (m_leftRooms.count(roomOf(end)) == 0)
                warn(departure, tr("no cable ends at \"%1\" any more"), end);
        }
    }

    void warn(const Departure &departure, const QString &message, const CableEnd &place)
    {
        QStringList names{excerpt(place.floor), excerpt(place.room), excerpt(place.port)};
        names.removeAll(QString());
        warn(departure.row, departure.column, message.arg(names.join(QLatin1String(" / "))));
    }

    static CableEnd roomOf(const CableEnd &end) { return {end.floor, end.room, QString()}; }

    const ScheduleFile &m_file;
    const JobSchedule &m_job;
    QVector<ScheduleProblem> m_warnings;
    std::set<QString> m_checkedTypes;
    /// Uses of the job, and those that were warned of.
    std::set<QString> m_knownUses;
    std::map<CableEnd, Departure> m_leftEnds;
    /// Rooms as ends without a port.
    std::map<CableEnd, Departure> m_leftRooms;
};

} // namespace

QVector<ScheduleProblem> scheduleWarnings(const ScheduleFile &file, const JobSchedule &job)
{
    return ScheduleWarnings(file, job).find();
}

} // namespace cabledoc
