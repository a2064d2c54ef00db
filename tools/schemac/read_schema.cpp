#include "read_schema.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace schemac
{
namespace
{

const std::map<std::string, std::string> number_types = {
    {"xs:byte", "int8"}, {"xs:unsignedByte", "uint8"}, {"xs:short", "int16"}, {"xs:unsignedShort", "uint16"},
    {"xs:int", "int32"}, {"xs:unsignedInt", "uint32"}, {"xs:long", "int64"}};

struct reader {
    schema &s;
    std::string message;
    std::set<std::string> type_names;
};

bool fail(reader &r, const std::string &message)
{
    if (r.message.empty())
        r.message = message;
    return false;
}

std::string collapsed(const std::string &text)
{
    std::string result;
    for (char c : text) {
        bool space = c == ' ' || c == '\n' || c == '\t' || c == '\r';
        if (!space)
            result += c;
        else if (!result.empty() && result.back() != ' ')
            result += ' ';
    }
    if (!result.empty() && result.back() == ' ')
        result.pop_back();
    return result;
}

std::string documentation(const xml_node &node)
{
    const xml_node *annotation = child(node, "annotation");
    const xml_node *text = annotation == nullptr ? nullptr : child(*annotation, "documentation");
    return text == nullptr ? "" : collapsed(text->text);
}

std::vector<std::string> tokens_of(const xml_node &restriction)
{
    std::vector<std::string> tokens;
    for (const xml_node &facet : restriction.children) {
        if (facet.name == "enumeration")
            tokens.push_back(attribute(facet, "value"));
    }
    return tokens;
}

bool read_simple_type(reader &r, const xml_node &node)
{
    const std::string name = attribute(node, "name");
    const xml_node *restriction = child(node, "restriction");
    if (restriction == nullptr)
        return fail(r, name + ": a simple type without restriction");
    const std::string base = attribute(*restriction, "base");
    if (base == "xs:decimal") {
        r.s.decimals.push_back(name);
    } else if (base == "xs:hexBinary") {
        const xml_node *length = child(*restriction, "length");
        if (length == nullptr)
            return fail(r, name + ": hexadecimal without a length");
        r.s.octet_buffers[name] =
            static_cast<uint32_t>(std::strtoul(attribute(*length, "value").c_str(), nullptr, 10));
    } else {
        r.s.enumerations.push_back({name, documentation(node), tokens_of(*restriction)});
        if (r.s.enumerations.back().tokens.empty())
            return fail(r, name + ": an enumeration without tokens");
    }
    return true;
}

// An enumeration without a name is called after its owner and its item.
std::string type_of(reader &r, const std::string &owner, const xml_node &node)
{
    const xml_node *inner = child(node, "simpleType");
    if (inner == nullptr)
        return attribute(node, "type");
    const xml_node *restriction = child(*inner, "restriction");
    if (restriction == nullptr)
        return "";
    std::vector<std::string> tokens = tokens_of(*restriction);
    if (tokens.empty())
        return attribute(*restriction, "base");
    std::string name = owner + "_" + attribute(node, "name");
    r.s.enumerations.push_back({name, documentation(node), std::move(tokens)});
    return name;
}

occurrence occurrence_of(const xml_node &node)
{
    if (node.name == "attribute")
        return attribute(node, "use") == "required" ? occurrence::required : occurrence::optional;
    bool may_be_absent = attribute(node, "minOccurs", "1") == "0";
    if (attribute(node, "maxOccurs", "1") == "unbounded")
        return may_be_absent ? occurrence::repeated : occurrence::counted;
    return may_be_absent ? occurrence::optional : occurrence::required;
}

item read_item(reader &r, const std::string &owner, const xml_node &node)
{
    item i;
    i.name = attribute(node, "name");
    i.type = type_of(r, owner, node);
    i.occurs = occurrence_of(node);
    i.initial = attribute(node, "default");
    return i;
}

// Puts an item that the annotation holds to its place among the elements.
bool place_shared(reader &r, const std::string &owner, const xml_node &node, std::vector<item> &elements)
{
    const std::string before = attribute(node, "before");
    const std::string neighbour = attribute(node, "after", before);
    auto at =
        std::find_if(elements.begin(), elements.end(), [&](const item &i) { return i.name == neighbour; });
    if (at == elements.end())
        return fail(r,
                    owner + "." + attribute(node, "name") + ": no element \"" + neighbour + "\" to stand at");
    elements.insert(before.empty() ? at + 1 : at, read_item(r, owner, node));
    return true;
}

bool read_sequence(reader &r, const std::string &owner, const xml_node &sequence, std::vector<item> &elements)
{
    for (const xml_node &node : sequence.children) {
        if (node.name == "element")
            elements.push_back(read_item(r, owner, node));
        else if (node.name != "annotation")
            return fail(r, owner + ": unexpected " + node.name);
    }
    const xml_node *annotation = child(sequence, "annotation");
    const xml_node *info = annotation == nullptr ? nullptr : child(*annotation, "appinfo");
    if (info == nullptr)
        return true;
    return std::all_of(info->children.begin(), info->children.end(),
                       [&](const xml_node &shared) { return place_shared(r, owner, shared, elements); });
}

bool read_complex_type(reader &r, const xml_node &node)
{
    complex_type type;
    type.name = attribute(node, "name");
    // Without one it would be the base of every type that has none, itself included.
    if (type.name.empty())
        return fail(r, "a complex type without a name");
    if (!r.type_names.insert(type.name).second)
        return fail(r, type.name + ": named twice");
    type.documentation = documentation(node);
    const xml_node *body = &node;
    if (const xml_node *complex = child(node, "complexContent")) {
        body = child(*complex, "extension");
        if (body == nullptr)
            return fail(r, type.name + ": only extensions are known");
        type.base = attribute(*body, "base");
    }
    for (const xml_node &part : body->children) {
        const std::string owner = type.base.empty() ? type.name : type.name + "_2";
        if (part.name == "attribute")
            type.attributes.push_back(read_item(r, type.name, part));
        else if (part.name == "sequence" && !read_sequence(r, owner, part, type.elements))
            return false;
    }
    r.s.types.push_back(std::move(type));
    return true;
}

bool resolve_item(reader &r, const complex_type &owner, item &i)
{
    const schema &s = r.s;
    auto named = [&](const auto &n) { return n.name == i.type; };
    if (number_types.contains(i.type)) {
        i.type = number_types.at(i.type);
        i.kind = value_kind::number;
    } else if (i.type == "xs:boolean") {
        i.kind = value_kind::boolean;
    } else if (i.type == "xs:string") {
        i.kind = value_kind::text;
    } else if (i.type == "xs:hexBinary") {
        i.kind = value_kind::octets;
    } else if (std::count(s.decimals.begin(), s.decimals.end(), i.type) > 0) {
        i.kind = value_kind::decimal;
    } else if (s.octet_buffers.contains(i.type)) {
        i.kind = value_kind::octet_buffer;
    } else if (std::any_of(s.enumerations.begin(), s.enumerations.end(), named)) {
        i.kind = value_kind::enumeration;
    } else if (std::any_of(s.types.begin(), s.types.end(), named)) {
        i.kind = has_derived(s, i.type) ? value_kind::choice : value_kind::record;
    } else {
        return fail(r, owner.name + "." + i.name + ": unknown type \"" + i.type + "\"");
    }
    return true;
}

bool resolve(reader &r)
{
    for (complex_type &type : r.s.types) {
        for (std::vector<item> *items : {&type.attributes, &type.elements}) {
            for (item &i : *items) {
                if (!resolve_item(r, type, i))
                    return false;
            }
        }
    }
    return true;
}

struct type_sorter {
    schema &s;
    std::vector<complex_type> sorted;
    std::set<std::string> placed, open;
};

// Depth first. A type that embeds itself can have no record.
bool place_type(reader &r, type_sorter &sorter, const std::string &name)
{
    if (sorter.placed.contains(name))
        return true;
    auto same_name = [&](const complex_type &t) { return t.name == name; };
    if (std::none_of(r.s.types.begin(), r.s.types.end(), same_name))
        return fail(r, "unknown base type \"" + name + "\"");
    if (!sorter.open.insert(name).second)
        return fail(r, name + ": contains itself");
    const complex_type &type = type_named(r.s, name);
    if (!type.base.empty() && !place_type(r, sorter, type.base))
        return false;
    for (const item &i : type.elements) {
        if (i.kind == value_kind::record && !is_list(i) && !place_type(r, sorter, i.type))
            return false;
    }
    sorter.sorted.push_back(type);
    sorter.placed.insert(name);
    return true;
}

bool sort_types(reader &r)
{
    type_sorter sorter{r.s, {}, {}, {}};
    for (const complex_type &type : r.s.types) {
        r.s.tag_order.push_back(type.name);
        if (!place_type(r, sorter, type.name))
            return false;
    }
    r.s.types = std::move(sorter.sorted);
    return true;
}

}  // namespace

bool read_schema(const xml_node &root, schema &s, std::string &message)
{
    reader r{s, "", {}};
    bool read = root.name == "schema" || fail(r, "not a schema");
    for (const xml_node &node : root.children) {
        if (!read)
            break;
        if (node.name == "simpleType")
            read = read_simple_type(r, node);
        else if (node.name == "complexType")
            read = read_complex_type(r, node);
        else if (node.name == "element")
            s.roots.push_back({attribute(node, "name"), attribute(node, "type")});
    }
    read = read && resolve(r) && sort_types(r);
    message = r.message;
    return read;
}

}  // namespace schemac
