#pragma once

#include "command.h"

#include <cabledoc/jobsnapshot.h>

// The two kinds of traces that the command "trace" prints.

/// Prints the ways of the given cables, then those of the cables that end at or pass the given ports and vertical runs.
ExitCode traceCables(const CommandLine &line, const cabledoc::JobSnapshot &job, const QVector<int> &cables,
                     const QVector<cabledoc::snapshot::Target> &places);
/// Prints the ways from the given devices to other devices.
ExitCode traceDevices(const CommandLine &line, const cabledoc::JobSnapshot &job, const QVector<int> &devices);
