#include "texthash.h"

#include <QtCore/QRandomGenerator>

namespace cabledoc {

std::size_t TextHash::operator()(const QString &text) const
{
    // The characters are the coefficients of a polynomial modulo a prime. It is evaluated at a secret random place.
    constexpr quint64 prime = 0x7FFFFFFF;
    static const quint64 place = QRandomGenerator::system()->bounded(0x10000U, quint32(prime));
    quint64 hash = quint64(text.size());
    for (const QChar character : text)
        hash = (hash + character.unicode()) * place % prime;
    return std::size_t(hash);
}

} // namespace cabledoc
