#include "names.h"

#include <algorithm>

namespace schemac
{

const complex_type &type_named(const schema &s, const std::string &name)
{
    return *std::find_if(s.types.begin(), s.types.end(), [&](const auto &t) { return t.name == name; });
}

const enumeration &enumeration_named(const schema &s, const std::string &name)
{
    return *std::find_if(s.enumerations.begin(), s.enumerations.end(),
                         [&](const auto &e) { return e.name == name; });
}

bool has_derived(const schema &s, const std::string &name)
{
    return std::any_of(s.types.begin(), s.types.end(), [&](const auto &t) { return t.base == name; });
}

namespace
{

using derived_by_base = std::map<std::string, std::vector<std::string>>;

void add_branch(const derived_by_base &derived, const std::string &name, std::vector<std::string> &family)
{
    family.push_back(name);
    auto found = derived.find(name);
    if (found == derived.end())
        return;
    for (const std::string &below : found->second)
        add_branch(derived, below, family);
}

}  // namespace

std::vector<std::string> family_of(const schema &s, const std::string &base)
{
    std::map<std::string, const std::string *> base_of;
    for (const complex_type &type : s.types)
        base_of[type.name] = &type.base;
    derived_by_base derived;
    for (const std::string &name : s.tag_order)
        derived[*base_of.at(name)].push_back(name);
    std::vector<std::string> family;
    add_branch(derived, base, family);
    return family;
}

std::vector<std::string> polymorphic_bases(const schema &s)
{
    std::vector<std::string> bases;
    for (const std::string &name : s.tag_order) {
        if (has_derived(s, name))
            bases.push_back(name);
    }
    return bases;
}

std::string field_type(const item &i)
{
    if (is_list(i))
        return "xb_data_list ";
    switch (i.kind) {
    case value_kind::number:
        return i.type + "_t ";
    case value_kind::boolean:
        return "uint8_t ";
    case value_kind::text:
        return "const char *";
    case value_kind::octets:
        return "xb_octets ";
    case value_kind::enumeration:
        return "uint32_t ";
    case value_kind::choice:
        return "xb_choice ";
    case value_kind::decimal:
    case value_kind::octet_buffer:
    case value_kind::record:
        break;
    }
    return i.type + " ";
}

std::string field_note(const item &i)
{
    const std::string type = i.kind == value_kind::text ? "text" : i.type;
    if (is_list(i))
        return i.kind == value_kind::choice ? "of xb_choice: " + type : "of " + type;
    if (i.kind == value_kind::boolean)
        return "0 or 1";
    if (i.kind == value_kind::choice)
        return type + " or derived";
    return i.kind == value_kind::enumeration ? type : "";
}

std::string occurrence_name(occurrence occurs)
{
    switch (occurs) {
    case occurrence::required:
        return "required";
    case occurrence::optional:
        return "optional";
    case occurrence::repeated:
        return "repeated";
    case occurrence::counted:
        return "counted";
    }
    return "";
}

occurrence content_occurrence(const std::vector<item> &elements)
{
    occurrence result = occurrence::optional;
    for (const item &i : elements) {
        if (i.occurs == occurrence::required)
            return occurrence::required;
        if (i.occurs == occurrence::counted)
            result = occurrence::counted;
    }
    return result;
}

occurrence content_occurrence(const schema &s, const complex_type &type)
{
    occurrence own = content_occurrence(type.elements);
    if (type.base.empty() || own == occurrence::required)
        return own;
    occurrence inherited = content_occurrence(s, type_named(s, type.base));
    return inherited == occurrence::optional ? own : inherited;
}

std::vector<std::string> presence_bits(const std::vector<item> &items)
{
    std::vector<std::string> bits;
    for (const item &i : items) {
        if (i.occurs == occurrence::optional)
            bits.push_back(i.name);
    }
    return bits;
}

std::vector<std::string> presence_bits(const complex_type &type)
{
    std::vector<std::string> bits = presence_bits(type.attributes);
    if (has_extension(type)) {
        bits.insert(bits.begin(), "ext");
    } else {
        std::vector<std::string> of_elements = presence_bits(type.elements);
        bits.insert(bits.end(), of_elements.begin(), of_elements.end());
    }
    return bits;
}

bool has_initial_values(const schema &s, const complex_type &type)
{
    if (!type.base.empty() && has_initial_values(s, type_named(s, type.base)))
        return true;
    for (const item &i : type.attributes) {
        if (!i.initial.empty())
            return true;
    }
    return std::any_of(type.elements.begin(), type.elements.end(), [&](const item &i) {
        return i.kind == value_kind::record && !is_list(i) && has_initial_values(s, type_named(s, i.type));
    });
}

std::string enumerator(const std::string &token)
{
    std::string name = token;
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

}  // namespace schemac
