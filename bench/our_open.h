/* Our library as the benchmark opens documents with it. */
#ifndef INV_BENCH_OUR_OPEN_H
#define INV_BENCH_OUR_OPEN_H

#include "inv_parser/inv_parser.h"

namespace inv_bench
{

/* A line card, as the first open of the file; null when it does not open. */
inv_xml_handle *open_card(const char *file);

}  // namespace inv_bench

#endif
