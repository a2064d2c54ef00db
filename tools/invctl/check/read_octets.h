// Whole files in memory.
#ifndef INVCTL_CHECK_READ_OCTETS_H
#define INVCTL_CHECK_READ_OCTETS_H

#include <string>

namespace invctl::check
{

// Reads a regular file, or standard input for "-", of XB_MAX_FILE_SIZE octets at most. Returns an empty text,
// or why it was not read.
std::string read_octets(const std::string &file, std::string *octets);

}  // namespace invctl::check

#endif
