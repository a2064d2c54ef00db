// Reads once, before anything else runs, which mutant is chosen (INV_MUTANT) and where to note the mutants
// that are passed (INV_MUTANTS_SEEN, a file that all processes of a test share).
#include "mutants.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

constexpr size_t most_mutants = 65536;
unsigned char seen_here[most_mutants];

__attribute__((constructor(101))) void choose()
{
    if (const char *number = getenv("INV_MUTANT"))
        inv_mutant_chosen = static_cast<unsigned>(strtoul(number, nullptr, 10));
    const char *path = getenv("INV_MUTANTS_SEEN");
    int file = path == nullptr ? -1 : open(path, O_RDWR | O_CLOEXEC);
    if (file < 0)
        return;
    void *shared = mmap(nullptr, most_mutants, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (shared != MAP_FAILED)
        inv_mutants_seen = static_cast<unsigned char *>(shared);
    close(file);
}

}  // namespace

unsigned inv_mutant_chosen = 0;
unsigned char *inv_mutants_seen = seen_here;
