#pragma once

#include "calls.h"

/// Returns the operations of the job document, and some operations of the template document. The names of the latter
/// begin with "template.".
const QVector<Callable> &operations();

/// Calls the operation in a line of a case. Returns the line, followed by:
///
///     = ANSWER     if the operation returns something
///     -> CHANGES   if it marked the job as changed: the attributes that are different in the file now, or "elements"
///     !            if it left a text in error()
QString transcriptOf(const QString &call);

/// Calls every query, with names that the job has and with others.
void callEveryQuery(JobEditor &job);
