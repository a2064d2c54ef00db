// What all component builders have in common.
#include "support/current_file_fixture.h"

#include <functional>
#include <string>

namespace
{

enum class node_holds { value, choice };

// A component's builders with their types taken away.
struct component {
    std::string name;
    uint32_t null_id;  // 0: the single builder says nothing about null
    std::string null_text;
    uint32_t null_list_id;
    std::string null_list_text;
    uint32_t no_memory_id;
    node_holds holds;
    std::function<uint32_t(void *, const void *, sch_base_entity_type *)> single;
    std::function<uint32_t(void **, const xb_data_list *, sch_base_entity_type *)> list;
    std::function<size_t(void *)> length;
    std::function<void(void *)> release_list;
    std::function<std::shared_ptr<void>()> new_record;
    std::shared_ptr<void> value;  // decoded, cleared
};

template <class Record, class Decoded>
component describe(const char *name, uint32_t null_id, const char *null_text, uint32_t null_list_id,
                   const char *null_list_text, uint32_t no_memory_id, node_holds holds,
                   uint32_t (*single)(Record *, const Decoded *, sch_base_entity_type *),
                   uint32_t (*list)(Record **, const xb_data_list *, sch_base_entity_type *),
                   void (*release_list)(Record *))
{
    return {name,
            null_id,
            null_text,
            null_list_id,
            null_list_text,
            no_memory_id,
            holds,
            [single](void *record, const void *decoded, sch_base_entity_type *parent) {
                return single(static_cast<Record *>(record), static_cast<const Decoded *>(decoded), parent);
            },
            [list](void **head, const xb_data_list *nodes, sch_base_entity_type *parent) {
                return list(reinterpret_cast<Record **>(head), nodes, parent);
            },
            [](void *first) { return length_of(static_cast<Record *>(first)); },
            [release_list](void *first) { release_list(static_cast<Record *>(first)); },
            [] { return std::make_shared<Record>(); },
            std::make_shared<Decoded>()};
}

using enum node_holds;

std::vector<component> all_components()
{
    return {
        describe("base_led_info", 167, "Invalid BaseLedInfoType  pointer\n", 168,
                 "Invalid BaseLedInfoType list pointer\n", 169, value, parser_retrieve_base_led_info_data,
                 parser_retrieve_base_led_info_data_list, inv_schema_free_led_info_data_list),
        describe("base_led", 170, "Invalid BaseLedType pointer\n", 171, "Invalid BaseLedType list pointer\n",
                 172, value, parser_retrieve_base_led_data, parser_retrieve_base_led_data_list,
                 inv_schema_free_led_data_list),
        describe("base_container", 173, "Invalid BaseContainerType pointer\n", 175,
                 "Invalid BaseContainerType list pointer\n", 176, choice, parser_retrieve_base_container_data,
                 parser_retrieve_base_container_data_list, inv_schema_free_container_data_list),
        describe("base_port", 177, "Invalid BasePortType pointer\n", 178,
                 "Invalid BasePortType list pointer\n", 179, choice, parser_retrieve_base_port_data,
                 parser_retrieve_base_port_data_list, inv_schema_free_port_data_list),
        describe("base_console", 182, "Invalid BaseConsoleType pointer\n", 183,
                 "Invalid BaseConsoleType list pointer\n", 184, value, parser_retrieve_base_console_data,
                 parser_retrieve_base_console_data_list, inv_schema_free_console_data_list),
        describe("base_kesto", 185, "Invalid BaseKestoType pointer\n", 186,
                 "Invalid BaseKestoType list pointer\n", 187, value, parser_retrieve_base_kesto_data,
                 parser_retrieve_base_kesto_data_list, inv_schema_free_kesto_data_list),
        describe("base_ce_switch_port", 190, "Invalid  BaseCESwitchType_2_port pointer\n", 191,
                 "Invalid  BaseCESwitchType_2_port list pointer\n", 192, value,
                 parser_retrieve_base_ce_switch_port_data, parser_retrieve_base_ce_switch_port_data_list,
                 inv_schema_free_ce_switch_port_data_list),
        describe("base_ce_switch", 193, "Invalid  BaseCESwitchType pointer\n", 194,
                 "Invalid  BaseCESwitchType list pointer\n", 195, value, parser_retrieve_base_ce_switch_data,
                 parser_retrieve_base_ce_switch_data_list, inv_schema_free_ce_switch_data_list),
        describe("base_ideeprom", 196, "Invalid  BaseIdEEPROMType pointer\n", 197,
                 "Invalid  BaseIdEEPROMType list pointer\n", 198, value, parser_retrieve_base_ideeprom_data,
                 parser_retrieve_base_ideeprom_data_list, inv_schema_free_ideeprom_data_list),
        describe("base_storage_memory_map", 199, "Invalid  BaseStorageMemoryMap pointer\n", 200,
                 "Invalid  BaseStorageMemoryMap list pointer\n", 201, value,
                 parser_retrieve_base_storage_memory_map_data,
                 parser_retrieve_base_storage_memory_map_data_list,
                 inv_schema_free_storage_mem_map_data_list),
        describe("base_storage", 202, "Invalid  BaseStorageType pointer\n", 203,
                 "Invalid  BaseStorageType list pointer\n", 204, choice, parser_retrieve_base_storage_data,
                 parser_retrieve_base_storage_data_list, inv_schema_free_storage_data_list),
        describe("base_spi", 205, "Invalid  BaseSpiFlash pointer\n", 206,
                 "Invalid  BaseSpiFlash list pointer\n", 207, value, parser_retrieve_base_spi_data,
                 parser_retrieve_base_spi_data_list, inv_schema_free_spi_flash_data_list),
        describe("base_fpga", 211, "Invalid  BaseFPGAType pointer\n", 227,
                 "Invalid BaseFPGAType list pointer\n", 228, value, parser_retrieve_base_fpga_data,
                 parser_retrieve_base_fpga_data_list, inv_schema_free_fpga_data_list),
        describe("fan", 0, "", 212, "Invalid  FanType list pointer\n", 213, value, parser_retrieve_fan_data,
                 parser_retrieve_fan_data_list, inv_schema_free_fan_data_list),
        describe("pem_bay", 214, "Invalid  PemBayType pointer\n", 215, "Invalid  PemBayType list pointer\n",
                 216, value, parser_retrieve_pem_bay_data, parser_retrieve_pem_bay_data_list,
                 inv_schema_free_pem_bay_data_list),
        describe("base_sensor", 217, "Invalid  BaseSensorType pointer\n", 225,
                 "Invalid BaseSensorType list pointer\n", 226, value, parser_retrieve_base_sensor_data,
                 parser_retrieve_base_sensor_data_list, inv_schema_free_sensor_data_list),
        describe("base_memory", 218, "Invalid  BaseMemoryType pointer\n", 219,
                 "Invalid  BaseMemoryType list pointer\n", 220, value, parser_retrieve_base_memory_data,
                 parser_retrieve_base_memory_data_list, inv_schema_free_memory_data_list),
        describe("base_container_list", 221, "Invalid BaseContainerListType pointer\n", 223,
                 "Invalid BaseContainerListType list pointer\n", 224, value,
                 parser_retrieve_base_container_list_data, parser_retrieve_base_container_list_data_list,
                 inv_schema_free_container_list_data_list),
        describe("i2c_chip", 229, "Invalid I2cChipType pointer\n", 230, "Invalid I2cChipType list pointer\n",
                 231, value, parser_retrieve_i2c_chip_data, parser_retrieve_i2c_chip_data_list,
                 inv_schema_free_i2c_chip_data_list),
        describe("base_processor", 232, "Invalid BaseProcessorType pointer\n", 233,
                 "Invalid BaseProcessorType List pointer\n", 234, value, parser_retrieve_base_processor_data,
                 parser_retrieve_base_processor_data_list, inv_schema_free_processor_data_list),
        describe("base_pcie_switch", 235, "Invalid BasePCIeSwitchType pointer\n", 236,
                 "Invalid BasePCIeSwitchType List pointer\n", 237, value,
                 parser_retrieve_base_pcie_switch_data, parser_retrieve_base_pcie_switch_data_list,
                 inv_schema_free_pcie_switch_data_list),
        describe("base_volt_margin", 238, "Invalid BaseVoltageMarginType pointer\n", 240,
                 "Invalid BaseVoltageMarginType List pointer\n", 241, value,
                 parser_retrieve_base_volt_margin_data, parser_retrieve_base_volt_margin_data_list,
                 inv_schema_free_volt_margin_data_list),
    };
}

class Components : public CurrentFile, public testing::WithParamInterface<component>
{
protected:
    // What a node of the decoded list points at.
    void *node_value()
    {
        if (about.holds == value)
            return about.value.get();
        wrapper = {1, about.value.get()};
        return &wrapper;
    }

