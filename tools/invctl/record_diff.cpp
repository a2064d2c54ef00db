#include "record_diff.h"

#include <algorithm>

#include "record_print.h"
#include "record_reader.h"

namespace
{

using invctl::field_change;
using invctl::field_kind;
using invctl::field_value;
using invctl::record_field;
using invctl::record_table;

// A record on either side; null where there is none, and then all its fields are absent.
struct record_pair {
    const void *before;
    const void *after;
};

using changes = std::vector<field_change>;

void compare_records(const record_table &table, record_pair records, const std::string &path, changes *out);

// Compared by the entity's place in the tree, or derived from other fields.
bool is_told_elsewhere(const record_table &table, const record_field &field)
{
    switch (field.kind) {
    case field_kind::child:
    case field_kind::children:
    case field_kind::mask:
    case field_kind::reserved:
    case field_kind::link:
        return true;
    default:
        break;
    }
    using base = sch_base_entity_type;
    return &table == &invctl::table_of<base>() &&
           (field.offset == offsetof(base, type) || field.offset == offsetof(base, subtype) ||
            field.offset == offsetof(base, instance) || field.offset == offsetof(base, global_subtype));
}

bool has_value(const record_table &table, const record_field &field, const void *record)
{
    return record != nullptr && (field.has_default || invctl::is_given(table, field, record));
}

field_value value_of(const record_table &table, const record_field &field, const void *record)
{
    if (!has_value(table, field, record))
        return {"absent", nullptr};
    return {invctl::value_text(field, record), invctl::value_json(field, record)};
}

void compare_values(const record_table &table, const record_field &field, record_pair records,
                    const std::string &path, changes *out)
{
    field_value from = value_of(table, field, records.before);
    field_value to = value_of(table, field, records.after);
    if (from.text != to.text)
        out->push_back({path, std::move(from), std::move(to)});
}

void compare_nested(const record_table &table, const record_field &field, record_pair records,
                    const std::string &path, changes *out)
{
    auto part = [&](const void *record) {
        return has_value(table, field, record) ? invctl::field_address(field, record) : nullptr;
    };
    compare_records(field.record(), {part(records.before), part(records.after)}, path + ".", out);
}

std::vector<const void *> items_of(const record_field &field, const void *record)
{
    std::vector<const void *> items;
    const void *each = record == nullptr ? nullptr : invctl::pointer_in(field, record);
    for (; each != nullptr; each = invctl::next_in_list(field.record(), each))
        items.push_back(each);
    return items;
}

bool is_same(const record_table &table, const void *before, const void *after)
{
    changes found;
    compare_records(table, {before, after}, "", &found);
    return found.empty();
}

void compare_lists(const record_field &field, record_pair records, const std::string &path, changes *out)
{
    const record_table &table = field.record();
    std::vector<const void *> before = items_of(field, records.before);
    std::vector<const void *> after = items_of(field, records.after);
    size_t begin = 0;
    while (begin < std::min(before.size(), after.size()) && is_same(table, before[begin], after[begin]))
        ++begin;
    size_t end_before = before.size();
    size_t end_after = after.size();
    while (std::min(end_before, end_after) > begin &&
           is_same(table, before[end_before - 1], after[end_after - 1])) {
        --end_before;
        --end_after;
    }
    for (size_t i = begin; i < std::max(end_before, end_after); ++i)
        compare_records(table, {i < end_before ? before[i] : nullptr, i < end_after ? after[i] : nullptr},
                        path + "[" + std::to_string(i) + "].", out);
}

void compare_records(const record_table &table, record_pair records, const std::string &path, changes *out)
{
    if (records.before == nullptr && records.after == nullptr)
        return;
    for (const record_field &field : table.fields) {
        if (is_told_elsewhere(table, field))
            continue;
        std::string name = path + field.name;
        if (field.kind == field_kind::nested)
            compare_nested(table, field, records, name, out);
        else if (field.kind == field_kind::list)
            compare_lists(field, records, name, out);
        else
            compare_values(table, field, records, name, out);
    }
}

}  // namespace

namespace invctl
{

std::vector<field_change> diff_records(const record_table &table, const void *before, const void *after)
{
    changes out;
    compare_records(table, {before, after}, "", &out);
    return out;
}

}  // namespace invctl
