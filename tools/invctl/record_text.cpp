#include <cinttypes>
#include <cstdio>

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

std::string hex_text(uint64_t value, uint32_t width)
{
    char text[24];
    snprintf(text, sizeof text, "0x%0*" PRIx64, static_cast<int>(width * 2), value);
    return text;
}

std::string token_text(const record_field &field, const void *record)
{
    const char *token = invctl::token_in(field, record);
    std::string code = std::to_string(invctl::number_in(field, record));
    return token == nullptr ? code : std::string(token) + " (" + code + ")";
}

std::string level_text(const void *entity)
{
    return invctl::eid_level(*static_cast<const sch_base_entity_type *>(entity));
}

// Records and entities of a list, each on a line or block of its own.
std::string linked_text(const record_field &field, const void *record, const entity_records &known,
                        size_t indent)
{
    const record_table &table = field.record();
    const void *each = invctl::pointer_in(field, record);
    if (each == nullptr)
        return " none\n";
    std::string text = "\n";
    for (size_t index = 0; each != nullptr; each = invctl::next_in_list(table, each), ++index) {
        text += std::string(indent + 2, ' ') + "[" + std::to_string(index) + "]:";
        if (field.kind == field_kind::children)
            text += " " + level_text(each) + "\n";
        else
            text += "\n" + invctl::record_text(table, each, known, indent + 4);
    }
    return text;
}

// What follows the name and its colon, to the end of the last line.
std::string field_text(const record_field &field, const void *record, const entity_records &known,
                       size_t indent)
{
    const void *at = invctl::field_address(field, record);
    switch (field.kind) {
    case field_kind::nested:
        return "\n" + invctl::record_text(field.record(), at, known, indent + 2);
    case field_kind::child:
        return " " + (known.is_entity(at) ? level_text(at) : "absent") + "\n";
    case field_kind::list:
    case field_kind::children:
        return linked_text(field, record, known, indent);
    default:
        return " " + invctl::value_text(field, record) + "\n";
    }
}

}  // namespace

namespace invctl
{

std::string value_text(const record_field &field, const void *record)
{
    uint64_t value = field.kind == field_kind::text ? 0 : number_in(field, record);
    switch (field.kind) {
    case field_kind::text:
        return "\"" + printable(text_in(field, record).c_str()) + "\"";
    case field_kind::token:
        return token_text(field, record);
    case field_kind::flag:
        return value > 1 ? std::to_string(value) : value == 1 ? "true" : "false";
    case field_kind::hex:
    case field_kind::mask:
        return hex_text(value, field.width);
    case field_kind::signed_number:
        return std::to_string(static_cast<int64_t>(value));
    default:
        return std::to_string(value);
    }
}

// Records hold records a few levels deep at most; what may be endless is linked.
std::string record_text(const record_table &table, const void *record, const entity_records &known,
                        size_t indent)
{
    std::string text;
    for (const record_field &field : table.fields) {
        if (!is_printed(field))
            continue;
        text += std::string(indent, ' ') + field.name + ":";
        if (is_given(table, field, record))
            text += field_text(field, record, known, indent);
        else if (field.has_default)
            text += " " + value_text(field, record) + ", by default\n";
        else
            text += " absent\n";
    }
    return text;
}

}  // namespace invctl