    // Fills trace what they filled; only failures matter here.
    static id_list failure_ids()
    {
        id_list ids;
        for (uint32_t id : trace_recorder::ids())
            if (id != 166 && id != 174 && id != 181 && id != 222 && id != 239)
                ids.push_back(id);
        return ids;
    }

    const component &about = GetParam();
    xb_choice wrapper = {};
};

INSTANTIATE_TEST_SUITE_P(All, Components, testing::ValuesIn(all_components()),
                         [](const auto &info) { return info.param.name; });

TEST_P(Components, a_null_record_or_value_is_only_traced)
{
    std::shared_ptr<void> record = about.new_record();
    EXPECT_EQ(about.single(nullptr, about.value.get(), nullptr), 0u);
    EXPECT_EQ(about.single(record.get(), nullptr, nullptr), 0u);
    std::vector<trace_recorder::line> expected;
    if (about.null_id != 0)
        expected.assign(2, {about.null_id, 4, 0, "", about.null_text});
    EXPECT_EQ(trace_recorder::lines(), expected);
    EXPECT_EQ(root_eid, nullptr);
}

TEST_P(Components, a_null_list_is_traced)
{
    void *head = nullptr;
    EXPECT_EQ(about.list(&head, nullptr, nullptr), 0u);
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(trace_recorder::lines(),
              (std::vector<trace_recorder::line>{{about.null_list_id, 4, 0, "", about.null_list_text}}));
}

TEST_P(Components, an_empty_list_leaves_the_head_alone_and_returns_0)
{
    decoded_list one, none;
    one.add(node_value());
    void *head = nullptr;
    about.list(&head, &one, nullptr);
    void *before = head;
    trace_recorder::clear();
    EXPECT_EQ(about.list(&head, &none, nullptr), 0u);
    EXPECT_EQ(head, before);
    EXPECT_TRUE(trace_recorder::lines().empty());
    about.release_list(head);
}

TEST_P(Components, a_null_head_builds_nothing)
{
    decoded_list one;
    one.add(node_value());
    EXPECT_EQ(about.list(nullptr, &one, nullptr), 0u);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

TEST_P(Components, a_second_call_on_the_same_head_appends)
{
    decoded_list two;
    two.add(node_value());
    two.add(node_value());
    void *head = nullptr;
    EXPECT_EQ(about.list(&head, &two, nullptr), 0u);
    void *first = head;
    EXPECT_EQ(about.list(&head, &two, nullptr), 0u);
    EXPECT_EQ(head, first);
    EXPECT_EQ(about.length(head), 4u);
    EXPECT_TRUE(failure_ids().empty());
    about.release_list(head);
}

TEST_P(Components, a_node_without_a_value_ends_the_walk)
{
    xb_choice nothing_chosen = {};
    for (void *empty : {static_cast<void *>(nullptr), static_cast<void *>(&nothing_chosen)}) {
        if (empty != nullptr && about.holds == value)
            continue;
        decoded_list list;
        for (void *each : {node_value(), empty, node_value()})
            list.add(each);
        void *head = nullptr;
        EXPECT_EQ(about.list(&head, &list, nullptr), 0u);
        EXPECT_EQ(about.length(head), 1u);
        EXPECT_TRUE(failure_ids().empty());
        take_down();
        parser_set_inv_file_instance(&handle);
        about.release_list(head);
    }
}

TEST_P(Components, an_element_without_memory_is_left_out_and_the_walk_goes_on)
{
    decoded_list three;
    for (int i = 0; i < 3; ++i)
        three.add(node_value());
    void *head = nullptr;
    counting_memory::fail_at(1);
    EXPECT_EQ(about.list(&head, &three, nullptr), 1u);
    EXPECT_TRUE(counting_memory::failed());
    counting_memory::reset();
    EXPECT_EQ(about.length(head), 2u);
    id_list expected = {about.no_memory_id};
    if (about.null_id != 0)
        expected.push_back(about.null_id);
    EXPECT_EQ(failure_ids(), expected);
    about.release_list(head);
}

// Whatever request fails, nothing is lost or released twice.
TEST_P(Components, every_request_may_fail)
{
    decoded_list two;
    two.add(node_value());
    two.add(node_value());
    for (uint64_t n = 1;; ++n) {
        void *head = nullptr;
        counting_memory::fail_at(n);
        uint32_t result = about.list(&head, &two, nullptr);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        EXPECT_EQ(result == 1, about.length(head) < 2) << n;
        about.release_list(head);
        take_down();
        parser_set_inv_file_instance(&handle);
        ASSERT_EQ(counting_memory::live(), live_before) << n;
        if (!failed)
            break;
        ASSERT_LT(n, 100u);
    }
}

}  // namespace
