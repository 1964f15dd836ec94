#pragma once

#include "plainjob.h"

class JobEditor;

/// Each compares answers of a job with what its file says, for all names that the file has and for others. None of
/// them changes the job.

/// Whether there are elements, their names, lists of them, and what they hold.
void compareElements(const JobEditor &job, PlainJob *file);
/// The lists of cables, the status of their tests, and what ports in the working network gave.
void compareCables(const JobEditor &job, PlainJob *file);
/// The contractor, the site, notes, releases, test definitions and bundles.
void compareContents(const JobEditor &job, PlainJob *file);
