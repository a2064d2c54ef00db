#include "plain_store.h"

#include "inv_platform/name_hash.h"
#include "octets.h"
#include "value_parsers.h"

namespace inv::xml
{

namespace
{

// Numbers of so many digits fit 64 bits whatever the digits.
constexpr size_t safe_digits = 18;

// Nearly all numbers are a few digits and nothing else.
bool parse_digits(std::string_view text, uint64_t &number)
{
    if (text.empty() || text.size() > safe_digits)
        return false;
    number = 0;
    for (char c : text) {
        const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
        if (digit > 9)
            return false;
        number = number * 10 + digit;
    }
    return true;
}

// The whole of the lexical rules, out of the way of what is usual.
template <typename Integer>
[[gnu::noinline]] bool store_odd_integer(std::string_view text, void *to)
{
    Integer value;
    if (parse_integer(text, value) != XB_OK)
        return false;
    memcpy(to, &value, sizeof value);
    return true;
}

template <typename Integer>
bool store_integer(std::string_view text, void *to)
{
    uint64_t number;
    if (!parse_digits(text, number) || number > uint64_t{std::numeric_limits<Integer>::max()})
        return store_odd_integer<Integer>(text, to);
    const auto value = static_cast<Integer>(number);
    memcpy(to, &value, sizeof value);
    return true;
}

[[gnu::noinline]] bool store_odd_boolean(std::string_view text, void *to)
{
    return parse_boolean(text, *static_cast<uint8_t *>(to)) == XB_OK;
}

bool store_boolean(std::string_view text, void *to)
{
    const bool is_true = text.size() == 4 && same_octets(text.data(), "true", 4);
    if (!is_true && !(text.size() == 5 && same_octets(text.data(), "false", 5)))
        return store_odd_boolean(text, to);
    *static_cast<uint8_t *>(to) = is_true;
    return true;
}

bool store_text(heap &memory, std::string_view text, bool is_padded, void *to)
{
    const char *copy = is_padded ? heap_copy_padded_text(memory, text) : heap_copy_text(memory, text);
    if (copy == nullptr)
        return false;
    *static_cast<const char **>(to) = copy;
    return true;
}

bool store_token(const xb_tokens &tokens, std::string_view text, void *to)
{
    const uint32_t hash = inv::name_hash(text.data(), text.size());
    const uint64_t scaled = static_cast<uint64_t>(hash) * tokens.count;
    for (uint32_t next = tokens.links[scaled >> 32].first; next != 0; next = tokens.links[next - 1].next) {
        const xb_enum_row &row = tokens.rows[next - 1];
        if (tokens.links[next - 1].hash == hash && row.token_length == text.size() &&
            same_octets(row.token, text.data(), text.size())) {
            *static_cast<uint32_t *>(to) = row.code;
            return true;
        }
    }
    return false;
}

[[gnu::noinline]] bool store_octets(heap &memory, std::string_view text, void *to)
{
    if (!is_hexadecimal(text) || text.empty() || text.size() / 2 > UINT32_MAX)
        return false;
    auto *octets = static_cast<uint8_t *>(heap_allocate(memory, text.size() / 2));
    if (octets == nullptr)
        return false;
    convert_hexadecimal(text, octets);
    *static_cast<xb_octets *>(to) = {static_cast<uint32_t>(text.size() / 2), octets};
    return true;
}

[[gnu::noinline]] bool store_buffer(uint32_t capacity, std::string_view text, void *to)
{
    if (text.size() != size_t{2} * capacity || !is_hexadecimal(text))
        return false;
    memcpy(to, &capacity, sizeof capacity);
    convert_hexadecimal(text, static_cast<uint8_t *>(to) + sizeof capacity);
    return true;
}

}  // namespace

bool store_value(heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded, void *to)
{
    switch (row.kind) {
    case XB_PLAIN_INT8:
        return store_integer<int8_t>(text, to);
    case XB_PLAIN_UINT8:
        return store_integer<uint8_t>(text, to);
    case XB_PLAIN_INT16:
        return store_integer<int16_t>(text, to);
    case XB_PLAIN_UINT16:
        return store_integer<uint16_t>(text, to);
    case XB_PLAIN_INT32:
        return store_integer<int32_t>(text, to);
    case XB_PLAIN_UINT32:
        return store_integer<uint32_t>(text, to);
    case XB_PLAIN_INT64:
        return store_integer<int64_t>(text, to);
    case XB_PLAIN_BOOLEAN:
        return store_boolean(text, to);
    case XB_PLAIN_TEXT:
        return store_text(memory, text, is_padded, to);
    case XB_PLAIN_TOKEN:
        return store_token(*row.tokens, text, to);
    case XB_PLAIN_OCTETS:
        return store_octets(memory, text, to);
    case XB_PLAIN_BUFFER:
        return store_buffer(row.capacity, text, to);
    default:
        return false;
    }
}

}  // namespace inv::xml
