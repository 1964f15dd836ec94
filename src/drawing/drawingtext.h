#pragma once

#include <QtCore/QCoreApplication>

namespace cabledoc {

/// The translation context of the texts of drawings.
struct DrawingText
{
    Q_DECLARE_TR_FUNCTIONS(Drawing)
};

} // namespace cabledoc
