#include "peer_record.h"

#include "inv_parser/inventory_tokens.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <unordered_map>
#include <vector>

namespace inv_bench
{
namespace
{

constexpr item bracket(std::string_view name, item_kind kind)
{
    return {name, kind, item_home::record, 0, 0};
}

#define FIELD(name, kind, field)                                                                             \
    {                                                                                                        \
        name, item_kind::kind, item_home::record, offsetof(peer_record, field), sizeof(peer_record::field)   \
    }

constexpr item attributes[] = {
    FIELD("name", text, name),
    FIELD("description", text, description),
    FIELD("oid", text, oid),
    FIELD("adminState", token, admin_state),
    FIELD("operState", token, oper_state),
    FIELD("powerAdminState", token, power_admin_state),
    FIELD("powerOperState", token, power_oper_state),
    FIELD("dualRouter", token, dual_router),
    FIELD("fruable", flag, fruable),
    FIELD("oir", flag, oir),
    FIELD("type", token, type),
    FIELD("subtype", token, subtype),
    FIELD("instance", number, instance),
    FIELD("replicationScope", token, rep_scope),
    FIELD("entitySelect", token, selection),
    FIELD("replicationStateScope", token, rep_state_scope),
    FIELD("entityOwner", token, owner),
    FIELD("snmpEntity", flag, snmp_entity),
    FIELD("isPrimary", flag, is_primary),
    FIELD("xmlInstance", number, xml_instance),
    FIELD("isPrefixNeeded", flag, is_prefix_needed),
    FIELD("isHidden", flag, is_hidden),
    FIELD("resetBaseData", flag, resets[0]),
    FIELD("resetDynamicData", flag, resets[1]),
    FIELD("resetNoData", flag, resets[2]),
    FIELD("position", number, own[9]),
    FIELD("eepromType", token, own[9]),
    FIELD("portUsage", token, own[9]),
};

constexpr item elements[] = {
    bracket("module", item_kind::entity),
    bracket("fpga", item_kind::entity),
    bracket("i2c", item_kind::entity),
    bracket("sensor", item_kind::entity),
    bracket("voltMargin", item_kind::entity),
    bracket("processor", item_kind::entity),
    bracket("memory", item_kind::entity),
    bracket("security", item_kind::entity),
    bracket("container", item_kind::entity),
    bracket("eeprom", item_kind::entity),
    bracket("fixedPorts", item_kind::entity),
    bracket("led", item_kind::entity),
    bracket("i2cPort", item_kind::port),
    bracket("dstInfo", item_kind::destination),
    bracket("ledInfo", item_kind::led),
    bracket("i2cNode", item_kind::group),
    bracket("nodeInfo", item_kind::group),
    bracket("pdNotes", item_kind::ignored),
    bracket("description", item_kind::ignored),
    FIELD("hardwareVersion", text, hardware_version),
    FIELD("softwareVersion", text, software_version),
    FIELD("firmwareVersion", text, firmware_version),
    FIELD("pdHardwareModel", token, hw_model),
    FIELD("obflData", number, obfl_data),
    FIELD("driverRegistered", flag, driver_registered),
    FIELD("driverRequired", flag, driver_required),
    FIELD("driverId", number, driver_id),
    FIELD("deviceType", token, device_type),
    FIELD("deviceAddress", hex, device_address),
    FIELD("controlRegister", hex, control_register),
    FIELD("logicalModuleNum", number, own[0]),
    FIELD("fieldUpgradable", flag, own[0]),
    FIELD("size", number, own[1]),
    FIELD("firmwareVersionMajor", number, own[2]),
    FIELD("firmwareVersionMinor", number, own[3]),
    FIELD("configSpiFlash", number, own[4]),
    FIELD("value", number, own[0]),
    FIELD("lastValue", number, own[1]),
    FIELD("hwPollRegisterOffset", hex, own[2]),
    FIELD("unit", token, own[3]),
    FIELD("scale", token, own[4]),
    FIELD("precision", number, own[5]),
    FIELD("cores", number, own[0]),
    FIELD("clockSpeed", text, own_texts[0]),
    FIELD("cpuSpeed", number, own[1]),
    FIELD("cpuSpeedUnit", token, own[2]),
    FIELD("cacheSizeL1", text, own_texts[1]),
    FIELD("cacheSizeL2", text, own_texts[2]),
    FIELD("cacheSizeL3", text, own_texts[3]),
    FIELD("capacity", text, own_texts[0]),
    FIELD("serialNumber", text, own_texts[1]),
    FIELD("isValidated", token, own[0]),
    FIELD("size", number, own[1]),
    FIELD("PCBSerialNumber", text, own_texts[0]),
    FIELD("yearMD", text, own_texts[1]),
    FIELD("PID", text, own_texts[2]),
    FIELD("VID", text, own_texts[3]),
    FIELD("boardID", number, own[0]),
    FIELD("maxBandWidth", number, own[0]),
    FIELD("operatingBandWidth", number, own[1]),
    FIELD("hwBoardIdentifier", text, own_texts[0]),
    FIELD("cccAddrOffset", hex, own[0]),
    FIELD("cccAddrBits", hex, own[1]),
    {"portType", item_kind::token, item_home::port, offsetof(peer_port, port_type), 0},
    {"channelNumber", item_kind::hex, item_home::port, offsetof(peer_port, channel), 0},
    {"applicable", item_kind::token, item_home::destination, offsetof(peer_destination, applicable), 0},
    {"nodeType", item_kind::token, item_home::destination, offsetof(peer_destination, node_type), 0},
    {"nodePosition", item_kind::number, item_home::destination, offsetof(peer_destination, node_position), 0},
    {"color", item_kind::token, item_home::led, offsetof(peer_led, color), 0},
    {"control", item_kind::token, item_home::led, offsetof(peer_led, control), 0},
};

#undef FIELD

struct token {
    std::string_view text;
    std::int64_t code;
};

#define TOKEN(name)                                                                                          \
    {                                                                                                        \
#name, name                                                                                          \
    }

const token tokens[] = {
    TOKEN(ORVL_ADMIN_STATE_ENABLED),
    TOKEN(ORVL_CTRL_SLOT_ANY),
    TOKEN(ORVL_CYSCLES_PER_SEC_UNIT_MHZ),
    TOKEN(ORVL_EEPROM_TYPE_ID),
    TOKEN(ORVL_ENTITY_OWNER_TYPE_COMMON),
    TOKEN(ORVL_ENTITY_OWNER_TYPE_FABRIC),
    TOKEN(ORVL_ENTITY_OWNER_TYPE_QZ_SDR),
    TOKEN(ORVL_ENTITY_OWNER_TYPE_SHELF),
    TOKEN(ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_SFP_PLUS),
    TOKEN(ORVL_ENTITY_SUBTYPE_CPU_NPU),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_ASIC),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_DAUGHTER_BOARD),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_DIMM),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_FPGA),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_IDPROM),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_MSC),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_PSE),
    TOKEN(ORVL_ENTITY_SUBTYPE_MODULE_SLICE),
    TOKEN(ORVL_ENTITY_SUBTYPE_OTHER_SECURITY),
    TOKEN(ORVL_ENTITY_SUBTYPE_PORT_ETHER_10GB),
    TOKEN(ORVL_ENTITY_SUBTYPE_SENSOR_LED_STATUS),
    TOKEN(ORVL_ENTITY_SUBTYPE_SENSOR_TEMP_VALUE),
    TOKEN(ORVL_ENTITY_TYPE_CONTAINER),
    TOKEN(ORVL_ENTITY_TYPE_CPU),
    TOKEN(ORVL_ENTITY_TYPE_MODULE),
    TOKEN(ORVL_ENTITY_TYPE_OTHER),
    TOKEN(ORVL_ENTITY_TYPE_PORT),
    TOKEN(ORVL_ENTITY_TYPE_SENSOR),
    TOKEN(ORVL_I2CDEV_TYPE_CCC),
    TOKEN(ORVL_I2CDEV_TYPE_I2CMUX),
    TOKEN(ORVL_I2CDEV_TYPE_I2CSLAVEADDRESS),
    TOKEN(ORVL_KESTO_PASSED),
    TOKEN(ORVL_LED_COLOR_GREEN),
    TOKEN(ORVL_LED_COLOR_YELLOW),
    TOKEN(ORVL_LED_CONTROL_BLINK),
    TOKEN(ORVL_LED_CONTROL_OFF),
    TOKEN(ORVL_LED_CONTROL_ON),
    TOKEN(ORVL_NODE_TYPE_ENTITY),
    TOKEN(ORVL_OPER_STATE_DOWN),
    TOKEN(ORVL_OPER_STATE_UP),
    TOKEN(ORVL_PORT_TYPE_MASTER),
    TOKEN(ORVL_PORT_TYPE_MUX),
    TOKEN(ORVL_PORT_USAGE_TRAFFIC),
    TOKEN(ORVL_POWER_ADMIN_STATE_ON),
    TOKEN(ORVL_REPLICATION_TYPE_RACK),
    TOKEN(ORVL_SENSOR_SCALE_UNITS),
    TOKEN(ORVL_SENSOR_UNIT_CELSIUS),
};

