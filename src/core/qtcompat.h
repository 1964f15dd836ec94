#pragma once

#include "xmlscan.h"

#include <QtCore/QXmlStreamReader>
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

} // namespace cabledoc::qtcompat
