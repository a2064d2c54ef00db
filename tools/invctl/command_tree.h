// invctl tree: the entity tree of a document.
#ifndef INVCTL_COMMAND_TREE_H
#define INVCTL_COMMAND_TREE_H

#include <cstdint>
#include <optional>
#include <string>

namespace invctl
{

struct tree_options {
    std::string file;
    uint32_t depth = 0;           // levels to show; 0: all
    std::optional<uint8_t> type;  // only entities of this type, and what leads to them
    bool json = false;
};

// Prints the tree and returns the exit code.
int run_tree(const tree_options &options);

}  // namespace invctl

#endif
