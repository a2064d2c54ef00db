// The system calls that a document is read with, led here by the linker (--wrap): a test says what they
// answer.
#ifndef TESTS_FAULTS_SYSTEM_CALLS_H
#define TESTS_FAULTS_SYSTEM_CALLS_H

#include <functional>
#include <sys/stat.h>
#include <sys/types.h>

namespace system_calls
{

using open_call = std::function<int(const char *name, int flags)>;
using read_call = std::function<ssize_t(int file, void *buffer, size_t size)>;
using fstat_call = std::function<int(int file, struct stat *status)>;

// In place of the system until reset().
void set_open(open_call call);
void set_read(read_call call);
void set_fstat(fstat_call call);
void reset();

// The system itself.
int system_open(const char *name, int flags);
ssize_t system_read(int file, void *buffer, size_t size);
int system_fstat(int file, struct stat *status);

}  // namespace system_calls

#endif
