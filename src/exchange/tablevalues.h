#pragma once

#include "tablefile.h"
#include "tableplan_p.h"
#include "tablereader.h"

namespace cabledoc {

/// Compares the fields of a row with an element, and turns those that differ into texts of attributes.
class TableValues
{
public:
    TableValues(const ElementNames &names, TableKind kind, const TableFile &file, TablePlanData *plan);

    /// Compares a row with the element at a position, or with the defaults of a new one if the position is -1. Adds
    /// what differs to the change, and problems and warnings to the plan.
    void read(const FileRow &row, int position, ElementChange *change);

private:
    /// A field of a row, and the text that the element has in its column.
    struct Field
    {
        const FileRow &row;
        const FileColumn &column;
        int position; ///< of the element
        QString text;
        QString before;
    };

    void readField(const Field &field, ElementChange *change);
    std::optional<QString> attributeText(const Field &field);
    std::optional<QString> readNumber(const Field &field);
    std::optional<QString> readFlag(const Field &field);
    std::optional<QString> readPath(const Field &field);
    std::optional<QStringList> readRuns(const Field &field);
    std::optional<QStringList> readTypes(const Field &field);
    static QString endField(const FileRow &row, const FileColumn &column);
    bool hasEqualEnd(const FileRow &row, const AttributeRow *attribute, int position) const;
    void readEnd(const FileRow &row, const FileColumn &first, int position, ElementChange *change);
    const FileColumn &placeOfEnd(const AttributeRow *attribute) const;
    QString missingEnd() const;
    snapshot::Target findEnd(const QStringList &parts) const;
    void checkWord(const Field &field);
    bool isKnownUse(const QString &use);
    QString typeOf(const Field &field) const;
    void report(const Field &field, const QString &message);
    void warn(const Field &field, const QString &message);

    const ElementNames &m_names;
    const JobSnapshot &m_job;
    TableKind m_kind;
    const TableFile &m_file;
    TablePlanData &m_plan;
    TableReader m_reader;
    std::vector<const FileColumn *> m_columns; ///< that are compared; only the first one of each end
    TextMap<bool> m_checkedWords;              ///< with the columns in which they stand
    TextMap<bool> m_knownUses; ///< the words of the vocabulary and of the job; empty until they are needed
};

} // namespace cabledoc
