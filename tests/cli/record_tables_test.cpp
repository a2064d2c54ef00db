// The tables that invctl prints records by describe every octet of every record.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "record_reader.h"
#include "record_table.h"
#include "support/declared_members.h"

namespace
{

using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;

std::string place(const record_table &table, const record_field &field)
{
    return std::string(table.name) + "." + field.name;
}

size_t alignment_of(const record_table &table);

// What the compiler aligns a member of this kind to.
size_t alignment_of(const record_field &field)
{
    switch (field.kind) {
    case field_kind::nested:
    case field_kind::child:
        return alignment_of(field.record());
    case field_kind::text:
    case field_kind::reserved:
        return 1;
    default:
        return field.width;
    }
}

size_t alignment_of(const record_table &table)
{
    size_t greatest = 1;
    for (const record_field &field : table.fields)
        greatest = std::max(greatest, alignment_of(field));
    return greatest;
}

size_t rounded_up(size_t offset, size_t alignment)
{
    return (offset + alignment - 1) / alignment * alignment;
}

TEST(RecordTables, fields_follow_each_other_with_nothing_but_padding_between)
{
    for (const record_table *table : invctl::all_record_tables()) {
        size_t end = 0;
        for (const record_field &field : table->fields) {
            EXPECT_EQ(field.offset, rounded_up(end, alignment_of(field))) << place(*table, field);
            end = field.offset + field.width;
        }
        EXPECT_EQ(table->size, rounded_up(end, alignment_of(*table))) << table->name;
    }
}

TEST(RecordTables, name_every_member_of_the_record_in_its_order)
{
    for (const record_table *table : invctl::all_record_tables()) {
        std::vector<std::string> names;
        for (const record_field &field : table->fields)
            names.push_back(field.name);
        EXPECT_EQ(names, declared_members(table->name)) << table->name;
    }
}

TEST(RecordTables, octets_without_a_field_are_padding)
{
    for (const record_table *table : invctl::all_record_tables()) {
        std::vector<int> covered(table->size, 0);
        for (const record_field &field : table->fields) {
            ASSERT_LE(field.offset + field.width, table->size) << place(*table, field);
            for (uint32_t at = field.offset; at < field.offset + field.width; ++at)
                ++covered[at];
        }
        size_t gap = 0;
        for (size_t at = 0; at < table->size; ++at) {
            EXPECT_LE(covered[at], 1) << table->name << " octet " << at;
            gap = covered[at] == 0 ? gap + 1 : 0;
            EXPECT_LT(gap, alignment_of(*table)) << table->name << " octet " << at;
        }
    }
}

TEST(RecordTables, embedded_and_linked_records_have_the_size_of_their_own_table)
{
    for (const record_table *table : invctl::all_record_tables()) {
        for (const record_field &field : table->fields) {
            bool embedded = field.kind == field_kind::nested || field.kind == field_kind::child;
            bool linked = field.kind == field_kind::list || field.kind == field_kind::children;
            EXPECT_EQ(field.record != nullptr, embedded || linked) << place(*table, field);
            if (embedded) {
                EXPECT_EQ(field.width, field.record().size) << place(*table, field);
            }
        }
    }
}

TEST(RecordTables, linked_records_have_a_link_and_a_record_has_one_mask_and_one_link_at_most)
{
    for (const record_table *table : invctl::all_record_tables()) {
        int links = 0;
        int masks = 0;
        for (const record_field &field : table->fields) {
            links += field.kind == field_kind::link;
            masks += field.kind == field_kind::mask;
            EXPECT_EQ(field.kind == field_kind::link, std::string(field.name) == "next")
                << place(*table, field);
            EXPECT_EQ(field.kind == field_kind::mask, std::string(field.name) == "field_present")
                << place(*table, field);
        }
        EXPECT_LE(links, 1) << table->name;
        EXPECT_LE(masks, 1) << table->name;
    }
}

TEST(RecordTables, presence_bits_are_single_and_belong_to_a_mask)
{
    for (const record_table *table : invctl::all_record_tables()) {
        const record_field *mask = nullptr;
        for (const record_field &field : table->fields)
            mask = field.kind == field_kind::mask ? &field : mask;
        for (const record_field &field : table->fields) {
            if (field.presence == 0)
                continue;
            EXPECT_EQ(field.presence & (field.presence - 1), 0u) << place(*table, field);
            if (field.presence_word != 0)
                continue;
            ASSERT_NE(mask, nullptr) << place(*table, field);
            EXPECT_EQ(uint64_t{field.presence} >> (mask->width * 8), 0u) << place(*table, field);
        }
    }
}

// The octets that show leaves out: the head that nobody writes, and the links of lists.
TEST(RecordTables, only_the_reserved_head_and_links_are_not_printed)
{
    std::vector<std::string> reserved;
    for (const record_table *table : invctl::all_record_tables())
        for (const record_field &field : table->fields)
            if (field.kind == field_kind::reserved)
                reserved.push_back(place(*table, field));
    EXPECT_EQ(reserved, std::vector<std::string>{"base_entity.reserved_head"});
}

TEST(RecordTables, every_record_type_is_there_once)
{
    std::vector<std::string> names;
    for (const record_table *table : invctl::all_record_tables())
        names.push_back(table->name);
    EXPECT_EQ(names.size(), 49u);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

TEST(RecordTables, the_pmbus_bit_is_the_lowest_of_the_word_behind_the_command)
{
    sch_base_entity_type entity = {};
    entity.pmbus_cmd = 0x21;
    const record_table &table = invctl::table_of<sch_base_entity_type>();
    for (uint32_t valid : {0u, 1u}) {
        entity.pmbus_valid = valid & 1u;
        for (const record_field &field : table.fields) {
            if (std::string(field.name) == "pmbus_valid") {
                EXPECT_EQ(invctl::number_in(field, &entity), valid);
            }
            if (std::string(field.name) == "pmbus_cmd") {
                EXPECT_EQ(invctl::is_given(table, field, &entity), valid == 1);
            }
        }
    }
}

TEST(RecordReader, numbers_of_every_width_are_read_with_their_sign)
{
    sch_port_type port = {};
    port.max_bandwidth = -5000000000;
    port.base.driver_id = -32768;
    port.base.instance = 65535;
    port.base.admin_state = 255;
    auto value_of = [](const record_table &table, const char *name, const void *record) {
        for (const record_field &field : table.fields)
            if (std::string(field.name) == name)
                return invctl::number_in(field, record);
        return uint64_t{0};
    };
    const record_table &base = invctl::table_of<sch_base_entity_type>();
    EXPECT_EQ(static_cast<int64_t>(value_of(invctl::table_of<sch_port_type>(), "max_bandwidth", &port)),
              -5000000000);
    EXPECT_EQ(static_cast<int64_t>(value_of(base, "driver_id", &port)), -32768);
    EXPECT_EQ(value_of(base, "instance", &port), 65535u);
    EXPECT_EQ(value_of(base, "admin_state", &port), 255u);
}

}  // namespace
