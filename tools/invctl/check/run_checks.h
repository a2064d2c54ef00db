// Reads documents and runs all checks over them.
#ifndef INVCTL_CHECK_RUN_CHECKS_H
#define INVCTL_CHECK_RUN_CHECKS_H

#include <string>
#include <vector>

#include "finding.h"

namespace invctl::check
{

struct check_result {
    std::vector<std::string> files;     // as the user wrote them, in order of checking
    finding_list found;                 // by file in that order, then by place
    std::vector<std::string> troubles;  // what could not be read, as messages
};

// Checks one document; "-" is standard input.
void check_file(const std::string &file, check_result &result);

// Every *.xml of the folder, by name.
void check_folder(const std::string &folder, check_result &result);

// The documents that the catalogue names, and how they go together.
void check_catalogue(const std::string &catalogue, check_result &result);

// Every code that a finding may have, with its row, in the order of the tables.
std::vector<const check_row *> all_rows();

}  // namespace invctl::check

#endif
