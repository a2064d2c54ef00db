/* Makes documents of any size of every kind but the line card, for benchmarks and tests.
 *
 * The root carries as many of its kind's own parts as the size asks for: slots in container lists of a
 * chassis, fans with their sensors of a fan tray or a PEM, bays with their sensors of a power shelf,
 * sensors of the optics. The same arguments always give the same document. */
#ifndef INV_BENCH_GENERATE_UNIT_DOCUMENT_H
#define INV_BENCH_GENERATE_UNIT_DOCUMENT_H

#include <cstdint>
#include <string>

namespace inv_bench
{

enum class unit_kind { chassis, fan_tray, power_shelf, pem, optics };

/* `entities` counts the root; fewer than the root and one part of each sort are rounded up. */
std::string generate_unit_document(unit_kind kind, std::uint32_t entities);

}  // namespace inv_bench

#endif
