#pragma once

#include "csvoptions.h"

#include <QtCore/QByteArray>

namespace cabledoc {

/// Returns the encoding of a text: UTF-16 or UTF-8.
CsvEncoding detectedEncoding(const QByteArray &text);

/// Returns a text in UTF-8 and without its byte order mark. Each part that is not valid in the encoding becomes bytes
/// that are not valid UTF-8.
QByteArray toUtf8(const QByteArray &text, CsvEncoding encoding);

} // namespace cabledoc
