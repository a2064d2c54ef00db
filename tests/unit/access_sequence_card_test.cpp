// Ways from the control cards in slot 0 and slot 1 to a device of another file.
#include "unit/access_sequence_world.h"

using namespace sequence_world;

namespace
{

constexpr uint32_t line_card = 6;
constexpr uint32_t position = 3;
constexpr uint16_t device_instance = 71;

template <class Family>
class FromControlCard : public SequenceTest
{
protected:
    using pair = typename Family::pair;
    using sequence = typename Family::sequence;

    // The card reaches slot entities by 40, 41 (slot 0) and 50, 51, 52 (slot 1); the device is the second
    // of a chain of two in its own file.
    FromControlCard()
    {
        card.chain<Family>(40, 2);
        card.chain<Family>(50, 3);
        device.chain<Family>(70, 2);
        eid = device.eid(device_instance);
    }

    uint32_t build(uint32_t type = line_card, uint32_t at = position)
    {
        made = untouched<pair>();
        return Family::from_card(&card.handle, &device.handle, type, at, &eid, &made);
    }
    bool is_untouched() const
    {
        return made == untouched<pair>();
    }
    void add_slot(uint32_t parent0, uint32_t channel0, uint32_t parent1, uint32_t channel1)
    {
        card.slot<Family>(line_card, position, parent0, channel0, parent1, channel1);
    }

    // What a joined way holds beyond the slot's hops.
    static id_list with_device(id_list slot_part, std::initializer_list<uint32_t> device_part)
    {
        slot_part.insert(slot_part.end(), device_part);
        slot_part.resize(slot_part.size() - Family::dropped_by_eid);
        return slot_part;
    }

