#pragma once

#include "plainjob.h"

class JobEditor;

/// These compare answers of a job with its file, for all names in the file and for others. None of them changes the
/// job.

/// Compares whether elements exist, their names, lists and contents.
void compareElements(const JobEditor &job, PlainJob *file);
/// Compares the lists of cables, the status of their tests, and the results of active ports.
void compareCables(const JobEditor &job, PlainJob *file);
/// Compares the contractor, the site, notes, releases, test definitions and bundles.
void compareContents(const JobEditor &job, PlainJob *file);
/// Compares a snapshot of the job.
void compareSnapshot(const JobEditor &document, PlainJob *file);
