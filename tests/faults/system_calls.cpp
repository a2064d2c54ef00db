#include "faults/system_calls.h"

#include <cstdarg>
#include <fcntl.h>

namespace
{

system_calls::open_call instead_of_open;
system_calls::read_call instead_of_read;
system_calls::fstat_call instead_of_fstat;

}  // namespace

extern "C" {

int __real_open(const char *name, int flags, ...);
ssize_t __real_read(int file, void *buffer, size_t size);
int __real_fstat(int file, struct stat *status);
int __wrap_open(const char *name, int flags, ...);
ssize_t __wrap_read(int file, void *buffer, size_t size);
int __wrap_fstat(int file, struct stat *status);

int __wrap_open(const char *name, int flags, ...)
{
    if (instead_of_open)
        return instead_of_open(name, flags);
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return __real_open(name, flags, mode);
}

ssize_t __wrap_read(int file, void *buffer, size_t size)
{
    return instead_of_read ? instead_of_read(file, buffer, size) : __real_read(file, buffer, size);
}

int __wrap_fstat(int file, struct stat *status)
{
    return instead_of_fstat ? instead_of_fstat(file, status) : __real_fstat(file, status);
}

}  // extern "C"

namespace system_calls
{

void set_open(open_call call)
{
    instead_of_open = std::move(call);
}

void set_read(read_call call)
{
    instead_of_read = std::move(call);
}

void set_fstat(fstat_call call)
{
    instead_of_fstat = std::move(call);
}

void reset()
{
    instead_of_open = nullptr;
    instead_of_read = nullptr;
    instead_of_fstat = nullptr;
}

int system_open(const char *name, int flags)
{
    return __real_open(name, flags);
}

ssize_t system_read(int file, void *buffer, size_t size)
{
    return __real_read(file, buffer, size);
}

int system_fstat(int file, struct stat *status)
{
    return __real_fstat(file, status);
}

}  // namespace system_calls
