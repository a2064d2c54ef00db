#include "frame/file_memory.h"
#include "support/current_file_fixture.h"

#include "tree/current_file.h"

#include <cstring>
#include <string>

namespace
{

using BaseEntity = CurrentFile;

sch_base_entity_type filled(const BaseEntityType &from, uint32_t expected_result = 0)
{
    sch_base_entity_type record = {};
    // Filled away from the file: the record does not stay at its address.
    parser_set_inv_file_instance(nullptr);
    inv_schema_free_eid_chain_list(root_eid);
    root_eid = nullptr;
    EXPECT_EQ(parser_retrieve_base_entity_data(&record, &from, nullptr), expected_result);
    return record;
}

TEST_F(BaseEntity, texts_are_cut_to_their_limits)
{
    std::string name(70, 'n'), description(200, 'd'), oid(150, 'o'), version(80, 'v');
    BaseEntityType from = decoded_entity(name.c_str());
    from.has.description = from.has.oid = 1;
    from.has.hardwareVersion = from.has.softwareVersion = from.has.firmwareVersion = 1;
    from.description = description.c_str();
    from.oid = oid.c_str();
    from.hardwareVersion = from.softwareVersion = from.firmwareVersion = version.c_str();
    sch_base_entity_type record = filled(from);
    EXPECT_EQ(std::string(record.name), std::string(64, 'n'));
    EXPECT_EQ(std::string(record.description), std::string(128, 'd'));
    EXPECT_EQ(std::string(record.oid), std::string(128, 'o'));
    EXPECT_EQ(std::string(record.hw_version), std::string(64, 'v'));
    EXPECT_EQ(std::string(record.sw_version), std::string(64, 'v'));
    EXPECT_EQ(std::string(record.fw_version), std::string(64, 'v'));
}

TEST_F(BaseEntity, limits_count_octets_also_inside_a_character_of_several)
{
    const std::string euro = "\xE2\x82\xAC";
    std::string name = std::string(63, 'n') + euro, description = std::string(127, 'd') + euro;
    BaseEntityType from = decoded_entity(name.c_str());
    from.description = description.c_str();
    sch_base_entity_type record = filled(from);
    EXPECT_EQ(std::string(record.name), std::string(63, 'n') + "\xE2");
    EXPECT_EQ(std::string(record.description), std::string(127, 'd') + "\xE2");
}

TEST_F(BaseEntity, a_null_name_or_description_is_an_empty_text)
{
    sch_base_entity_type record = filled(decoded_entity(nullptr));
    EXPECT_STREQ(record.name, "");
    EXPECT_STREQ(record.description, "");
}

TEST_F(BaseEntity, a_description_is_copied_whatever_its_presence_bit_says)
{
    BaseEntityType from = decoded_entity("x");
    from.description = "told";
    EXPECT_STREQ(filled(from).description, "told");
}

TEST_F(BaseEntity, an_absent_oid_is_empty_and_leaves_the_neighbours_alone)
{
    BaseEntityType from = decoded_entity("x");
    from.oid = "not given";
    from.description = "description";
    sch_base_entity_type record = filled(from);
    EXPECT_STREQ(record.oid, "");
    EXPECT_STREQ(record.description, "description");
}

TEST_F(BaseEntity, the_reserved_head_and_the_rest_of_the_pmbus_word_are_left_alone)
{
    sch_base_entity_type record;
    memset(&record, 0x5A, sizeof record);
    memset(&record.power_consumer, 0, sizeof record - offsetof(sch_base_entity_type, power_consumer));
    BaseEntityType from = decoded_entity("x");
    parser_set_inv_file_instance(nullptr);
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    EXPECT_EQ(std::string(record.reserved_head, 65), std::string(65, 'Z'));
    constexpr size_t pmbus_word = offsetof(sch_base_entity_type, pmbus_cmd) + 4;
    auto *octets = reinterpret_cast<uint8_t *>(&record);
    octets[pmbus_word] = 0xF0;
    octets[pmbus_word + 3] = 0xAB;
    from.has.pmBusPort = 1;
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    EXPECT_EQ(octets[pmbus_word], 0xF1);
    EXPECT_EQ(octets[pmbus_word + 3], 0xAB);
}

TEST_F(BaseEntity, the_port_lists_of_an_earlier_use_are_forgotten)
{
    sch_i2c_port_type i2c = {};
    sch_spi_port_type spi = {};
    sch_base_pcie_port_type pcie = {};
    sch_base_entity_type record = {};
    record.i2c_port_list = &i2c;
    record.spi_port_list = &spi;
    record.pcie_port_list = &pcie;
    BaseEntityType from = decoded_entity("x");
    parser_set_inv_file_instance(nullptr);
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    EXPECT_EQ(record.i2c_port_list, nullptr);
    EXPECT_EQ(record.spi_port_list, nullptr);
    EXPECT_EQ(record.pcie_port_list, nullptr);
    inv_schema_free_eid_chain_list(root_eid);
    root_eid = nullptr;
}

TEST_F(BaseEntity, absent_attributes_with_a_default_keep_it_and_their_bits_stay_clear)
{
    sch_base_entity_type record = filled(decoded_entity("x"));
    EXPECT_EQ(record.owner, 1u);
    EXPECT_EQ(record.snmp_entity, 1);
    EXPECT_EQ(record.is_prefix_needed, 1);
    EXPECT_EQ(record.dual_router, 0);
    EXPECT_EQ(record.field_present, 0u);
}

// Every field with a presence bit: given and not given.
TEST_F(BaseEntity, each_optional_field_sets_its_own_bit_and_no_other)
{
    const struct {
        unsigned bit;
        void (*give)(BaseEntityType &);
        uint32_t (*read)(const sch_base_entity_type &);
        uint32_t given, absent;
    } cases[] = {
        {0,
         [](BaseEntityType &e) {
             e.has.powerConsumer = 1;
             e.powerConsumer.powerZone = 5;
         },
         [](const sch_base_entity_type &r) { return r.power_consumer.power_zone; }, 5, 0},
        {1,
         [](BaseEntityType &e) {
             e.has.powerProducer = e.powerProducer.has.maxPower = 1;
             e.powerProducer.maxPower = 6;
         },
         [](const sch_base_entity_type &r) { return r.power_producer.max_power; }, 6, 0},
        {2,
         [](BaseEntityType &e) {
             e.has.hardwareVersion = 1;
             e.hardwareVersion = "h";
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.hw_version[0]); }, 'h', 0},
        {3,
         [](BaseEntityType &e) {
             e.has.softwareVersion = 1;
             e.softwareVersion = "s";
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.sw_version[0]); }, 's', 0},
        {4,
         [](BaseEntityType &e) {
             e.has.firmwareVersion = 1;
             e.firmwareVersion = "f";
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.fw_version[0]); }, 'f', 0},
        {5,
         [](BaseEntityType &e) {
             e.has.pdHardwareModel = 1;
             e.pdHardwareModel = 0x10090;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.pd_hw_model); }, 0x90, 0},
        {6,
         [](BaseEntityType &e) {
             e.has.hwSignals = 1;
             e.hwSignals.direct = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.hw_signals.direct); }, 1, 0},
        {7,
         [](BaseEntityType &e) {
             e.has.i2cNode = 1;
             e.i2cNode.deviceType = 8;
         },
         [](const sch_base_entity_type &r) { return r.i2c_node.device_type; }, 8, 0},
        {8,
         [](BaseEntityType &e) {
             e.has.pcieNode = 1;
             e.pcieNode.deviceType = 9;
         },
         [](const sch_base_entity_type &r) { return r.pcie_node.device_type; }, 9, 0},
        {9,
         [](BaseEntityType &e) {
             e.has.driverRegistered = 1;
             e.driverRegistered = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.driver_registered); }, 1, 0},
        {10,
         [](BaseEntityType &e) {
             e.has.driverRequired = 1;
             e.driverRequired = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.driver_required); }, 1, 0},
        {11,
         [](BaseEntityType &e) {
             e.has.driverId = 1;
             e.driverId = -32768;
         },
         [](const sch_base_entity_type &r) { return uint32_t(uint16_t(r.driver_id)); }, 0x8000, 0},
        {12,
         [](BaseEntityType &e) {
             e.has.adminState = 1;
             e.adminState = 3;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.admin_state); }, 3, 0},
        {13,
         [](BaseEntityType &e) {
             e.has.operState = 1;
             e.operState = 4;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.oper_state); }, 4, 0},
        {14,
         [](BaseEntityType &e) {
             e.has.powerAdminState = 1;
             e.powerAdminState = 5;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.power_admin_state); }, 5, 0},
        {15,
         [](BaseEntityType &e) {
             e.has.powerOperState = 1;
             e.powerOperState = 6;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.power_oper_state); }, 6, 0},
        {16,
         [](BaseEntityType &e) {
             e.has.fruable = 1;
             e.fruable = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.is_fru); }, 1, 0},
        {17,
         [](BaseEntityType &e) {
             e.has.oir = 1;
             e.oir = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.oir); }, 1, 0},
        {18,
         [](BaseEntityType &e) {
             e.has.isPrimary = 1;
             e.isPrimary = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.is_primary); }, 1, 0},
        {19,
         [](BaseEntityType &e) {
             e.has.isPrefixNeeded = 1;
             e.isPrefixNeeded = 0;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.is_prefix_needed); }, 0, 1},
        {20,
         [](BaseEntityType &e) {
             e.has.isHidden = 1;
             e.isHidden = 1;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.is_hidden); }, 1, 0},
        {21,
         [](BaseEntityType &e) {
             e.has.replicationStateScope = 1;
             e.replicationStateScope = 7;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.rep_state_scope); }, 7, 0},
        {23,
         [](BaseEntityType &e) {
             e.has.obflData = 1;
             e.obflData = 0xFFFFFFFF;
         },
         [](const sch_base_entity_type &r) { return r.obfl_data; }, 0xFFFFFFFF, 0},
        {24,
         [](BaseEntityType &e) {
             e.has.dualRouter = 1;
             e.dualRouter = 2;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.dual_router); }, 2, 0},
        {25,
         [](BaseEntityType &e) {
             e.has.entityOwner = 1;
             e.entityOwner = 5;
         },
         [](const sch_base_entity_type &r) { return r.owner; }, 5, 1},
        {26,
         [](BaseEntityType &e) {
             e.has.snmpEntity = 1;
             e.snmpEntity = 0;
         },
         [](const sch_base_entity_type &r) { return uint32_t(r.snmp_entity); }, 0, 1},
    };
    uint32_t all = 0;
    BaseEntityType everything = decoded_entity("all");
    for (const auto &c : cases) {
        BaseEntityType from = decoded_entity("one");
        EXPECT_EQ(c.read(filled(from)), c.absent) << "bit " << c.bit;
        c.give(from);
        EXPECT_EQ(c.read(filled(from)), c.given) << "bit " << c.bit;
        EXPECT_EQ(filled(from).field_present, 1u << c.bit);
        c.give(everything);
        all |= 1u << c.bit;
    }
    EXPECT_EQ(filled(everything).field_present, all);
    EXPECT_EQ(all, 0x07BFFFFFu) << "bits 22 and 27 to 31 belong to nothing";
}

