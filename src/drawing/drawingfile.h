#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace cabledoc {

/// Replaces the content of a file, in one step. Returns an empty string, or why the file could not be written.
QString replaceFile(const QString &fileName, const QByteArray &content);

} // namespace cabledoc
