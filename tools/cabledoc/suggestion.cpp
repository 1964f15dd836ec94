#include "suggestion.h"

#include "command.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

/// Returns how many characters must be added, left out, changed or swapped with the next one to make b of a.
int editDistance(const QString &a, const QString &b)
{
    // Row i has the distances of the first i characters of a from each beginning of b.
    std::vector<int> row(std::size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    std::vector<int> rowBefore;
    for (int i = 1; i <= a.size(); ++i) {
        const std::vector<int> twoRowsBefore = rowBefore;
        rowBefore = row;
        row[0] = i;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const auto isSame = [&](int inA, std::size_t inB) { return a.at(inA - 1) == b.at(int(inB) - 1); };
            row[j] = std::min({row[j - 1] + 1, rowBefore[j] + 1, rowBefore[j - 1] + (isSame(i, j) ? 0 : 1)});
            if (i > 1 && j > 1 && isSame(i, j - 1) && isSame(i - 1, j))
                row[j] = std::min(row[j], twoRowsBefore[j - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

QString nearest(const QString &word, const QStringList &candidates)
{
    constexpr int charactersForAnError = 3;
    int smallest = int(word.size()) / charactersForAnError + 1;
    QString found;
    for (const QString &candidate : candidates) {
        const int distance = editDistance(word, candidate);
        if (distance < smallest) {
            smallest = distance;
            found = candidate;
        }
    }
    return found;
}

QString withSuggestion(const QString &message, const QString &word)
{
    return word.isEmpty() ? message : Program::tr("%1; did you mean \"%2\"?").arg(message, word);
}
