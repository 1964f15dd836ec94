#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QString>

#include <unordered_map>

namespace cabledoc {

/// A hash of texts that nobody can make collide, unlike Qt 5's, where texts that collide once do so with every seed:
/// the characters are the coefficients of a polynomial modulo a prime, at a random place.
struct TextHash
{
    std::size_t operator()(const QString &text) const
    {
        static const quint64 place = QRandomGenerator::system()->bounded(0x10000U, prime);
        quint64 hash = quint64(text.size());
        for (const QChar character : text)
            hash = (hash + character.unicode()) * place % prime;
        return std::size_t(hash);
    }

private:
    static constexpr quint32 prime = 0x7FFFFFFF; ///< 2^31 - 1
};

template <typename Value> using TextMap = std::unordered_map<QString, Value, TextHash>;

} // namespace cabledoc
