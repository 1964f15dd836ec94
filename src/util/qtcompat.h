#pragma once

#include "xmlproblem.h"

#include <QtCore/QHash>
#include <QtCore/QLibraryInfo>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QColor>
#include <QtXml/QDomDocument>

/// Everything that differs between the versions of Qt.
namespace cabledoc::qtcompat {

/// Parses the content of the reader into the document. The message of the result is null if this succeeds.
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

/// Number of bytes of memory that a document needs for each byte of its file, as measured for cables without curves.
constexpr double memoryOfAByte = QT_VERSION_MAJOR == 5 ? 30 : 42;

/// Size in bytes of the largest file whose text a string can hold.
constexpr qint64 largestText = QT_VERSION_MAJOR == 5 ? (qint64(1) << 30) - 64 : qint64(1) << 40;

/// Returns whether the text is the name of a colour. Unlike the constructor of QColor, this does not print a warning.
inline bool isColorName(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 4, 0)
    return QColor::isValidColorName(text);
#else
    return QColor::isValidColor(text);
#endif
}

/// Makes the order of hashes the same in all processes, or leaves it to chance again. Hashes that exist keep their
/// order.
inline void setHashesOrdered(bool areOrdered)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 2, 0)
    if (areOrdered)
        QHashSeed::setDeterministicGlobalSeed();
    else
        QHashSeed::resetRandomGlobalSeed();
#else
    qSetGlobalQHashSeed(areOrdered ? 0 : -1);
#endif
}

/// Returns the folder of Qt's own language files.
inline QString translationsFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace cabledoc::qtcompat
