#include "support/document_generator.h"

#include "support/xml_tree.h"

#include <algorithm>
#include <array>
#include <limits>

namespace inv_testing
{
namespace
{

constexpr std::array<std::string_view, document_kind_count> root_elements = {
    "module", "chassis", "powerShelf", "pem", "fanTray", "optics"};
constexpr unsigned deepest_element = 12;
constexpr int element_budget = 250;  // spent before optional items are left out

struct generator {
    const schema_model &schema;
    random_source random;
    int budget = element_budget;  // below zero: only what is required
};

std::string random_text(random_source &random, const schema_type &type)
{
    static constexpr std::array<std::string_view, 16> pieces = {
        "a", "Q", "7", "-", ".", "/", "_", "(", "&", "<", "\"", "'", ">", "\u00e9", "\u20ac", "\U0001F600"};
    const std::size_t shortest = type.shortest.value_or(0);
    const std::size_t longest = std::min(type.longest.value_or(40), shortest + 40);
    const std::size_t length = shortest + draw_below(random, longest - shortest + 1);
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        const bool may_be_blank =
            type.kind == value_kind::text || (i > 0 && i + 1 < length && text.back() != ' ');
        if (may_be_blank && one_in(random, 6))
            text += ' ';
        else
            text += pieces[one_in(random, 3) ? draw_below(random, pieces.size()) : draw_below(random, 3)];
    }
    return text;
}

std::string random_integer(random_source &random, const schema_type &type)
{
    std::int64_t value = 0;
    const auto span = static_cast<std::uint64_t>(type.highest) - static_cast<std::uint64_t>(type.lowest);
    switch (draw_below(random, 8)) {
    case 0:
        value = type.lowest;
        break;
    case 1:
        value = type.highest;
        break;
    case 2: {
        const std::uint64_t offset = span == std::numeric_limits<std::uint64_t>::max()
                                         ? next_random(random)
                                         : next_random(random) % (span + 1);
        value = static_cast<std::int64_t>(static_cast<std::uint64_t>(type.lowest) + offset);
        break;
    }
    default:
        value = std::clamp<std::int64_t>(static_cast<std::int64_t>(draw_below(random, 100)), type.lowest,
                                         type.highest);
    }
    std::string text = std::to_string(value);
    if (value >= 0 && one_in(random, 6))
        text.insert(0, 1 + draw_below(random, 3), '0');
    if (value >= 0 && !type.is_unsigned && one_in(random, 6))
        text.insert(0, 1, '+');
    return text;
}

std::string random_octets(random_source &random, const schema_type &type)
{
    constexpr std::string_view digits = "0123456789ABCDEFabcdef";
    const std::size_t shortest = type.shortest.value_or(1);
    const std::size_t longest = type.longest.value_or(shortest + 7);
    std::string text(2 * (shortest + draw_below(random, longest - shortest + 1)), '0');
    for (char &digit : text)
        digit = digits[draw_below(random, digits.size())];
    return text;
}

std::string random_decimal(random_source &random)
{
    std::string text = std::to_string(draw_below(random, 5000));
    if (one_in(random, 2))
        text += '.' + std::to_string(draw_below(random, 1000));
    return one_in(random, 8) ? '+' + text : text;
}

/* White space around a value that is collapsed before it is read. */
std::string padded(random_source &random, std::string text)
{
    static constexpr std::array<std::string_view, 4> blanks = {" ", "\n    ", "\t", "  "};
    if (one_in(random, 8))
        text.insert(0, blanks[draw_below(random, blanks.size())]);
    if (one_in(random, 8))
        text += blanks[draw_below(random, blanks.size())];
    return text;
}

void fill_attributes(generator &g, const schema_type &type, xml_element &element)
{
    for (const schema_item &item : type.attributes)
        if (item.required || one_in(g.random, 3))
            element.attributes.emplace_back(item.name, random_value(g.random, g.schema.types[item.type]));
    for (std::size_t i = element.attributes.size(); i > 1; --i)
        std::swap(element.attributes[i - 1], element.attributes[draw_below(g.random, i)]);
}

/* Now and then a prefix of the element's own instead of the root's. */
void name_derived_type(generator &g, xml_element &element, const std::string &type_name)
{
    std::string prefix = "xsi";
    if (one_in(g.random, 8)) {
        prefix = "instance";
        element.attributes.emplace_back("xmlns:instance", xsi_namespace);
    }
    element.attributes.emplace_back(prefix + ":type", type_name);
}

/* The one place where any entity may stand is rare: it is always taken, with a derived type mostly. */
bool is_base_of_many(const schema_type &type)
{
    return type.derived.size() > 10;
}

void fill_element(generator &g, std::size_t type_index, xml_element &element, unsigned depth);

void add_children(generator &g, const schema_item &item, xml_element &parent, unsigned depth)
{
    const bool roomy = g.budget > 0 && depth < deepest_element;
    const schema_type &type = g.schema.types[item.type];
    std::size_t count = item.required ? 1 : 0;
    if (!item.required && roomy)
        count = is_base_of_many(type) || one_in(g.random, type.is_complex ? 4 : 2) ? 1 : 0;
    if (item.repeated && roomy && count > 0 && one_in(g.random, 3))
        count += 1 + draw_below(g.random, 3);
    for (std::size_t i = 0; i < count; ++i) {
        xml_element child;
        child.name = item.name;
        fill_element(g, item.type, child, depth + 1);
        parent.children.push_back(std::move(child));
    }
}

void fill_element(generator &g, std::size_t type_index, xml_element &element, unsigned depth)
{
    --g.budget;
    const schema_type *type = &g.schema.types[type_index];
    if (!type->derived.empty() && (type->is_abstract || one_in(g.random, is_base_of_many(*type) ? 1 : 3))) {
        const std::size_t choice = draw_below(g.random, type->derived.size() + 1);
        const schema_type &chosen =
            choice < type->derived.size() ? g.schema.types[type->derived[choice]] : *type;
        name_derived_type(g, element, chosen.name);
        type = &chosen;
    }
    if (!type->is_complex) {
        element.text = random_value(g.random, *type);
        return;
    }
    fill_attributes(g, *type, element);
    unsigned skipped_group = 0, taken_group = 0;
    for (const schema_item &item : type->elements) {
        if (item.optional_group != 0 && item.optional_group != taken_group &&
            item.optional_group != skipped_group)
            (one_in(g.random, 3) ? skipped_group : taken_group) = item.optional_group;
        if (item.optional_group == 0 || item.optional_group != skipped_group)
            add_children(g, item, element, depth);
    }
}

}  // namespace

