#include "path_hops.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string_view>

#include "OrvelianInventorySchema.h"
#include "entity_words.h"
#include "output.h"
#include "path_walk.h"

namespace
{

using invctl::path_hop;
using json = nlohmann::ordered_json;

std::string hexadecimal(uint32_t value)
{
    char text[16];
    snprintf(text, sizeof text, "0x%02x", value);
    return text;
}

path_hop described(const invctl::document &opened, uint16_t xml_instance)
{
    path_hop hop;
    hop.xml_instance = xml_instance;
    hop.file = std::filesystem::path(opened.path).filename().string();
    if (const sch_base_entity_type *entity = invctl::find_entity(opened, xml_instance))
        hop.name = entity->name;
    return hop;
}

std::string or_dash(const std::string &cell)
{
    return cell.empty() ? "-" : cell;
}

json or_null(const std::string &cell)
{
    return cell.empty() ? json(nullptr) : json(cell);
}

std::vector<std::string> cells_of(const path_hop &hop, size_t number, bool with_files)
{
    std::vector<std::string> cells = {std::to_string(number), or_dash(hop.device_type),
                                      or_dash(hop.device_model), or_dash(hop.address), or_dash(hop.link)};
    if (with_files)
        cells.push_back(invctl::printable(hop.file.c_str()));
    cells.push_back("xml " + std::to_string(hop.xml_instance));
    cells.push_back("\"" + invctl::printable(hop.name.c_str()) + "\"");
    return cells;
}

}  // namespace

namespace invctl
{

path_hop describe_hop(const document &opened, const sch_i2c_access_hop_type &hop, bool is_last)
{
    path_hop shown = described(opened, hop.xml_instance);
    const sch_base_entity_type *entity = find_entity(opened, hop.xml_instance);
    if (entity != nullptr && (entity->field_present & SCH_BASE_HAS_I2C_NODE) != 0) {
        shown.device_type = schema_word(I2cDeviceType_ToString(hop.device_type), "ORVL_I2CDEV_TYPE_");
        if ((entity->i2c_node.field_present & SCH_I2C_NODE_HAS_DEVICE_MODEL) != 0)
            shown.device_model = schema_word(HardwareModelType_ToString(hop.device_model), "ORVL_HW_MODEL_");
        if ((entity->i2c_node.field_present & SCH_I2C_NODE_HAS_DEVICE_ADDRESS) != 0)
            shown.address = hexadecimal(hop.device_address);
    }
    if (!is_last)
        shown.link = "channel " + hexadecimal(hop.channel);
    return shown;
}

path_hop describe_hop(const document &opened, const sch_pcie_access_hop_type &hop, bool is_last)
{
    path_hop shown = described(opened, hop.xml_instance);
    const sch_base_entity_type *entity = find_entity(opened, hop.xml_instance);
    if (entity != nullptr && (entity->field_present & SCH_BASE_HAS_PCIE_NODE) != 0) {
        shown.device_type = schema_word(PCIeNodeType_deviceType_ToString(hop.device_type), "ORVL_DEV_TYPE_");
        if ((entity->pcie_node.field_present & SCH_PCIE_NODE_HAS_DEVICE_MODEL) != 0)
            shown.device_model = schema_word(HardwareModelType_ToString(hop.device_model), "ORVL_HW_MODEL_");
        if ((entity->pcie_node.field_present & SCH_PCIE_NODE_HAS_PORT_NUMBER) != 0)
            shown.address = "own port " + hexadecimal(hop.port_number);
    }
    if (!is_last) {
        shown.link = "port " + hexadecimal(hop.link_port);
        shown.device_id = hexadecimal(hop.device_id);
    }
    return shown;
}

std::string hops_text(const std::vector<path_hop> &hops, bool with_files)
{
    std::vector<std::vector<std::string>> rows;
    for (const path_hop &hop : hops)
        rows.push_back(cells_of(hop, rows.size(), with_files));
    std::string text;
    for (const auto &row : rows) {
        text += " ";
        for (size_t column = 0; column < row.size(); ++column) {
            size_t width = 0;
            for (const auto &each : rows)
                width = std::max(width, each[column].size());
            text += " " + row[column];
            if (column + 1 < row.size())
                text.append(width - row[column].size() + 1, ' ');
        }
        text += "\n";
    }
    return text;
}

nlohmann::ordered_json hops_json(const std::vector<path_hop> &hops)
{
    json list = json::array();
    for (const path_hop &hop : hops) {
        json object;
        object["device_type"] = or_null(hop.device_type);
        object["device_model"] = or_null(hop.device_model);
        object["address"] = or_null(hop.address);
        object["select"] = or_null(hop.link);
        if (!hop.device_id.empty())
            object["device_id"] = hop.device_id;
        object["xml_instance"] = hop.xml_instance;
        object["name"] = valid_utf8(hop.name.c_str());
        object["file"] = valid_utf8(hop.file.c_str());
        list.push_back(std::move(object));
    }
    return list;
}

}  // namespace invctl