TEST_F(BaseEntity, fields_without_a_bit_are_copied_always_in_their_width)
{
    BaseEntityType from = decoded_entity("x", -2);
    from.type = 0x107;
    from.subtype = 0x1003A;
    from.instance = -1;
    from.replicationScope = 4;
    from.has.pmBusPort = 1;
    from.pmBusPort.PMBusCmd = {1, {0xFF}};
    sch_base_entity_type record = filled(from);
    EXPECT_EQ(record.type, 7);
    EXPECT_EQ(record.global_subtype, 0x3A);
    EXPECT_EQ(record.subtype, 0);
    EXPECT_EQ(record.instance, 0xFFFF);
    EXPECT_EQ(record.rep_scope, 4);
    EXPECT_EQ(record.xml_instance, 0xFFFE);
    EXPECT_EQ(record.pmbus_cmd, 0xFFu);
    EXPECT_EQ(record.pmbus_valid, 1u);
}

TEST_F(BaseEntity, absent_attributes_do_not_copy_what_their_fields_hold)
{
    BaseEntityType from = decoded_entity("x");
    from.adminState = from.operState = from.pdHardwareModel = 9;
    from.driverId = 9;
    from.obflData = 9;
    sch_base_entity_type record = filled(from);
    EXPECT_EQ(record.admin_state + record.oper_state + record.pd_hw_model + record.driver_id, 0);
    EXPECT_EQ(record.obfl_data, 0u);
    EXPECT_EQ(record.pmbus_valid, 0u);
}

