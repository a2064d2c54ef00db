/* Makes line-card documents of any size for benchmarks and tests.
 *
 * The document is one card with boards of up to 199 entities: nested modules, muxes, sensors, LEDs,
 * ports with cages and so on, each with about 17 attributes and 19 elements (1,360 octets). A lean one has
 * about 15 attributes, 12 elements and 1,209 octets to an entity: no thresholds, every eighth device behind
 * its mux, and half of the entities are temperature sensors. The
 * same options always give the same document. Every sensor hangs below the mux of its module, every
 * mux below that of the module above it, the topmost ones below the card's control FPGA.
 *
 * xml instances are 1 (card), 2 (control FPGA) and one block per board; from the 51st board on the
 * blocks are used again, so that none exceeds 10000 and no chain of muxes becomes a loop. */
#ifndef INV_BENCH_GENERATE_DOCUMENT_H
#define INV_BENCH_GENERATE_DOCUMENT_H

#include <cstdint>
#include <cstdio>
#include <string>

namespace inv_bench
{

struct document_options {
    std::uint32_t entities = 1000;  // the card itself included; 0 counts as 1
    std::uint32_t seed = 1;
    bool indented = true;
    bool lean = false;  // the benchmark's measure: 12 elements an entity, half of the entities sensors
};

/* The whole document as text. */
std::string generate_document(const document_options &options);

/* The same text, written piece by piece; false when the stream reports an error. */
bool write_document(std::FILE *out, const document_options &options);

}  // namespace inv_bench

#endif
