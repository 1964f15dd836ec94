#pragma once

/// A library that a test links to stand between Qt and the system: it lets a call fail.
namespace failingcalls {

enum Call {
    Open, ///< of files by the library; Qt's own go another way
    Read,
    Stat,  ///< of a name or an open file
    Write, ///< to a file; those to standard output and standard error are left alone
    Fsync,
    Rename,
    CallCount,
};

/// Lets the call of that number from now on, 1 for the next one, fail with that error, and those after it too. With
/// error 0 a write is short by half and the next one fails for want of space. None fails with number 0.
void fail(Call call, int number, int error);

/// How many calls were made since fail() was called last.
int made(Call call);

} // namespace failingcalls
