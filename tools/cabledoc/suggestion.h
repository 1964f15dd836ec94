#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Returns the candidate that is typed most like the word, or an empty text if none is like it.
QString nearest(const QString &word, const QStringList &candidates);
/// Returns the message with a question after it that suggests a word. Without a word, returns the message.
QString withSuggestion(const QString &message, const QString &word);
