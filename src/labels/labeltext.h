#pragma once

#include <QtCore/QCoreApplication>

namespace cabledoc {

/// The translation context of the texts about labels.
struct LabelText
{
    Q_DECLARE_TR_FUNCTIONS(Labels)
};

} // namespace cabledoc
