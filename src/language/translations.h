#pragma once

#include "cabledoc_export.h"

#include <QtCore/QLocale>

namespace cabledoc {

/// Lets the texts of the library and of the cabledoc program appear in the first of the locale's languages
/// (QLocale::uiLanguages()) that they are translated into: German, French or Spanish; or in English, in which they are
/// written. What Qt adds to messages is translated as well where Qt's own language files are installed.
///
/// Takes the place of what an earlier call installed. Needs a QCoreApplication, with which the translations end.
/// False when none of the languages is there: the texts appear in English then. No document is changed, but the names
/// that are generated from then on begin with words of that language ("Kabel001").
CABLEDOC_EXPORT bool installTranslations(const QLocale &locale);

} // namespace cabledoc
