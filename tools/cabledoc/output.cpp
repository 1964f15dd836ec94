#include "output.h"

#include <QtCore/QJsonDocument>

#include <algorithm>
#include <cstdio>

namespace {

/// Replaces the characters that control a terminal.
QString printable(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char('?');
    }
    return text;
}

} // namespace

void printMessage(const QString &message)
{
    std::fprintf(stderr, "cabledoc: %s\n", qPrintable(printable(message)));
}

ExitCode fail(ExitCode code, const QString &fileName, const QString &message)
{
    printMessage(message.contains(fileName) ? message : QStringLiteral("%1: %2").arg(fileName, message));
    return code;
}

ExitCode printData(const QByteArray &data)
{
    if (std::fwrite(data.constData(), 1, std::size_t(data.size()), stdout) == std::size_t(data.size())
        && std::fflush(stdout) == 0)
        return Done;
    printMessage(Program::tr("standard output: %1").arg(qt_error_string()));
    return CannotPrint;
}

ExitCode printText(const QString &text)
{
    return printData(text.toLocal8Bit());
}

ExitCode printJson(const QJsonObject &object)
{
    return printData(QJsonDocument(object).toJson());
}

ExitCode printJson(const QJsonObject &object, const QString &arrayName, int count,
                   const std::function<QJsonObject(int)> &element)
{
    constexpr int pieceSize = 1 << 16;
    QByteArray text = QJsonDocument(object).toJson();
    text.chop(int(qstrlen("\n}\n")));
    text += ",\n    \"" + arrayName.toUtf8() + "\": [";
    for (int i = 0; i < count; ++i) {
        const QByteArray lines = QJsonDocument(element(i)).toJson().trimmed().replace("\n", "\n        ");
        text += (i == 0 ? "\n        " : ",\n        ") + lines;
        if (text.size() < pieceSize)
            continue;
        const ExitCode printed = printData(text);
        if (printed != Done)
            return printed;
        text.clear();
    }
    return printData(text + "\n    ]\n}\n");
}

QString firstLines(const QString &fileName, int count, const std::function<QString(int)> &line)
{
    constexpr int maximum = 50;
    QString text;
    for (int i = 0; i < std::min(count, maximum); ++i)
        text += line(i) + QLatin1Char('\n');
    if (count > maximum)
        text += fileName + QLatin1String(": ") + Program::tr("and %1 more").arg(count - maximum) + QLatin1Char('\n');
    return text;
}
