#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testresults.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// The fields of a Cable before its test.
struct PlannedCableFields
{
    /// Tag of the cable.
    QString element;
    /// Name that the user sees.
    QString id;
    /// What the cable is used for, usually a word of cabledoc::Vocabulary::portUses().
    QString use;
    /// Tag of the port or vertical run at one end.
    QString to;
    /// Tag of the port or vertical run at the other end.
    QString from;
    /// Cable type, which is the name of its test definition.
    QString type;
    /// Tags of the points, ports and vertical runs that the cable passes on its way from one end to the other.
    QStringList path;
    /// Name of the bundle, or empty for a cable that is not in a bundle.
    QString bundleName;
    /// Number of the cable in its bundle.
    QString bundleNum;
    /// Number of the bundle group. Cables that are pulled together have the same number.
    QString bundleGroupNum;
    /// Name of the cable's colour, such as "#000000".
    QString color;
    /// Whether the type is one of the built-in types.
    bool defaultType = false;
};

/// Returns all fields. Records are compared by them.
inline auto members(const PlannedCableFields &fields)
{
    const auto &[element, id, use, to, from, type, path, bundleName, bundleNum, bundleGroupNum, color, defaultType] =
        fields;
    return std::tie(element, id, use, to, from, type, path, bundleName, bundleNum, bundleGroupNum, color, defaultType);
}

/// The fields of a Cable.
struct CableFields : PlannedCableFields
{
    /// Results of the test of the cable.
    TestResults testResults;
};

/// Returns all fields. Records are compared by them.
inline auto members(const CableFields &fields)
{
    return std::tuple_cat(members(static_cast<const PlannedCableFields &>(fields)), std::tie(fields.testResults));
}

} // namespace cabledoc

/// A cable between two ports or vertical runs, with the results of its test. See cabledoc::Record for how records are
/// copied and compared.
class CABLEDOC_EXPORT Cable : public cabledoc::Record<cabledoc::CableFields>
{
    Q_OBJECT

public:
    /// Creates an untested cable. All its other fields are empty.
    Cable() = default;
    /// Creates a cable with the given fields.
    explicit Cable(const Fields &fields)
        : Record(fields)
    {
    }
    /// Creates a cable from its parts. Its default-type flag is false.
    Cable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
          const QString &type, const TestResults &testResults, const QStringList &path, const QString &bundleName,
          const QString &bundleNum, const QString &bundleGroupNum, const QString &color)
        : Record(Fields{{tag, id, use, to, from, type, path, bundleName, bundleNum, bundleGroupNum, color, false},
                        testResults})
    {
    }

    /// Returns the tag of the cable.
    const QString &tag() const { return m_fields.element; }
    /// Sets the tag of the cable.
    void setTag(const QString &tag) { m_fields.element = tag; }
    /// Returns the name that the user sees.
    const QString &id() const { return m_fields.id; }
    /// Sets the name that the user sees.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns what the cable is used for.
    const QString &use() const { return m_fields.use; }
    /// Sets what the cable is used for, usually a word of cabledoc::Vocabulary::portUses().
    void setUse(const QString &use) { m_fields.use = use; }
    /// Returns the tag of the port or vertical run at which the cable ends.
    const QString &to() const { return m_fields.to; }
    /// Sets the tag of the port or vertical run at which the cable ends.
    void setTo(const QString &tag) { m_fields.to = tag; }
    /// Returns the tag of the port or vertical run at which the cable begins.
    const QString &from() const { return m_fields.from; }
    /// Sets the tag of the port or vertical run at which the cable begins.
    void setFrom(const QString &tag) { m_fields.from = tag; }
    /// Returns the cable type, which is the name of its test definition.
    const QString &type() const { return m_fields.type; }
    /// Sets the cable type, which is the name of its test definition.
    void setType(const QString &type) { m_fields.type = type; }
    /// Returns the results of the test of the cable.
    const TestResults &testResults() const { return m_fields.testResults; }
    /// Sets the results of the test of the cable.
    void setTestResults(const TestResults &results) { m_fields.testResults = results; }
    /// Returns the tags of the points, ports and vertical runs that the cable passes.
    const QStringList &path() const { return m_fields.path; }
    /// Sets the tags of the points, ports and vertical runs that the cable passes.
    void setPath(const QStringList &tags) { m_fields.path = tags; }
    /// Returns the name of the bundle, or an empty string for a cable that is not in a bundle.
    const QString &bundleName() const { return m_fields.bundleName; }
    /// Sets the name of the bundle. An empty name takes the cable out of its bundle.
    void setBundleName(const QString &name) { m_fields.bundleName = name; }
    /// Returns the number of the cable in its bundle.
    const QString &bundleNum() const { return m_fields.bundleNum; }
    /// Sets the number of the cable in its bundle.
    void setBundleNum(const QString &number) { m_fields.bundleNum = number; }
    /// Returns the number of the bundle group, which the cables that are pulled together share.
    const QString &bundleGroupNum() const { return m_fields.bundleGroupNum; }
    /// Sets the number of the bundle group, which the cables that are pulled together share.
    void setBundleGroupNum(const QString &number) { m_fields.bundleGroupNum = number; }
    /// Returns the name of the cable's colour.
    const QString &color() const { return m_fields.color; }
    /// Sets the colour of the cable, given by a name such as "#000000".
    void setColor(const QString &color) { m_fields.color = color; }
    /// Returns whether the type is one of the built-in types.
    bool defaultType() const { return m_fields.defaultType; }
    /// Sets whether the type is one of the built-in types. JobEditor::addCable() does not store this flag.
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }

    /// Returns whether the cable is in a bundle, which is the case if the bundle has a name.
    bool inBundle() const { return !m_fields.bundleName.isEmpty(); }
    /// Returns whether the test results hold at least one of the three response curves.
    bool hasResponseData() const;
};
