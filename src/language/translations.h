#pragma once

#include "cabledoc_export.h"

#include <QtCore/QLocale>

namespace cabledoc {

/// Translates the texts of the library and of the program cabledoc into the first of the locale's languages, see
/// QLocale::uiLanguages(), that is available: German, French, Spanish, or English, in which the texts are written.
/// Messages of Qt are translated too if Qt's own language files are installed.
///
/// Replaces the translations that an earlier call has installed. The program must have a QCoreApplication, and the
/// translations are removed when that is destroyed.
///
/// Returns false if none of the languages is available: the texts are then in English. Does not change a document, but
/// names that are generated from now on begin with words of the new language, such as "Kabel001".
CABLEDOC_EXPORT bool installTranslations(const QLocale &locale);

} // namespace cabledoc
