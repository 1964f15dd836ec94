#include "textlines.h"

QString brokenLine(QString line, int indent)
{
    constexpr int width = 80;
    QString lines;
    while (line.size() > width) {
        const auto blank = line.lastIndexOf(QLatin1Char(' '), width);
        const auto end = blank > indent ? blank : width;
        lines += line.left(end) + QLatin1Char('\n');
        line = QString(indent, QLatin1Char(' ')) + line.mid(end).trimmed();
    }
    return lines + line + QLatin1Char('\n');
}
