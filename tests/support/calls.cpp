#include "calls.h"

namespace {

/// Returns whether the function has the given name and takes these arguments. An argument with "=" is a record and not
/// a text.
bool takes(const Callable &callable, const QString &name, const QStringList &arguments)
{
    bool isTaken = callable.name == name && callable.arguments.size() == arguments.size();
    for (int i = 0; isTaken && i < arguments.size(); ++i)
        isTaken = callable.arguments.at(i) != ArgumentKind::Text || !arguments.at(i).contains('=');
    return isTaken;
}

} // namespace

QStringList wordsOf(const QString &call)
{
    static const QRegularExpression word("\"([^\"]*)\"|(\\S+)");
    QStringList words;
    for (auto found = word.globalMatch(call); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const bool isQuoted = match.capturedStart(1) >= 0;
        words.append(isQuoted ? QLatin1String("") + match.captured(1) : match.captured(2));
        if (words.constLast() == "-")
            words.last() = QString();
    }
    return words;
}

QString answerTo(const QVector<Callable> &callables, const QStringList &words)
{
    for (const Callable &callable : callables) {
        if (takes(callable, words.constFirst(), words.mid(1)))
            return callable.call(words.mid(1));
    }
    qFatal("nothing to call: %s", qPrintable(words.join(' ')));
}

QString callIn(const QString &line)
{
    return line.section(QRegularExpression(" (=|->|!)( |$)"), 0, 0);
}

QString answered(const QVector<Callable> &callables, const QString &lines)
{
    QStringList all = lines.trimmed().split('\n');
    for (QString &line : all) {
        line = callIn(line);
        line += " = " + answerTo(callables, wordsOf(line)).replace("\n", "\\n");
    }
    return all.join('\n');
}
