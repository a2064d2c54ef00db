// A file that holds a fuzzer's input, known by a name.
#ifndef FUZZ_MEMORY_FILE_H
#define FUZZ_MEMORY_FILE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

struct memory_file {
    int descriptor = -1;
    std::string name;  // empty when there is no such file
};

inline memory_file make_memory_file(const uint8_t *data, size_t size)
{
    memory_file file;
    file.descriptor = memfd_create("input", MFD_CLOEXEC);
    if (file.descriptor >= 0 && write(file.descriptor, data, size) == static_cast<ssize_t>(size))
        file.name = "/proc/self/fd/" + std::to_string(file.descriptor);
    return file;
}

inline void remove_memory_file(const memory_file &file)
{
    if (file.descriptor >= 0)
        close(file.descriptor);
}

#endif
