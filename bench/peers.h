/* Other ways to read a document: what ours is compared with. */
#ifndef INV_BENCH_PEERS_H
#define INV_BENCH_PEERS_H

#include "peer_record.h"

#include <pugixml.hpp>

namespace inv_bench
{

/* Each reads the file from open(2) on. What it makes replaces what the same function made before and stays
 * until the process ends or the matching forget function is called. False: could not. */
bool parse_with_pugixml(const char *file);
bool walk_with_pugixml(const char *file);
bool walk_with_rapidxml(const char *file);
bool scan_with_libxml2(const char *file);
bool scan_with_expat(const char *file);

/* The newest results. */
const pugi::xml_document &pugixml_document();
const peer_record *pugixml_records();

void forget_pugixml();

}  // namespace inv_bench

#endif
