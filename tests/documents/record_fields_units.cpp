// Modules and whole units.
#include "record_fields.h"

namespace record_fields
{

namespace
{

template <class Record>
const Record *root(const inv_xml_handle &file)
{
    return reinterpret_cast<const Record *>(file.root->record);
}

const char *const port_usage = "portUsage=\"ORVL_PORT_USAGE_UNKNOWN\"";
const char *const port_content =
    "<maxBandWidth>0</maxBandWidth><operatingBandWidth>0</operatingBandWidth><hwBoardIdentifier/>";
const char *const eeprom_type = "eepromType=\"ORVL_EEPROM_TYPE_ID\"";
const char *const zero_limits =
    " criticalLow=\"0\" majorLow=\"0\" minorLow=\"0\" majorHigh=\"0\" criticalHigh=\"0\"";

field_row list_of(place head, const char *element, const char *more = "", const std::string &content = "")
{
    return list(head, element, whole_entity(element, more, content));
}

std::string fan_content()
{
    return whole_entity("sensor", "", sensor_content, "3");
}

std::vector<item> module_items()
{
    return entity_items(
        {{"logicalModuleNum"}, {"powerInfo"},  {"fpga"},       {"i2c"},       {"pcieSwitch"}, {"sensor"},
         {"voltMargin"},       {"storageSPI"}, {"storageHDD"}, {"processor"}, {"memory"},     {"ceSwitch"},
         {"security"},         {"console"},    {"module"},     {"container"}, {"eeprom"},     {"fixedPorts"},
         {"powerController"},  {"led"}});
}

std::vector<field_row> module_lists()
{
    using record = sch_module_type;
    std::string storage = storage_content;
    return {
        list_of(FIELD(fpga_list), "fpga", "", fpga_content),
        list_of(FIELD(i2c_chip_list), "i2c"),
        list_of(FIELD(pcie_switch_list), "pcieSwitch"),
        list_of(FIELD(sensor_list), "sensor", "", sensor_content),
        list_of(FIELD(volt_margin_list), "voltMargin", "",
                "<highValue>0</highValue><lowValue>0</lowValue><operation>ORVL_VOLT_MARGIN_OFF</operation>"),
        list_of(FIELD(spi_flash_list), "storageSPI", "", storage + "<channel>0</channel><blockSizeKB/>"),
        list_of(FIELD(storage_list), "storageHDD", "", storage),
        list_of(FIELD(processor_list), "processor", "",
                "<cores>0</cores><clockSpeed/><cacheSizeL1/><cacheSizeL2/><cacheSizeL3/>"),
        list_of(FIELD(memory_list), "memory", "", "<capacity/><serialNumber/><firmwareVersion/>"),
        list_of(FIELD(ce_switch_list), "ceSwitch", "", "<cores>0</cores>"),
        list_of(FIELD(kesto_list), "security", "", "<isValidated>ORVL_KESTO_PASSED</isValidated>"),
        list(FIELD(console_list), "console",
             whole_entity("console", std::string(port_usage) + " usage=\"ORVL_CONSOLE_PORT_ANY\"",
                          port_content)),
        list_of(FIELD(container_list), "container"),
        list_of(FIELD(ideeprom_list), "eeprom", eeprom_type),
        list_of(FIELD(port_list), "fixedPorts", port_usage, port_content),
        list_of(FIELD(led_list), "led", "", led_content),
        list_of(FIELD(module_list), "module")};
}

record_case module()
{
    using record = sch_module_type;
    std::vector<field_row> rows = {
        base_row("base"), number(FIELD(logical_module_num), "logicalModuleNum", signed_16(), 1u << 2),
        number(FIELD(power_controller), "powerController", signed_16(), 1u << 1)};
    field_row power_info = list(FIELD(power_info), "powerInfo",
                                "<powerInfo>" + std::string(power_zone_element) + "</powerInfo>");
    power_info.bit = 1u << 0;
    rows.push_back(power_info);
    for (field_row &row : module_lists())
        rows.push_back(std::move(row));
    return {"module",
            module_kind,
            entity("module"),
            "</module>",
            module_items(),
            [](const inv_xml_handle &file) { return file.module_record; },
            FIELD(field_present),
            rows,
            {"next"}};
}

record_case back_plane()
{
    using record = sch_back_plane_type;
    return {"back_plane",
            chassis_kind,
            chassis_before() + entity("backPlane"),
            "</backPlane></chassis>",
            entity_items({{"eeprom"}, {"sensor"}, {"module"}}),
            [](const inv_xml_handle &file) { return &root<sch_chassis_type>(file)->back_plane; },
            {},
            {base_row("base"), list_of(FIELD(ideeprom_list), "eeprom", eeprom_type),
             list_of(FIELD(sensor_list), "sensor", "", sensor_content),
             list_of(FIELD(module_list), "module")}};
}

// The modules of a fan are not carried.
record_case fan()
{
    using record = sch_fan_type;
    return {
        "fan",
        fan_tray_kind,
        entity("fanTray") + " xmlInstance=\"1\">" + entity("fan"),
        "</fan></fanTray>",
        entity_items(
            {required("sensor", "-32768", whole_entity("sensor", "", sensor_content, "%")), {"module"}}),
        [](const inv_xml_handle &file) { return root<sch_fan_tray_type>(file)->fan_list; },
        {},
        {base_row("base"),
         inner_entity(FIELD_INSIDE(sensor, sch_sensor_type, base.xml_instance), "sensor", "", sensor_content),
         untouched(FIELD(module), "module", whole_entity("module"))},
        {"next"}};
}

field_row limits(place minor_high, const char *element)
{
    return with_markup(number(minor_high, element, signed_32()),
                       std::string("<") + element + zero_limits + " minorHigh=\"%\"/>");
}

record_case cxp_fixed_optics()
{
    using record = sch_cxp_fixed_optics_type;
    std::vector<item> items = {required("numberChannels", "0"), required("sensorPerChannel", "0"),
                               required("xmlInstanceStart", "0")};
    for (const char *name :
         {"sensorLosThresholds", "sensorBiasThresholds", "sensorThermoThresholds", "sensorVoltageThresholds"})
        items.push_back(required(name, "0", limits({}, name).markup));
    for (const char *name : {"summaryLosTx", "summaryFaultTx", "summaryBiasTx", "summaryModuleTx",
                             "summaryLosRx", "summaryFaultRx", "summaryBiasRx", "summaryModuleRx"})
        items.push_back(required(name, "0"));
    return {
        "cxp_fixed_optics",
        optics_kind,
        entity("optics"),
        "</optics>",
        entity_items(items),
        [](const inv_xml_handle &file) { return root<record>(file); },
        {},
        {base_row("module"), number(FIELD(number_channels), "numberChannels", signed_16()),
         number(FIELD(sensor_per_channel), "sensorPerChannel", boolean()),
         number(FIELD(xml_instance_start), "xmlInstanceStart", signed_16()),
         number(FIELD(summary_los_tx), "summaryLosTx", boolean()),
         number(FIELD(summary_fault_tx), "summaryFaultTx", boolean()),
         number(FIELD(summary_bias_tx), "summaryBiasTx", boolean()),
         number(FIELD(summary_module_tx), "summaryModuleTx", boolean()),
         number(FIELD(summary_los_rx), "summaryLosRx", boolean()),
         number(FIELD(summary_fault_rx), "summaryFaultRx", boolean()),
         number(FIELD(summary_bias_rx), "summaryBiasRx", boolean()),
         number(FIELD(summary_module_rx), "summaryModuleRx", boolean()),
         limits(FIELD_INSIDE(los_thresholds, sch_threshold_type, minor_high), "sensorLosThresholds"),
         limits(FIELD_INSIDE(bias_thresholds, sch_threshold_type, minor_high), "sensorBiasThresholds"),
         limits(FIELD_INSIDE(thermo_thresholds, sch_threshold_type, minor_high), "sensorThermoThresholds"),
         limits(FIELD_INSIDE(voltage_thresholds, sch_threshold_type, minor_high),
                "sensorVoltageThresholds")}};
}

record_case chassis()
{
    using record = sch_chassis_type;
    std::string power_info = "<powerInfo>" + std::string(power_zone_element) + "</powerInfo>";
    return {"chassis",
            chassis_kind,
            entity("chassis"),
            "</chassis>",
            entity_items({required("fruBits", "0"),
                          required("instanceBits", "0"),
                          required("rackNumber", "0"),
                          required("availablePower", "0"),
                          required("powerInfo", "", power_info),
                          {"backPlane"},
                          {"ecuSlot"},
                          {"craftInterfaceSlot"},
                          {"entityContainerList"},
                          {"led"}}),
            [](const inv_xml_handle &file) { return root<record>(file); },
            FIELD(field_present),
            {base_row("base"), number(FIELD(available_power), "availablePower", unsigned_32()),
             number(FIELD(rack_number), "rackNumber", unsigned_32()),
             number(FIELD(fru_bits), "fruBits", unsigned_32()),
             number(FIELD(instance_bits), "instanceBits", unsigned_32()),
             list(FIELD(power_info), "powerInfo", power_info),
             inner_entity(FIELD_INSIDE(back_plane, sch_back_plane_type, base.xml_instance), "backPlane", "",
                          "", 1u << 0),
             inner_entity(FIELD_INSIDE(ecu_slot, sch_container_type, base.xml_instance), "ecuSlot", "", "",
                          1u << 1),
             inner_entity(FIELD_INSIDE(craft_interface_slot, sch_container_type, base.xml_instance),
                          "craftInterfaceSlot", "", "", 1u << 2),
             list(FIELD(container_list_list), "entityContainerList",
                  "<entityContainerList><containerType>ORVL_CONTAINER_TYPE_PM</containerType>"
                  "<maxContainers>0</maxContainers></entityContainerList>"),
             list_of(FIELD(led_list), "led", "", led_content)}};
}

// Hours of use, fault status and state are not carried.
record_case pem()
{
    using record = sch_pem_type;
    return {"pem",
            pem_kind,
            entity("pem"),
            "</pem>",
            entity_items({{"fan"},
                          required("hoursUsage", "4294967295"),
                          required("faultStatus", "ORVL_FAULT_STATUS_FEEDER_FAULT"),
                          required("psmState", "ORVL_PSM_STATE_FAILED")}),
            [](const inv_xml_handle &file) { return root<record>(file); },
            {},
            {base_row("module"), list_of(FIELD(fan_list), "fan", "", fan_content())}};
}

record_case fan_tray()
{
    using record = sch_fan_tray_type;
    return {"fan_tray",
            fan_tray_kind,
            entity("fanTray"),
            "</fanTray>",
            entity_items({{"fan"}}),
            [](const inv_xml_handle &file) { return root<record>(file); },
            {},
            {base_row("module"), list_of(FIELD(fan_list), "fan", "", fan_content())}};
}

record_case power_shelf()
{
    using record = sch_power_shelf_type;
    std::string power_info = "<powerInfo>" + std::string(power_zone_element) + "</powerInfo>";
    return {
        "power_shelf",
        power_shelf_kind,
        entity("powerShelf"),
        "</powerShelf>",
        entity_items({required("powerInfo", "", power_info),
                      {"i2c"},
                      {"eeprom"},
                      {"sensor"},
                      required("maxPemContainers", "0"),
                      {"pemBay"},
                      {"module"}}),
        [](const inv_xml_handle &file) { return root<record>(file); },
        {},
        {base_row("base"), list(FIELD(power_info), "powerInfo", power_info),
         list_of(FIELD(i2c_chip_list), "i2c"), list_of(FIELD(ideeprom_list), "eeprom", eeprom_type),
         list_of(FIELD(sensor_list), "sensor", "", sensor_content),
         number(FIELD(max_pem_containers), "maxPemContainers", signed_16()),
         list_of(FIELD(pem_bay_list), "pemBay"),
         // The first module alone is carried.
         with_markup(number(FIELD_INSIDE(module, sch_module_type, base.xml_instance), "module", signed_16()),
                     whole_entity("module", "", "", "%") + whole_entity("module", "", "", "99"))}};
}

}  // namespace

const std::vector<record_case> &unit_cases()
{
    static const std::vector<record_case> cases = {module(),  back_plane(), fan(),      cxp_fixed_optics(),
                                                   chassis(), pem(),        fan_tray(), power_shelf()};
    return cases;
}

}  // namespace record_fields
