#include "support/document_damage.h"

#include <algorithm>
#include <array>

namespace inv_testing
{
namespace
{

void collect(damage &d, const place &here)
{
    place own = here;
    if (const auto *named = derived_type_attribute(*here.element))
        if (const auto index = find_type(d.schema, named->second))
            own.type = &d.schema.types[*index];
    d.places.push_back(own);
    for (std::size_t i = 0; i < own.element->children.size(); ++i) {
        xml_element &child = own.element->children[i];
        if (const schema_item *item = find_item(own.type->elements, child.name))
            collect(d, {&child, own.element, i, &d.schema.types[item->type], item, own.type});
    }
}

/* Faults of the text: all before the root's end tag, at a random markup character. */
std::size_t random_markup(random_source &random, const std::string &text, std::string_view markup)
{
    std::vector<std::size_t> found;
    for (std::size_t at = text.find(markup); at != std::string::npos; at = text.find(markup, at + 1))
        found.push_back(at);
    return found.empty() ? text.size() : found[draw_below(random, found.size())];
}

void unclosed_tag(std::string &text, random_source &random)
{
    const std::size_t at = random_markup(random, text, "</");
    text.erase(at, at < text.size() ? text.find('>', at) + 1 - at : 0);
    if (at == text.size())  // an empty root element
        text += "<open>";
}

void mismatched_end_tag(std::string &text, random_source &random)
{
    const std::size_t at = random_markup(random, text, "</");
    text.insert(std::min(at + 2, text.size()), at < text.size() ? "x" : "</x>");
}

void truncated(std::string &text, random_source &random)
{
    text.resize(draw_below(random, text.rfind('<')));
}

void unknown_entity(std::string &text, random_source &random)
{
    text.insert(random_markup(random, text, "</"), "&nothing;");
}

void bad_utf8(std::string &text, random_source &random)
{
    static constexpr std::array<std::string_view, 4> octets = {"\xFF", "\xC0\xAF", "\xE2\x82",
                                                               "\xED\xA0\x80"};
    text.insert(random_markup(random, text, "</"), octets[draw_below(random, octets.size())]);
}

void control_character(std::string &text, random_source &random)
{
    text.insert(random_markup(random, text, "</"), 1, '\x01');
}

void text_behind_root(std::string &text, random_source &)
{
    text += "tail";
}

void second_root(std::string &text, random_source &)
{
    text += "<module/>";
}

void less_than_in_attribute(std::string &text, random_source &random)
{
    text.insert(random_markup(random, text, "=\"") + 2, "<");
}

void unquoted_attribute(std::string &text, random_source &random)
{
    text.erase(random_markup(random, text, "=\"") + 1, 1);
}

text_place place_in(const std::string &text, std::size_t offset);

/* From the tag's or the reference's first character up to the one that cannot stand there. */
void locate_token(mutant &made, std::size_t changed)
{
    const std::size_t begin = changed == 0 ? 0 : made.document.find_last_of("<&>\n", changed - 1);
    for (std::size_t at = begin == std::string::npos ? 0 : begin;
         at <= changed + 1 && at <= made.document.size(); ++at)
        made.places.push_back(place_in(made.document, at));
}

/* The end tag that closes another element than it says: the next one on the removed one's level. */
void locate_unclosed(mutant &made, std::size_t changed)
{
    const std::string &text = made.document;
    int depth = 0;
    for (std::size_t at = text.find('<', changed); at != std::string::npos; at = text.find('<', at + 1)) {
        const bool closes = text.compare(at, 2, "</") == 0;
        const bool is_empty = text.compare(text.find('>', at) - 1, 2, "/>") == 0;
        if (closes && depth-- == 0) {
            made.places = {place_in(text, at), place_in(text, at + 2)};
            return;
        }
        depth += !closes && !is_empty;
    }
    made.places = {place_in(text, text.size())};
}

void locate_end(mutant &made, std::size_t)
{
    const std::size_t tag = made.document.rfind('<');
    if (made.document.find('>', tag) == std::string::npos)
        made.places.push_back(place_in(made.document, tag));
    locate_token(made, made.document.size());
}

struct text_fault {
    std::string_view name;
    void (*apply)(std::string &, random_source &);
    void (*locate)(mutant &, std::size_t changed);
};

constexpr std::array<text_fault, 10> text_faults = {{
    {"unclosed_tag", unclosed_tag, locate_unclosed},
    {"mismatched_end_tag", mismatched_end_tag, locate_token},
    {"truncated", truncated, locate_end},
    {"unknown_entity", unknown_entity, locate_token},
    {"bad_utf8", bad_utf8, locate_token},
    {"control_character", control_character, locate_token},
    {"text_behind_root", text_behind_root, locate_token},
    {"second_root", second_root, locate_token},
    {"less_than_in_attribute", less_than_in_attribute, locate_token},
    {"unquoted_attribute", unquoted_attribute, locate_token},
}};

text_place place_in(const std::string &text, std::size_t offset)
{
    const std::size_t begin = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
    const auto starts_character = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto at = [&](std::size_t where) { return text.begin() + static_cast<std::ptrdiff_t>(where); };
    const auto lines = std::count(text.begin(), at(begin), '\n');
    const auto columns = std::count_if(at(begin), at(offset), starts_character);
    return {static_cast<std::size_t>(lines) + 1, static_cast<std::size_t>(columns) + 1};
}

std::size_t first_visible(const std::string &text, const xml_spot &spot)
{
    return spot.part == xml_part::text ? text.find_first_not_of(" \t\n\r", spot.offset) : spot.offset;
}

std::optional<mutant> spoil_tree(const std::string &document, random_source random, const tree_fault &fault)
{
    std::optional<xml_element> root = parse_xml(document);
    if (!root)
        return std::nullopt;
    damage d{product_schema(), random, std::move(*root), {}, {}};
    find_places(d);
    if (d.places.empty() || !fault.apply(d))
        return std::nullopt;
    mutant made{write_xml(d.root, d.struck), std::string(fault.name), {}};
    for (const xml_spot &spot : d.struck)
        made.places.push_back(place_in(made.document, first_visible(made.document, spot)));
    return made;
}

}  // namespace

std::pair<std::string, std::string> *derived_type_attribute(xml_element &element)
{
    for (auto &attribute : element.attributes)
        if (attribute.first.ends_with(":type"))
            return &attribute;
    return nullptr;
}

void strike_tag(damage &d, const xml_element &element)
{
    d.struck.push_back({&element, xml_part::start_tag});
}

void strike_last_attribute(damage &d, const xml_element &element)
{
    d.struck.push_back({&element, xml_part::attribute, element.attributes.size() - 1});
}

void strike_attribute(damage &d, const xml_element &element, std::string_view name)
{
    for (std::size_t i = 0; i < element.attributes.size(); ++i)
        if (element.attributes[i].first == name)
            d.struck.push_back({&element, xml_part::attribute, i});
}

void strike_text(damage &d, const xml_element &element)
{
    const bool is_blank = element.text.find_first_not_of(" \t\n\r") == std::string::npos;
    d.struck.push_back({&element, is_blank ? xml_part::start_tag : xml_part::text});
}

void strike_child(damage &d, const xml_element &parent, std::size_t index)
{
    if (index < parent.children.size())
        strike_tag(d, parent.children[index]);
    else
        d.struck.push_back({&parent, xml_part::end_tag});
}

std::string_view one_of(damage &d, std::initializer_list<std::string_view> choices)
{
    return choices.begin()[draw_below(d.random, choices.size())];
}

void find_places(damage &d)
{
    if (const schema_item *item = find_item(d.schema.roots, d.root.name))
        collect(d, {&d.root, nullptr, 0, &d.schema.types[item->type], item, nullptr});
}

std::vector<std::string_view> fault_names()
{
    std::vector<std::string_view> names;
    for (const auto &table : {structure_faults(), value_faults()})
        for (const tree_fault &fault : table)
            names.push_back(fault.name);
    for (const text_fault &fault : text_faults)
        names.push_back(fault.name);
    return names;
}

std::optional<mutant> mutate_with(const std::string &document, std::uint64_t seed, std::string_view fault)
{
    random_source random{seed};
    for (const auto &table : {structure_faults(), value_faults()})
        for (const tree_fault &row : table)
            if (row.name == fault)
                return spoil_tree(document, random, row);
    for (const text_fault &row : text_faults) {
        if (row.name != fault)
            continue;
        mutant made{document, std::string(fault), {}};
        row.apply(made.document, random);
        const auto differs =
            std::mismatch(document.begin(), document.end(), made.document.begin(), made.document.end());
        row.locate(made, static_cast<std::size_t>(differs.second - made.document.begin()));
        return made;
    }
    return std::nullopt;
}

mutant mutate(const std::string &document, std::uint64_t seed)
{
    static const std::vector<std::string_view> names = fault_names();
    random_source random{~seed};
    for (int attempt = 0; attempt < 100; ++attempt)
        if (auto made = mutate_with(document, seed, names[draw_below(random, names.size())]))
            return std::move(*made);
    return *mutate_with(document, seed, "text_behind_root");
}

}  // namespace inv_testing
