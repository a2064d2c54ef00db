// I2C sequences from command lists: of any record, of a chassis' slots, and as seen from control cards.
#include "frame/side_records.h"
#include "support/fake_platform.h"
#include "unit/access_sequence_world.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unistd.h>

using namespace sequence_world;

namespace
{

bool answer_null_records = false;

}  // namespace

// The linker leads the library's calls here, so that a lookup can answer a null record.
extern "C" uint32_t __real_inv_parser_get_eid_data(inv_xml_handle *, sch_base_entity_type **, sch_eid_type);
extern "C" uint32_t __wrap_inv_parser_get_eid_data(inv_xml_handle *handle, sch_base_entity_type **out,
                                                   sch_eid_type eid)
{
    uint32_t result = __real_inv_parser_get_eid_data(handle, out, eid);
    if (answer_null_records)
        *out = nullptr;
    return result;
}

namespace
{

constexpr uint32_t line_card = 6;
constexpr uint32_t line_card_slots = 3;

// A record with so many commands, each with fields of its own.
struct command_list {
    std::deque<sch_i2c_node_type> commands;
    sch_i2c_sequence_type record = {};

    explicit command_list(size_t count)
    {
        for (uint32_t i = 0; i < count; ++i) {
            sch_i2c_node_type &made = commands.emplace_back();
            made.device_type = 10 + i;
            made.device_model = static_cast<uint8_t>(20 + i);
            made.device_address = static_cast<uint8_t>(30 + i);
            made.control_register = 0x40000000 + i;
            made.data_register = 99;
            made.xml_instance = static_cast<uint16_t>(60000 + i);
            if (i > 0)
                commands[i - 1].next = &made;
        }
        if (count > 0)
            record.command_list = &commands.front();
    }
};

class CommandSequence : public SequenceTest
{
protected:
    sch_i2c_access_seq_type *made = untouched<sch_i2c_access_seq_type>();
};

TEST_F(CommandSequence, commands_become_hops_in_their_order_without_shift_or_trim)
{
    command_list list(3);
    list.commands[2].device_type = 0;
    list.commands[2].device_model = 0;
    list.commands[2].device_address = 0;
    ASSERT_EQ(inv_parser_retrieve_i2c_sequence_info(&list.record, &made), 0u);
    std::vector<unsigned char> wanted(8 + 3 * sizeof(sch_i2c_access_hop_type));
    wanted[0] = 3;
    for (uint32_t i = 0; i < 3; ++i) {
        sch_i2c_access_hop_type hop = {};
        hop.device_type = i == 2 ? 0 : 10 + i;
        hop.device_model = static_cast<uint8_t>(i == 2 ? 0 : 20 + i);
        hop.device_address = static_cast<uint8_t>(i == 2 ? 0 : 30 + i);
        hop.channel = 0x40000000 + i;
        hop.xml_instance = static_cast<uint16_t>(60000 + i);
        memcpy(&wanted[8 + i * sizeof hop], &hop, sizeof hop);
    }
    EXPECT_EQ(octets_of<i2c>(made, 3), wanted);
    i2c::release(made);
}

TEST_F(CommandSequence, the_count_is_cut_to_8_bits_and_the_block_holds_every_hop)
{
    for (size_t count : {0u, 1u, 255u, 256u, 300u}) {
        command_list list(count);
        ASSERT_EQ(inv_parser_retrieve_i2c_sequence_info(&list.record, &made), 0u);
        EXPECT_EQ(made->hop_count, count % 256);
        for (size_t i = 0; i < count; ++i)
            EXPECT_EQ(made->hops[i].xml_instance, 60000 + i);
        i2c::release(made);
    }
}

TEST_F(CommandSequence, without_memory_it_fails)
{
    command_list list(2);
    counting_memory::fail_at(1);
    EXPECT_EQ(inv_parser_retrieve_i2c_sequence_info(&list.record, &made), 1u);
    EXPECT_EQ(made, untouched<sch_i2c_access_seq_type>());
    EXPECT_EQ(traced(), id_list{71});
}

TEST_F(CommandSequence, null_arguments_fail_silently)
{
    command_list list(1);
    EXPECT_EQ(inv_parser_retrieve_i2c_sequence_info(nullptr, &made), 1u);
    EXPECT_EQ(inv_parser_retrieve_i2c_sequence_info(&list.record, nullptr), 1u);
    EXPECT_EQ(made, untouched<sch_i2c_access_seq_type>());
    EXPECT_EQ(traced(), id_list());
}

std::string text_of(const std::string &path)
{
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

// A document opened as its kind. Its trace lines are forgotten.
struct opened_document {
    inv_xml_handle *handle;

    opened_document(const std::string &path, uint32_t pi_hw_type)
    {
        fake_platform::set_only_file_name(path.c_str());
        handle = inv_parser_open_xml_file(0, pi_hw_type, 0, "");
        fake_platform::set_only_file_name(nullptr);
        EXPECT_NE(handle, nullptr);
        trace_recorder::clear();
    }
    ~opened_document()
    {
        inv_parser_close_xml_file(handle);
    }
    opened_document(const opened_document &) = delete;
    opened_document &operator=(const opened_document &) = delete;
};

const std::string sample_folder = std::string(INV_SOURCE_DIR) + "/inventories/";
constexpr uint32_t chassis_type = 1, module_type = 3;

sch_container_list_type *slots_of(inv_xml_handle *chassis, uint32_t container_type)
{
    auto *lists = reinterpret_cast<sch_chassis_type *>(chassis->root->record)->container_list_list;
    while (lists != nullptr && lists->container_type != container_type)
        lists = lists->next;
    return lists;
}

class ContainerIdprom : public SequenceTest
{
protected:
    void TearDown() override
    {
        answer_null_records = false;
        SequenceTest::TearDown();
    }
    uint32_t build(inv_xml_handle *chassis, uint32_t node_type)
    {
        made = untouched<sch_i2c_access_seq_type>();
        uint32_t result = inv_parser_get_container_list_i2c_idprom_access_info(chassis, node_type, &made);
        if (result != 0) {
            EXPECT_EQ(made, untouched<sch_i2c_access_seq_type>());
        }
        return result;
    }
    // A document with another text in place of one of its own.
    std::string edited(const std::string &sample, const std::string &from, const std::string &to)
    {
        std::string text = text_of(sample_folder + sample);
        size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos);
        std::string path = testing::TempDir() + "edited_" + std::to_string(getpid()) + sample;
        std::ofstream(path) << text.replace(at, from.size(), to);
        return path;
    }

    sch_i2c_access_seq_type *made = nullptr;
};

TEST_F(ContainerIdprom, the_slots_of_each_kind_of_unit_are_found)
{
    opened_document chassis(sample_folder + "chassis.xml", chassis_type);
    size_t found = 0;
    for (uint32_t node_type = 0; node_type <= 20; ++node_type) {
        uint32_t container_type = inv_parser_convert_node_type_to_container_type(node_type);
        const sch_container_list_type *slots =
            container_type == 12 ? nullptr : slots_of(chassis.handle, container_type);
        EXPECT_EQ(build(chassis.handle, node_type), slots == nullptr ? 1u : 0u) << node_type;
        if (slots == nullptr)
            continue;
        ++found;
        int hops = 0;
        for (auto *each = slots->i2c_idprom.command_list; each != nullptr; each = each->next, ++hops)
            EXPECT_EQ(made->hops[hops].device_address, each->device_address);
        EXPECT_EQ(made->hop_count, hops);
        i2c::release(made);
    }
    EXPECT_GE(found, 5u);
}

TEST_F(ContainerIdprom, the_first_list_of_the_container_type_counts)
{
    opened_document chassis(sample_folder + "chassis.xml", chassis_type);
    sch_container_list_type first = {};
    command_list commands(2);
    first.container_type = line_card_slots;
    first.i2c_idprom = commands.record;
    auto *&head = reinterpret_cast<sch_chassis_type *>(chassis.handle->root->record)->container_list_list;
    sch_container_list_type *before = head;
    first.next = head;
    head = &first;
    EXPECT_EQ(build(chassis.handle, line_card), 0u);
    EXPECT_EQ(instances_of<i2c>(made), (id_list{60000, 60001}));
    i2c::release(made);
    first.i2c_idprom = {};
    EXPECT_EQ(build(chassis.handle, line_card), 0u) << "slots that say nothing of ID EEPROMs";
    EXPECT_EQ(made->hop_count, 0);
    i2c::release(made);
    head = before;
}

TEST_F(ContainerIdprom, a_node_type_without_container_is_refused)
{
    opened_document chassis(sample_folder + "chassis.xml", chassis_type);
    for (uint32_t node_type : {1u, 3u, 21u, 0xFFFFFFFFu})
        EXPECT_EQ(build(chassis.handle, node_type), 1u);
    EXPECT_EQ(traced(), (id_list{72, 72, 72, 72}));
}

TEST_F(ContainerIdprom, a_null_handle_and_a_file_without_chassis_have_no_chassis_eid)
{
    EXPECT_EQ(build(nullptr, line_card), 1u);
    EXPECT_EQ(traced(), (id_list{95, 100, 73}));
    opened_document card(sample_folder + "line_card_small.xml", module_type);
    EXPECT_EQ(build(card.handle, line_card), 1u);
    EXPECT_EQ(traced(), id_list{73});
}

TEST_F(ContainerIdprom, a_null_output_fails_silently)
{
    EXPECT_EQ(inv_parser_get_container_list_i2c_idprom_access_info(nullptr, line_card, nullptr), 1u);
    EXPECT_EQ(traced(), id_list());
}

TEST_F(ContainerIdprom, a_chassis_entity_that_its_own_eid_does_not_find_is_traced)
{
    hand_made_file file;
    sch_base_entity_type *entity = file.entity(1);
    entity->type = 3;
    entity->subtype = 256;
    EXPECT_EQ(build(&file.handle, line_card), 1u);
    EXPECT_EQ(traced(), id_list{74});
}

TEST_F(ContainerIdprom, a_null_record_is_traced)
{
    hand_made_file file;
    file.entity(1)->type = 3;
    answer_null_records = true;
    EXPECT_EQ(build(&file.handle, line_card), 1u);
    EXPECT_EQ(traced(), id_list{75});
}

TEST_F(ContainerIdprom, a_chassis_is_found_whoever_owns_it)
{
    for (uint32_t owner = 0; owner <= 6; ++owner) {
        hand_made_file file;
        sch_base_entity_type *entity = file.entity(1);
        entity->type = 3;
        entity->owner = owner;
        EXPECT_EQ(build(&file.handle, line_card), 1u);
        EXPECT_EQ(traced(), id_list{76}) << "found, but without containers; owner " << owner;
    }
}

TEST_F(ContainerIdprom, an_entity_that_only_calls_itself_a_chassis_has_no_containers)
{
    hand_made_file file;
    file.entity(1)->type = 3;
    EXPECT_EQ(build(&file.handle, line_card), 1u) << "a handle that no document was loaded into";
    EXPECT_EQ(traced(), id_list{76});

    opened_document module(
        edited("line_card_small.xml", "ORVL_ENTITY_TYPE_MODULE", "ORVL_ENTITY_TYPE_CHASSIS"), module_type);
    EXPECT_EQ(build(module.handle, line_card), 1u) << "a module document";
    EXPECT_EQ(traced(), id_list{76});

    std::string path = edited("chassis.xml", "ORVL_ENTITY_TYPE_CHASSIS", "ORVL_ENTITY_TYPE_MODULE");
    std::string text = text_of(path);
    size_t at = text.find("ORVL_ENTITY_TYPE_BACKPLANE");
    std::ofstream(path) << text.replace(at, strlen("ORVL_ENTITY_TYPE_BACKPLANE"), "ORVL_ENTITY_TYPE_CHASSIS");
    opened_document chassis(path, chassis_type);
    EXPECT_EQ(build(chassis.handle, line_card), 1u) << "not the top entity";
    EXPECT_EQ(traced(), id_list{76});
}

TEST_F(ContainerIdprom, a_chassis_without_slots_of_that_kind_is_traced)
{
    opened_document chassis(sample_folder + "chassis.xml", chassis_type);
    ASSERT_EQ(slots_of(chassis.handle, 5), nullptr);
    constexpr uint32_t switch_card = 13;
    EXPECT_EQ(build(chassis.handle, switch_card), 1u);
    EXPECT_EQ(traced(), id_list{76});
}

TEST_F(ContainerIdprom, each_allocation_that_fails_leaves_nothing)
{
    opened_document chassis(sample_folder + "chassis.xml", chassis_type);
    fail_each_request([&] { return build(chassis.handle, line_card) == 0; }, [this] { i2c::release(made); },
                      {{101, 73}, {71}});
}

class RemoteIdprom : public SequenceTest
{
protected:
    static constexpr uint32_t position = 3;

