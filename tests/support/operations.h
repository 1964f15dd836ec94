#pragma once

#include <QtCore/QStringList>

class JobEditor;

/// Operations of the job document as lines of text, which tables of cases hold: the name of an operation and its
/// arguments, separated by blanks. valuetexts.h describes the form of values. An argument with blanks stands in
/// quotation marks, an empty one is "-". All arguments are given.

/// Calls the operation of a line. Returns the line, and behind it:
///
///     = ANSWER     if the operation returns something
///     -> CHANGES   if it marked the job as changed: the attributes that are different in the file now, or "elements"
///     !            if it left a text in error()
QString transcriptOf(JobEditor &job, const QString &line);

/// Calls the operation of a name and its arguments, and returns the answer.
QString answerTo(JobEditor &job, const QStringList &words);

/// The names of all operations that can be called.
QStringList operationNames();

/// Calls every operation that only asks, with names that the job has and with others.
void callEveryQuery(JobEditor &job);
