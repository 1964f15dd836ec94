#pragma once

#include "valuetexts.h"

/// Functions that cases call by their names. A line of a case is a name and its arguments, separated by blanks. All
/// arguments are given. An argument with blanks is in quotation marks, and "-" is an empty argument.

enum class ArgumentKind { Text, Flag, Number, Other };

struct Callable
{
    QString name;
    QVector<ArgumentKind> arguments;
    std::function<QString(const QStringList &)> call; ///< returns the answer, "-" if empty, or nothing if void
};

template <typename Argument> constexpr ArgumentKind kindOf()
{
    if (std::is_same_v<Argument, QString>)
        return ArgumentKind::Text;
    if (std::is_same_v<Argument, bool>)
        return ArgumentKind::Flag;
    return std::is_same_v<Argument, int> ? ArgumentKind::Number : ArgumentKind::Other;
}

template <typename Result, typename... Arguments, typename Function>
Callable makeCallable(const char *name, Function function)
{
    return {name, {kindOf<Arguments>()...}, [function](const QStringList &words) {
                [[maybe_unused]] auto word = words.cbegin();
                const std::tuple<Arguments...> arguments{valueOf<Arguments>(*word++)...};
                if constexpr (!std::is_void_v<Result>) {
                    const QString answer = textOf(std::decay_t<Result>(std::apply(function, arguments)));
                    return answer.isEmpty() ? QString("-") : answer;
                } else {
                    std::apply(function, arguments);
                    return QString();
                }
            }};
}

/// Returns a callable for a function without a document.
template <typename Document = JobEditor, typename Result, typename... Arguments>
Callable callable(const char *name, Result (*function)(Arguments...))
{
    return makeCallable<Result, std::decay_t<Arguments>...>(name, function);
}

/// Returns a callable for a member function of the instance of a document class.
template <typename Document, typename Class, typename Result, typename... Arguments>
Callable callable(const char *name, Result (Class::*function)(Arguments...))
{
    return makeCallable<Result, std::decay_t<Arguments>...>(
        name, [function](const auto &...values) -> Result { return (Document::Instance().*function)(values...); });
}

template <typename Document, typename Class, typename Result, typename... Arguments>
Callable callable(const char *name, Result (Class::*function)(Arguments...) const)
{
    return makeCallable<Result, std::decay_t<Arguments>...>(
        name, [function](const auto &...values) -> Result { return (Document::Instance().*function)(values...); });
}

/// Returns the words of a call.
QStringList wordsOf(const QString &call);

/// Calls the function with the first word as its name and the others as its arguments. Returns the answer.
QString answerTo(const QVector<Callable> &callables, const QStringList &words);

/// Returns the call in a line of a case, without the expected answer: "getPortUse P1" of "getPortUse P1 = data".
QString callIn(const QString &line);

/// Returns the lines of a case with the actual answers to their calls.
QString answered(const QVector<Callable> &callables, const QString &lines);
