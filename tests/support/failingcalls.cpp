#include "failingcalls.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>

#include <dlfcn.h>
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

extern "C" int fsync(int file)
{
    static const auto real = theSystems<int (*)(int)>("fsync");
    State &state = states.at(Fsync);
    if (!failsNow(&state))
        return real(file);
    errno = state.error;
    return -1;
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    static const auto real = theSystems<int (*)(const char *, const char *)>("rename");
    State &state = states.at(Rename);
    if (!failsNow(&state))
        return real(from, to);
    errno = state.error;
    return -1;
}
