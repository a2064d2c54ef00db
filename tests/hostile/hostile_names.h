// Names that are made to cost as much as they can.
#ifndef TESTS_HOSTILE_HOSTILE_NAMES_H
#define TESTS_HOSTILE_HOSTILE_NAMES_H

#include <string>
#include <vector>

namespace hostile
{

// 2 to the power of `doublings` of them, with one FNV-1a hash of 32 bits.
std::vector<std::string> names_of_one_hash(unsigned doublings);

// Attributes that declare 2 to the power of `doublings` namespaces, and as many that use them. All prefixes
// have one FNV-1a hash of 32 bits.
std::string prefixes_of_one_hash(unsigned doublings);

}  // namespace hostile

#endif
