// Every query and access sequence of the client interface on an open file, for fuzz targets.
#ifndef FUZZ_QUERY_EVERYTHING_H
#define FUZZ_QUERY_EVERYTHING_H

#include "inv_parser/inv_parser.h"

#include <string>

// What the file lookup answers for every unit.
extern std::string file_to_open;

// Asks about the whole tree and about its first entities one by one, and reads every octet of what is
// answered. Ends the process when answers contradict each other.
void query_everything(inv_xml_handle *handle);

// Reads each octet, so that a sanitizer sees what is not there.
void read_octets(const void *octets, size_t size);

// Read and release; null is ignored.
void take_sequence(sch_i2c_access_seq_type *sequence);
void take_sequence(sch_pcie_access_seq_type *sequence);
void take_pair(sch_i2c_access_seq_pair_type *pair);
void take_pair(sch_pcie_access_seq_pair_type *pair);

#endif
