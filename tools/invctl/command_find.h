// invctl find: the entities that meet all conditions.
#ifndef INVCTL_COMMAND_FIND_H
#define INVCTL_COMMAND_FIND_H

#include <cstdint>
#include <optional>
#include <string>

namespace invctl
{

// A condition that is absent or empty is met by every entity.
struct find_options {
    std::string file;
    std::optional<uint8_t> type;
    std::string subtype;              // one of entity_subtypes()
    std::string owner;                // one of entity_owners()
    std::optional<std::string> name;  // a pattern; * is any text, ? one character
    bool json = false;
};

// Prints them in the order of the tree and returns the exit code; that there is none is a finding.
int run_find(const find_options &options);

}  // namespace invctl

#endif
