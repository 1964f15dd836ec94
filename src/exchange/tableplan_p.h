#pragma once

#include "tableplan.h"

#include <QtCore/QPair>
#include <QtCore/QStringList>
#include <QtCore/QVarLengthArray>

#include <optional>
#include <vector>

namespace cabledoc {

/// A change of one element, as it is made in a document.
struct ElementChange
{
    TableAction action = TableAction::Add;
    QString tag;         ///< of the element; empty for a new element whose tag is to be generated
    QStringList name;    ///< parts of the name before the change
    QStringList newName; ///< parts of the name after the change
    QString floor;       ///< tag of the floor of a room before the change
    /// Tags of the new holders, or empty if the element stays where it is.
    QStringList newHolders;
    /// Names of attributes and their new texts.
    QVarLengthArray<QPair<QString, QString>, 1> attributes;
    /// Tags of the vertical runs to which a cable is to be connected, and from which it is to be disconnected.
    std::optional<QStringList> connected;
    std::optional<QStringList> disconnected;
    /// Cable types of a bundle.
    std::optional<QStringList> types;
    std::optional<QString> releaseValue;

    // What describes the change

    /// A column, with its text in the element and in the table.
    struct Difference
    {
        QString column;
        QString before;
        QString after;
    };
    QVarLengthArray<Difference, 1> differences;
    int removedCables = 0;

    /// Returns the id before the change. Test definitions, bundles and releases are found by it.
    const QString &id() const { return name.constLast(); }
};

/// The inside of a plan.
struct TablePlanData
{
    TableKind kind;
    QString error;
    QVector<CsvProblem> problems;
    QVector<CsvProblem> warnings;
    QVector<TableChange> changes;
    std::vector<ElementChange> elements; ///< of each change
};

} // namespace cabledoc