    RemoteIdprom()
    {
        card.chain<i2c>(40, 2);
        card.chain<i2c>(50, 3);
    }
    uint32_t build(inv_xml_handle *from, uint32_t type = line_card)
    {
        made = untouched<sch_i2c_access_seq_pair_type>();
        uint32_t result = inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
            from, chassis.handle, type, position, &made);
        if (result != 0) {
            EXPECT_EQ(made, untouched<sch_i2c_access_seq_pair_type>());
        }
        return result;
    }
    // The chassis' own commands are put back before the file is closed.
    void set_commands(const command_list &list)
    {
        slots_of(chassis.handle, line_card_slots)->i2c_idprom = list.record;
    }
    void TearDown() override
    {
        slots_of(chassis.handle, line_card_slots)->i2c_idprom = own_commands;
        SequenceTest::TearDown();
    }

    opened_document chassis = {sample_folder + "chassis.xml", chassis_type};
    sch_i2c_sequence_type own_commands = slots_of(chassis.handle, line_card_slots)->i2c_idprom;
    hand_made_file card;
    sch_i2c_access_seq_pair_type *made = nullptr;
};

TEST_F(RemoteIdprom, the_way_to_the_slot_comes_first_and_takes_the_slots_channel)
{
    command_list list(2);
    set_commands(list);
    card.slot<i2c>(line_card, position, 41, 0x107, 52, 8);
    ASSERT_EQ(build(&card.handle), 0u);
    EXPECT_EQ(traced(), id_list());
    EXPECT_EQ(instances_of<i2c>(made->slot0), (id_list{40, 41, 60000, 60001}));
    EXPECT_EQ(links_of<i2c>(made->slot0), (id_list{11, 7, 0x40000000, 0x40000001}));
    EXPECT_EQ(instances_of<i2c>(made->slot1), (id_list{50, 51, 52, 60000, 60001}));
    EXPECT_EQ(links_of<i2c>(made->slot1), (id_list{11, 12, 8, 0x40000000, 0x40000001}));
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(RemoteIdprom, a_slot_without_parent_leaves_its_member_null)
{
    for (auto [parent0, parent1] : {std::pair{41u, 0u}, {0u, 52u}, {0u, 0u}}) {
        card.handle.i2c_cc_slot_lists[line_card] = nullptr;
        card.slot<i2c>(line_card, position, parent0, 7, parent1, 8);
        ASSERT_EQ(build(&card.handle), 0u);
        EXPECT_EQ(made->slot0 != nullptr, parent0 != 0);
        EXPECT_EQ(made->slot1 != nullptr, parent1 != 0);
        inv_parser_free_remote_i2c_access_sequence(made);
    }
    card.handle.i2c_cc_slot_lists[line_card] = nullptr;
    ASSERT_EQ(build(&card.handle), 0u) << "a slot that the card does not know";
    EXPECT_EQ(made->slot0, nullptr);
    EXPECT_EQ(made->slot1, nullptr);
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(RemoteIdprom, a_sum_above_255_is_stored_cut_and_every_hop_is_there)
{
    hand_made_file deep;
    deep.chain<i2c>(100, 25);
    deep.slot<i2c>(line_card, position, 124, 9, 0, 0);
    for (size_t commands : {230u, 231u, 255u, 300u}) {
        command_list list(commands);
        set_commands(list);
        ASSERT_EQ(build(&deep.handle), 0u);
        EXPECT_EQ(made->slot0->hop_count, (25 + commands) % 256);
        for (size_t i = 0; i < 25; ++i)
            EXPECT_EQ(made->slot0->hops[i].xml_instance, 100 + i);
        EXPECT_EQ(made->slot0->hops[24].channel, 9u);
        for (size_t i = 0; i < commands; ++i)
            EXPECT_EQ(made->slot0->hops[25 + i].xml_instance, 60000 + i);
        inv_parser_free_remote_i2c_access_sequence(made);
    }
}

TEST_F(RemoteIdprom, a_slot_chain_trimmed_to_no_hops_leaves_the_commands)
{
    command_list list(1);
    set_commands(list);
    card.entities[0].i2c_node = {};
    card.slot<i2c>(line_card, position, 40, 7, 0, 0);
    ASSERT_EQ(build(&card.handle), 0u);
    EXPECT_EQ(instances_of<i2c>(made->slot0), id_list{60000});
    EXPECT_EQ(made->slot0->hops[0].channel, 0x40000000u);
    inv_parser_free_remote_i2c_access_sequence(made);
}

TEST_F(RemoteIdprom, an_idprom_without_way_is_traced)
{
    EXPECT_EQ(build(&card.handle, 1), 1u);
    EXPECT_EQ(traced(), (id_list{72, 78}));
    EXPECT_EQ(build(&card.handle, 21), 1u) << "no list, and no container either";
    EXPECT_EQ(traced(), (id_list{72, 78}));
}

TEST_F(RemoteIdprom, a_null_chassis_fails_in_the_lookup_before_the_card_is_looked_at)
{
    for (inv_xml_handle *from : {&card.handle, static_cast<inv_xml_handle *>(nullptr)}) {
        made = untouched<sch_i2c_access_seq_pair_type>();
        EXPECT_EQ(inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(from, nullptr, line_card,
                                                                                     position, &made),
                  1u);
        EXPECT_EQ(made, untouched<sch_i2c_access_seq_pair_type>());
        EXPECT_EQ(traced(), (id_list{95, 100, 73, 78}));
    }
}

TEST_F(RemoteIdprom, positions_are_compared_by_16_bits_and_the_first_match_counts)
{
    card.slot<i2c>(line_card, static_cast<uint16_t>(position + 1), 52, 9, 0, 0);
    card.slot<i2c>(line_card, position, 41, 7, 0, 0);
    card.slot<i2c>(line_card, position, 52, 8, 52, 8);
    for (uint32_t at : {position, position + 0x10000}) {
        ASSERT_EQ(inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
                      &card.handle, chassis.handle, line_card, at, &made),
                  0u);
        EXPECT_EQ(made->slot0->hops[1].xml_instance, 41);
        EXPECT_EQ(made->slot0->hops[1].channel, 7u);
        EXPECT_EQ(made->slot1, nullptr);
        inv_parser_free_remote_i2c_access_sequence(made);
    }
}

TEST_F(RemoteIdprom, a_null_card_fails_and_frees_what_was_built)
{
    EXPECT_EQ(build(nullptr), 1u);
    EXPECT_EQ(traced(), id_list());
    EXPECT_EQ(inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
                  &card.handle, chassis.handle, line_card, position, nullptr),
              1u);
}

