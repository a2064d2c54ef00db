#include "values.h"

#include "characters.h"
#include "reading.h"
#include "value_parsers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace inv::xml
{

int32_t take_value(xb_context_state &state, std::string_view &text)
{
    reader &r = state.reader;
    if (r.tags.depth == 0)
        return XB_E_BAD_STATE;
    const element &tag = r.tags.elements[r.tags.depth - 1];
    if (r.selected != no_attribute) {
        text = value_of(r.tags.attributes.items[tag.attribute_begin + r.selected]);
        return XB_OK;
    }
    int32_t status = read_event(state);
    if (status != XB_OK)
        return status;
    if (r.ahead_kind == event_kind::start_tag)
        return XB_E_TEXT_UNEXPECTED;
    r.text_taken = true;
    r.place = r.has_text ? r.text_place : tag.place;
    text = r.has_text ? r.text : std::string_view();
    return XB_OK;
}

namespace
{

constexpr std::string_view digits = "0123456789";

bool is_decimal(std::string_view magnitude)
{
    size_t point = magnitude.find('.');
    std::string_view whole = magnitude.substr(0, point);
    std::string_view fraction = point == std::string_view::npos ? "" : magnitude.substr(point + 1);
    return whole.size() + fraction.size() > 0 && whole.find_first_not_of(digits) == std::string_view::npos &&
           fraction.find_first_not_of(digits) == std::string_view::npos;
}

int32_t parse_decimal(std::string_view text, double &value)
{
    auto [negative, magnitude] = split_sign(collapsed(text));
    if (!is_decimal(magnitude))
        return XB_E_BAD_DECIMAL;
    double number = 0;
    auto parsed = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), number,
                                  std::chars_format::fixed);
    if (parsed.ec != std::errc() || std::isinf(number)) {
        // What lies beyond the least double is zero; only the other end is an error.
        bool below_one =
            magnitude.substr(0, magnitude.find('.')).find_first_not_of('0') == std::string_view::npos;
        if (!below_one)
            return XB_E_OUT_OF_RANGE;
        number = 0;
    }
    value = negative ? -number : number;
    return XB_OK;
}

// The common frame of the decoders that turn text into something else.
template <typename Value>
int32_t decode(xb_context *ctx, Value *value, int32_t (*parse)(std::string_view, Value &))
{
    std::string_view text;
    int32_t status = take_value(*ctx->state, text);
    if (status != XB_OK)
        return status;
    status = parse(text, *value);
    if (status != XB_OK)
        add_parameter(*ctx->state, text);
    return status;
}

// Takes the value and checks it; the octets are converted by the caller, who knows their home.
int32_t take_hexadecimal(xb_context *ctx, size_t capacity, std::string_view &text, uint32_t *count)
{
    std::string_view whole;
    int32_t status = take_value(*ctx->state, whole);
    if (status != XB_OK)
        return status;
    text = collapsed(whole);
    if (!is_hexadecimal(text)) {
        add_parameter(*ctx->state, whole);
        return XB_E_BAD_HEX;
    }
    *count = static_cast<uint32_t>(std::min(text.size() / 2, size_t{UINT32_MAX}));
    return text.size() / 2 > capacity ? XB_E_CONSTRAINT : XB_OK;
}

int32_t decode_text(xb_context *ctx, char **copy)
{
    std::string_view text;
    int32_t status = take_value(*ctx->state, text);
    if (status != XB_OK)
        return status;
    char *kept = heap_copy_text(ctx->state->memory, text);
    if (kept == nullptr)
        return XB_E_NO_MEMORY;
    *copy = kept;
    return XB_OK;
}

}  // namespace
}  // namespace inv::xml

using namespace inv::xml;

int32_t rtXmlpDecInt8(xb_context *ctx, int8_t *value)
{
    return decode(ctx, value, parse_integer<int8_t>);
}

int32_t rtXmlpDecUInt8(xb_context *ctx, uint8_t *value)
{
    return decode(ctx, value, parse_integer<uint8_t>);
}

int32_t rtXmlpDecInt16(xb_context *ctx, int16_t *value)
{
    return decode(ctx, value, parse_integer<int16_t>);
}

int32_t rtXmlpDecUInt16(xb_context *ctx, uint16_t *value)
{
    return decode(ctx, value, parse_integer<uint16_t>);
}

int32_t rtXmlpDecInt(xb_context *ctx, int32_t *value)
{
    return decode(ctx, value, parse_integer<int32_t>);
}

int32_t rtXmlpDecUInt(xb_context *ctx, uint32_t *value)
{
    return decode(ctx, value, parse_integer<uint32_t>);
}

int32_t rtXmlpDecInt64(xb_context *ctx, int64_t *value)
{
    return decode(ctx, value, parse_integer<int64_t>);
}

int32_t rtXmlpDecView(xb_context *ctx, const char **text, size_t *length)
{
    std::string_view value;
    int32_t status = take_value(*ctx->state, value);
    if (status != XB_OK)
        return status;
    *text = value.data() == nullptr ? "" : value.data();
    *length = value.size();
    return XB_OK;
}

int32_t rtXmlpDecBool(xb_context *ctx, uint8_t *value)
{
    return decode(ctx, value, parse_boolean);
}

int32_t rtXmlpDecDecimal(xb_context *ctx, double *value)
{
    return decode(ctx, value, parse_decimal);
}

int32_t rtXmlpDecXmlStr(xb_context *ctx, const char **text)
{
    char *copy = nullptr;
    int32_t status = decode_text(ctx, &copy);
    if (status == XB_OK)
        *text = copy;
    return status;
}

int32_t rtXmlpDecDynUTF8Str(xb_context *ctx, char **text)
{
    return decode_text(ctx, text);
}

int32_t rtXmlpDecHexStr(xb_context *ctx, uint8_t *octets, uint32_t capacity, uint32_t *count)
{
    std::string_view text;
    int32_t status = take_hexadecimal(ctx, capacity, text, count);
    if (status == XB_OK)
        convert_hexadecimal(text, octets);
    return status;
}

int32_t rtXmlpDecDynHexStr(xb_context *ctx, xb_octets *octets)
{
    std::string_view text;
    uint32_t count = 0;
    int32_t status = take_hexadecimal(ctx, UINT32_MAX, text, &count);
    if (status != XB_OK)
        return status;
    uint8_t *converted = nullptr;
    if (count > 0) {
        converted = static_cast<uint8_t *>(heap_allocate(ctx->state->memory, count));
        if (converted == nullptr)
            return XB_E_NO_MEMORY;
        convert_hexadecimal(text, converted);
    }
    *octets = {count, converted};
    return XB_OK;
}
