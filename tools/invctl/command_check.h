// invctl check: every mistake in documents, pointed at.
#ifndef INVCTL_COMMAND_CHECK_H
#define INVCTL_COMMAND_CHECK_H

#include <cstdint>
#include <string>
#include <vector>

#include "check/finding.h"
#include "command_table.h"

namespace invctl
{

struct check_options {
    std::vector<std::string> files;  // documents, folders, or "-"
    std::string catalogue;           // empty: none
    std::string format = "text";
    std::string least = "note";      // least severity that is shown
    std::vector<std::string> codes;  // empty: all
    uint64_t max = 100;              // 0: no limit
    bool quiet = false;
};

runner declare_check(CLI::App *check);

int run_check(const check_options &options);

}  // namespace invctl

#endif
