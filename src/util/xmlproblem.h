#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// Why and where a text cannot be read. The message is null if there is no problem.
struct XmlProblem
{
    QString message;
    /// Line, counted from 1.
    int line = 0;
    /// Column, counted from 1.
    int column = 0;
};

} // namespace cabledoc
