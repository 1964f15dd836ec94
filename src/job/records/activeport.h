#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

struct ActiveTestResultFields
{
    QString time;
    QString status;
    int linkSpeed = 0; ///< Mbit/s; 0 for no link
    QString duplex;
    QString address;                         ///< of the device at the other end
    QVector<QPair<QString, QString>> values; ///< what else was tested: names and values in the order of the test

    auto members() const
    {
        const auto &[when, verdict, speed, mode, peer, others] = *this;
        return std::tie(when, verdict, speed, mode, peer, others);
    }
};

} // namespace cabledoc

/// The result of one test of a port in the working network. See Record for copying and comparing.
class CABLEDOC_EXPORT ActiveTestResult : public cabledoc::Record<cabledoc::ActiveTestResultFields>
{
    Q_OBJECT

public:
    ActiveTestResult() = default;
    explicit ActiveTestResult(const Fields &fields)
        : Record(fields)
    {
    }
    ActiveTestResult(const QString &time, const QString &status, int linkSpeed, const QString &duplex,
                     const QString &address, const QVector<QPair<QString, QString>> &values)
        : Record(Fields{time, status, linkSpeed, duplex, address, values})
    {
    }

    const QString &time() const { return m_fields.time; }
    void setTime(const QString &time) { m_fields.time = time; }
    const QString &status() const { return m_fields.status; }
    void setStatus(const QString &status) { m_fields.status = status; }
    int linkSpeed() const { return m_fields.linkSpeed; }
    void setLinkSpeed(int megabitsPerSecond) { m_fields.linkSpeed = megabitsPerSecond; }
    const QString &duplex() const { return m_fields.duplex; }
    void setDuplex(const QString &duplex) { m_fields.duplex = duplex; }
    const QString &address() const { return m_fields.address; }
    void setAddress(const QString &address) { m_fields.address = address; }
    const QVector<QPair<QString, QString>> &values() const { return m_fields.values; }
    void setValues(const QVector<QPair<QString, QString>> &values) { m_fields.values = values; }
};

namespace cabledoc {

struct ActivePortFields
{
    QString element; ///< tag
    QString id;      ///< name that the user sees
    QString port;    ///< tag of the port that was tested
    QVector<ActiveTestResult> results;

    auto members() const
    {
        const auto &[tag, name, portTag, tests] = *this;
        return std::tie(tag, name, portTag, tests);
    }
};

} // namespace cabledoc

/// A port with the results of its tests in the working network. See Record for copying and comparing.
class CABLEDOC_EXPORT ActivePort : public cabledoc::Record<cabledoc::ActivePortFields>
{
    Q_OBJECT

public:
    ActivePort() = default;
    explicit ActivePort(const Fields &fields)
        : Record(fields)
    {
    }
    ActivePort(const QString &element, const QString &id, const QString &port, const QVector<ActiveTestResult> &results)
        : Record(Fields{element, id, port, results})
    {
    }

    const QString &element() const { return m_fields.element; }
    void setElement(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &port() const { return m_fields.port; }
    void setPort(const QString &portTag) { m_fields.port = portTag; }
    const QVector<ActiveTestResult> &results() const { return m_fields.results; }
    void setResults(const QVector<ActiveTestResult> &results) { m_fields.results = results; }
};
