// Components: memories, sensors, bays, processors and chips.
#include "record_fields.h"

namespace record_fields
{

namespace
{

record_case ideeprom()
{
    using record = sch_ideeprom_type;
    return {
        "ideeprom",
        module_kind,
        module_before() + entity("eeprom"),
        "</eeprom>" + module_after(),
        entity_items({required("@eepromType", "ORVL_EEPROM_TYPE_ID"),
                      {"firmwareVersion"},
                      {"hardwareVersion"},
                      {"size"},
                      {"CLEICodeNum"},
                      {"manufacturerID"},
                      {"vendorName"},
                      {"vendorPN"},
                      {"PCBRevNumber"},
                      {"PCBSerialNumber"},
                      {"yearMD"},
                      {"monthMD"},
                      {"dayMD"},
                      {"lot"},
                      {"checkSum"},
                      {"PID"},
                      {"VID"},
                      {"PN"},
                      {"rev"},
                      {"boardID"}}),
        [](const inv_xml_handle &file) { return file.module_record->ideeprom_list; },
        FIELD(field_present),
        {base_row("base"),
         number(FIELD(eeprom_type), "@eepromType",
                tokens("ORVL_EEPROM_TYPE_ID", "ORVL_EEPROM_TYPE_UNKNOWN", 2)),
         // Behind an inherited item that the schema has after the inherited hardwareVersion.
         with_markup(number(FIELD(hardware_version), "hardwareVersion", unsigned_8(), 1u << 0),
                     "<firmwareVersion/><hardwareVersion>%</hardwareVersion>"),
         number(FIELD(size), "size", unsigned_16(), 1u << 1),
         text(FIELD(clei_code_num), "CLEICodeNum", text_up_to(25), 1u << 2),
         text(FIELD(manufacturer_id), "manufacturerID", text_up_to(25), 1u << 3),
         text(FIELD(vendor_name), "vendorName", text_up_to(25), 1u << 4),
         text(FIELD(vendor_pn), "vendorPN", text_up_to(25), 1u << 5),
         text(FIELD(pcb_rev_number), "PCBRevNumber", text_up_to(25), 1u << 6),
         text(FIELD(pcb_serial_number), "PCBSerialNumber", text_up_to(25), 1u << 7),
         text(FIELD(year_md), "yearMD", text_up_to(25), 1u << 8),
         text(FIELD(month_md), "monthMD", text_up_to(25), 1u << 9),
         text(FIELD(day_md), "dayMD", text_up_to(25), 1u << 10),
         text(FIELD(lot), "lot", text_up_to(25), 1u << 11), text(FIELD(pid), "PID", text_up_to(25), 1u << 13),
         text(FIELD(vid), "VID", text_up_to(25), 1u << 14), text(FIELD(pn), "PN", text_up_to(25), 1u << 15),
         text(FIELD(rev), "rev", text_up_to(25), 1u << 16),
         number(FIELD(check_sum), "checkSum", signed_8(), 1u << 12),
         number(FIELD(board_id), "boardID", unsigned_16(), 1u << 17)},
        {"next"}};
}

record_case storage_memory_map()
{
    using record = sch_storage_memory_map_type;
    return {"storage_memory_map",
            module_kind,
            module_before() + entity("storageSPI") + " xmlInstance=\"2\">" + storage_content +
                "<channel>0</channel><blockSizeKB>00</blockSizeKB><memoryRow",
            "</memoryRow></storageSPI>" + module_after(),
            {required("memoryUsage", "ORVL_MEM_USAGE_BOOTHEADER"), required("blocks", "0"),
             required("startAddr", "00"), required("endAddr", "00")},
            [](const inv_xml_handle &file) { return file.module_record->spi_flash_list->memory_map_list; },
            {},
            {number(FIELD(memory_usage), "memoryUsage",
                    tokens("ORVL_MEM_USAGE_BOOTHEADER", "ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE", 6)),
             number(FIELD(blocks), "blocks", unsigned_32()),
             number(FIELD(start_addr), "startAddr", hex_first_octet()),
             number(FIELD(end_addr), "endAddr", hex_first_octet())},
            {"next"}};
}

record_case storage()
{
    using record = sch_storage_type;
    return {
        "storage",
        module_kind,
        module_before() + entity("storageHDD"),
        "</storageHDD>" + module_after(),
        entity_items({required("maxCapacity", "00"), {"speed"}, {"storageSpeedUnit"}, {"fpga"}, {"eeprom"}}),
        [](const inv_xml_handle &file) { return file.module_record->storage_list; },
        FIELD(field_present),
        {base_row("base"), number(FIELD(max_capacity), "maxCapacity", hex_first_octet()),
         number(FIELD(speed), "speed", unsigned_32(), 1u << 0),
         list(FIELD(fpga_list), "fpga", whole_entity("fpga", "", fpga_content))},
        {"next"}};
}

record_case spi_flash()
{
    using record = sch_spi_flash_type;
    return {"spi_flash",
            module_kind,
            module_before() + entity("storageSPI"),
            "</storageSPI>" + module_after(),
            entity_items({required("maxCapacity", "", storage_content),
                          required("channel", "0"),
                          required("blockSizeKB", "00"),
                          {"memoryRow"}}),
            [](const inv_xml_handle &file) { return file.module_record->spi_flash_list; },
            {},
            {base_row("storage"), number(FIELD(channel), "channel", unsigned_32()),
             number(FIELD(block_size_kb), "blockSizeKB", hex_first_octet()),
             list(FIELD(memory_map_list), "memoryRow",
                  "<memoryRow><memoryUsage>ORVL_MEM_USAGE_BOOTHEADER</memoryUsage><blocks>0</blocks>"
                  "<startAddr/><endAddr/></memoryRow>")},
            {"next"}};
}

std::vector<item> sensor_items()
{
    return entity_items({{"@isMarginable"},
                         {"@isRov"},
                         {"@marginRegister"},
                         {"threshold"},
                         required("value", "0"),
                         required("lastValue", "0"),
                         {"pd_data1"},
                         {"pd_data2"},
                         {"powerdomain"},
                         {"hwPollRegisterOffset"},
                         {"isCoreAutopolled"},
                         {"sensorDataLength"},
                         required("unit", "ORVL_SENSOR_UNIT_DUMMY"),
                         {"userDefinedUnit"},
                         required("scale", "ORVL_SENSOR_SCALE_DUMMY"),
                         {"precision"}});
}

record_case sensor()
{
    using record = sch_sensor_type;
    return {
        "sensor",
        module_kind,
        module_before() + entity("sensor"),
        "</sensor>" + module_after(),
        sensor_items(),
        [](const inv_xml_handle &file) { return file.module_record->sensor_list; },
        FIELD(field_present),
        {base_row("base"),
         with_markup(
             number(FIELD_INSIDE(threshold, sch_threshold_type, minor_high), "threshold", signed_32(),
                    1u << 0),
             "<threshold criticalLow=\"0\" majorLow=\"0\" minorLow=\"0\" minorHigh=\"%\" majorHigh=\"0\""
             " criticalHigh=\"0\"/>"),
         number(
             FIELD(user_defined_unit), "userDefinedUnit",
             tokens("ORVL_USER_DEFINED_SENSOR_UNIT_FARENHEIT", "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIWATTS", 4),
             1u << 1),
         number(FIELD(pd_data1), "pd_data1", hex_word(), 1u << 6),
         number(FIELD(pd_data2), "pd_data2", hex_word(), 1u << 7),
         number(FIELD(powerdomain), "powerdomain", hex_word(), 1u << 8),
         number(FIELD(hw_poll_register_offset), "hwPollRegisterOffset", hex_word(), 1u << 9),
         number(FIELD(is_core_autopolled), "isCoreAutopolled", boolean()),
         number(FIELD(sensor_data_length), "sensorDataLength", signed_16()),
         number(FIELD(unit), "unit", tokens("ORVL_SENSOR_UNIT_DUMMY", "ORVL_SENSOR_UNIT_PASCAL", 16)),
         number(FIELD(scale), "scale", tokens("ORVL_SENSOR_SCALE_DUMMY", "ORVL_SENSOR_SCALE_YOTTA", 17)),
         number(FIELD(precision), "precision",
                {{"0", 0}, {"255", 255}, {"256", 0}, {"-1", 255}, {"2147483647", 255}, {"-2147483648", 0}},
                1u << 5),
         number(FIELD(is_marginable), "@isMarginable", boolean(), 1u << 2),
         number(FIELD(is_rov), "@isRov", boolean(), 1u << 3),
         number(FIELD(margin_register), "@marginRegister", hex_word(), 1u << 4)},
        {"next"}};
}

record_case pem_bay()
{
    using record = sch_pem_bay_type;
    return {
        "pem_bay",
        power_shelf_kind,
        entity("powerShelf") + " xmlInstance=\"1\"><powerInfo>" + power_zone_element +
            "</powerInfo><maxPemContainers>1</maxPemContainers>" + entity("pemBay"),
        "</pemBay></powerShelf>",
        entity_items({{"i2cSensorAccess"}}),
        [](const inv_xml_handle &file) {
            return reinterpret_cast<const sch_power_shelf_type *>(file.root->record)->pem_bay_list;
        },
        FIELD(field_present),
        {base_row("container"), inner_entity(FIELD_INSIDE(sensor_access, sch_base_entity_type, xml_instance),
                                             "i2cSensorAccess", "", "", 1u << 0)},
        {"next"}};
}

// The base entity has an item firmwareVersion as well: the memory's own comes behind its serial number.
record_case memory()
{
    using record = sch_memory_type;
    return {"memory",
            module_kind,
            module_before() + entity("memory"),
            "</memory>" + module_after(),
            entity_items(
                {required("capacity", "a"), required("serialNumber", "a"), required("firmwareVersion", "a")}),
            [](const inv_xml_handle &file) { return file.module_record->memory_list; },
            {},
            {base_row("base"), text(FIELD(capacity), "capacity", text_up_to(8)),
             text(FIELD(serial_number), "serialNumber", text_up_to(8)),
             text(FIELD(firmware_version), "firmwareVersion", text_up_to(8))},
            {"next"}};
}

record_case container_list()
{
    using record = sch_container_list_type;
    samples sequence_types = tokens("ORVL_SEQ_FULL", "ORVL_SEQ_LINK", 2);
    return {"container_list",
            chassis_kind,
            chassis_before() + "<entityContainerList",
            "</entityContainerList></chassis>",
            {required("containerType", "ORVL_CONTAINER_TYPE_CONTROLCARDSLOT"),
             required("maxContainers", "0"),
             {"pdNotes"},
             {"openQuestion"},
             {"kbrsReference"},
             {"i2cAccess"},
             {"i2cIDPROM"},
             {"pciAccess"},
             {"entityContainer"}},
            [](const inv_xml_handle &file) {
                return reinterpret_cast<const sch_chassis_type *>(file.root->record)->container_list_list;
            },
            FIELD(field_present),
            {number(FIELD(container_type), "containerType",
                    tokens("ORVL_CONTAINER_TYPE_CONTROLCARDSLOT", "ORVL_CONTAINER_TYPE_BPID2SLOT", 11)),
             number(FIELD(max_containers), "maxContainers", signed_16()),
             with_markup(number(FIELD_INSIDE(i2c_access, sch_i2c_sequence_type, seq_type), "i2cAccess",
                                sequence_types, 1u << 0),
                         "<i2cAccess><seqType>%</seqType><description/></i2cAccess>"),
             with_markup(number(FIELD_INSIDE(i2c_idprom, sch_i2c_sequence_type, seq_type), "i2cIDPROM",
                                sequence_types, 1u << 1),
                         "<i2cIDPROM><seqType>%</seqType><description/></i2cIDPROM>"),
             with_markup(number(FIELD_INSIDE(pci_access, sch_pci_sequence_type, applicable), "pciAccess",
                                tokens("ORVL_CTRL_SLOT_0", "ORVL_CTRL_SLOT_ANY", 2), 1u << 2),
                         "<pciAccess><applicable>%</applicable><description/></pciAccess>"),
             list(FIELD(container_list), "entityContainer", whole_entity("entityContainer"))},
            {"next"}};
}

record_case i2c_chip()
{
    return {"i2c_chip",
            module_kind,
            module_before() + entity("i2c"),
            "</i2c>" + module_after(),
            entity_items({}),
            [](const inv_xml_handle &file) { return file.module_record->i2c_chip_list; },
            {},
            {base_row("base")},
            {"next"}};
}

record_case processor()
{
    using record = sch_processor_type;
    return {"processor",
            module_kind,
            module_before() + entity("processor"),
            "</processor>" + module_after(),
            entity_items({required("cores", "0"),
                          required("clockSpeed", "a"),
                          {"busSpeed"},
                          {"busSpeedUnit"},
                          {"cpuSpeed"},
                          {"cpuSpeedUnit"},
                          {"oscillationSpeed"},
                          {"oscillationSpeedUnit"},
                          required("cacheSizeL1", "a"),
                          required("cacheSizeL2", "a"),
                          required("cacheSizeL3", "a")}),
            [](const inv_xml_handle &file) { return file.module_record->processor_list; },
            FIELD(field_present),
            {base_row("base"), number(FIELD(cores), "cores", unsigned_32()),
             number(FIELD(bus_speed), "busSpeed", unsigned_32(), 1u << 0),
             number(FIELD(cpu_speed), "cpuSpeed", unsigned_32(), 1u << 1),
             number(FIELD(oscillation_speed), "oscillationSpeed", unsigned_32(), 1u << 2),
             text(FIELD(clock_speed), "clockSpeed", text_up_to(64)),
             text(FIELD(cache_size_l1), "cacheSizeL1", text_up_to(64)),
             text(FIELD(cache_size_l2), "cacheSizeL2", text_up_to(64)),
             text(FIELD(cache_size_l3), "cacheSizeL3", text_up_to(64))},
            {"next"}};
}

record_case pcie_switch()
{
    using record = sch_pcie_switch_type;
    return {"pcie_switch",
            module_kind,
            module_before() + entity("pcieSwitch"),
            "</pcieSwitch>" + module_after(),
            entity_items({{"configGen"}, {"sensor"}, {"fpga"}}),
            [](const inv_xml_handle &file) { return file.module_record->pcie_switch_list; },
            FIELD(field_present),
            {base_row("base"),
             inner_entity(FIELD_INSIDE(sensor, sch_sensor_type, base.xml_instance), "sensor", "",
                          sensor_content, 1u << 0),
             list(FIELD(fpga_list), "fpga", whole_entity("fpga", "", fpga_content))},
            {"next"}};
}

record_case volt_margin()
{
    using record = sch_volt_margin_type;
    return {
        "volt_margin",
        module_kind,
        module_before() + entity("voltMargin"),
        "</voltMargin>" + module_after(),
        entity_items({required("highValue", "0"), required("lowValue", "0"),
                      required("operation", "ORVL_VOLT_MARGIN_HIGH")}),
        [](const inv_xml_handle &file) { return file.module_record->volt_margin_list; },
        {},
        {base_row("base"), number(FIELD(high_value), "highValue", signed_32()),
         number(FIELD(low_value), "lowValue", signed_32()),
         number(FIELD(operation), "operation", tokens("ORVL_VOLT_MARGIN_HIGH", "ORVL_VOLT_MARGIN_OFF", 2))},
        {"next"}};
}

}  // namespace

const std::vector<record_case> &device_cases()
{
    static const std::vector<record_case> cases = {
        ideeprom(), storage_memory_map(), storage(),  spi_flash(), sensor(),      pem_bay(),
        memory(),   container_list(),     i2c_chip(), processor(), pcie_switch(), volt_margin()};
    return cases;
}

}  // namespace record_fields