std::uint64_t next_random(random_source &random)
{
    random.state += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = random.state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

std::size_t draw_below(random_source &random, std::size_t bound)
{
    return next_random(random) % bound;
}

bool one_in(random_source &random, std::size_t chance)
{
    return draw_below(random, chance) == 0;
}

std::string random_value(random_source &random, const schema_type &type)
{
    static constexpr std::array<std::string_view, 4> truths = {"true", "false", "1", "0"};
    switch (type.kind) {
    case value_kind::text:
    case value_kind::token:
        return random_text(random, type);
    case value_kind::enumeration:
        return type.tokens[draw_below(random, type.tokens.size())];
    case value_kind::boolean:
        return padded(random, std::string(truths[draw_below(random, truths.size())]));
    case value_kind::integer:  // never padded: see blank_around_integer among the faults
        return random_integer(random, type);
    case value_kind::decimal:
        return padded(random, random_decimal(random));
    case value_kind::hexadecimal:
        return padded(random, random_octets(random, type));
    }
    return {};
}

std::string_view root_element_of(document_kind kind)
{
    return root_elements[static_cast<std::size_t>(kind)];
}

std::string random_document(std::uint64_t seed, document_kind kind)
{
    generator g{product_schema(), {seed * document_kind_count + static_cast<std::uint64_t>(kind)}};
    const schema_item *root_item = find_item(g.schema.roots, root_element_of(kind));
    if (root_item == nullptr)
        return {};
    xml_element root;
    root.name = root_item->name;
    root.attributes.emplace_back("xmlns:xsi", xsi_namespace);
    fill_element(g, root_item->type, root, 0);
    return write_xml(root);
}

}  // namespace inv_testing
