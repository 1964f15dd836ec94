#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testresults.h"

#include <QtCore/QStringList>

namespace cabledoc {

struct CableFields
{
    QString element; ///< tag
    QString id;      ///< name that the user sees
    QString use;
    QString to;   ///< tag of a port or vertical run
    QString from; ///< likewise
    QString type; ///< name of the test definition
    TestResults testResults;
    QStringList path;   ///< tags of the points, ports and vertical runs that the cable passes
    QString bundleName; ///< empty for a cable in no bundle
    QString bundleNum;
    QString bundleGroupNum; ///< the same for the cables that are pulled together
    QString color;          ///< a colour name such as "#000000"
    bool defaultType = false;

    auto members() const
    {
        const auto &[ownTag, name, purpose, end, start, kind, results, way, bundle, number, group, colorName,
                     isDefault] = *this;
        return std::tie(ownTag, name, purpose, end, start, kind, results, way, bundle, number, group, colorName,
                        isDefault);
    }
};

} // namespace cabledoc

/// A cable between two ports or vertical runs, with the results of its test. See Record for copying and
/// comparing.
class CABLEDOC_EXPORT Cable : public cabledoc::Record<cabledoc::CableFields>
{
    Q_OBJECT

public:
    Cable() = default;
    explicit Cable(const Fields &fields)
        : Record(fields)
    {
    }
    Cable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
          const QString &type, const TestResults &testResults, const QStringList &path, const QString &bundleName,
          const QString &bundleNum, const QString &bundleGroupNum, const QString &color)
        : Record(Fields{tag, id, use, to, from, type, testResults, path, bundleName, bundleNum, bundleGroupNum, color,
                        false})
    {
    }

    const QString &tag() const { return m_fields.element; }
    void setTag(const QString &tag) { m_fields.element = tag; }
    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const QString &use() const { return m_fields.use; }
    void setUse(const QString &use) { m_fields.use = use; }
    const QString &to() const { return m_fields.to; }
    void setTo(const QString &tag) { m_fields.to = tag; }
    const QString &from() const { return m_fields.from; }
    void setFrom(const QString &tag) { m_fields.from = tag; }
    const QString &type() const { return m_fields.type; }
    void setType(const QString &type) { m_fields.type = type; }
    const TestResults &testResults() const { return m_fields.testResults; }
    void setTestResults(const TestResults &results) { m_fields.testResults = results; }
    const QStringList &path() const { return m_fields.path; }
    void setPath(const QStringList &tags) { m_fields.path = tags; }
    const QString &bundleName() const { return m_fields.bundleName; }
    void setBundleName(const QString &name) { m_fields.bundleName = name; }
    const QString &bundleNum() const { return m_fields.bundleNum; }
    void setBundleNum(const QString &number) { m_fields.bundleNum = number; }
    const QString &bundleGroupNum() const { return m_fields.bundleGroupNum; }
    void setBundleGroupNum(const QString &number) { m_fields.bundleGroupNum = number; }
    const QString &color() const { return m_fields.color; }
    void setColor(const QString &color) { m_fields.color = color; }
    bool defaultType() const { return m_fields.defaultType; }
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }

    /// Whether the bundle has a name.
    bool inBundle() const { return !m_fields.bundleName.isEmpty(); }
    /// Whether one of the three response curves is there.
    bool hasResponseData() const;
};
