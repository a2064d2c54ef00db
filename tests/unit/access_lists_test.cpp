// What the list builders of access and power records have in common, and where they differ.
#include "frame/file_memory.h"
#include "support/current_file_fixture.h"

#include <functional>
#include <string>

namespace
{

enum class existing_list { appended_to, replaced };
enum class out_of_memory { traced_and_ends, silently_ends, skips_the_element };

// Values that make the builders ask for all the memory they can ask for.
template <class Decoded>
void enrich(Decoded &)
{
}

I2cDestType i2c_ends[2];
PCIeDestType pcie_ends[2];
SpiDestType spi_ends[2];
const decoded_list i2c_end_list = {&i2c_ends[0], &i2c_ends[1]},
                   pcie_end_list = {&pcie_ends[0], &pcie_ends[1]},
                   spi_end_list = {&spi_ends[0], &spi_ends[1]};

void enrich(I2cPortType &port)
{
    i2c_ends[0].nodeInfo.nodeType = SCH_NODE_TYPE_ENTITY;
    port.dstInfo = i2c_end_list;
}

void enrich(BasePCIePortType &port)
{
    pcie_ends[0].nodeInfo.nodeType = SCH_NODE_TYPE_ENTITY;
    port.dstInfo = pcie_end_list;
}

void enrich(SpiPortType &port)
{
    port.dstInfo = spi_end_list;
}

template <class Decoded>
std::shared_ptr<void> rich_value()
{
    auto value = std::make_shared<Decoded>();
    enrich(*value);
    return value;
}

// A list builder with its record type taken away.
struct list_builder {
    std::string name;
    uint32_t null_list_id;
    uint32_t no_memory_id;  // 0: none
    existing_list existing;
    out_of_memory failure;
    std::function<uint32_t(void **, const xb_data_list *)> build;
    std::function<size_t(void *)> length;
    std::function<void *(void *)> next;
    std::function<void(void *)> release;
    std::shared_ptr<void> value;  // decoded
};

template <class Decoded, class Record, class Build>
list_builder describe(const char *name, uint32_t null_list_id, uint32_t no_memory_id, existing_list existing,
                      out_of_memory failure, Build build, void (*release)(Record *))
{
    return {name,
            null_list_id,
            no_memory_id,
            existing,
            failure,
            [build](void **head, const xb_data_list *list) {
                return build(reinterpret_cast<Record **>(head), list);
            },
            [](void *first) { return length_of(static_cast<Record *>(first)); },
            [](void *record) -> void * { return static_cast<Record *>(record)->next; },
            [release](void *first) { release(static_cast<Record *>(first)); },
            rich_value<Decoded>()};
}

// SPI lists have no release: the test gives the elements back as a client would give back calloc()'s.
template <class Record>
void release_by_hand(Record *first)
{
    while (first != nullptr) {
        Record *next = first->next;
        if constexpr (requires { first->dest_list; })
            release_by_hand(first->dest_list);
        inv::record_free(first);
        first = next;
    }
}

using enum existing_list;
using enum out_of_memory;

std::vector<list_builder> all_builders()
{
    return {
        describe<I2cDestType>(
            "i2c_dest", 135, 136, appended_to, traced_and_ends,
            [](sch_i2c_dest_type **head, const xb_data_list *list) {
                return parser_retrieve_i2c_dest_data_list(head, list, 1, nullptr);
            },
            inv_schema_free_i2c_dest_data_list),
        describe<PCIeDestType>(
            "pcie_dest", 145, 146, appended_to, traced_and_ends,
            [](sch_pcie_dest_type **head, const xb_data_list *list) {
                return parser_retrieve_pcie_dest_data_list(head, list, 1, nullptr);
            },
            inv_schema_free_pcie_port_dest_list),
        describe<I2cPortType>(
            "i2c_port", 156, 157, appended_to, traced_and_ends,
            [](sch_i2c_port_type **head, const xb_data_list *list) {
                return parser_retrieve_i2c_port_data_list(head, list, nullptr);
            },
            inv_schema_free_i2c_port_data_list),
        describe<BasePCIePortType>(
            "base_pcie_port", 159, 160, appended_to, traced_and_ends,
            [](sch_base_pcie_port_type **head, const xb_data_list *list) {
                return parser_retrieve_base_pcie_port_data_list(head, list, nullptr);
            },
            inv_schema_free_pcie_port_data_list),
        describe<PowerZoneType>(
            "power_zone", 129, 130, appended_to, traced_and_ends,
            [](sch_power_zone_type **head, const xb_data_list *list) {
                return parser_retrieve_power_zone_list(head, list, nullptr);
            },
            inv_schema_free_power_zone_data_list),
        describe<I2cNodeType>("i2c_node", 139, 140, replaced, traced_and_ends,
                              parser_retrieve_i2c_node_data_list, inv_schema_free_i2c_node_data_list),
        describe<PciSequenceType>("pci_sequence", 150, 151, replaced, traced_and_ends,
                                  parser_retrieve_pci_sequence_data_list,
                                  inv_schema_free_pci_sequence_data_list),
        describe<SpiDestType>("spi_dest", 149, 0, replaced, silently_ends, parser_retrieve_spi_dest_data_list,
                              release_by_hand<sch_spi_dest_type>),
        describe<SpiPortType>("spi_port", 158, 0, appended_to, skips_the_element,
                              parser_retrieve_spi_port_data_list, release_by_hand<sch_spi_port_type>),
    };
}

class AccessLists : public CurrentFile, public testing::WithParamInterface<list_builder>
{
protected:
    // The single builders trace lines of their own; only failures matter here.
    static id_list failure_ids()
    {
        id_list ids;
        for (uint32_t id : trace_recorder::ids())
            if (id != 122 && id != 124 && id != 127 && id != 138)
                ids.push_back(id);
        return ids;
    }
    const list_builder &builder = GetParam();
    void *value = builder.value.get();
};

INSTANTIATE_TEST_SUITE_P(All, AccessLists, testing::ValuesIn(all_builders()),
                         [](const auto &about) { return about.param.name; });

TEST_P(AccessLists, a_null_list_is_traced_and_leaves_the_head_alone)
{
    void *head = nullptr;
    EXPECT_EQ(builder.build(&head, nullptr), 0u);
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(failure_ids(), id_list{builder.null_list_id});
}

TEST_P(AccessLists, an_empty_list_leaves_the_head_alone_without_a_trace)
{
    decoded_list one, none;
    one.add(value);
    void *head = nullptr;
    builder.build(&head, &one);
    void *before = head;
    EXPECT_EQ(builder.build(&head, &none), 0u);
    EXPECT_EQ(head, before);
    EXPECT_TRUE(failure_ids().empty());
    builder.release(head);
}

TEST_P(AccessLists, a_null_head_builds_nothing)
{
    decoded_list one;
    one.add(value);
    EXPECT_EQ(builder.build(nullptr, &one), 0u);
    EXPECT_TRUE(failure_ids().empty());
}

TEST_P(AccessLists, a_node_without_a_value_ends_the_list_with_0)
{
    decoded_list list;
    for (void *each : {value, static_cast<void *>(nullptr), value})
        list.add(each);
    void *head = nullptr;
    EXPECT_EQ(builder.build(&head, &list), 0u);
    EXPECT_EQ(builder.length(head), 1u);
    EXPECT_TRUE(failure_ids().empty());
    builder.release(head);
}

TEST_P(AccessLists, a_second_call_appends_or_replaces_as_the_record_has_it)
{
    decoded_list two;
    two.add(value);
    two.add(value);
    void *head = nullptr;
    builder.build(&head, &two);
    void *first = head;
    EXPECT_EQ(builder.build(&head, &two), 0u);
    if (builder.existing == appended_to) {
        EXPECT_EQ(head, first);
        EXPECT_EQ(builder.length(head), 4u);
    } else {
        EXPECT_NE(head, first);
        EXPECT_EQ(builder.length(head), 2u);
        builder.release(first);
    }
    builder.release(head);
}

TEST_P(AccessLists, memory_running_out_at_the_second_element_keeps_the_first)
{
    decoded_list three;
    for (int i = 0; i < 3; ++i)
        three.add(value);
    // The first record and whatever its filing needs, counted on a list of one.
    decoded_list one;
    one.add(value);
    void *head = nullptr;
    uint64_t before = counting_memory::requests();
    builder.build(&head, &one);
    uint64_t needed = counting_memory::requests() - before;
    builder.release(head);
    take_down();
    parser_set_inv_file_instance(&handle);
    trace_recorder::clear();

    head = nullptr;
    counting_memory::fail_at(needed + 1);
    uint32_t result = builder.build(&head, &three);
    EXPECT_TRUE(counting_memory::failed());
    counting_memory::reset();
    if (builder.failure == traced_and_ends) {
        EXPECT_EQ(result, 1u);
        EXPECT_EQ(failure_ids(), id_list{builder.no_memory_id});
        EXPECT_EQ(builder.length(head), 1u);
    } else if (builder.failure == silently_ends) {
        EXPECT_EQ(result, 0u);
        EXPECT_TRUE(failure_ids().empty());
        EXPECT_EQ(builder.length(head), 1u);
    } else {
        EXPECT_EQ(result, 0u);
        EXPECT_EQ(failure_ids(), id_list{154}) << "the single builder's own line about a null record";
        EXPECT_EQ(builder.length(head), 2u) << "the list stays whole and the walk goes on";
    }
    builder.release(head);
}

// Whatever request fails, the result and the length follow the builder's own rule and nothing is lost.
TEST_P(AccessLists, every_request_may_fail)
{
    constexpr size_t elements = 3;
    decoded_list three;
    for (size_t i = 0; i < elements; ++i)
        three.add(value);
    bool is_destination_list = builder.name.ends_with("_dest") && builder.failure == traced_and_ends;
    for (uint64_t n = 1;; ++n) {
        SCOPED_TRACE(n);
        void *head = nullptr;
        trace_recorder::clear();
        counting_memory::fail_at(n);
        uint32_t result = builder.build(&head, &three);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        id_list ids = failure_ids();
        size_t length = builder.length(head);
        bool own_element_failed = builder.no_memory_id != 0 && ids == id_list{builder.no_memory_id};
        if (builder.failure == silently_ends) {
            EXPECT_EQ(length, failed ? n - 1 : elements);
        } else if (builder.failure == skips_the_element) {
            EXPECT_EQ(length, ids == id_list{154} ? elements - 1 : elements);
        } else {
            EXPECT_EQ(result == 1, own_element_failed || (is_destination_list && failed));
            EXPECT_TRUE(own_element_failed ? length < elements : result == 1 || length == elements) << length;
        }
        take_down();
        parser_set_inv_file_instance(&handle);
        builder.release(head);
        ASSERT_EQ(counting_memory::live(), live_before);
        if (!failed)
            break;
        ASSERT_LT(n, 100u);
    }
}

}  // namespace