    hand_made_file card;
    hand_made_file device;
    sch_eid_type eid = {};
    pair *made = nullptr;
};

TYPED_TEST_SUITE(FromControlCard, families, family_names);

TYPED_TEST(FromControlCard, both_ways_are_joined_by_the_slots_channels)
{
    this->add_slot(41, 7, 52, 8);
    ASSERT_EQ(this->build(), 0u);
    EXPECT_EQ(this->traced(), id_list());
    EXPECT_EQ(instances_of<TypeParam>(this->made->slot0), this->with_device({40, 41}, {70, 71}));
    EXPECT_EQ(links_of<TypeParam>(this->made->slot0), this->with_device({11, 7}, {11, 0}));
    EXPECT_EQ(instances_of<TypeParam>(this->made->slot1), this->with_device({50, 51, 52}, {70, 71}));
    EXPECT_EQ(links_of<TypeParam>(this->made->slot1), this->with_device({11, 12, 8}, {11, 0}));
    inv_parser_free_remote_i2c_access_sequence(this->made);
}

TYPED_TEST(FromControlCard, a_zero_slot_1_parent_leaves_the_slot_1_member_null)
{
    this->add_slot(41, 7, 0, 8);
    ASSERT_EQ(this->build(), 0u);
    EXPECT_NE(this->made->slot0, nullptr);
    EXPECT_EQ(this->made->slot1, nullptr);
    inv_parser_free_remote_i2c_access_sequence(this->made);
}

TYPED_TEST(FromControlCard, a_zero_slot_0_parent_leaves_the_slot_0_member_null)
{
    this->add_slot(0, 7, 52, 8);
    ASSERT_EQ(this->build(), 0u);
    EXPECT_EQ(this->made->slot0, nullptr);
    EXPECT_NE(this->made->slot1, nullptr);
    inv_parser_free_remote_i2c_access_sequence(this->made);
}

TYPED_TEST(FromControlCard, a_slot_that_the_card_does_not_know_gives_a_pair_of_nulls)
{
    this->add_slot(41, 7, 52, 8);
    this->card.template slot<TypeParam>(line_card, 5, 0, 1, 0, 2);
    const std::pair<uint32_t, uint32_t> unknown[] = {
        {line_card, 4}, {line_card, 5}, {7, position}, {21, position}, {0xFFFFFFFF, position}};
    for (auto [type, at] : unknown) {
        ASSERT_EQ(this->build(type, at), 0u) << type << " " << at;
        EXPECT_EQ(this->made->slot0, nullptr);
        EXPECT_EQ(this->made->slot1, nullptr);
        inv_parser_free_remote_i2c_access_sequence(this->made);
    }
}

TYPED_TEST(FromControlCard, every_node_type_up_to_20_has_a_list)
{
    for (uint32_t type = 0; type <= 20; ++type)
        this->card.template slot<TypeParam>(type, 9, 41, type, 0, 0);
    for (uint32_t type = 0; type <= 20; ++type) {
        ASSERT_EQ(this->build(type, 9), 0u);
        EXPECT_EQ(TypeParam::link(this->made->slot0->hops[1]), type);
        inv_parser_free_remote_i2c_access_sequence(this->made);
    }
}

TYPED_TEST(FromControlCard, positions_are_compared_by_16_bits_and_the_first_match_counts)
{
    this->add_slot(41, 7, 0, 0);
    this->add_slot(41, 8, 52, 8);
    for (uint32_t at : {position, position + 0x10000}) {
        ASSERT_EQ(this->build(line_card, at), 0u);
        EXPECT_EQ(TypeParam::link(this->made->slot0->hops[1]), 7u);
        EXPECT_EQ(this->made->slot1, nullptr);
        inv_parser_free_remote_i2c_access_sequence(this->made);
    }
}

TYPED_TEST(FromControlCard, of_a_slots_channel_8_bits_are_read_back)
{
    this->add_slot(41, 0x1FE, 52, 0xFFFFFF01);
    ASSERT_EQ(this->build(), 0u);
    EXPECT_EQ(TypeParam::link(this->made->slot0->hops[1]), 0xFEu);
    EXPECT_EQ(TypeParam::link(this->made->slot1->hops[2]), 0x01u);
    inv_parser_free_remote_i2c_access_sequence(this->made);
}

TYPED_TEST(FromControlCard, two_full_chains_join)
{
    hand_made_file long_card, long_device;
    constexpr int most = TypeParam::max_hops;
    long_card.chain<TypeParam>(100, most);
    long_device.chain<TypeParam>(200, most);
    long_card.slot<TypeParam>(line_card, 1, 100 + most - 1, 5, 0, 0);
    sch_eid_type lowest = long_device.eid(200 + most - 1);
    ASSERT_EQ(
        TypeParam::from_card(&long_card.handle, &long_device.handle, line_card, 1, &lowest, &this->made), 0u);
    EXPECT_EQ(this->made->slot0->hop_count, 2 * most - TypeParam::dropped_by_eid);
    EXPECT_EQ(TypeParam::link(this->made->slot0->hops[most - 1]), 5u);
    EXPECT_EQ(this->made->slot0->hops[most].xml_instance, 200);
    inv_parser_free_remote_i2c_access_sequence(this->made);
}

TYPED_TEST(FromControlCard, a_null_card_fails_and_frees_the_pair)
{
    EXPECT_EQ(
        TypeParam::from_card(nullptr, &this->device.handle, line_card, position, &this->eid, &this->made),
        1u);
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(FromControlCard, a_null_eid_or_output_fails_silently)
{
    this->add_slot(41, 7, 52, 8);
    EXPECT_EQ(TypeParam::from_card(&this->card.handle, &this->device.handle, line_card, position, nullptr,
                                   &this->made),
              1u);
    EXPECT_EQ(TypeParam::from_card(&this->card.handle, &this->device.handle, line_card, position, &this->eid,
                                   nullptr),
              1u);
    EXPECT_EQ(this->traced(), id_list());
}

TYPED_TEST(FromControlCard, a_slot_whose_parent_has_no_way_fails)
{
    this->add_slot(999, 7, 52, 8);
    EXPECT_EQ(this->build(), 1u);
    EXPECT_EQ(this->traced(), (id_list{TypeParam::no_node, TypeParam::card.slot0_failed}));
    this->card.slots.front().slot0_parent_instance = 41;
    this->card.slots.front().slot1_parent_instance = 999;
    EXPECT_EQ(this->build(), 1u);
    EXPECT_EQ(this->traced(), (id_list{TypeParam::no_node, TypeParam::card.slot1_failed}));
    EXPECT_TRUE(this->is_untouched());
}

TYPED_TEST(FromControlCard, a_slot_parent_of_65536_is_a_way_and_its_instance_0)
{
    this->add_slot(0x10000, 7, 0, 0);
    EXPECT_EQ(this->build(), 1u);
    EXPECT_EQ(this->traced(), id_list{TypeParam::card.slot0_failed});
}

TYPED_TEST(FromControlCard, a_failure_that_clears_the_output_of_the_plain_form_leaves_the_pair)
{
    this->card.template device<TypeParam>(10001);
    this->add_slot(41, 7, 10001, 8);
    EXPECT_EQ(this->build(), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), (id_list{TypeParam::too_large, TypeParam::card.slot1_failed}));
}

TYPED_TEST(FromControlCard, an_eid_that_names_nothing_is_traced_after_both_slots_are_built)
{
    this->add_slot(41, 7, 52, 8);
    this->eid.levels[1].instance = 999;
    EXPECT_EQ(this->build(), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list{TypeParam::card.eid_unknown});
}

TYPED_TEST(FromControlCard, a_device_file_that_is_null_fails_in_the_lookup)
{
    this->add_slot(41, 7, 52, 8);
    this->made = this->template untouched<typename TypeParam::pair>();
    EXPECT_EQ(TypeParam::from_card(&this->card.handle, nullptr, line_card, position, &this->eid, &this->made),
              1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), (id_list{95, 109, TypeParam::card.eid_unknown}));
}

