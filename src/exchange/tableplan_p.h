#pragma once

#include "tableplan.h"

#include <QtCore/QPair>
#include <QtCore/QStringList>

#include <optional>

namespace cabledoc {

/// A change of one element, as it is made in a document.
struct ElementChange
{
    TableAction action = TableAction::Add;
    QString tag;         ///< of the element; empty for a new element whose tag is to be generated
    QString id;          ///< before the change; test definitions, bundles and releases are found by it
    QStringList holders; ///< tags of the holders of the element before the change, the innermost first
    /// Tags of the new holders, or empty if the element stays where it is.
    QStringList newHolders;
    /// Names of attributes and their new texts.
    QVector<QPair<QString, QString>> attributes;
    /// Tags of the vertical runs to which a cable is to be connected, and from which it is to be disconnected.
    std::optional<QStringList> connected;
    std::optional<QStringList> disconnected;
    /// Cable types of a bundle.
    std::optional<QStringList> types;
    std::optional<QString> releaseValue;
};

/// The inside of a plan.
struct TablePlanData
{
    TableKind kind;
    QString error;
    QVector<CsvProblem> problems;
    QVector<CsvProblem> warnings;
    QVector<TableChange> changes;
    QVector<ElementChange> elements; ///< of each change
};

} // namespace cabledoc
