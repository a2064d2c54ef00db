// invctl show: the full records of entities.
#ifndef INVCTL_COMMAND_SHOW_H
#define INVCTL_COMMAND_SHOW_H

#include <cstdint>
#include <optional>
#include <string>

#include "inv_parser/inv_parser.h"

namespace invctl
{

// Exactly one of eid, xml_instance and all says which entities.
struct show_options {
    std::string file;
    std::optional<sch_eid_type> eid;
    std::optional<uint16_t> xml_instance;
    bool all = false;
    bool json = false;
};

// Prints the record and returns the exit code. What several entities answer to is not guessed: they are
// listed on standard error, and that is trouble; that none does is a finding.
int run_show(const show_options &options);

}  // namespace invctl

#endif