TYPED_TEST(FromControlCard, a_device_without_way_fails_with_the_builds_traces)
{
    this->add_slot(41, 7, 52, 8);
    this->device.entity(80);
    this->eid = this->device.eid(80);
    EXPECT_EQ(this->build(), 1u);
    EXPECT_TRUE(this->is_untouched());
    EXPECT_EQ(this->traced(), id_list{TypeParam::no_node});
}

// Requests in their order: the pair, the ways to slot 0, slot 1 and the device, the two joins.
TYPED_TEST(FromControlCard, each_allocation_that_fails_is_traced_and_nothing_is_left)
{
    this->add_slot(41, 7, 52, 8);
    this->fail_each_request(
        [this] {
            bool is_built = this->build() == 0;
            EXPECT_NE(this->is_untouched(), is_built);
            return is_built;
        },
        [this] { inv_parser_free_remote_i2c_access_sequence(this->made); },
        {
            {TypeParam::card.no_memory},
            {TypeParam::no_memory, TypeParam::card.slot0_failed},
            {TypeParam::no_memory, TypeParam::card.slot1_failed},
            {TypeParam::no_memory},
            {TypeParam::card.slot0_no_memory},
            {TypeParam::card.slot1_no_memory},
        });
}

class I2cFromControlCard : public FromControlCard<i2c>
{
};

TEST_F(I2cFromControlCard, a_trimmed_slot_chain_takes_the_channel_on_the_hop_above)
{
    card.entities[1].i2c_node = {};  // 41
    add_slot(41, 7, 0, 0);
    ASSERT_EQ(build(), 0u);
    EXPECT_EQ(instances_of<i2c>(made->slot0), (id_list{40, 70, 71}));
    EXPECT_EQ(links_of<i2c>(made->slot0), (id_list{7, 11, 0}));
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(I2cFromControlCard, of_a_slot_chain_trimmed_to_no_hops_the_channel_is_not_written)
{
    card.entities[0].i2c_node = {};  // 40, topmost
    add_slot(40, 7, 0, 0);
    ASSERT_EQ(build(), 0u);
    EXPECT_EQ(instances_of<i2c>(made->slot0), (id_list{70, 71}));
    EXPECT_EQ(links_of<i2c>(made->slot0), (id_list{11, 0}));
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(I2cFromControlCard, a_trimmed_device_is_the_channel_above_it)
{
    device.entities[1].i2c_node = {};
    add_slot(41, 7, 0, 0);
    ASSERT_EQ(build(), 0u);
    EXPECT_EQ(instances_of<i2c>(made->slot0), (id_list{40, 41, 70}));
    EXPECT_EQ(links_of<i2c>(made->slot0), (id_list{11, 7, 11}));
    inv_parser_free_remote_i2c_access_sequence(made);
}

class PcieFromControlCard : public FromControlCard<pcie>
{
};

TEST_F(PcieFromControlCard, the_header_names_the_device_whose_hop_is_dropped)
{
    add_slot(41, 7, 52, 8);
    ASSERT_EQ(build(), 0u);
    for (const sch_pcie_access_seq_type *each : {made->slot0, made->slot1}) {
        EXPECT_EQ(each->xml_instance, device_instance);
        const sch_pcie_access_hop_type &last = each->hops[each->hop_count - 1];
        EXPECT_EQ(last.xml_instance, 70);
        EXPECT_EQ(last.link_port, 11);
        EXPECT_EQ(last.device_id, 501);
    }
    EXPECT_EQ(made->slot0->hops[1].device_id, 0) << "the slot's list knows no device id";
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(PcieFromControlCard, one_hop_is_dropped_also_when_the_slots_port_is_0)
{
    hand_made_file lone;
    lone.chain<pcie>(70, 1);
    sch_eid_type lone_eid = lone.eid(70);
    add_slot(41, 0, 0, 0);
    ASSERT_EQ(pcie::from_card(&card.handle, &lone.handle, line_card, position, &lone_eid, &made), 0u);
    EXPECT_EQ(instances_of<pcie>(made->slot0), (id_list{40, 41}));
    inv_parser_free_remote_i2c_access_sequence(made);
}

// Behind the PCIe lists stands the root of an index, which must not be taken for an element.
TEST_F(PcieFromControlCard, a_node_type_behind_the_last_has_no_list)
{
    sch_cc_slot_xml_inst_type no_element = {};
    no_element.key = position;
    no_element.slot0_parent_instance = 41;
    sch_cc_slot_xml_inst_type *behind = &no_element;
    static_assert(sizeof(avl_root) == sizeof behind);
    memcpy(static_cast<void *>(&card.handle.i2c_xml_inst_index), &behind, sizeof behind);
    EXPECT_EQ(build(INV_CC_SLOT_LIST_COUNT), 0u);
    EXPECT_EQ(made->slot0, nullptr);
    inv_parser_free_remote_i2c_access_sequence(made);
    card.handle.i2c_xml_inst_index = {};
}

}  // namespace
