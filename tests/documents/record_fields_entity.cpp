// The base record of every entity, and power records.
#include "record_fields.h"

namespace record_fields
{

namespace
{

samples replication_levels()
{
    return tokens("ORVL_REPLICATION_TYPE_NONE", "ORVL_REPLICATION_TYPE_ADMIN_RACK_SVC_SYSTEM", 5);
}

samples power_zones()
{
    return tokens("ORVL_POWER_ZONE_UNKNOWN", "ORVL_POWER_ZONE_FABRICASICS5", 17);
}

field_row defaulted(field_row row, int64_t value)
{
    row.when_absent = value;
    return row;
}

field_row changing(field_row row, const char *member)
{
    row.also_changes = member;
    return row;
}

// When none of the three is true, the lowest bit says so.
field_row reset_flag(place flags, const std::string &item, int64_t bit)
{
    return defaulted(number(flags, item, {{"false", 1}, {"0", 1}, {"true", bit}, {"1", bit}}), 1);
}

std::vector<item> base_items()
{
    return {required("@name", "a"),
            {"@description"},
            {"@oid"},
            {"@adminState"},
            {"@operState"},
            {"@powerAdminState"},
            {"@powerOperState"},
            {"@dualRouter"},
            {"@fruable"},
            {"@oir"},
            required("@type", "ORVL_ENTITY_TYPE_MODULE"),
            required("@subtype", "ORVL_ENTITY_SUBTYPE_MODULE_DUMMY"),
            required("@instance", "0"),
            required("@replicationScope", "ORVL_REPLICATION_TYPE_NONE"),
            {"@entitySelect"},
            {"@replicationStateScope"},
            {"@entityOwner"},
            {"@snmpEntity"},
            {"@isPrimary"},
            required("@xmlInstance", "0"),
            {"@isPrefixNeeded"},
            {"@isHidden"},
            {"@resetBaseData"},
            {"@resetDynamicData"},
            {"@resetNoData"},
            {"powerConsumer"},
            {"powerProducer"},
            {"hardwareVersion"},
            {"softwareVersion"},
            {"firmwareVersion"},
            {"pdHardwareModel"},
            {"hwSignals"},
            {"spiPort"},
            {"i2cNode"},
            {"i2cPort"},
            {"pcieNode"},
            {"pciePort"},
            {"obflData"},
            {"pmBusPort"},
            {"driverRegistered"},
            {"driverRequired"},
            {"driverId"}};
}

std::vector<field_row> base_attributes()
{
    using record = sch_base_entity_type;
    return {
        text(FIELD(name), "@name", text_up_to(64)),
        text(FIELD(description), "@description", text_up_to(128)),
        text(FIELD(oid), "@oid", text_up_to(128)),
        number(FIELD(admin_state), "@adminState",
               tokens("ORVL_ADMIN_STATE_UNKNOWN", "ORVL_ADMIN_STATE_MAX", 4), 1u << 12),
        number(FIELD(oper_state), "@operState", tokens("ORVL_OPER_STATE_UNKNOWN", "ORVL_OPER_STATE_MAX", 4),
               1u << 13),
        number(FIELD(power_admin_state), "@powerAdminState",
               tokens("ORVL_POWER_ADMIN_STATE_UNKNOWN", "ORVL_POWER_ADMIN_STATE_MAX", 4), 1u << 14),
        number(FIELD(power_oper_state), "@powerOperState",
               tokens("ORVL_POWER_OPER_STATE_UNKNOWN", "ORVL_POWER_OPER_STATE_MAX", 4), 1u << 15),
        number(FIELD(is_fru), "@fruable", boolean(), 1u << 16),
        number(FIELD(oir), "@oir", boolean(), 1u << 17),
        number(FIELD(is_primary), "@isPrimary", boolean(), 1u << 18),
        defaulted(number(FIELD(snmp_entity), "@snmpEntity", boolean(), 1u << 26), 1),
        defaulted(number(FIELD(is_prefix_needed), "@isPrefixNeeded", boolean(), 1u << 19), 1),
        number(FIELD(is_hidden), "@isHidden", boolean(), 1u << 20),
        // Types number their subtypes from their own first one.
        changing(number(FIELD(type), "@type",
                        {{"ORVL_ENTITY_TYPE_DUMMY", 0},
                         {"ORVL_ENTITY_TYPE_MODULE", 9},
                         {"ORVL_ENTITY_TYPE_CPU", 12}}),
                 "subtype"),
        number(FIELD(subtype), "@subtype",
               {{"ORVL_ENTITY_SUBTYPE_MODULE_DUMMY", 0},
                {"ORVL_ENTITY_SUBTYPE_MODULE_MAX", 73},
                {"ORVL_ENTITY_SUBTYPE_BACKPLANE_DUMMY", 194},
                {"ORVL_ENTITY_SUBTYPE_INVALID", 173}}),
        number(FIELD(instance), "@instance", signed_16()),
        number(FIELD(global_subtype), "@subtype",
               {{"ORVL_ENTITY_SUBTYPE_MODULE_DUMMY", 62},
                {"ORVL_ENTITY_SUBTYPE_BACKPLANE_DUMMY", 0},
                {"ORVL_ENTITY_SUBTYPE_INVALID", 235}}),
        number(FIELD(dual_router), "@dualRouter",
               tokens("ORVL_DUAL_ROUTER_MODE_SINGLE", "ORVL_DUAL_ROUTER_MODE_BOTH", 3), 1u << 24),
        number(FIELD(rep_scope), "@replicationScope", replication_levels()),
        number(FIELD(rep_state_scope), "@replicationStateScope", replication_levels(), 1u << 21),
        number(FIELD(xml_instance), "@xmlInstance", signed_16()),
        reset_flag(FIELD(entity_reset_flags), "@resetBaseData", 2),
        reset_flag(FIELD(entity_reset_flags), "@resetDynamicData", 4),
        reset_flag(FIELD(entity_reset_flags), "@resetNoData", 8),
        defaulted(number(FIELD(owner), "@entityOwner",
                         tokens("ORVL_ENTITY_OWNER_TYPE_NONE", "ORVL_ENTITY_OWNER_TYPE_ALL", 6), 1u << 25),
                  1),
    };
}

std::vector<field_row> base_elements()
{
    using record = sch_base_entity_type;
    place pmbus_word = {"pmbus_valid", offsetof(record, pmbus_cmd) + sizeof(uint32_t), sizeof(uint32_t)};
    std::string pmbus = "<pmBusPort><PMBusCmd>%</PMBusCmd></pmBusPort>";
    return {
        untouched(FIELD(reserved_head)),
        number(FIELD(driver_registered), "driverRegistered", boolean(), 1u << 9),
        number(FIELD(driver_required), "driverRequired", boolean(), 1u << 10),
        number(FIELD(driver_id), "driverId", signed_16(), 1u << 11),
        number(FIELD(obfl_data), "obflData", unsigned_32(), 1u << 23),
        number(FIELD(pd_hw_model), "pdHardwareModel",
               tokens("ORVL_HW_MODEL_UNKNOWN", "ORVL_HW_MODEL_AUTHENTICITY_CHIP", 144), 1u << 5),
        text(FIELD(hw_version), "hardwareVersion", text_up_to(64), 1u << 2),
        text(FIELD(sw_version), "softwareVersion", text_up_to(64), 1u << 3),
        text(FIELD(fw_version), "firmwareVersion", text_up_to(64), 1u << 4),
        with_markup(number(FIELD_INSIDE(power_consumer, sch_power_consumer_type, power_zone), "powerConsumer",
                           power_zones(), 1u << 0),
                    "<powerConsumer><powerZone>%</powerZone></powerConsumer>"),
        with_markup(number(FIELD_INSIDE(power_producer, sch_power_producer_type, max_power), "powerProducer",
                           power(32), 1u << 1),
                    "<powerProducer><maxPower>%</maxPower></powerProducer>"),
        with_markup(
            number(FIELD_INSIDE(hw_signals, sch_hw_signals_type, direct), "hwSignals", boolean(), 1u << 6),
            "<hwSignals><direct>%</direct><alert/><present/><reset/></hwSignals>"),
        list(FIELD(spi_port_list), "spiPort", "<spiPort><channel>00</channel></spiPort>"),
        with_markup(number(FIELD_INSIDE(i2c_node, sch_i2c_node_type, device_type), "i2cNode",
                           tokens("ORVL_I2CDEV_TYPE_CCC", "ORVL_I2CDEV_TYPE_PCISWITCH", 16), 1u << 7),
                    "<i2cNode><deviceType>%</deviceType></i2cNode>"),
        with_markup(number(FIELD_INSIDE(pcie_node, sch_pcie_node_type, device_type), "pcieNode",
                           tokens("ORVL_DEV_TYPE_PCISWITCH", "ORVL_DEV_TYPE_UNKNOWN", 2), 1u << 8),
                    "<pcieNode><deviceType>%</deviceType></pcieNode>"),
        with_markup(number(FIELD(pmbus_cmd), "pmBusPort", hex_octet()), pmbus),
        with_markup(number(pmbus_word, "pmBusPort", {{"00", 1}, {"FF", 1}}), pmbus),
        list(FIELD(i2c_port_list), "i2cPort",
             "<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>00</channelNumber></i2cPort>"),
        list(FIELD(pcie_port_list), "pciePort", "<pciePort><portNumber>00</portNumber></pciePort>"),
    };
}

record_case base_entity()
{
    using record = sch_base_entity_type;
    std::vector<field_row> rows = base_attributes();
    for (field_row &row : base_elements())
        rows.push_back(std::move(row));
    return {"base_entity",        module_kind,  "<module",
            module_after(),       base_items(), [](const inv_xml_handle &file) { return file.root->record; },
            FIELD(field_present), rows};
}

record_case power_consumer()
{
    using record = sch_power_consumer_type;
    return {"power_consumer",
            module_kind,
            module_before() + "<powerConsumer",
            "</powerConsumer>" + module_after(),
            {{"openQuestion"},
             {"minPowerBudget"},
             {"maxPowerBudget"},
             {"extPowerBudget"},
             {"powerUsage"},
             required("powerZone", "ORVL_POWER_ZONE_UNKNOWN")},
            [](const inv_xml_handle &file) { return &file.root->record->power_consumer; },
            FIELD(field_present),
            {number(FIELD(min_budget), "minPowerBudget", power(16), 0x01),
             number(FIELD(max_budget), "maxPowerBudget", power(16), 0x02),
             number(FIELD(ext_budget), "extPowerBudget", power(16), 0x04),
             number(FIELD(power_usage), "powerUsage", unsigned_32(), 0x08),
             number(FIELD(power_zone), "powerZone", power_zones())}};
}

record_case power_producer()
{
    using record = sch_power_producer_type;
    return {"power_producer",
            module_kind,
            module_before() + "<powerProducer",
            "</powerProducer>" + module_after(),
            {{"maxPower"}, {"currentPower"}},
            [](const inv_xml_handle &file) { return &file.root->record->power_producer; },
            FIELD(field_present),
            {number(FIELD(max_power), "maxPower", power(32), 0x01),
             number(FIELD(current_power), "currentPower", power(32), 0x02)}};
}

record_case power_zone()
{
    using record = sch_power_zone_type;
    return {"power_zone",
            module_kind,
            module_before() + "<powerInfo><powerZone",
            "</powerZone></powerInfo>" + module_after(),
            {{"openQuestion"},
             {"description"},
             required("zone", "ORVL_POWER_ZONE_UNKNOWN"),
             required("powerOnOffCapability", "0"),
             required("powerApplied", "0"),
             required("totalPowerRequired", "0"),
             required("mainZone", "0"),
             required("pdZoneNumber", "0")},
            [](const inv_xml_handle &file) { return file.module_record->power_info.power_zone_list; },
            FIELD(field_present),
            {text(FIELD(description), "description", text_up_to(16), 0x01),
             number(FIELD(zone), "zone", power_zones()),
             number(FIELD(on_off_capability), "powerOnOffCapability", boolean()),
             number(FIELD(power_applied), "powerApplied", boolean()),
             number(FIELD(total_power_required), "totalPowerRequired", power(16)),
             number(FIELD(main_zone), "mainZone", boolean()),
             number(FIELD(pd_zone_number), "pdZoneNumber", signed_16())},
            {"next"}};
}

record_case power_info()
{
    using record = sch_power_info_type;
    return {"power_info",
            module_kind,
            module_before().substr(0, module_before().size() - 1),
            module_after(),
            {{"powerInfo"}},
            [](const inv_xml_handle &file) { return &file.module_record->power_info; },
            {},
            {list(FIELD(power_zone_list), "powerInfo",
                  "<powerInfo>" + std::string(power_zone_element) + "</powerInfo>")}};
}

}  // namespace

const std::vector<record_case> &entity_cases()
{
    static const std::vector<record_case> cases = {base_entity(), power_consumer(), power_producer(),
                                                   power_zone(), power_info()};
    return cases;
}

}  // namespace record_fields
