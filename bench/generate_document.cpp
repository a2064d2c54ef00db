#include "generate_document.h"

#include "xml_writer.h"

#include <algorithm>
#include <array>
#include <vector>

namespace inv_bench
{
namespace
{

constexpr unsigned card_instance = 1;
constexpr unsigned control_fpga_instance = 2;
constexpr unsigned first_block = 3;
constexpr unsigned board_size = 199;
constexpr unsigned block_count = 50;
constexpr unsigned deepest_module = 4;
constexpr unsigned control_channels = 8;
constexpr std::size_t flush_size = 1 << 20;
constexpr unsigned lean_devices = 8;  // in a lean document every eighth device has an I2C node

/* In the order in which a module's content has them. */
enum component_kind : unsigned {
    fpga,
    mux,
    sensor,
    volt_margin,
    processor,
    memory,
    kesto,
    container,
    eeprom,
    port,  // with an LED and a cage: three entities
    led,
    kind_count
};

struct component_row {
    const char *element;
    const char *label;
    const char *type;
    const char *subtype;
    unsigned weight;
    bool behind_mux;
};

constexpr std::array<component_row, kind_count> components = {{
    {"fpga", "control FPGA", "MODULE", "MODULE_FPGA", 2, true},
    {"i2c", "mux", "MODULE", "MODULE_I2C_MUX", 0, false},
    {"sensor", "temperature", "SENSOR", "SENSOR_TEMP_VALUE", 12, true},
    {"voltMargin", "core margin", "SENSOR", "SENSOR_VOLTAGE_MARGIN", 3, true},
    {"processor", "processor", "CPU", "CPU_NPU", 1, false},
    {"memory", "memory", "MODULE", "MODULE_DIMM", 2, false},
    {"security", "authentication chip", "OTHER", "OTHER_SECURITY", 1, true},
    {"container", "socket", "CONTAINER", "CONTAINER_OPTICS_SFP_PLUS", 2, true},
    {"eeprom", "EEPROM", "MODULE", "MODULE_IDPROM", 2, true},
    {"fixedPorts", "port", "PORT", "PORT_ETHER_10GB", 4, false},
    {"led", "LED", "SENSOR", "SENSOR_LED_STATUS", 4, false},
}};

struct module_plan {
    unsigned xml_instance = 0;
    unsigned level = 0;
    std::array<std::vector<unsigned>, kind_count> parts;  // xml instances by kind
    std::vector<module_plan> children;
};

struct generator {
    xml_writer out;
    std::uint64_t random = 0;
    std::FILE *file = nullptr;
    bool failed = false;
    bool lean = false;
    unsigned planned = 0;
    unsigned planned_sensors = 0;
};

unsigned draw(generator &g, unsigned below)
{
    g.random = g.random * 6364136223846793005u + 1442695040888963407u;
    return static_cast<unsigned>((g.random >> 33) % below);
}

constexpr bool is_sensor(unsigned kind)
{
    return kind == sensor || kind == volt_margin || kind == led;
}

component_kind draw_kind(generator &g)
{
    // Sensors fill a lean document up to its half, whatever else is drawn.
    if (g.lean && 2 * g.planned_sensors < g.planned)
        return sensor;
    std::array<unsigned, kind_count> weights;
    unsigned total = 0;
    for (unsigned kind = 0; kind < kind_count; ++kind) {
        weights[kind] = g.lean && is_sensor(kind) ? 0 : components[kind].weight;
        total += weights[kind];
    }
    unsigned ticket = draw(g, total);
    unsigned kind = 0;
    while (ticket >= weights[kind])
        ticket -= weights[kind++];
    return static_cast<component_kind>(kind);
}

void note_planned(generator &g, unsigned count, bool has_sensor)
{
    g.planned += count;
    g.planned_sensors += has_sensor ? 1 : 0;
}

/* A module of exactly `size` entities; a parent's instance is below those of what it contains. */
module_plan plan_module(generator &g, unsigned size, unsigned level, unsigned &next_instance)
{
    module_plan plan;
    plan.level = level;
    plan.xml_instance = next_instance++;
    unsigned left = size - 1;
    if (left > 0) {
        plan.parts[mux].push_back(next_instance++);
        --left;
    }
    note_planned(g, size - left, false);
    while (left > 0) {
        if (level < deepest_module && left >= 8 && draw(g, 5) == 0) {
            const unsigned share = std::min(left, 6 + draw(g, level == 1 ? 40 : 12));
            plan.children.push_back(plan_module(g, share, level + 1, next_instance));
            left -= share;
            continue;
        }
        const component_kind kind = draw_kind(g);
        const unsigned taken = kind == port ? 3 : 1;
        if (taken > left)
            continue;
        plan.parts[kind].push_back(next_instance);
        note_planned(g, taken, kind == port || is_sensor(kind));
        next_instance += taken;
        left -= taken;
    }
    return plan;
}

void base_attributes(generator &g, const char *type, const char *subtype, unsigned instance,
                     unsigned xml_instance, const std::string &name)
{
    constexpr std::array<const char *, 4> owners = {"SHELF", "FABRIC", "QZ_SDR", "COMMON"};
    const auto token = [&g](const char *attribute_name, const char *prefix, const char *value) {
        attribute(g.out, attribute_name, std::string_view{std::string(prefix) + value});
    };
    attribute(g.out, "name", name);
    attribute(g.out, "description",
              name + " of the generated card" +
                  (g.lean ? ", as its front panel and its manual call it" : ""));
    attribute(g.out, "adminState", "ORVL_ADMIN_STATE_ENABLED");
    attribute(g.out, "operState", draw(g, 8) == 0 ? "ORVL_OPER_STATE_DOWN" : "ORVL_OPER_STATE_UP");
    attribute(g.out, "powerAdminState", "ORVL_POWER_ADMIN_STATE_ON");
    attribute(g.out, "fruable", "false");
    attribute(g.out, "oir", "false");
    token("type", "ORVL_ENTITY_TYPE_", type);
    token("subtype", "ORVL_ENTITY_SUBTYPE_", subtype);
    attribute(g.out, "instance", instance);
    attribute(g.out, "replicationScope", "ORVL_REPLICATION_TYPE_RACK");
    token("entityOwner", "ORVL_ENTITY_OWNER_TYPE_", owners[draw(g, owners.size())]);
    attribute(g.out, "snmpEntity", draw(g, 2) == 0 ? "true" : "false");
    attribute(g.out, "xmlInstance", xml_instance);
    attribute(g.out, "isHidden", "false");
}

void versions(generator &g)
{
    element(g.out, "pdNotes",
            g.lean
                ? "Made by the document generator, with what every entity has and the most of what its own "
                  "kind has in common; boards, muxes and sensors as they are on a real card."
                : "Made by the document generator.");
    element(g.out, "hardwareVersion", "1.0");
    element(g.out, "firmwareVersion", std::string_view{"2." + std::to_string(draw(g, 100))});
}

void driver(generator &g)
{
    element(g.out, "obflData", draw(g, 1u << 20));
    element(g.out, "driverRegistered", "true");
    element(g.out, "driverId", draw(g, 400));
}

void i2c_node(generator &g, const char *device_type, unsigned address)
{
    open_element(g.out, "i2cNode");
    element(g.out, "deviceType", std::string_view{std::string("ORVL_I2CDEV_TYPE_") + device_type});
    hex_element(g.out, "deviceAddress", address, 2);
    hex_element(g.out, "controlRegister", 0x2000 + address, 8);
    close_element(g.out, "i2cNode");
}

void i2c_port(generator &g, const char *port_type, unsigned channel,
              const std::vector<unsigned> &destinations)
{
    if (destinations.empty())
        return;
    open_element(g.out, "i2cPort");
    element(g.out, "portType", std::string_view{std::string("ORVL_PORT_TYPE_") + port_type});
    hex_element(g.out, "channelNumber", channel, 2);
    for (unsigned destination : destinations) {
        open_element(g.out, "dstInfo");
        element(g.out, "description", "device");
        element(g.out, "applicable", "ORVL_CTRL_SLOT_ANY");
        open_element(g.out, "nodeInfo");
        element(g.out, "nodeType", "ORVL_NODE_TYPE_ENTITY");
        element(g.out, "nodePosition", destination);
        close_element(g.out, "nodeInfo");
        close_element(g.out, "dstInfo");
    }
    close_element(g.out, "i2cPort");
}

bool has_i2c_node(const generator &g, unsigned xml_instance)
{
    return !g.lean || xml_instance % lean_devices == 0;
}

std::vector<unsigned> on_i2c(const generator &g, std::vector<unsigned> devices)
{
    std::erase_if(devices, [&g](unsigned device) { return !has_i2c_node(g, device); });
    return devices;
}

/* Each kind of device has a channel of its own, the muxes of the child modules share channel 7. */
void mux_ports(generator &g, const module_plan &plan)
{
    unsigned channel = 0;
    for (unsigned kind = 0; kind < kind_count; ++kind)
        if (components[kind].behind_mux)
            i2c_port(g, "MUX", channel++, on_i2c(g, plan.parts[kind]));
    std::vector<unsigned> cages;
    for (unsigned port_instance : plan.parts[port])
        cages.push_back(port_instance + 2);
    i2c_port(g, "MUX", channel, on_i2c(g, std::move(cages)));
    std::vector<unsigned> muxes;
    for (const module_plan &child : plan.children)
        muxes.insert(muxes.end(), child.parts[mux].begin(), child.parts[mux].end());
    i2c_port(g, "MUX", 7, muxes);
}

void led_info(generator &g, const char *color, const char *control)
{
    open_element(g.out, "ledInfo");
    element(g.out, "color", std::string_view{std::string("ORVL_LED_COLOR_") + color});
    element(g.out, "control", std::string_view{std::string("ORVL_LED_CONTROL_") + control});
    close_element(g.out, "ledInfo");
}

void led_content(generator &g)
{
    hex_element(g.out, "cccAddrOffset", 0x100 + draw(g, 64), 8);
    hex_element(g.out, "cccAddrBits", 1u << draw(g, 32), 8);
    led_info(g, "GREEN", "ON");
    led_info(g, "YELLOW", "BLINK");
    led_info(g, "GREEN", "OFF");
}

void threshold(generator &g, int nominal)
{
    open_element(g.out, "threshold");
    attribute(g.out, "criticalLow", -15);
    attribute(g.out, "majorLow", -10);
    attribute(g.out, "minorLow", -5);
    attribute(g.out, "minorHigh", nominal + 30);
    attribute(g.out, "majorHigh", nominal + 40);
    attribute(g.out, "criticalHigh", nominal + 50);
    close_element(g.out, "threshold");
}

void sensor_content(generator &g)
{
    const int nominal = 30 + static_cast<int>(draw(g, 40));
    if (!g.lean)
        threshold(g, nominal);
    element(g.out, "value", nominal);
    element(g.out, "lastValue", nominal - 1);
    if (!g.lean)
        hex_element(g.out, "hwPollRegisterOffset", 4 * draw(g, 256), 8);
    element(g.out, "unit", "ORVL_SENSOR_UNIT_CELSIUS");
    element(g.out, "scale", "ORVL_SENSOR_SCALE_UNITS");
    if (!g.lean)
        element(g.out, "precision", 0);
}

void fpga_content(generator &g)
{
    element(g.out, "fieldUpgradable", "true");
    element(g.out, "size", 2097152);
    element(g.out, "firmwareVersionMajor", 1);
    element(g.out, "firmwareVersionMinor", draw(g, 30));
    element(g.out, "configSpiFlash", 0);
}

void processor_content(generator &g)
{
    element(g.out, "cores", 4 + draw(g, 60));
    element(g.out, "clockSpeed", "1.2 GHz");
    element(g.out, "cpuSpeed", 1200);
    element(g.out, "cpuSpeedUnit", "ORVL_CYSCLES_PER_SEC_UNIT_MHZ");
    element(g.out, "cacheSizeL1", "64KB");
    element(g.out, "cacheSizeL2", "512KB");
    element(g.out, "cacheSizeL3", "4MB");
}

void memory_content(generator &g)
{
    element(g.out, "capacity", "8GB");
    element(g.out, "serialNumber", std::string_view{"D4" + std::to_string(100000 + draw(g, 900000))});
    element(g.out, "firmwareVersion", "n/a");
}

void eeprom_content(generator &g)
{
    element(g.out, "size", 1024);
    element(g.out, "PCBSerialNumber", std::string_view{"GEN" + std::to_string(draw(g, 1000000))});
    element(g.out, "yearMD", "2025");
    element(g.out, "PID", "LC-GEN");
    element(g.out, "VID", "V01");
    element(g.out, "boardID", 16);
}

void volt_margin_content(generator &g)
{
    const unsigned nominal = 800 + 10 * draw(g, 50);
    element(g.out, "highValue", nominal + nominal / 20);
    element(g.out, "lowValue", nominal - nominal / 20);
    element(g.out, "operation", "ORVL_VOLT_MARGIN_OFF");
}

void port_content(generator &g);

/* Own content by kind; none for what only has the common part. */
constexpr std::array<void (*)(generator &), kind_count> own_content = {{
    fpga_content,
    nullptr,
    sensor_content,
    volt_margin_content,
    processor_content,
    memory_content,
    [](generator &g) { element(g.out, "isValidated", "ORVL_KESTO_PASSED"); },
    nullptr,
    eeprom_content,
    port_content,
    led_content,
}};

void kind_attributes(generator &g, component_kind kind, unsigned instance)
{
    if (kind == container)
        attribute(g.out, "position", instance);
    if (kind == eeprom)
        attribute(g.out, "eepromType", "ORVL_EEPROM_TYPE_ID");
    if (kind == port)
        attribute(g.out, "portUsage", "ORVL_PORT_USAGE_TRAFFIC");
}

void write_part(generator &g, component_kind kind, const char *tag, unsigned instance, unsigned xml_instance,
                const module_plan *muxed)
{
    const component_row &row = components[kind];
    open_element(g.out, tag);
    base_attributes(g, row.type, row.subtype, instance, xml_instance,
                    "Unit " + std::to_string(xml_instance) + ' ' + row.label + ' ' +
                        std::to_string(instance));
    kind_attributes(g, kind, instance);
    versions(g);
    if (kind == mux || (row.behind_mux && has_i2c_node(g, xml_instance)))
        i2c_node(g, kind == mux ? "I2CMUX" : "I2CSLAVEADDRESS", (0x40 + instance) & 0x7F);
    if (muxed != nullptr)
        mux_ports(g, *muxed);
    driver(g);
    if (kind == port) {
        port_content(g);
        write_part(g, led, "led", 0, xml_instance + 1, nullptr);
        write_part(g, container, "container", 0, xml_instance + 2, nullptr);
    } else if (own_content[kind] != nullptr) {
        own_content[kind](g);
    }
    close_element(g.out, tag);
}

void port_content(generator &g)
{
    element(g.out, "maxBandWidth", std::int64_t{10'000'000'000});
    element(g.out, "operatingBandWidth", 10000);
    element(g.out, "hwBoardIdentifier", "P");
}

void write_module(generator &g, const module_plan &plan, unsigned instance)
{
    constexpr std::array<const char *, deepest_module + 1> subtypes = {
        "MODULE_MSC", "MODULE_DAUGHTER_BOARD", "MODULE_SLICE", "MODULE_PSE", "MODULE_ASIC"};
    open_element(g.out, "module");
    base_attributes(g, "MODULE", subtypes[plan.level], instance, plan.xml_instance,
                    "Module " + std::to_string(plan.xml_instance));
    versions(g);
    driver(g);
    element(g.out, "logicalModuleNum", instance);
    const auto parts_of = [&](unsigned kind) {
        const std::vector<unsigned> &list = plan.parts[kind];
        for (unsigned i = 0; i < list.size(); ++i)
            write_part(g, static_cast<component_kind>(kind), components[kind].element, i, list[i],
                       kind == mux ? &plan : nullptr);
    };
    for (unsigned kind = 0; kind < container; ++kind)
        parts_of(kind);
    for (unsigned i = 0; i < plan.children.size(); ++i)
        write_module(g, plan.children[i], i);
    for (unsigned kind = container; kind < kind_count; ++kind)
        parts_of(kind);
    close_element(g.out, "module");
}

void flush(generator &g)
{
    if (g.file == nullptr)
        return;
    if (std::fwrite(g.out.text.data(), 1, g.out.text.size(), g.file) != g.out.text.size())
        g.failed = true;
    g.out.text.clear();
}

void control_fpga(generator &g, unsigned boards, bool last_has_mux)
{
    open_element(g.out, "fpga");
    base_attributes(g, "MODULE", "MODULE_FPGA", 0, control_fpga_instance, "Card control FPGA");
    versions(g);
    i2c_node(g, "CCC", 0x40);
    const unsigned muxes = std::min(last_has_mux ? boards : boards - 1, block_count);
    for (unsigned channel = 0; channel < control_channels; ++channel) {
        std::vector<unsigned> destinations;
        for (unsigned board = channel; board < muxes; board += control_channels)
            destinations.push_back(first_block + board * board_size + 1);
        i2c_port(g, "MASTER", channel, destinations);
    }
    driver(g);
    fpga_content(g);
    close_element(g.out, "fpga");
}

void write_card(generator &g, unsigned entities)
{
    g.out.text += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    open_element(g.out, "module");
    base_attributes(g, "MODULE", "MODULE_MSC", 0, card_instance, "Generated card");
    versions(g);
    driver(g);
    const unsigned on_boards = entities > 2 ? entities - 2 : 0;
    const unsigned boards = (on_boards + board_size - 1) / board_size;
    if (entities > 1)
        control_fpga(g, boards, on_boards % board_size != 1);
    for (unsigned board = 0; board < boards; ++board) {
        unsigned next_instance = first_block + board % block_count * board_size;
        const unsigned size = std::min(board_size, on_boards - board * board_size);
        write_module(g, plan_module(g, size, 1, next_instance), board);
        if (g.out.text.size() >= flush_size)
            flush(g);
    }
    close_element(g.out, "module");
    g.out.text += '\n';
    flush(g);
}

generator start(const document_options &options)
{
    generator g;
    g.random = options.seed;
    g.out.indented = options.indented;
    g.lean = options.lean;
    return g;
}

}  // namespace

std::string generate_document(const document_options &options)
{
    generator g = start(options);
    write_card(g, std::max(options.entities, 1u));
    return std::move(g.out.text);
}

bool write_document(std::FILE *out, const document_options &options)
{
    generator g = start(options);
    g.file = out;
    write_card(g, std::max(options.entities, 1u));
    return !g.failed && std::fflush(out) == 0;
}

}  // namespace inv_bench
