// What this process holds of the system.
#ifndef TESTS_STRESS_PROCESS_STATE_H
#define TESTS_STRESS_PROCESS_STATE_H

#include <cstddef>

namespace stress
{

struct process_state {
    size_t resident;    // octets of memory in use by the kernel's count
    size_t mapped;      // octets of address space
    size_t allocated;   // octets that the C heap has handed out
    size_t heap_maps;   // ... by mappings of their own
    size_t open_files;  // file descriptors
};

process_state current_state();

// mallinfo2() counts freed blocks that a thread keeps for itself as handed out. Starts the program anew,
// without that cache, unless that has been done.
void run_without_thread_cache(char **argv);

}  // namespace stress

#endif
