#include "drawingfile.h"

#include "filereplacement.h"

namespace cabledoc {

QString replaceFile(const QString &fileName, const QByteArray &content)
{
    FileReplacement file(fileName);
    QString error = file.open();
    if (error.isEmpty())
        error = file.write(content);
    return error.isEmpty() ? file.commit({}) : error;
}

} // namespace cabledoc
