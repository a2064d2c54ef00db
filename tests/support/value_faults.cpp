#include "support/document_damage.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>

namespace inv_testing
{
namespace
{

/* Values live in elements and in attributes; both take the same faults. */
struct value_slot {
    std::string *text;
    const schema_type *type;
    const xml_element *element;
    std::string_view attribute;  // empty: the element's text
};

template <typename Predicate>
std::optional<value_slot> pick_value(damage &d, Predicate &&fits)
{
    std::vector<value_slot> slots;
    for (place &candidate : d.places) {
        if (!candidate.type->is_complex) {
            if (fits(*candidate.type))
                slots.push_back({&candidate.element->text, candidate.type, candidate.element, {}});
            continue;
        }
        for (auto &[name, value] : candidate.element->attributes)
            if (const schema_item *item = find_item(candidate.type->attributes, name))
                if (fits(d.schema.types[item->type]))
                    slots.push_back({&value, &d.schema.types[item->type], candidate.element, name});
    }
    if (slots.empty())
        return std::nullopt;
    return slots[draw_below(d.random, slots.size())];
}

template <typename Predicate, typename Make>
bool spoil_value(damage &d, Predicate &&fits, Make &&make)
{
    const std::optional<value_slot> slot = pick_value(d, fits);
    if (!slot)
        return false;
    *slot->text = make(*slot);
    if (slot->attribute.empty())
        strike_text(d, *slot->element);
    else
        strike_attribute(d, *slot->element, slot->attribute);
    return true;
}

bool is_number(const schema_type &type)
{
    return type.kind == value_kind::integer || type.kind == value_kind::decimal;
}

bool bad_number(damage &d)
{
    return spoil_value(d, is_number, [&](const value_slot &) {
        return std::string(one_of(d, {"12x", "0x10", "1e3", "--1", "1 2", "one", "+", "1,5"}));
    });
}

bool empty_number(damage &d)
{
    const auto fits = [](const schema_type &type) {
        return (is_number(type) && !type.is_short) || type.kind == value_kind::boolean;
    };
    return spoil_value(d, fits, [](const value_slot &) { return std::string(); });
}

bool empty_short_element(damage &d)
{
    place *at = pick(d, [](const place &p) { return !p.type->is_complex && p.type->is_short; });
    if (at == nullptr)
        return false;
    at->element->text.clear();
    strike_text(d, *at->element);
    return true;
}

bool out_of_range(damage &d)
{
    const auto fits = [](const schema_type &type) { return type.kind == value_kind::integer; };
    return spoil_value(d, fits, [&](const value_slot &slot) -> std::string {
        if (one_in(d.random, 4))
            return "123456789012345678901";
        if (slot.type->highest == std::numeric_limits<std::int64_t>::max())
            return std::string(one_of(d, {"9223372036854775808", "-9223372036854775809"}));
        return std::to_string(one_in(d.random, 2) ? slot.type->highest + 1 : slot.type->lowest - 1);
    });
}

bool bad_boolean(damage &d)
{
    const auto fits = [](const schema_type &type) { return type.kind == value_kind::boolean; };
    return spoil_value(d, fits, [&](const value_slot &) {
        return std::string(one_of(d, {"yes", "TRUE", "2", "True", "t", "truefalse", "01"}));
    });
}

bool bad_token(damage &d)
{
    const auto fits = [](const schema_type &type) { return type.kind == value_kind::enumeration; };
    return spoil_value(d, fits, [&](const value_slot &slot) {
        std::string text = *slot.text;
        switch (draw_below(d.random, 4)) {
        case 0:
            return text + 'X';
        case 1:
            return text.substr(0, text.size() - 1);
        case 2:
            return std::string();
        default:
            std::transform(text.begin(), text.end(), text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            return text;
        }
    });
}

std::string without_blanks(std::string text)
{
    std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
    return text;
}

bool bad_octets(damage &d)
{
    const auto fits = [](const schema_type &type) { return type.kind == value_kind::hexadecimal; };
    return spoil_value(d, fits, [&](const value_slot &slot) {
        std::string text = without_blanks(*slot.text);
        if (one_in(d.random, 2))
            return text + '0';  // an odd count of digits
        text[draw_below(d.random, text.size())] = one_in(d.random, 2) ? 'G' : '-';
        return text;
    });
}

bool wrong_octet_count(damage &d)
{
    const auto fits = [](const schema_type &type) {
        return type.kind == value_kind::hexadecimal && type.shortest && type.shortest == type.longest;
    };
    return spoil_value(d, fits, [&](const value_slot &slot) {
        const std::string text = without_blanks(*slot.text);
        return one_in(d.random, 2) ? text + "A5" : text.substr(2);
    });
}

bool text_outside_length(damage &d)
{
    const auto fits = [](const schema_type &type) {
        return (type.kind == value_kind::text || type.kind == value_kind::token) &&
               (type.longest || type.shortest.value_or(0) > 0);
    };
    return spoil_value(d, fits, [](const value_slot &slot) {
        return slot.type->longest ? std::string(*slot.type->longest + 1, 'x') : std::string();
    });
}

/* Right by the schema language, yet xmllint refuses blanks around integers (not around other values). */
bool blank_around_integer(damage &d)
{
    const auto fits = [](const schema_type &type) { return type.kind == value_kind::integer; };
    return spoil_value(d, fits, [](const value_slot &slot) { return ' ' + *slot.text + "  "; });
}

constexpr std::array<tree_fault, 10> table = {{
    {"bad_number", bad_number},
    {"empty_number", empty_number},
    {"empty_short_element", empty_short_element},
    {"out_of_range", out_of_range},
    {"bad_boolean", bad_boolean},
    {"bad_token", bad_token},
    {"bad_octets", bad_octets},
    {"wrong_octet_count", wrong_octet_count},
    {"text_outside_length", text_outside_length},
    {"blank_around_integer", blank_around_integer},
}};

}  // namespace

std::span<const tree_fault> value_faults()
{
    return table;
}

}  // namespace inv_testing
