// Sequences by xml instance: the climb, its ends and its failures.
#include "unit/access_sequence_world.h"

#include <numeric>

using namespace sequence_world;

namespace
{

template <class Family>
class AccessSequence : public SequenceTest
{
protected:
    using sequence = typename Family::sequence;

    uint32_t build(int32_t instance)
    {
        made = untouched<sequence>();
        return Family::by_xml_inst(&file.handle, instance, &made);
    }
    bool is_untouched() const
    {
        return made == untouched<sequence>();
    }
    void expect_hops(const id_list &instances, const id_list &links)
    {
        EXPECT_EQ(instances_of<Family>(made), instances);
        EXPECT_EQ(links_of<Family>(made), links);
        Family::release(made);
    }

    hand_made_file file;
    sequence *made = nullptr;
};

TYPED_TEST_SUITE(AccessSequence, families, family_names);

id_list counted_from(uint32_t first, size_t count)
{
    id_list list(count);
    std::iota(list.begin(), list.end(), first);
    return list;
}

TYPED_TEST(AccessSequence, an_instance_of_zero_fails_silently_and_so_does_65536)
{
    this->file.template device<TypeParam>(0);
    for (int32_t instance : {0, 65536, -65536}) {
        EXPECT_EQ(this->build(instance), 1u);
        EXPECT_TRUE(this->is_untouched());
    }
    EXPECT_EQ(TypeParam::by_xml_inst(nullptr, 0, &this->made), 1u);
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(AccessSequence, an_instance_counts_by_its_low_16_bits)
{
    this->file.template device<TypeParam>(1);
    for (int32_t instance : {1, 65537, 1 - 65536}) {
        ASSERT_EQ(this->build(instance), 0u);
        this->expect_hops({1}, {0});
    }
}

TYPED_TEST(AccessSequence, a_null_handle_is_traced)
{
    this->made = this->template untouched<typename TypeParam::sequence>();
    EXPECT_EQ(TypeParam::by_xml_inst(nullptr, 1, &this->made), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list{TypeParam::null_handle});
}

TYPED_TEST(AccessSequence, a_null_output_fails_silently)
{
    this->file.template device<TypeParam>(1);
    EXPECT_EQ(TypeParam::by_xml_inst(&this->file.handle, 1, nullptr), 1u);
    EXPECT_EQ(TypeParam::by_xml_inst(nullptr, 1, nullptr), 1u);
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(AccessSequence, an_instance_that_the_index_does_not_know_is_traced)
{
    EXPECT_EQ(this->build(5), 1u);
    this->file.template device<TypeParam>(6);
    EXPECT_EQ(this->build(5), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), (id_list{TypeParam::no_node, TypeParam::no_node}));
}

TYPED_TEST(AccessSequence, a_destination_without_entity_is_traced)
{
    auto *parent = this->file.template device<TypeParam>(1);
    hand_made_file::lead(this->file.template node<TypeParam>(5, nullptr), parent, 3);
    EXPECT_EQ(this->build(5), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list{TypeParam::no_entity});
}

TYPED_TEST(AccessSequence, hops_stand_topmost_first_each_with_the_link_to_the_next)
{
    this->file.template chain<TypeParam>(40, 4);
    ASSERT_EQ(this->build(43), 0u);
    EXPECT_EQ(this->traced(), id_list());
    this->expect_hops({40, 41, 42, 43}, {11, 12, 13, 0});
}

TYPED_TEST(AccessSequence, a_middle_of_a_chain_has_its_own_shorter_sequence)
{
    this->file.template chain<TypeParam>(40, 4);
    ASSERT_EQ(this->build(41), 0u);
    this->expect_hops({40, 41}, {11, 0});
}

TYPED_TEST(AccessSequence, a_missing_parent_shortens_the_sequence_instead_of_failing)
{
    auto *lowest = this->file.template chain<TypeParam>(40, 2);
    auto *top = &this->file.nodes.front();
    top->parent_entity = this->file.entity(99);
    top->parent_xml_instance = 99;
    ASSERT_EQ(this->build(static_cast<int32_t>(lowest->xml_instance)), 0u);
    EXPECT_EQ(this->traced(), id_list{TypeParam::no_parent});
    this->expect_hops({40, 41}, {11, 0});
}

TYPED_TEST(AccessSequence, a_parent_instance_without_parent_entity_leads_nowhere)
{
    auto *top = this->file.template chain<TypeParam>(40, 1);
    top->parent_xml_instance = 41;
    this->file.template device<TypeParam>(41);
    ASSERT_EQ(this->build(40), 0u);
    this->expect_hops({40}, {0});
}

// Where in a chain of three an instance stands.
constexpr int target = 2, middle = 1, top = 0;

TYPED_TEST(AccessSequence, instance_10000_is_accepted_on_every_hop_and_10001_on_none)
{
    for (int place : {target, middle, top}) {
        for (uint32_t instance : {10000u, 10001u, 65535u}) {
            hand_made_file one;
            sch_xml_inst_node_type *chain[3];
            for (int i = 0; i < 3; ++i) {
                auto own = static_cast<uint16_t>(i == place ? instance : static_cast<uint32_t>(20 + i));
                chain[i] = one.template device<TypeParam>(own);
                if (i > 0)
                    hand_made_file::lead(chain[i], chain[i - 1], 5);
            }
            this->made = this->template untouched<typename TypeParam::sequence>();
            uint32_t result = TypeParam::by_xml_inst(
                &one.handle, static_cast<int32_t>(chain[target]->xml_instance), &this->made);
            SCOPED_TRACE(testing::Message() << "instance " << instance << " on hop " << place);
            EXPECT_EQ(result, instance == 10000 ? 0u : 1u);
            if (result != 0) {
                EXPECT_EQ(this->made, nullptr) << "an instance above the limit clears the output";
                EXPECT_EQ(this->traced(), id_list{TypeParam::too_large});
            } else {
                EXPECT_EQ(this->made->hop_count, 3);
                TypeParam::release(this->made);
            }
        }
    }
}

TYPED_TEST(AccessSequence, an_instance_is_compared_with_the_limit_before_it_is_cut_to_16_bits)
{
    auto *lowest = this->file.template device<TypeParam>(40);
    lowest->parent_entity = this->file.entity(1);
    lowest->parent_xml_instance = 65537;
    this->file.template node<TypeParam>(65537, lowest->parent_entity);
    EXPECT_EQ(this->build(40), 1u);
    EXPECT_EQ(this->made, nullptr);
    EXPECT_EQ(this->traced(), id_list{TypeParam::too_large});
}

TYPED_TEST(AccessSequence, a_parent_without_entity_fails_the_whole_and_clears_the_output)
{
    auto *lowest = this->file.template chain<TypeParam>(40, 2);
    auto *parent = &this->file.nodes.front();
    parent->entity = nullptr;
    EXPECT_EQ(this->build(static_cast<int32_t>(lowest->xml_instance)), 1u);
    EXPECT_EQ(this->made, nullptr);
    EXPECT_EQ(this->traced(), id_list{TypeParam::hop_no_entity});
}

TYPED_TEST(AccessSequence, of_a_hop_that_is_wrong_in_both_ways_the_instance_is_told)
{
    auto *lowest = this->file.template device<TypeParam>(40);
    auto *parent = this->file.template node<TypeParam>(10001, nullptr);
    hand_made_file::lead(lowest, parent, 1);
    lowest->parent_entity = lowest->entity;
    EXPECT_EQ(this->build(40), 1u);
    EXPECT_EQ(this->traced(), id_list{TypeParam::too_large});
}

TYPED_TEST(AccessSequence, exactly_as_many_hops_as_fit_succeed_and_one_more_fails_silently)
{
    constexpr int most = TypeParam::max_hops;
    this->file.template chain<TypeParam>(100, most + 1);
    ASSERT_EQ(this->build(100 + most - 1), 0u);
    EXPECT_EQ(instances_of<TypeParam>(this->made), counted_from(100, most));
    TypeParam::release(this->made);
    EXPECT_EQ(this->build(100 + most), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(AccessSequence, a_full_chain_whose_next_parent_is_missing_is_answered)
{
    constexpr int most = TypeParam::max_hops;
    this->file.template chain<TypeParam>(100, most);
    this->file.nodes.front().parent_entity = this->file.entity(99);
    this->file.nodes.front().parent_xml_instance = 99;
    ASSERT_EQ(this->build(100 + most - 1), 0u);
    EXPECT_EQ(this->made->hop_count, most);
    EXPECT_EQ(this->traced(), id_list{TypeParam::no_parent});
    TypeParam::release(this->made);
}

TYPED_TEST(AccessSequence, a_loop_of_two_entities_and_a_port_to_itself_end_like_a_chain_too_long)
{
    auto *one = this->file.template device<TypeParam>(1);
    auto *two = this->file.template device<TypeParam>(2);
    auto *self = this->file.template device<TypeParam>(3);
    hand_made_file::lead(one, two, 4);
    hand_made_file::lead(two, one, 5);
    hand_made_file::lead(self, self, 6);
    for (int32_t instance : {1, 2, 3}) {
        EXPECT_EQ(this->build(instance), 1u);
        EXPECT_TRUE(this->is_untouched());
    }
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(AccessSequence, without_memory_a_sequence_fails_and_leaves_the_output)
{
    this->file.template chain<TypeParam>(40, 3);
    counting_memory::fail_at(1);
    EXPECT_EQ(this->build(42), 1u);
    EXPECT_TRUE(counting_memory::failed());
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list{TypeParam::no_memory});
}

TYPED_TEST(AccessSequence, a_sequence_costs_one_request_of_memory)
{
    this->file.template chain<TypeParam>(40, 3);
    counting_memory::reset();
    ASSERT_EQ(this->build(42), 0u);
    EXPECT_EQ(counting_memory::requests(), 1u);
    TypeParam::release(this->made);
}

TYPED_TEST(AccessSequence, releasing_nothing_is_allowed)
{
    TypeParam::release(nullptr);
    inv_parser_free_remote_i2c_access_sequence(nullptr);
}

class I2cSequence : public AccessSequence<i2c>
{
};

TEST_F(I2cSequence, a_hop_carries_the_device_and_zeros)
{
    auto *node = file.device<i2c>(300);
    node->entity->i2c_node.control_register = 0xFFFFFFFF;
    node->channel = 9;
    ASSERT_EQ(build(300), 0u);
    sch_i2c_access_hop_type expected = {};
    expected.device_type = 1300;
    expected.device_model = static_cast<uint8_t>(301);
    expected.device_address = static_cast<uint8_t>(302);
    expected.xml_instance = 300;
    std::vector<unsigned char> octets = octets_of<i2c>(made, 1);
    std::vector<unsigned char> wanted(8 + sizeof expected);
    wanted[0] = 1;
    memcpy(&wanted[8], &expected, sizeof expected);
    EXPECT_EQ(octets, wanted);
    i2c::release(made);
}

TEST_F(I2cSequence, a_channel_is_carried_through_16_bits)
{
    for (auto [given, carried] : {std::pair{0x1FFFFu, 0xFFFFu}, {0x10000u, 0u}, {0xFFFFu, 0xFFFFu}}) {
        hand_made_file one;
        auto *lowest = one.chain<i2c>(40, 2);
        lowest->channel = given;
        ASSERT_EQ(i2c::by_xml_inst(&one.handle, 41, &made), 0u);
        expect_hops({40, 41}, {carried, 0});
    }
}

TEST_F(I2cSequence, a_target_whose_entity_has_no_i2c_node_yields_one_hop_fewer)
{
    file.chain<i2c>(40, 3)->entity->i2c_node = {};
    ASSERT_EQ(build(42), 0u);
    expect_hops({40, 41}, {11, 12});
}

TEST_F(I2cSequence, a_lone_target_without_i2c_node_yields_no_hops)
{
    file.device<i2c>(40)->entity->i2c_node = {};
    ASSERT_EQ(build(40), 0u);
    EXPECT_EQ(octets_of<i2c>(made, 0), std::vector<unsigned char>(8));
    i2c::release(made);
}

TEST_F(I2cSequence, type_model_or_address_alone_keep_the_target)
{
    for (int field : {0, 1, 2}) {
        hand_made_file one;
        sch_i2c_node_type &device = one.chain<i2c>(40, 2)->entity->i2c_node;
        device = {};
        (field == 0 ? device.device_type : one.entities.front().i2c_node.device_type) = 7;
        device.device_model = field == 1;
        device.device_address = field == 2;
        ASSERT_EQ(i2c::by_xml_inst(&one.handle, 41, &made), 0u);
        EXPECT_EQ(made->hop_count, 2) << "field " << field;
        i2c::release(made);
    }
}

TEST_F(I2cSequence, only_the_target_is_trimmed)
{
    file.chain<i2c>(40, 3);
    file.entities[1].i2c_node = {};
    file.entities[2].i2c_node = {};
    ASSERT_EQ(build(42), 0u);
    expect_hops({40, 41}, {11, 12});
}

class PcieSequence : public AccessSequence<pcie>
{
};

TEST_F(PcieSequence, hops_carry_own_port_link_port_and_the_next_ones_device_id)
{
    file.chain<pcie>(300, 2);
    ASSERT_EQ(build(301), 0u);
    sch_pcie_access_hop_type expected[2] = {};
    for (uint16_t i = 0; i < 2; ++i) {
        expected[i].device_type = 2300u + i;
        expected[i].device_model = static_cast<uint8_t>(303 + i);
        expected[i].port_number = static_cast<uint16_t>(304 + i);
        expected[i].xml_instance = static_cast<uint16_t>(300 + i);
    }
    expected[0].link_port = 11;
    expected[0].device_id = 501;
    std::vector<unsigned char> wanted(4 + sizeof expected);
    wanted[0] = 2;
    memcpy(&wanted[4], expected, sizeof expected);
    EXPECT_EQ(octets_of<pcie>(made, 2), wanted);
    pcie::release(made);
}

TEST_F(PcieSequence, the_target_stays_also_without_pcie_node_and_the_header_names_none)
{
    file.chain<pcie>(40, 3)->entity->pcie_node = {};
    ASSERT_EQ(build(42), 0u);
    EXPECT_EQ(made->xml_instance, 0);
    expect_hops({40, 41, 42}, {11, 12, 0});
}

TEST(AccessSequenceFamilies, each_reads_its_own_index)
{
    hand_made_file file;
    file.device<i2c>(1);
    file.device<pcie>(2);
    sch_i2c_access_seq_type *over_i2c = nullptr;
    sch_pcie_access_seq_type *over_pcie = nullptr;
    EXPECT_EQ(i2c::by_xml_inst(&file.handle, 2, &over_i2c), 1u);
    EXPECT_EQ(pcie::by_xml_inst(&file.handle, 1, &over_pcie), 1u);
}

TEST(ContainerType, every_node_type_converts_as_its_slots_are_named)
{
    constexpr uint32_t none = 12;
    const uint32_t by_node_type[] = {none, none, none, none, 2,    1, 3, none, none, 9, 0,
                                     4,    none, 5,    none, none, 7, 6, 10,   8,    11};
    static_assert(sizeof by_node_type / sizeof by_node_type[0] == 21);
    for (uint32_t type = 0; type < 21; ++type)
        EXPECT_EQ(inv_parser_convert_node_type_to_container_type(type), by_node_type[type]) << type;
    for (uint32_t type = 21; type < 70000; ++type)
        ASSERT_EQ(inv_parser_convert_node_type_to_container_type(type), none) << type;
    for (uint32_t type : {0x10004u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_EQ(inv_parser_convert_node_type_to_container_type(type), none) << type;
}

}  // namespace
