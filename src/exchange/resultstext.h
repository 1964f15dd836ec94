#pragma once

#include <QtCore/QCoreApplication>

namespace cabledoc {

/// The translation context of the messages about test results.
struct ResultsText
{
    Q_DECLARE_TR_FUNCTIONS(Results)
};

} // namespace cabledoc
