#include "testdetails.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace cabledoc {

bool CableTest::isEmpty() const
{
    const TestResultsFields &fields = results.fields();
    return fields.status == TestResultsFields().status && fields.bertErrors == TestResultsFields().bertErrors
           && isUntested(fields.results) && fields.next.count == 0 && fields.echo.count == 0
           && fields.channel.count == 0 && details == TestDetails();
}

QString attachmentFolder(const QString &jobFileName)
{
    const QFileInfo job(jobFileName);
    return QDir::cleanPath(job.path() + QLatin1Char('/') + job.completeBaseName() + QStringLiteral(".attachments"));
}

QString attachmentFileName(const QString &name, const QString &sha256)
{
    constexpr int digits = 16;
    return sha256.left(digits) + QLatin1Char('-') + name;
}

} // namespace cabledoc
