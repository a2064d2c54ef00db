#include "support/schema_model.h"

#include "support/xml_tree.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>

namespace inv_testing
{
namespace
{

struct builtin_row {
    const char *name;
    value_kind kind;
    std::int64_t lowest, highest;
};

template <typename T>
constexpr builtin_row integer_row(const char *name)
{
    return {name, value_kind::integer, static_cast<std::int64_t>(std::numeric_limits<T>::min()),
            static_cast<std::int64_t>(std::numeric_limits<T>::max())};
}

constexpr builtin_row builtins[] = {
    {"string", value_kind::text, 0, 0},        {"normalizedString", value_kind::token, 0, 0},
    {"token", value_kind::token, 0, 0},        {"boolean", value_kind::boolean, 0, 0},
    {"decimal", value_kind::decimal, 0, 0},    {"hexBinary", value_kind::hexadecimal, 0, 0},
    integer_row<std::int8_t>("byte"),          integer_row<std::int16_t>("short"),
    integer_row<std::int32_t>("int"),          integer_row<std::int64_t>("long"),
    integer_row<std::uint8_t>("unsignedByte"), integer_row<std::uint16_t>("unsignedShort"),
    integer_row<std::uint32_t>("unsignedInt"),
};

struct reader {
    schema_model model;
    std::map<std::string, const xml_element *> globals;  // "<kind> <name>"
    std::map<std::string, std::size_t> named;
    std::string problem;
    unsigned optional_groups = 0;
};

std::string_view local_name(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string attribute_or(const xml_element &element, std::string_view name, std::string_view fallback)
{
    const std::string *value = find_attribute(element, name);
    return std::string(value != nullptr ? std::string_view(*value) : fallback);
}

const xml_element *find_child(const xml_element &element, std::string_view name)
{
    for (const xml_element &child : element.children)
        if (local_name(child.name) == name)
            return &child;
    return nullptr;
}

void complain(reader &in, const std::string &problem)
{
    if (in.problem.empty())
        in.problem = problem;
}

const xml_element *global(reader &in, std::string_view kind, const std::string &reference)
{
    const auto found = in.globals.find(std::string(kind) + ' ' + std::string(local_name(reference)));
    if (found == in.globals.end()) {
        complain(in, "no " + std::string(kind) + " named " + reference);
        return nullptr;
    }
    return found->second;
}

std::size_t add_type(reader &in, schema_type type)
{
    in.model.types.push_back(std::move(type));
    return in.model.types.size() - 1;
}

std::size_t named_type(reader &in, const std::string &reference);

void apply_facet(schema_type &type, const xml_element &facet)
{
    const std::string_view name = local_name(facet.name);
    const std::string value = attribute_or(facet, "value", "");
    if (name == "enumeration") {
        type.kind = value_kind::enumeration;
        type.tokens.push_back(value);
    } else if (name == "minInclusive")
        type.lowest = std::atoll(value.c_str());
    else if (name == "maxInclusive")
        type.highest = std::atoll(value.c_str());
    if (name == "length" || name == "minLength")
        type.shortest = std::stoul(value);
    if (name == "length" || name == "maxLength")
        type.longest = std::stoul(value);
}

schema_type read_simple(reader &in, const xml_element &definition)
{
    schema_type type;
    const xml_element *restriction = find_child(definition, "restriction");
    if (restriction == nullptr) {
        complain(in, "simple type without restriction");
        return type;
    }
    const xml_element *inner = find_child(*restriction, "simpleType");
    type = inner != nullptr ? read_simple(in, *inner)
                            : in.model.types[named_type(in, attribute_or(*restriction, "base", ""))];
    type.name = attribute_or(definition, "name", "");
    for (const xml_element &facet : restriction->children)
        apply_facet(type, facet);
    return type;
}

std::size_t read_complex(reader &in, const xml_element &definition, std::size_t slot);

/* The type of an element or attribute: named, or written inside it. */
std::size_t type_of(reader &in, const xml_element &declaration)
{
    if (const std::string *name = find_attribute(declaration, "type"))
        return named_type(in, *name);
    if (const xml_element *simple = find_child(declaration, "simpleType"))
        return add_type(in, read_simple(in, *simple));
    if (const xml_element *complex = find_child(declaration, "complexType"))
        return read_complex(in, *complex, add_type(in, {}));
    return named_type(in, "string");
}

schema_item read_item(reader &in, const xml_element &declaration, bool required)
{
    const xml_element *source = &declaration;
    if (const std::string *reference = find_attribute(declaration, "ref"))
        if (const xml_element *found = global(in, local_name(declaration.name), *reference))
            source = found;
    schema_item item;
    item.name = attribute_or(*source, "name", "");
    item.type = type_of(in, *source);
    item.required = required;
    item.repeated = attribute_or(declaration, "maxOccurs", "1") != "1";
    return item;
}

void read_particles(reader &in, const xml_element &container, std::vector<schema_item> &items, unsigned group)
{
    for (const xml_element &particle : container.children) {
        const std::string_view kind = local_name(particle.name);
        const bool optional = attribute_or(particle, "minOccurs", "1") == "0";
        const unsigned own_group = optional ? ++in.optional_groups : group;
        if (kind == "element") {
            schema_item item = read_item(in, particle, !optional);
            item.optional_group = group;
            items.push_back(item);
        } else if (kind == "sequence") {
            read_particles(in, particle, items, own_group);
        } else if (kind == "group") {
            if (const xml_element *body = global(in, kind, attribute_or(particle, "ref", "")))
                read_particles(in, *body, items, own_group);
        } else if (kind == "choice" || kind == "all" || kind == "any") {
            complain(in, "not understood: " + std::string(kind));
        }
    }
}

void read_attributes(reader &in, const xml_element &container, std::vector<schema_item> &items)
{
    for (const xml_element &child : container.children) {
        const std::string_view kind = local_name(child.name);
        if (kind == "attribute")
            items.push_back(read_item(in, child, attribute_or(child, "use", "optional") == "required"));
        else if (kind == "attributeGroup")
            if (const xml_element *body = global(in, kind, attribute_or(child, "ref", "")))
                read_attributes(in, *body, items);
    }
}

/* `slot` is entered before its content is read: modules contain modules. */
std::size_t read_complex(reader &in, const xml_element &definition, std::size_t slot)
{
    schema_type type;
    type.name = attribute_or(definition, "name", "");
    type.is_complex = true;
    type.is_abstract = attribute_or(definition, "abstract", "false") == "true";
    const xml_element *body = &definition;
    if (const xml_element *content = find_child(definition, "complexContent"))
        body = find_child(*content, "extension");
    if (body == nullptr || find_child(definition, "simpleContent") != nullptr) {
        complain(in, "not understood: content of " + type.name);
        return slot;
    }
    if (const std::string *base = find_attribute(*body, "base")) {
        type.base = named_type(in, *base);
        type.attributes = in.model.types[*type.base].attributes;
        type.elements = in.model.types[*type.base].elements;
    }
    type.inherited_elements = type.elements.size();
    in.model.types[slot] = type;
    read_particles(in, *body, type.elements, 0);
    read_attributes(in, *body, type.attributes);
    in.model.types[slot] = std::move(type);
    return slot;
}

std::size_t named_type(reader &in, const std::string &reference)
{
    const std::string name(local_name(reference));
    if (const auto known = in.named.find(name); known != in.named.end())
        return known->second;
    const auto simple = in.globals.find("simpleType " + name);
    const auto complex = in.globals.find("complexType " + name);
    const std::size_t slot = add_type(in, {});
    in.named[name] = slot;
    if (simple != in.globals.end()) {
        schema_type type = read_simple(in, *simple->second);
        in.model.types[slot] = std::move(type);
    } else if (complex != in.globals.end()) {
        return read_complex(in, *complex->second, slot);
    } else {
        const auto *row = std::find_if(std::begin(builtins), std::end(builtins),
                                       [&](const builtin_row &candidate) { return candidate.name == name; });
        if (row == std::end(builtins)) {
            complain(in, "no type named " + reference);
            return slot;
        }
        schema_type &type = in.model.types[slot];
        type.kind = row->kind;
        type.lowest = row->lowest;
        type.highest = row->highest;
        type.is_unsigned = name.starts_with("unsigned");
        type.is_short = name == "short";
    }
    return slot;
}

void list_derived(schema_model &model)
{
    for (std::size_t i = 0; i < model.types.size(); ++i) {
        if (model.types[i].name.empty() || model.types[i].is_abstract)
            continue;
        for (std::optional<std::size_t> base = model.types[i].base; base; base = model.types[*base].base)
            model.types[*base].derived.push_back(i);
    }
}

}  // namespace

std::optional<schema_model> read_schema(const std::string &path, std::string &problem)
{
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    const std::optional<xml_element> root = parse_xml(text.str());
    if (!root) {
        problem = path + ": not readable as XML";
        return std::nullopt;
    }
    reader in;
    for (const xml_element &child : root->children)
        in.globals[std::string(local_name(child.name)) + ' ' + attribute_or(child, "name", "")] = &child;
    for (const xml_element &child : root->children) {
        const std::string_view kind = local_name(child.name);
        if (kind == "complexType")
            named_type(in, attribute_or(child, "name", ""));
        else if (kind == "element")
            in.model.roots.push_back(read_item(in, child, true));
    }
    list_derived(in.model);
    problem = in.problem;
    if (!problem.empty())
        return std::nullopt;
    return std::move(in.model);
}

const schema_model &product_schema()
{
    static const schema_model schema = [] {
        std::string problem;
        std::optional<schema_model> model =
            read_schema(INV_SOURCE_DIR "/schema/OrvelianInventory.xsd", problem);
        if (!model) {
            std::fprintf(stderr, "schema: %s\n", problem.c_str());
            std::abort();
        }
        return std::move(*model);
    }();
    return schema;
}

const schema_item *find_item(const std::vector<schema_item> &items, std::string_view name)
{
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const schema_item &item) { return item.name == name; });
    return found == items.end() ? nullptr : &*found;
}

std::optional<std::size_t> find_type(const schema_model &schema, std::string_view name)
{
    for (std::size_t i = 0; i < schema.types.size(); ++i)
        if (!name.empty() && schema.types[i].name == name)
            return i;
    return std::nullopt;
}

}  // namespace inv_testing
