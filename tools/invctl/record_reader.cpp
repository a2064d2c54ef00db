#include "record_reader.h"

#include <cstring>

namespace
{

using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;

template <class Number>
Number read(const void *from)
{
    Number value;
    memcpy(&value, from, sizeof value);
    return value;
}

const record_field *field_of_kind(const record_table &table, field_kind kind)
{
    for (const record_field &field : table.fields)
        if (field.kind == kind)
            return &field;
    return nullptr;
}

uint64_t sign_extended(uint64_t value, uint32_t width)
{
    uint64_t sign = uint64_t{1} << (width * 8 - 1);
    return (value ^ sign) - sign;
}

}  // namespace

namespace invctl
{

const void *field_address(const record_field &field, const void *record)
{
    return static_cast<const char *>(record) + field.offset;
}

uint64_t number_in(const record_field &field, const void *record)
{
    const void *at = field_address(field, record);
    uint64_t value = 0;
    switch (field.width) {
    case 1:
        value = read<uint8_t>(at);
        break;
    case 2:
        value = read<uint16_t>(at);
        break;
    case 4:
        value = read<uint32_t>(at);
        break;
    default:
        value = read<uint64_t>(at);
    }
    if (field.kind == field_kind::lowest_bit)
        return value & 1;
    return field.kind == field_kind::signed_number ? sign_extended(value, field.width) : value;
}

const void *pointer_in(const record_field &field, const void *record)
{
    return read<const void *>(field_address(field, record));
}

std::string text_in(const record_field &field, const void *record)
{
    const char *text = static_cast<const char *>(field_address(field, record));
    return std::string(text, strnlen(text, field.width));
}

bool is_given(const record_table &table, const record_field &field, const void *record)
{
    if (field.presence == 0)
        return true;
    record_field word = {"", field_kind::number, field.presence_word, sizeof(uint32_t)};
    if (field.presence_word == 0)
        word = *field_of_kind(table, field_kind::mask);
    return (number_in(word, record) & field.presence) != 0;
}

const void *next_in_list(const record_table &table, const void *record)
{
    const record_field *link = field_of_kind(table, field_kind::link);
    return link == nullptr ? nullptr : pointer_in(*link, record);
}

const char *token_in(const record_field &field, const void *record)
{
    const char *token = field.token(static_cast<uint32_t>(number_in(field, record)));
    return strcmp(token, "_UNKNOWN_") == 0 ? nullptr : token;
}

}  // namespace invctl
