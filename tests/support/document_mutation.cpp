#include "support/document_damage.h"

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

struct text_fault {
    std::string_view name;
    void (*apply)(std::string &, random_source &);
};

constexpr std::array<text_fault, 10> text_faults = {{
    {"unclosed_tag", unclosed_tag},
    {"mismatched_end_tag", mismatched_end_tag},
    {"truncated", truncated},
    {"unknown_entity", unknown_entity},
    {"bad_utf8", bad_utf8},
    {"control_character", control_character},
    {"text_behind_root", text_behind_root},
    {"second_root", second_root},
    {"less_than_in_attribute", less_than_in_attribute},
    {"unquoted_attribute", unquoted_attribute},
}};

std::optional<mutant> spoil_tree(const std::string &document, random_source random, const tree_fault &fault)
{
    std::optional<xml_element> root = parse_xml(document);
    if (!root)
        return std::nullopt;
    damage d{product_schema(), random, std::move(*root), {}};
    find_places(d);
    if (d.places.empty() || !fault.apply(d))
        return std::nullopt;
    return mutant{write_xml(d.root), std::string(fault.name)};
}

}  // namespace

std::pair<std::string, std::string> *derived_type_attribute(xml_element &element)
{
    for (auto &attribute : element.attributes)
        if (attribute.first.ends_with(":type"))
            return &attribute;
    return nullptr;
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
        mutant made{document, std::string(fault)};
        row.apply(made.document, random);
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
    return {document + "tail", "text_behind_root"};
}

}  // namespace inv_testing
