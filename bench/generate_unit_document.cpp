#include "generate_unit_document.h"

#include "xml_writer.h"

#include <algorithm>

namespace inv_bench
{
namespace
{

constexpr unsigned most_instances = 32000;  // an xml instance has 16 bits with a sign
constexpr unsigned slots_of_a_list = 16;

struct generator {
    xml_writer out;
    unsigned made = 0;  // entities so far
};

void open_entity(generator &g, const char *tag, const char *type, const char *subtype)
{
    unsigned number = g.made++;
    open_element(g.out, tag);
    attribute(g.out, "name", std::string_view{std::string(tag) + ' ' + std::to_string(number)});
    attribute(g.out, "type", std::string_view{std::string("ORVL_ENTITY_TYPE_") + type});
    attribute(g.out, "subtype", std::string_view{std::string("ORVL_ENTITY_SUBTYPE_") + subtype});
    attribute(g.out, "instance", number % most_instances);
    attribute(g.out, "replicationScope", "ORVL_REPLICATION_TYPE_NODE");
    attribute(g.out, "xmlInstance", number % most_instances + 1);
}

void sensor(generator &g, const char *subtype, const char *unit)
{
    open_entity(g, "sensor", "SENSOR", subtype);
    open_element(g.out, "threshold");
    for (const char *limit :
         {"criticalLow", "majorLow", "minorLow", "minorHigh", "majorHigh", "criticalHigh"})
        attribute(g.out, limit, 40);
    close_element(g.out, "threshold");
    element(g.out, "value", 41);
    element(g.out, "lastValue", 40);
    element(g.out, "unit", unit);
    element(g.out, "scale", "ORVL_SENSOR_SCALE_UNITS");
    close_element(g.out, "sensor");
}

void sequence(generator &g, const char *tag, unsigned address)
{
    open_element(g.out, tag);
    element(g.out, "seqType", "ORVL_SEQ_FULL");
    element(g.out, "description", "idprom");
    open_element(g.out, "cmdInfo");
    element(g.out, "deviceType", "ORVL_I2CDEV_TYPE_I2CSLAVE_S0");
    hex_element(g.out, "deviceAddress", address & 0x7F, 2);
    close_element(g.out, "cmdInfo");
    close_element(g.out, tag);
}

void power_info(generator &g)
{
    open_element(g.out, "powerInfo");
    open_element(g.out, "powerZone");
    element(g.out, "description", "standby");
    element(g.out, "zone", "ORVL_POWER_ZONE_STANDBY");
    element(g.out, "powerOnOffCapability", "true");
    element(g.out, "powerApplied", "true");
    element(g.out, "totalPowerRequired", "12.5");
    element(g.out, "mainZone", "true");
    element(g.out, "pdZoneNumber", 1);
    close_element(g.out, "powerZone");
    close_element(g.out, "powerInfo");
}

void chassis_content(generator &g, unsigned entities)
{
    for (const char *number : {"fruBits", "instanceBits", "rackNumber", "availablePower"})
        element(g.out, number, 1);
    power_info(g);
    do {
        open_element(g.out, "entityContainerList");
        element(g.out, "containerType", "ORVL_CONTAINER_TYPE_LINECARDSLOT");
        element(g.out, "maxContainers", slots_of_a_list);
        for (unsigned slot = 0; slot < slots_of_a_list && (slot == 0 || g.made < entities); ++slot) {
            open_entity(g, "entityContainer", "CONTAINER", "CONTAINER_LC");
            attribute(g.out, "position", slot);
            sequence(g, "i2cIDPROM", slot);
            close_element(g.out, "entityContainer");
        }
        close_element(g.out, "entityContainerList");
    } while (g.made < entities);
}

void fans(generator &g, unsigned entities)
{
    do {
        open_entity(g, "fan", "FAN", "FAN_CTRL");
        sensor(g, "SENSOR_FAN_SPEED", "ORVL_SENSOR_UNIT_RPM");
        close_element(g.out, "fan");
    } while (g.made + 1 < entities);
}

void pem_content(generator &g, unsigned entities)
{
    fans(g, entities);
    element(g.out, "hoursUsage", 12);
    element(g.out, "faultStatus", "ORVL_FAULT_STATUS_NONE");
    element(g.out, "psmState", "ORVL_PSM_STATE_ENABLED");
}

void shelf_content(generator &g, unsigned entities)
{
    power_info(g);
    sensor(g, "SENSOR_TEMP_VALUE", "ORVL_SENSOR_UNIT_CELSIUS");
    element(g.out, "maxPemContainers", 2);
    do {
        open_entity(g, "pemBay", "CONTAINER", "CONTAINER_PEM");
        attribute(g.out, "position", 1);
        sequence(g, "i2cIDPROM", 0x51);
        open_entity(g, "i2cSensorAccess", "SENSOR", "SENSOR_POWER_VALUE");
        close_element(g.out, "i2cSensorAccess");
        close_element(g.out, "pemBay");
    } while (g.made + 1 < entities);
    open_entity(g, "module", "MODULE", "MODULE_UNKNOWN");
    close_element(g.out, "module");
}

void optics_content(generator &g, unsigned entities)
{
    do
        sensor(g, "SENSOR_TEMP_VALUE", "ORVL_SENSOR_UNIT_CELSIUS");
    while (g.made < entities);
    element(g.out, "numberChannels", 12);
    element(g.out, "sensorPerChannel", "true");
    element(g.out, "xmlInstanceStart", 200);
    for (const char *limits : {"sensorLosThresholds", "sensorBiasThresholds", "sensorThermoThresholds",
                               "sensorVoltageThresholds"}) {
        open_element(g.out, limits);
        for (const char *limit :
             {"criticalLow", "majorLow", "minorLow", "minorHigh", "majorHigh", "criticalHigh"})
            attribute(g.out, limit, 1);
        close_element(g.out, limits);
    }
    for (const char *summary : {"summaryLosTx", "summaryFaultTx", "summaryBiasTx", "summaryModuleTx",
                                "summaryLosRx", "summaryFaultRx", "summaryBiasRx", "summaryModuleRx"})
        element(g.out, summary, "true");
}

struct root_row {
    const char *tag;
    const char *type;
    const char *subtype;
    void (*content)(generator &g, unsigned entities);
};

/* In the order of unit_kind. */
constexpr root_row roots[] = {
    {"chassis", "CHASSIS", "CHASSIS_LCC", chassis_content},
    {"fanTray", "MODULE", "MODULE_FANTRAY", fans},
    {"powerShelf", "MODULE", "MODULE_POWERSHELF_DC", shelf_content},
    {"pem", "POWERSUPPLY", "POWERSUPPLY_DC", pem_content},
    {"optics", "MODULE", "MODULE_OPTICS_CXP", optics_content},
};

}  // namespace

std::string generate_unit_document(unit_kind kind, std::uint32_t entities)
{
    const root_row &root = roots[static_cast<unsigned>(kind)];
    generator g;
    g.out.text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    open_entity(g, root.tag, root.type, root.subtype);
    root.content(g, entities);
    close_element(g.out, root.tag);
    g.out.text += '\n';
    return std::move(g.out.text);
}

}  // namespace inv_bench
