#pragma once

#include "xmlproblem.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QColor>
#include <QtXml/QDomDocument>

/// What differs between the versions of Qt, in one place.
namespace cabledoc::qtcompat {

/// Parses what the reader holds into the document. A null message: it succeeded.
inline XmlProblem setContent(QDomDocument *document, QXmlStreamReader *reader)
{
    XmlProblem problem;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (const auto result = document->setContent(reader); !result)
        problem = {result.errorMessage, int(result.errorLine), int(result.errorColumn)};
#else
    document->setContent(reader, false, &problem.message, &problem.line, &problem.column);
#endif
    return problem;
}

/// How many bytes of memory a document needs for each byte of its file, as measured for cables without curves.
constexpr double memoryOfAByte = QT_VERSION_MAJOR == 5 ? 30 : 42;

/// The largest file whose text can be held.
constexpr qint64 largestText = QT_VERSION_MAJOR == 5 ? (qint64(1) << 30) - 64 : qint64(1) << 40;

/// Whether the text names a colour, without the warning that a QColor made of another text would print.
inline bool isColorName(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 4, 0)
    return QColor::isValidColorName(text);
#else
    return QColor::isValidColor(text);
#endif
}

/// The folder of Qt's own language files.
inline QString translationsFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace cabledoc::qtcompat
