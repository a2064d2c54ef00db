#include "json_schema.h"

#include <initializer_list>

#include "entity_records.h"
#include "record_table.h"

namespace
{

using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;
using json = nlohmann::ordered_json;

// An EID as eid_text() writes it: levels of type.subtype.instance.
constexpr const char *level_pattern = "^[^./]+\\.[^./]+\\.[0-9]+$";
constexpr const char *eid_pattern = "^[^./]+\\.[^./]+\\.[0-9]+(/[^./]+\\.[^./]+\\.[0-9]+)*$";

json reference_to(const record_table &table)
{
    return {{"$ref", std::string("#/$defs/") + table.name}};
}

json level_schema()
{
    return {{"type", "string"}, {"pattern", level_pattern}};
}

json array_of(json items)
{
    return {{"type", "array"}, {"items", std::move(items)}};
}

json number_schema(const record_field &field)
{
    uint32_t bits = field.width * 8;
    if (field.kind == field_kind::lowest_bit)
        bits = 1;
    json schema = {{"type", "integer"}};
    if (field.kind == field_kind::signed_number) {
        schema["minimum"] = static_cast<int64_t>(~uint64_t{0} << (bits - 1));
        schema["maximum"] = static_cast<int64_t>((uint64_t{1} << (bits - 1)) - 1);
    } else {
        schema["minimum"] = 0;
        schema["maximum"] = bits == 64 ? ~uint64_t{0} : (uint64_t{1} << bits) - 1;
    }
    return schema;
}

// The words of an enumeration; a record may hold a code that has none.
json token_schema(const record_field &field)
{
    json words = json::array();
    for (uint32_t code = 0; std::string(field.token(code)) != "_UNKNOWN_"; ++code)
        words.push_back(field.token(code));
    return {{"anyOf", {{{"enum", std::move(words)}}, number_schema(field)}}};
}

json value_schema(const record_field &field)
{
    switch (field.kind) {
    case field_kind::nested:
        return reference_to(field.record());
    case field_kind::list:
        return array_of(reference_to(field.record()));
    case field_kind::child:
        return level_schema();
    case field_kind::children:
        return array_of(level_schema());
    case field_kind::text:
        return {{"type", "string"}};
    case field_kind::token:
        return token_schema(field);
    case field_kind::flag:
        return {{"anyOf", {{{"type", "boolean"}}, number_schema(field)}}};
    default:
        return number_schema(field);
    }
}

bool may_be_absent(const record_field &field)
{
    return field.kind == field_kind::child || (field.presence != 0 && !field.has_default);
}

json record_schema(const record_table &table)
{
    json properties = json::object();
    json required = json::array();
    for (const record_field &field : table.fields) {
        if (!invctl::is_printed(field))
            continue;
        json value = value_schema(field);
        if (may_be_absent(field))
            value = {{"anyOf", {std::move(value), {{"type", "null"}}}}};
        properties[field.name] = std::move(value);
        required.push_back(field.name);
    }
    return {{"type", "object"},
            {"properties", std::move(properties)},
            {"required", std::move(required)},
            {"additionalProperties", false}};
}

// Which record an entity has decides what its fields are.
json entity_schema(const record_table &table)
{
    return {{"type", "object"},
            {"properties",
             {{"eid", {{"type", "string"}, {"pattern", eid_pattern}}},
              {"depth", {{"type", "integer"}, {"minimum", 1}, {"maximum", 128}}},
              {"record", {{"const", table.name}}},
              {"fields", reference_to(table)}}},
            {"required", {"eid", "depth", "record", "fields"}},
            {"additionalProperties", false}};
}

bool is_entity_table(const record_table &table)
{
    // An entity's record is the base entity's or opens with one.
    const record_field &first = table.fields.front();
    return &table == &invctl::table_of<sch_base_entity_type>() ||
           (first.kind == field_kind::nested && first.offset == 0 && is_entity_table(first.record()));
}

}  // namespace

namespace invctl
{

json inventory_json_schema()
{
    json entities = json::array();
    json records = json::object();
    for (const record_table *table : all_record_tables()) {
        records[table->name] = record_schema(*table);
        if (is_entity_table(*table))
            entities.push_back(entity_schema(*table));
    }
    json kinds = json::array();
    for (const char *kind : unit_kinds())
        kinds.push_back(kind);
    return {
        {"$schema", "https://json-schema.org/draft/2020-12/schema"},
        {"title", "Hardware inventory of one unit"},
        {"description",
         "What `invctl json` prints: the unit's entities in the order of its tree, parents first. A key is "
         "null where the document says nothing and nothing is the default."},
        {"type", "object"},
        {"properties",
         {{"version", {{"const", inventory_json_version}}},
          {"kind", {{"enum", std::move(kinds)}}},
          {"entities", {{"type", "array"}, {"minItems", 1}, {"items", {{"oneOf", std::move(entities)}}}}}}},
        {"required", {"version", "kind", "entities"}},
        {"additionalProperties", false},
        {"$defs", std::move(records)}};
}

}  // namespace invctl
