// Hops as rows of text and as JSON.
#ifndef INVCTL_PATH_HOPS_H
#define INVCTL_PATH_HOPS_H

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "document.h"

namespace invctl
{

// One hop, put into words. An empty cell is something that the document does not say.
struct path_hop {
    std::string device_type;
    std::string device_model;
    std::string address;    // I2C: bus address; PCIe: own port
    std::string link;       // channel or port to select for the next hop; empty on the last
    std::string device_id;  // PCIe: the next hop's
    uint16_t xml_instance = 0;
    std::string name;
    std::string file;  // without folder
};

// `opened` holds the hop's entity.
path_hop describe_hop(const document &opened, const sch_i2c_access_hop_type &hop, bool is_last);
path_hop describe_hop(const document &opened, const sch_pcie_access_hop_type &hop, bool is_last);

// A row a hop, cells below each other.
std::string hops_text(const std::vector<path_hop> &hops, bool with_files);

nlohmann::ordered_json hops_json(const std::vector<path_hop> &hops);

}  // namespace invctl

#endif
