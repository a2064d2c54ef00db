#include <algorithm>

#include "names.h"
#include "text.h"
#include "writers.h"

namespace schemac
{
namespace
{

std::string kind_name(const item &i)
{
    switch (i.kind) {
    case value_kind::number:
        return i.type;
    case value_kind::boolean:
        return "boolean";
    case value_kind::text:
        return "text";
    case value_kind::octets:
        return "octets";
    case value_kind::decimal:
    case value_kind::octet_buffer:
    case value_kind::enumeration:
        return "simple";
    case value_kind::record:
    case value_kind::choice:
        break;
    }
    return "record";
}

bool has_decoder(const item &i)
{
    const std::string kind = kind_name(i);
    return kind == "simple" || kind == "record";
}

// Where an item's value is put and which bit tells of it, within its record.
struct home {
    std::string record;
    std::vector<std::string> bits;
};

std::string bit_of(const home &h, const std::string &name)
{
    auto found = std::find(h.bits.begin(), h.bits.end(), name);
    return "bit(offsetof(" + h.record + ", has), " + std::to_string(found - h.bits.begin()) + ")";
}

std::vector<std::string> list_fields(const home &h, const item &i)
{
    std::vector<std::string> fields;
    if (i.kind == value_kind::enumeration)
        fields = {".node_size = sizeof(uint32_t)", ".init = init<clear_code>"};
    else if (i.kind == value_kind::choice)
        fields = {".node_size = sizeof(xb_choice)", ".init = init<Init_" + i.type + "_derivations>"};
    else if (i.kind != value_kind::text)
        fields = {".node_size = sizeof(" + i.type + ")", ".init = init<Init_" + i.type + ">"};
    if (i.occurs == occurrence::counted)
        fields.push_back(".counter = " + quoted(h.record + "." + i.name + ".count"));
    return fields;
}

std::string item_row(const home &h, const item &i)
{
    std::vector<std::string> fields = {".name = " + quoted(i.name), ".kind = item_kind::" + kind_name(i),
                                       ".occurs = occurrence::" + occurrence_name(i.occurs),
                                       ".offset = offsetof(" + h.record + ", " + i.name + ")"};
    if (i.occurs == occurrence::optional)
        fields.push_back(".present = " + bit_of(h, i.name));
    std::vector<std::string> of_list = is_list(i) ? list_fields(h, i) : std::vector<std::string>();
    const std::string suffix = i.kind == value_kind::choice ? "_derivations" : "";
    if (has_decoder(i))
        of_list.insert(of_list.empty() ? of_list.end() : of_list.begin() + 2,
                       ".decode = child<XmlDT_" + i.type + suffix + ">");
    fields.insert(fields.end(), of_list.begin(), of_list.end());
    if (i.kind == value_kind::enumeration && !is_list(i))
        fields.insert(fields.end(), {".tokens = &tokens::" + i.type, ".has_tokens = true"});
    if (i.kind == value_kind::octet_buffer && !is_list(i))
        fields.push_back(".capacity = sizeof " + i.type + "::octets");
    return table_row(fields);
}

std::string item_table(const std::string &head, const home &h, const std::vector<item> &items,
                       const std::string &end)
{
    std::string text = head + "\n";
    for (const item &i : items)
        text += item_row(h, i);
    return text + end + "\n";
}

std::string computed_table(const std::string &name, const std::string &expression)
{
    return wrapped("", "    ", "constexpr auto " + name + " = " + expression + ";");
}

std::string sequence_table(const std::string &name)
{
    return computed_table(name + "_sequence", "sequence_rows(" + name + "_items)") +
           computed_table(name + "_values", "plain_rows(" + name + "_items)");
}

// The name of the type whose attribute table this one uses: its own or the nearest base's.
std::string attribute_owner(const schema &s, const complex_type &type)
{
    if (!type.attributes.empty())
        return type.name;
    return type.base.empty() ? "" : attribute_owner(s, type_named(s, type.base));
}

std::string attribute_tables(const schema &s, const complex_type &type)
{
    if (type.attributes.empty())
        return "";
    const home h = {type.name, presence_bits(type)};
    const std::string inherited = type.base.empty() ? "" : attribute_owner(s, type_named(s, type.base));
    const std::string own = type.name + (inherited.empty() ? "_attributes" : "_own_attributes");
    std::string text =
        item_table("constexpr auto " + own + " = std::to_array<item>({", h, type.attributes, "});");
    if (!inherited.empty())
        text +=
            computed_table(type.name + "_attributes", "joined(" + inherited + "_attributes, " + own + ")");
    return text +
           computed_table(type.name + "_attribute_names", "attribute_rows(" + type.name + "_attributes)") +
           computed_table(type.name + "_attribute_values", "plain_rows(" + type.name + "_attributes)");
}

std::string group_row(const std::string &name, const std::string &field, occurrence occurs, const home &h)
{
    std::vector<std::string> fields = {".name = " + quoted(name), ".kind = item_kind::group",
                                       ".occurs = occurrence::" + occurrence_name(occurs),
                                       ".offset = offsetof(" + h.record + ", " + field + ")"};
    if (field == "ext")
        fields.push_back(".present = " + bit_of(h, field));
    fields.push_back(".decode = child<XmlDT_" + name + ">");
    return table_row(fields);
}

std::string content_tables(const schema &s, const complex_type &type)
{
    const std::string &name = type.name;
    const home h = {name, presence_bits(type)};
    if (type.base.empty()) {
        if (type.elements.empty())
            return "";
        return item_table("constexpr item " + name + "_items[] = {", h, type.elements, "};") +
               computed_table(name + "_elements", "element_rows(" + name + "_items)") + sequence_table(name);
    }
    std::string text = "constexpr item " + name + "_items[] = {\n" +
                       group_row(type.base, "base", content_occurrence(s, type_named(s, type.base)), h);
    std::string elements = type.base + "_inherited";
    if (has_extension(type)) {
        text += group_row(name + "_2", "ext", content_occurrence(type.elements), h);
        elements = "joined(" + elements + ", leading_rows<" + name + "_2_items>())";
    }
    return text + "};\n" + computed_table(name + "_elements", elements) + sequence_table(name);
}

// Names that map to group 0 in types derived from this one.
std::string inherited_table(const schema &s, const complex_type &type)
{
    if (!has_derived(s, type.name))
        return "";
    std::string rows = "base_group_rows(" + type.name + (type.base.empty() ? "_items)" : "_2_items)");
    if (!type.base.empty())
        rows = has_extension(type) ? "joined(" + type.base + "_inherited, " + rows + ")"
                                   : type.base + "_inherited";
    return computed_table(type.name + "_inherited", rows);
}

std::string description(const std::string &name, uint32_t step, const std::vector<std::string> &rest)
{
    std::string text = "constexpr type_description " + name +
                       "_description = {\n    .name = " + quoted(name) +
                       ",\n    .first_step = " + std::to_string(step) + ",\n";
    for (const std::string &field : rest)
        text += wrapped("    ", "        ", field + ",");
    return text + "};\n\n";
}

std::string content_field(const std::string &name)
{
    return ".content = content_of(" + name + "_items, " + name + "_sequence, " + name + "_elements, " + name +
           "_values)";
}

std::string extension_tables(const schema &s, const complex_type &type)
{
    if (!has_extension(type))
        return "";
    const std::string name = type.name + "_2";
    const home h = {name, presence_bits(type.elements)};
    return item_table("constexpr item " + name + "_items[] = {", h, type.elements, "};") +
           computed_table(name + "_elements", "element_rows(" + name + "_items)") + sequence_table(name) +
           description(name, first_step_of(s, type.name, true),
                       {".is_extension = true", content_field(name)});
}

std::string type_tables(const schema &s, const complex_type &type)
{
    std::string topmost = type.name;
    while (!type_named(s, topmost).base.empty())
        topmost = type_named(s, topmost).base;
    std::vector<std::string> rest = {".xmlns = offsetof(" + topmost + ", xmlns)"};
    const std::string owner = attribute_owner(s, type);
    if (!owner.empty())
        rest.push_back(".attributes = attributes_of(" + owner + "_attributes, " + owner +
                       "_attribute_names, " + owner + "_attribute_values)");
    if (!type.base.empty() || !type.elements.empty())
        rest.push_back(content_field(type.name));
    return extension_tables(s, type) + attribute_tables(s, type) + content_tables(s, type) +
           inherited_table(s, type) + description(type.name, first_step_of(s, type.name, false), rest);
}

}  // namespace

uint32_t first_step_of(const schema &s, const std::string &type, bool is_extension)
{
    uint32_t number = 1;
    for (const complex_type &t : s.types) {
        if (t.name == type)
            return 1000 * (is_extension ? number + 1 : number);
        number += has_extension(t) ? 2 : 1;
    }
    return 1000 * number;
}

std::string token_declarations(const schema &s)
{
    std::string text = "namespace inv::decode::tokens\n{\n\n";
    for (const enumeration &e : s.enumerations)
        text += "extern const enumeration " + e.name + ";\n";
    return text + "\n}  // namespace inv::decode::tokens\n\n";
}

std::string write_type_tables(const schema &s)
{
    std::string text;
    for (const complex_type &type : s.types)
        text += type_tables(s, type);
    return text;
}

}  // namespace schemac
