#pragma once

#include "cabledoc_export.h"
#include "record.h"

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// The fields of an ActiveTestResult.
struct ActiveTestResultFields
{
    /// Time of the test. It names the result within its active port.
    QString time;
    /// Outcome of the test.
    QString status;
    /// Speed of the link in Mbit/s, or 0 if there is no link.
    int linkSpeed = 0;
    /// Duplex mode of the link.
    QString duplex;
    /// Address of the device at the other end.
    QString address;
    /// Names and values of what else was tested, in the order of the test.
    QVector<QPair<QString, QString>> values;
};

/// Returns all fields. Records are compared by them.
inline auto members(const ActiveTestResultFields &fields)
{
    const auto &[time, status, linkSpeed, duplex, address, values] = fields;
    return std::tie(time, status, linkSpeed, duplex, address, values);
}

} // namespace cabledoc

/// The result of one test of a port in the working network. See cabledoc::Record for how records are copied and
/// compared.
class CABLEDOC_EXPORT ActiveTestResult : public cabledoc::Record<cabledoc::ActiveTestResultFields>
{
    Q_OBJECT

public:
    /// Creates a result without any data and with link speed 0.
    ActiveTestResult() = default;
    /// Creates a result with the given fields.
    explicit ActiveTestResult(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a result from its parts.
    ActiveTestResult(const QString &time, const QString &status, int linkSpeed, const QString &duplex,
                     const QString &address, const QVector<QPair<QString, QString>> &values)
        : Record(Fields{time, status, linkSpeed, duplex, address, values})
    {
    }

    /// Returns the time of the test.
    const QString &time() const { return m_fields.time; }
    /// Sets the time of the test.
    void setTime(const QString &time) { m_fields.time = time; }
    /// Returns the outcome of the test.
    const QString &status() const { return m_fields.status; }
    /// Sets the outcome of the test.
    void setStatus(const QString &status) { m_fields.status = status; }
    /// Returns the speed of the link in Mbit/s, or 0 if there is no link.
    int linkSpeed() const { return m_fields.linkSpeed; }
    /// Sets the speed of the link in Mbit/s. 0 means that there is no link.
    void setLinkSpeed(int megabitsPerSecond) { m_fields.linkSpeed = megabitsPerSecond; }
    /// Returns the duplex mode of the link.
    const QString &duplex() const { return m_fields.duplex; }
    /// Sets the duplex mode of the link.
    void setDuplex(const QString &duplex) { m_fields.duplex = duplex; }
    /// Returns the address of the device at the other end.
    const QString &address() const { return m_fields.address; }
    /// Sets the address of the device at the other end.
    void setAddress(const QString &address) { m_fields.address = address; }
    /// Returns the names and values of what else was tested, in the order of the test.
    const QVector<QPair<QString, QString>> &values() const { return m_fields.values; }
    /// Sets the names and values of what else was tested.
    void setValues(const QVector<QPair<QString, QString>> &values) { m_fields.values = values; }
};

namespace cabledoc {

/// The fields of an ActivePort.
struct ActivePortFields
{
    /// Tag of the active port.
    QString element;
    /// Name that the user sees.
    QString id;
    /// Tag of the port that was tested.
    QString port;
    /// Results of the tests, in the order in which they were added.
    QVector<ActiveTestResult> results;
};

/// Returns all fields. Records are compared by them.
inline auto members(const ActivePortFields &fields)
{
    const auto &[element, id, port, results] = fields;
    return std::tie(element, id, port, results);
}

} // namespace cabledoc

/// A port with the results of its tests in the working network. See cabledoc::Record for how records are copied and
/// compared.
class CABLEDOC_EXPORT ActivePort : public cabledoc::Record<cabledoc::ActivePortFields>
{
    Q_OBJECT

public:
    /// Creates an active port without names, a port or results.
    ActivePort() = default;
    /// Creates an active port with the given fields.
    explicit ActivePort(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates an active port from its parts.
    ActivePort(const QString &element, const QString &id, const QString &port, const QVector<ActiveTestResult> &results)
        : Record(Fields{element, id, port, results})
    {
    }

    /// Returns the tag of the active port.
    const QString &element() const { return m_fields.element; }
    /// Sets the tag of the active port.
    void setElement(const QString &tag) { m_fields.element = tag; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the tag of the port that was tested.
    const QString &port() const { return m_fields.port; }
    /// Sets the tag of the port that was tested.
    void setPort(const QString &portTag) { m_fields.port = portTag; }
    /// Returns the results of the tests, in the order in which they were added.
    const QVector<ActiveTestResult> &results() const { return m_fields.results; }
    /// Sets the results of the tests.
    void setResults(const QVector<ActiveTestResult> &results) { m_fields.results = results; }
};
