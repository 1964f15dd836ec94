#pragma once

/// A library that makes calls to the system fail. A test that links it calls the system through it.
namespace failingcalls {

enum Call {
    Open, ///< of files by the library; Qt opens its files in another way
    Read,
    Stat,  ///< of a name or an open file
    Write, ///< to a file; standard output and standard error never fail
    Fsync,
    Rename,
    CallCount,
};

/// Makes the call with the given number and all calls after it fail with the given error. The next call has the number
/// 1. With the number 0, no call fails. With the error 0, the call writes only half of its data, and the next one fails
/// because the disk is full.
void fail(Call call, int number, int error);

/// Returns how many calls were made since the last call of fail().
int made(Call call);

} // namespace failingcalls