#undef TOKEN

using item_table = std::unordered_map<std::string_view, const item *>;
item_table attribute_table;
item_table element_table;
std::unordered_map<std::string_view, std::int64_t> token_table;

// Large blocks from calloc(): their pages are zero and are not touched before they are used.
constexpr std::size_t block_size = std::size_t{1} << 20;
std::vector<char *> blocks;
std::size_t used_of_block = block_size;

const item *find(const item_table &table, std::string_view name)
{
    const auto found = table.find(name);
    return found == table.end() ? nullptr : found->second;
}

bool store_number(std::int64_t &target, std::string_view text, int base)
{
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, target, base);
    return error == std::errc{} && stop == end;
}

bool store_flag(std::int64_t &target, std::string_view text)
{
    target = text == "true" || text == "1";
    return target != 0 || text == "false" || text == "0";
}

bool store_token(std::int64_t &target, std::string_view text)
{
    const auto found = token_table.find(text);
    if (found == token_table.end())
        return false;
    target = found->second;
    return true;
}

}  // namespace

const item *find_element(std::string_view name)
{
    return find(element_table, name);
}

const item *find_attribute(std::string_view name)
{
    return find(attribute_table, name);
}

bool store_value(void *home, const item &field, std::string_view text)
{
    char *place = static_cast<char *>(home) + field.offset;
    if (field.kind == item_kind::text) {
        std::memcpy(place, text.data(), std::min<std::size_t>(text.size(), field.size - 1u));
        return true;
    }
    auto &number = *reinterpret_cast<std::int64_t *>(place);
    switch (field.kind) {
    case item_kind::number:
        return store_number(number, text, 10);
    case item_kind::hex:
        return store_number(number, text, 16);
    case item_kind::flag:
        return store_flag(number, text);
    case item_kind::token:
        return store_token(number, text);
    default:
        return field.kind == item_kind::ignored;
    }
}

void *new_record(std::size_t size)
{
    size = (size + 15) & ~std::size_t{15};
    if (size > block_size - used_of_block) {
        blocks.push_back(static_cast<char *>(std::calloc(1, block_size)));
        if (blocks.back() == nullptr)
            std::abort();
        used_of_block = 0;
    }
    void *record = blocks.back() + used_of_block;
    used_of_block += size;
    return record;
}

void forget_records()
{
    for (char *block : blocks)
        std::free(block);
    blocks.clear();
    used_of_block = block_size;
}

void prepare_peer_tables()
{
    for (const item &row : attributes)
        attribute_table.emplace(row.name, &row);
    for (const item &row : elements)
        element_table.emplace(row.name, &row);
    for (const token &row : tokens)
        token_table.emplace(row.text, row.code);
}

}  // namespace inv_bench
