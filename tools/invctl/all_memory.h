// Calls of the library that count only when they have got all the memory they asked for.
#ifndef INVCTL_ALL_MEMORY_H
#define INVCTL_ALL_MEMORY_H

#include <cerrno>
#include <new>

namespace invctl
{

// The library goes on without what memory is lacking for: an entity, a way, a word of an error. That serves a
// process which must not die and reads the trace channel; a command has to say so instead. The system's error
// is what remains of a refusal. Returns what call() returns, or throws std::bad_alloc.
template <class Call>
auto with_all_memory(const Call &call)
{
    errno = 0;
    auto result = call();
    if (errno == ENOMEM)
        throw std::bad_alloc();
    return result;
}

}  // namespace invctl

#endif