TEST_F(RemoteIdprom, a_slot_whose_parent_has_no_way_fails)
{
    sch_cc_slot_xml_inst_type *slot = card.slot<i2c>(line_card, position, 999, 7, 52, 8);
    EXPECT_EQ(build(&card.handle), 1u);
    EXPECT_EQ(traced(), (id_list{i2c::no_node, 79}));
    slot->slot0_parent_instance = 41;
    slot->slot1_parent_instance = 999;
    EXPECT_EQ(build(&card.handle), 1u);
    EXPECT_EQ(traced(), (id_list{i2c::no_node, 81}));
}

// Requests in their order: the pair, the EIDs, the commands, then way and join of each slot.
TEST_F(RemoteIdprom, each_allocation_that_fails_is_traced_and_nothing_is_left)
{
    card.slot<i2c>(line_card, position, 41, 7, 52, 8);
    fail_each_request([this] { return build(&card.handle) == 0; },
                      [this] { inv_parser_free_remote_i2c_access_sequence(made); },
                      {{77}, {101, 73, 78}, {71, 78}, {58, 79}, {80}, {58, 81}, {82}});
}

TEST_F(RemoteIdprom, without_memory_for_the_pair_the_result_is_1)
{
    counting_memory::fail_at(1);
    EXPECT_EQ(build(&card.handle), 1u);
    counting_memory::reset();
}

class NullRecords : public SequenceTest
{
protected:
    void TearDown() override
    {
        answer_null_records = false;
        SequenceTest::TearDown();
    }
};

// 1 is an instance as any other: only 0 is none.
TEST_F(NullRecords, a_device_without_record_has_no_way_from_a_card)
{
    hand_made_file card, device;
    card.chain<i2c>(40, 2);
    card.slot<i2c>(line_card, 3, 41, 7, 0, 0);
    device.chain<i2c>(1, 2);
    sch_eid_type eid = device.eid(2);
    auto *made = untouched<sch_i2c_access_seq_pair_type>();
    answer_null_records = true;
    EXPECT_EQ(i2c::from_card(&card.handle, &device.handle, line_card, 3, &eid, &made), 1u);
    EXPECT_EQ(made, untouched<sch_i2c_access_seq_pair_type>());
}

}  // namespace
