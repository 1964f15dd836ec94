#pragma once

#include <QtCore/QFile>

inline QByteArray readFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    return file.readAll();
}

inline void writeFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(fileName));
}

/// Returns the path of a file in tests/data.
inline QString testDataPath(const char *name)
{
    return QStringLiteral(CABLEDOC_TEST_DATA "/") + QString::fromLatin1(name);
}

inline QByteArray testData(const char *name)
{
    return readFile(testDataPath(name));
}
