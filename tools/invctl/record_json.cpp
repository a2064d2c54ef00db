#include "entity_words.h"
#include "output.h"
#include "record_print.h"
#include "record_reader.h"

namespace
{

using invctl::entity_records;
using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;
using json = nlohmann::ordered_json;

json token_json(const record_field &field, const void *record)
{
    const char *token = invctl::token_in(field, record);
    return token == nullptr ? json(invctl::number_in(field, record)) : json(token);
}

json level_json(const void *entity)
{
    return invctl::eid_level(*static_cast<const sch_base_entity_type *>(entity));
}

json linked_json(const record_field &field, const void *record, const entity_records &known)
{
    const record_table &table = field.record();
    json array = json::array();
    for (const void *each = invctl::pointer_in(field, record); each != nullptr;
         each = invctl::next_in_list(table, each))
        array.push_back(field.kind == field_kind::children ? level_json(each)
                                                           : invctl::record_json(table, each, known));
    return array;
}

json number_json(const record_field &field, const void *record)
{
    uint64_t value = invctl::number_in(field, record);
    if (field.kind == field_kind::flag && value <= 1)
        return value == 1;
    if (field.kind == field_kind::signed_number)
        return static_cast<int64_t>(value);
    return value;
}

json field_json(const record_field &field, const void *record, const entity_records &known)
{
    const void *at = invctl::field_address(field, record);
    switch (field.kind) {
    case field_kind::nested:
        return invctl::record_json(field.record(), at, known);
    case field_kind::child:
        return known.is_entity(at) ? level_json(at) : json(nullptr);
    case field_kind::list:
    case field_kind::children:
        return linked_json(field, record, known);
    default:
        return invctl::value_json(field, record);
    }
}

}  // namespace

namespace invctl
{

json value_json(const record_field &field, const void *record)
{
    if (field.kind == field_kind::text)
        return valid_utf8(text_in(field, record).c_str());
    return field.kind == field_kind::token ? token_json(field, record) : number_json(field, record);
}

json record_json(const record_table &table, const void *record, const entity_records &known)
{
    json object = json::object();
    for (const record_field &field : table.fields) {
        if (!is_printed(field))
            continue;
        bool shown = field.has_default || is_given(table, field, record);
        object[field.name] = shown ? field_json(field, record, known) : json(nullptr);
    }
    return object;
}

}  // namespace invctl
