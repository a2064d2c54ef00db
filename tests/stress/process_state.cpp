#include "stress/process_state.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <unistd.h>

namespace stress
{

process_state current_state()
{
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    process_state now = {};
    std::ifstream("/proc/self/statm") >> now.mapped >> now.resident;
    now.mapped *= page;
    now.resident *= page;
    const std::filesystem::directory_iterator files("/proc/self/fd");
    now.open_files = static_cast<size_t>(std::distance(begin(files), end(files)));
    const struct mallinfo2 heap = mallinfo2();
    now.allocated = heap.uordblks;
    now.heap_maps = heap.hblkhd;
    return now;
}

void run_without_thread_cache(char **argv)
{
    if (getenv("GLIBC_TUNABLES") != nullptr)
        return;
    setenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0", 1);
    execv("/proc/self/exe", argv);
}

}  // namespace stress
