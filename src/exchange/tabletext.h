#pragma once

#include <QtCore/QCoreApplication>

namespace cabledoc {

/// The translation context of the messages about tables.
struct TableText
{
    Q_DECLARE_TR_FUNCTIONS(Table)
};

} // namespace cabledoc
