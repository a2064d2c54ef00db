// Every field of every record against the items of documents that fill it: at both limits of each width,
// absent, and all at once; and no other field moves.
#include "record_fields.h"

#include "support/declared_members.h"
#include "unit/load_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <set>

namespace
{

using namespace record_fields;

std::vector<const record_case *> all_cases()
{
    std::vector<const record_case *> all;
    for (const auto *cases :
         {&access_cases(), &entity_cases(), &port_cases(), &device_cases(), &unit_cases()}) {
        for (const record_case &each : *cases)
            all.push_back(&each);
    }
    return all;
}

// The items of a document that are not as usual: markup of elements, text of attributes.
using given_items = std::map<std::string, std::string>;

std::string marked_up(const std::string &name, const std::string &markup, const std::string &text)
{
    if (name[0] == '@')
        return text;
    std::string element = markup.empty() ? "<" + name + ">%</" + name + ">" : markup;
    size_t mark = element.find('%');
    return mark == std::string::npos ? element : element.replace(mark, 1, text);
}

std::string document_of(const record_case &record, const given_items &given)
{
    std::string attributes;
    std::string content;
    for (const item &each : record.items) {
        auto found = given.find(each.name);
        if (found == given.end() && !each.is_required)
            continue;
        std::string value =
            found != given.end() ? found->second : marked_up(each.name, each.usual_markup, each.usual);
        if (each.name[0] == '@')
            attributes += " " + each.name.substr(1) + "=\"" + value + "\"";
        else
            content += value;
    }
    return record.before + attributes + ">" + content + record.after;
}

given_items with_sample(const field_row &row, const sample &text)
{
    return {{row.item, marked_up(row.item, row.markup, text.text)}};
}

const item *item_of(const record_case &record, const field_row &row)
{
    for (const item &each : record.items) {
        if (each.name == row.item)
            return &each;
    }
    return nullptr;
}

uint64_t number_at(const void *record, const place &at)
{
    const char *from = static_cast<const char *>(record) + at.offset;
    uint64_t value = 0;
    memcpy(&value, from, at.width);
    return value;
}

uint64_t in_width(int64_t value, size_t width)
{
    auto octets = static_cast<uint64_t>(value);
    return width >= 8 ? octets : octets & ((uint64_t{1} << (width * 8)) - 1);
}

void expect_holds(const void *record, const field_row &row, int64_t expected, const std::string &held)
{
    const char *from = static_cast<const char *>(record) + row.field.offset;
    if (row.as == held_as::list) {
        EXPECT_EQ(number_at(record, row.field) != 0, expected != 0) << row.field.member;
    } else if (row.as == held_as::number) {
        EXPECT_EQ(number_at(record, row.field), in_width(expected, row.field.width)) << row.field.member;
    } else {
        std::string octets(from, row.field.width);
        EXPECT_EQ(octets, held + std::string(row.field.width - held.size(), '\0')) << row.field.member;
    }
}

const sample *usual_sample(const record_case &record, const field_row &row)
{
    const item *filled_by = item_of(record, row);
    // A field may be filled from an inner element that the usual content leaves out.
    if (filled_by == nullptr || !filled_by->is_required || filled_by->usual_markup != row.markup)
        return nullptr;
    for (const sample &each : row.texts) {
        if (each.text == filled_by->usual)
            return &each;
    }
    ADD_FAILURE() << record.record << "." << row.field.member << ": the usual text is no sample";
    return nullptr;
}

void expect_as_usual(const record_case &record, const void *at, const field_row &row)
{
    const sample *usual = usual_sample(record, row);
    if (usual != nullptr)
        expect_holds(at, row, usual->number, row.as == held_as::text ? usual->held : "");
    else
        expect_holds(at, row, row.when_absent, "");
}

uint32_t usual_mask(const record_case &record)
{
    uint32_t mask = 0;
    for (const field_row &row : record.rows)
        mask |= usual_sample(record, row) != nullptr ? row.bit : 0;
    return mask;
}

void expect_mask(const record_case &record, const void *at, uint32_t expected)
{
    if (record.mask.width != 0) {
        EXPECT_EQ(number_at(at, record.mask), expected) << "mask of " << record.record;
    }
}

// Opens the document as a client does and looks at the record.
template <class Look>
void with_document(const record_case &record, const given_items &given, const Look &look)
{
    std::string text = document_of(record, given);
    SCOPED_TRACE(text.substr(0, 1200));
    std::string file = load_world::scratch_file(record.record + ".xml", text);
    inv_xml_handle *handle = load_world::open_file(load_world::generations()[0], file, record.pi_hw_type);
    ASSERT_NE(handle, nullptr);
    if (handle->root == nullptr)
        ADD_FAILURE() << "the document has not been loaded";
    else if (const void *at = record.find(*handle); at != nullptr)
        look(at);
    else
        ADD_FAILURE() << "no such record in the document";
    inv_parser_close_xml_file(handle);
}

bool is_moved_by(const field_row &other, const field_row &row)
{
    return other.item == row.item || strcmp(other.field.member, row.field.member) == 0 ||
           other.field.member == row.also_changes;
}

class RecordFields : public testing::TestWithParam<const record_case *>
{
protected:
    const record_case &tested = *GetParam();
    load_world::fresh_library library;
};

TEST_P(RecordFields, hold_what_their_item_says_at_both_limits_and_set_their_own_bit_alone)
{
    for (const field_row &row : tested.rows) {
        if (row.item.empty())
            continue;
        for (const sample &each : row.texts) {
            with_document(tested, with_sample(row, each), [&](const void *record) {
                expect_holds(record, row, each.number, each.held);
                expect_mask(tested, record, usual_mask(tested) | row.bit);
                for (const field_row &other : tested.rows) {
                    if (!is_moved_by(other, row))
                        expect_as_usual(tested, record, other);
                }
            });
        }
    }
}

TEST_P(RecordFields, of_absent_items_are_zero_or_the_default_and_have_no_bit)
{
    with_document(tested, {}, [&](const void *record) {
        expect_mask(tested, record, usual_mask(tested));
        for (const field_row &row : tested.rows)
            expect_as_usual(tested, record, row);
    });
}

TEST_P(RecordFields, all_at_once_set_every_numbered_bit_and_no_other)
{
    given_items given;
    std::vector<const field_row *> filled;
    uint32_t mask = 0;
    for (const field_row &row : tested.rows) {
        mask |= row.bit;
        if (row.item.empty() || given.contains(row.item))
            continue;
        given.merge(with_sample(row, row.texts.back()));
        filled.push_back(&row);
    }
    with_document(tested, given, [&](const void *record) {
        expect_mask(tested, record, mask);
        for (const field_row *row : filled) {
            bool shared = std::count_if(filled.begin(), filled.end(), [&](const field_row *other) {
                              return strcmp(other->field.member, row->field.member) == 0 ||
                                     other->also_changes == row->field.member;
                          }) > 1;
            bool changed = std::any_of(filled.begin(), filled.end(), [&](const field_row *other) {
                return other->also_changes == row->field.member;
            });
            if (!shared && !changed)
                expect_holds(record, *row, row->texts.back().number, row->texts.back().held);
        }
    });
}

TEST_P(RecordFields, have_a_row_each)
{
    std::set<std::string> named(tested.others.begin(), tested.others.end());
    for (const field_row &row : tested.rows)
        named.insert(row.field.member);
    if (tested.mask.width != 0)
        named.insert(tested.mask.member);
    std::vector<std::string> declared = declared_members(tested.record);
    EXPECT_EQ(named, std::set<std::string>(declared.begin(), declared.end()));
}

TEST_P(RecordFields, that_an_item_fills_name_one_of_the_document)
{
    for (const field_row &row : tested.rows) {
        if (!row.item.empty()) {
            EXPECT_NE(item_of(tested, row), nullptr) << row.item;
        }
        EXPECT_FALSE(row.texts.empty()) << row.field.member;
    }
}

INSTANTIATE_TEST_SUITE_P(Records, RecordFields, testing::ValuesIn(all_cases()),
                         [](const testing::TestParamInfo<const record_case *> &info) {
                             return info.param->record;
                         });

// No record type has been left out: 49 structs of the public headers are records that documents fill.
TEST(RecordFieldCases, cover_every_record_type)
{
    std::set<std::string> records;
    for (const record_case *each : all_cases())
        EXPECT_TRUE(records.insert(each->record).second) << each->record;
    EXPECT_EQ(records.size(), 49u);
}

}  // namespace