TEST_F(BaseEntity, reset_flags_say_1_unless_an_attribute_is_true)
{
    const struct {
        int base, dynamic, none;  // -1: absent
        uint32_t flags;
    } cases[] = {{-1, -1, -1, 1}, {0, 0, 0, 1}, {-1, 1, -1, 4}, {1, 0, 0, 2}, {0, 0, 1, 8}, {1, 1, 1, 14}};
    for (const auto &c : cases) {
        BaseEntityType from = decoded_entity("x");
        from.has.resetBaseData = c.base >= 0;
        from.has.resetDynamicData = c.dynamic >= 0;
        from.has.resetNoData = c.none >= 0;
        from.resetBaseData = c.base == 1;
        from.resetDynamicData = c.dynamic == 1;
        from.resetNoData = c.none == 1;
        EXPECT_EQ(filled(from).entity_reset_flags, c.flags);
    }
}

TEST_F(BaseEntity, reset_values_of_absent_attributes_do_not_count)
{
    BaseEntityType from = decoded_entity("x");
    from.resetBaseData = from.resetDynamicData = from.resetNoData = 1;
    EXPECT_EQ(filled(from).entity_reset_flags, 1u);
}

TEST_F(BaseEntity, subtypes_count_from_the_first_of_their_type_modulo_256)
{
    const struct {
        uint8_t type;
        uint32_t global, within_type;
    } cases[] = {
        {7, 58, 0},    {7, 10, 208},   {7, 59, 1},      {0, 5, 5},     {1, 136, 0},
        {2, 233, 0},   {3, 6, 0},      {4, 0, 0},       {5, 11, 0},    {6, 189, 0},
        {8, 194, 0},   {9, 62, 0},     {10, 144, 0},    {11, 227, 0},  {12, 44, 0},
        {12, 43, 255}, {13, 200, 200}, {255, 200, 200}, {9, 0x13E, 0}, {3, 0, 250},
    };
    for (const auto &c : cases) {
        sch_base_entity_type record = {};
        record.type = c.type;
        BaseEntityType from = {};
        from.subtype = c.global;
        parser_convert_subtype(&record, &from);
        EXPECT_EQ(record.subtype, c.within_type) << int(c.type) << ' ' << c.global;
    }
    parser_convert_subtype(nullptr, nullptr);
}

TEST_F(BaseEntity, a_null_record_or_value_is_traced_and_nothing_written)
{
    BaseEntityType from = decoded_entity("x");
    sch_base_entity_type record = {}, untouched = {};
    EXPECT_EQ(parser_retrieve_base_entity_data(nullptr, &from, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_base_entity_data(&record, nullptr, nullptr), 0u);
    trace_recorder::line expected = {161, 4, 0, "", "Invalid BaseEntityType  pointer\n"};
    EXPECT_EQ(trace_recorder::lines(), (std::vector<trace_recorder::line>{expected, expected}));
    EXPECT_EQ(memcmp(&record, &untouched, sizeof record), 0);
    EXPECT_EQ(root_eid, nullptr);
}

}  // namespace
