/* Where and with what the benchmark ran. */
#ifndef INV_BENCH_MACHINE_H
#define INV_BENCH_MACHINE_H

#include <ostream>

namespace inv_bench
{

/* A list of the machine, the compiler and the peers' versions. */
void write_machine(std::ostream &out);

}  // namespace inv_bench

#endif
