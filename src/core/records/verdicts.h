#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// The verdicts that have a meaning.
namespace verdicts {
inline const QString Pass = QStringLiteral("PASS");
inline const QString PassWithinAccuracy = QStringLiteral("PASS*");
inline const QString Fail = QStringLiteral("FAIL");
inline const QString Untested = QStringLiteral("UNTESTED");
} // namespace verdicts

} // namespace cabledoc
