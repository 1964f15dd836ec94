#include "csv.h"

#include <QtCore/QString>

#include <algorithm>

namespace {

/// Returns whether the text would be read differently without quotation marks.
bool needsQuotes(const QString &text)
{
    const auto isBlank = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); };
    const auto isSpecial = [](QChar c) {
        return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\r') || c == QLatin1Char('\n');
    };
    return !text.isEmpty()
           && (isBlank(text.front()) || isBlank(text.back()) || std::any_of(text.begin(), text.end(), isSpecial));
}

QString csvField(const QVariant &cell)
{
    QString text = cell.userType() == QMetaType::Bool ? QString::number(cell.toInt()) : cell.toString();
    if (!needsQuotes(text))
        return text;
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

} // namespace

QByteArray csvLine(const QVariantList &cells)
{
    QString line;
    for (const QVariant &cell : cells)
        line += csvField(cell) + QLatin1Char(',');
    line.chop(1);
    return line.toUtf8() + '\n';
}
