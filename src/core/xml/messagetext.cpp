#include "messagetext.h"

namespace cabledoc {

QString excerpt(const QString &value)
{
    constexpr int maximumLength = 80;
    QString text;
    for (const QChar character : value) {
        const bool isControl = character.category() == QChar::Other_Control;
        constexpr int escapeLength = 4;
        // A character of two units is not divided.
        const int length = isControl ? escapeLength : character.isHighSurrogate() ? 2 : 1;
        if (text.size() + length > maximumLength)
            return text + QStringLiteral("...");
        if (isControl)
            text += QStringLiteral("\\x%1").arg(int(character.unicode()), 2, 16, QLatin1Char('0'));
        else
            text += character;
    }
    return text;
}

} // namespace cabledoc
