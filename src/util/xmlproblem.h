#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// Where and why a text cannot be taken as it is. A null message: nothing was found.
struct XmlProblem
{
    QString message;
    int line = 0;   ///< counted from 1
    int column = 0; ///< counted from 1
};

} // namespace cabledoc
