#include "messagetext.h"

namespace cabledoc {

QString excerpt(const QString &value)
{
    constexpr int maximumLength = 80;
    QString text;
    for (const QChar character : value) {
        const QString shown = character.category() == QChar::Other_Control
                                  ? QStringLiteral("\\x%1").arg(int(character.unicode()), 2, 16, QLatin1Char('0'))
                                  : QString(character);
        if (text.size() + shown.size() > maximumLength)
            return text + QStringLiteral("...");
        text += shown;
    }
    return text;
}

} // namespace cabledoc
