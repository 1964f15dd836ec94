#include "wrappedtext.h"

#include "wholecharacters.h"

namespace cabledoc {

namespace {

/// Returns how many characters of a text fit into a width, but at least one.
int fittingLength(const TextMeasure &measure, const QString &text, double size, double width, bool isBold)
{
    if (measure.width(text, size, isBold) <= width)
        return int(text.size());
    int low = 1;
    int high = int(text.size());
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (measure.width(text.left(middle), size, isBold) <= width)
            low = middle;
        else
            high = middle - 1;
    }
    const int whole = int(beginOf(text, low).size());
    return whole > 0 ? whole : 2;
}

/// Adds a word that is wider than a line to lines, as far as it fills them. Returns the rest of it.
QString broken(const TextMeasure &measure, const QString &word, double size, double width, bool isBold,
               QStringList *lines)
{
    constexpr int longestLine = 500; // characters
    int begin = 0;
    while (begin < word.size()) {
        const QString part = beginOf(word.mid(begin, longestLine + 1), longestLine);
        const int length = fittingLength(measure, part, size, width, isBold);
        if (begin + length == word.size())
            break;
        lines->append(part.left(length));
        begin += length;
    }
    return word.mid(begin);
}

} // namespace

QStringList wrapped(const TextMeasure &measure, const QString &text, double size, double width, bool isBold)
{
    QStringList lines;
    QString line;
    double lineWidth = 0.0;
    const double blank = measure.width(QStringLiteral(" "), size, isBold);
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words) {
        const double wordWidth = measure.width(word, size, isBold);
        if (!line.isEmpty() && lineWidth + blank + wordWidth <= width) {
            line += QLatin1Char(' ') + word;
            lineWidth += blank + wordWidth;
            continue;
        }
        if (!line.isEmpty())
            lines.append(line);
        line = broken(measure, word, size, width, isBold, &lines);
        lineWidth = measure.width(line, size, isBold);
    }
    return lines << line;
}

} // namespace cabledoc
