// Sequences by EID: what becomes of lookup and build, and the header of the PCIe form.
#include "unit/access_sequence_world.h"

using namespace sequence_world;

namespace
{

template <class Family>
class SequenceByEid : public SequenceTest
{
protected:
    using sequence = typename Family::sequence;

    uint32_t build(const sch_eid_type &eid)
    {
        made = untouched<sequence>();
        return Family::by_eid(&file.handle, &eid, &made);
    }

    hand_made_file file;
    sequence *made = nullptr;
};

TYPED_TEST_SUITE(SequenceByEid, families, family_names);

TYPED_TEST(SequenceByEid, an_entity_is_found_and_its_way_built)
{
    this->file.template chain<TypeParam>(40, 3);
    ASSERT_EQ(this->build(this->file.eid(42)), 0u);
    EXPECT_EQ(this->made->hop_count, 3 - TypeParam::dropped_by_eid);
    EXPECT_EQ(this->made->hops[1].xml_instance, 41);
    EXPECT_EQ(TypeParam::link(this->made->hops[1]), 12u);
    TypeParam::release(this->made);
}

TYPED_TEST(SequenceByEid, an_eid_that_names_nothing_is_traced_and_gives_the_lookups_result)
{
    this->file.template chain<TypeParam>(40, 3);
    sch_eid_type eid = this->file.eid(42);
    eid.levels[1].instance = 43;
    EXPECT_EQ(this->build(eid), 1u);
    EXPECT_EQ(this->made, this->template untouched<typename TypeParam::sequence>());
    EXPECT_EQ(this->traced(), id_list{TypeParam::eid_unknown});
}

TYPED_TEST(SequenceByEid, a_null_handle_fails_in_the_lookup)
{
    sch_eid_type eid = {};
    this->made = this->template untouched<typename TypeParam::sequence>();
    EXPECT_EQ(TypeParam::by_eid(nullptr, &eid, &this->made), 1u);
    EXPECT_EQ(this->traced(), (id_list{95, 109, TypeParam::eid_unknown}));
}

TYPED_TEST(SequenceByEid, a_null_eid_or_output_fails_silently)
{
    this->file.template chain<TypeParam>(40, 1);
    sch_eid_type eid = this->file.eid(40);
    EXPECT_EQ(TypeParam::by_eid(&this->file.handle, nullptr, &this->made), 1u);
    EXPECT_EQ(TypeParam::by_eid(&this->file.handle, &eid, nullptr), 1u);
    EXPECT_EQ(this->traced(), id_list());
}

class I2cByEid : public SequenceByEid<i2c>
{
protected:
    sch_i2c_access_seq_type *const as_before = untouched<sch_i2c_access_seq_type>();
};

TEST_F(I2cByEid, the_result_is_the_lookups_whatever_the_build_did)
{
    file.entity(40);  // in no index
    file.device<i2c>(0);
    auto *loop = file.device<i2c>(41);
    hand_made_file::lead(loop, loop, 1);
    for (uint16_t instance : {uint16_t{40}, uint16_t{0}, uint16_t{41}}) {
        EXPECT_EQ(build(file.eid(instance)), 0u) << instance;
        EXPECT_EQ(made, as_before) << "a failed build leaves the output";
    }
    EXPECT_EQ(traced(), id_list{i2c::no_node});
}

TEST_F(I2cByEid, the_result_is_the_lookups_also_without_memory)
{
    file.chain<i2c>(40, 2);
    sch_eid_type eid = file.eid(41);
    fail_each_request(
        [&] {
            EXPECT_EQ(build(eid), 0u);
            return made != as_before;
        },
        [this] { i2c::release(made); }, {{i2c::no_memory}});
}

TEST_F(I2cByEid, the_output_is_null_where_an_instance_is_too_large_or_a_hop_has_no_entity)
{
    file.device<i2c>(10001);
    EXPECT_EQ(build(file.eid(10001)), 0u);
    EXPECT_EQ(made, nullptr);
    auto *lowest = file.chain<i2c>(40, 2);
    file.nodes[file.nodes.size() - 2].entity = nullptr;
    EXPECT_EQ(build(file.eid(static_cast<uint16_t>(lowest->xml_instance))), 0u);
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(traced(), (id_list{i2c::too_large, i2c::hop_no_entity}));
}

TEST_F(I2cByEid, the_target_is_trimmed_as_by_xml_instance)
{
    file.chain<i2c>(40, 2)->entity->i2c_node = {};
    ASSERT_EQ(build(file.eid(41)), 0u);
    EXPECT_EQ(instances_of<i2c>(made), id_list{40});
    i2c::release(made);
}

class PcieByEid : public SequenceByEid<pcie>
{
};

TEST_F(PcieByEid, the_target_hop_is_dropped_and_the_header_names_the_target)
{
    file.chain<pcie>(40, 3);
    ASSERT_EQ(build(file.eid(42)), 0u);
    EXPECT_EQ(made->xml_instance, 42);
    EXPECT_EQ(instances_of<pcie>(made), (id_list{40, 41}));
    EXPECT_EQ(made->hops[1].link_port, 12);
    EXPECT_EQ(made->hops[1].device_id, 502);
    pcie::release(made);
    ASSERT_EQ(pcie::by_xml_inst(&file.handle, 42, &made), 0u);
    EXPECT_EQ(instances_of<pcie>(made), (id_list{40, 41, 42})) << "the form by xml instance keeps it";
    EXPECT_EQ(made->xml_instance, 0);
    pcie::release(made);
}

TEST_F(PcieByEid, a_lone_target_leaves_no_hops_but_its_instance)
{
    file.chain<pcie>(40, 1);
    ASSERT_EQ(build(file.eid(40)), 0u);
    EXPECT_EQ(made->hop_count, 0);
    EXPECT_EQ(made->xml_instance, 40);
    pcie::release(made);
}

TEST_F(PcieByEid, only_the_target_is_dropped_when_the_link_above_is_port_0)
{
    file.chain<pcie>(40, 3)->channel = 0;
    ASSERT_EQ(build(file.eid(42)), 0u);
    EXPECT_EQ(instances_of<pcie>(made), (id_list{40, 41}));
    pcie::release(made);
}

TEST_F(PcieByEid, a_target_at_10000_is_accepted_and_10001_refused)
{
    file.device<pcie>(10000);
    file.device<pcie>(10001);
    ASSERT_EQ(build(file.eid(10000)), 0u);
    pcie::release(made);
    EXPECT_EQ(build(file.eid(10001)), 1u);
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(traced(), (id_list{pcie::too_large, 70}));
}

TEST_F(PcieByEid, a_failed_build_is_traced_and_its_result_returned)
{
    file.entity(40);
    EXPECT_EQ(build(file.eid(40)), 1u);
    EXPECT_EQ(made, untouched<sch_pcie_access_seq_type>());
    EXPECT_EQ(traced(), (id_list{pcie::no_node, 70}));
}

TEST_F(PcieByEid, without_memory_the_build_fails)
{
    file.chain<pcie>(40, 2);
    sch_eid_type eid = file.eid(41);
    fail_each_request(
        [&] {
            bool is_built = build(eid) == 0;
            EXPECT_EQ(made != untouched<sch_pcie_access_seq_type>(), is_built);
            return is_built;
        },
        [this] { pcie::release(made); }, {{pcie::no_memory, 70}});
}

}  // namespace
