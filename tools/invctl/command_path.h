// invctl path: the hops by which a device is reached.
#ifndef INVCTL_COMMAND_PATH_H
#define INVCTL_COMMAND_PATH_H

#include <cstdint>
#include <optional>
#include <string>

namespace invctl
{

enum class bus { i2c, pcie };

struct path_options {
    std::string file;
    std::string target;                // EID or name; empty: instance or all says
    std::optional<uint16_t> instance;  // xml instance
    bus over = bus::i2c;
    bool all = false;              // every device, one line each
    bool behind = false;           // everything that is reached through the target
    std::string card_file;         // as seen from this control card; empty: from the top of the file
    std::optional<uint32_t> slot;  // of the control card; none: both
    uint32_t node_type = 0;        // what the target's unit is to the control card, and where
    uint32_t position = 0;
    bool json = false;
};

// Prints the path, or why there is none, and returns the exit code.
int run_path(const path_options &options);

// Node types as words, tokens or numbers: "linecard", "ORVL_NODE_TYPE_LINECARD", "6".
std::optional<uint32_t> node_type_of_word(const std::string &word);

}  // namespace invctl

#endif
