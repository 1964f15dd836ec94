#include "failingcalls.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <cstdio>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace failingcalls {

namespace {

struct State
{
    int failing = 0; ///< number of the first call that fails
    int error = 0;
    int made = 0;
};

std::array<State, CallCount> states;

bool failsNow(State *state)
{
    ++state->made;
    return state->failing > 0 && state->made >= state->failing;
}

template <typename Function> Function theSystems(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void fail(Call call, int number, int error)
{
    states.at(call) = {number, error, 0};
}

int made(Call call)
{
    return states.at(call).made;
}

} // namespace failingcalls

using namespace failingcalls;

extern "C" ssize_t write(int file, const void *data, size_t size)
{
    static const auto real = theSystems<ssize_t (*)(int, const void *, size_t)>("write");
    State &state = states.at(Write);
    if (file <= STDERR_FILENO || !failsNow(&state))
        return real(file, data, size);
    if (state.error == 0) {
        state.error = ENOSPC;
        return real(file, data, size / 2);
    }
    errno = state.error;
    return -1;
}

/// Passes a call on to the system, unless it has to fail.
template <typename Function, typename... Arguments>
auto failingCall(Call call, const char *name, Function *, Arguments... arguments)
{
    static const auto real = theSystems<Function *>(name);
    State &state = states.at(call);
    if (!failsNow(&state))
        return real(arguments...);
    errno = state.error;
    return decltype(real(arguments...))(-1);
}

extern "C" int fsync(int file)
{
    return failingCall(Fsync, "fsync", fsync, file);
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    return failingCall(Rename, "rename", rename, from, to);
}

extern "C" int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    return failingCall(Rename, "renameat2", renameat2, fromFolder, from, toFolder, to, flags);
}

extern "C" int open(const char *name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return failingCall(Open, "open", open, name, flags, mode);
}

extern "C" ssize_t read(int file, void *data, size_t size)
{
    return failingCall(Read, "read", read, file, data, size);
}

extern "C" int stat(const char *name, struct stat *status) noexcept
{
    return failingCall(Stat, "stat", stat, name, status);
}

extern "C" int fstat(int file, struct stat *status) noexcept
{
    return failingCall(Stat, "fstat", fstat, file, status);
}
