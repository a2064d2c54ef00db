#include "support/document_damage.h"

#include <algorithm>
#include <array>

namespace inv_testing
{
namespace
{

/* Items that a type has twice, inherited and its own: the schema file holds only the inherited one. */
constexpr std::array<std::string_view, 2> shared_names = {"hardwareVersion", "i2cIDPROM"};

bool is_shared(std::string_view name)
{
    return std::find(shared_names.begin(), shared_names.end(), name) != shared_names.end();
}

bool rename_element(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.parent != nullptr; });
    if (at == nullptr)
        return false;
    at->element->name += 'X';
    strike_tag(d, *at->element);
    return true;
}

bool wrong_root(damage &d)
{
    d.root.name = "inventory";
    strike_tag(d, d.root);
    return true;
}

bool stray_element(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.type->is_complex; });
    at->element->children.push_back({"strayElement", {}, "1", {}});
    strike_tag(d, at->element->children.back());
    return true;
}

std::size_t count_of(const xml_element &parent, const std::string &name)
{
    return static_cast<std::size_t>(
        std::count_if(parent.children.begin(), parent.children.end(),
                      [&](const xml_element &child) { return child.name == name; }));
}

bool drop_required_element(damage &d)
{
    place *at = pick(d, [](const place &p) {
        return p.parent != nullptr && p.item->required && p.item->optional_group == 0 &&
               count_of(*p.parent, p.element->name) == 1;
    });
    if (at == nullptr)
        return false;
    at->parent->children.erase(at->parent->children.begin() + static_cast<std::ptrdiff_t>(at->index));
    strike_child(d, *at->parent, at->index);
    return true;
}

bool drop_required_attribute(damage &d)
{
    const auto required = [](const schema_item &item) { return item.required; };
    place *at = pick(d, [&](const place &p) {
        return std::any_of(p.type->attributes.begin(), p.type->attributes.end(), required);
    });
    if (at == nullptr)
        return false;
    std::vector<std::string> names;
    for (const schema_item &item : at->type->attributes)
        if (item.required)
            names.push_back(item.name);
    const std::string &name = names[draw_below(d.random, names.size())];
    std::erase_if(at->element->attributes, [&](const auto &attribute) { return attribute.first == name; });
    strike_tag(d, *at->element);
    return true;
}

bool swap_elements(damage &d)
{
    place *at = pick(d, [](const place &p) {
        return p.parent != nullptr && p.index + 1 < p.parent->children.size() &&
               p.parent->children[p.index + 1].name != p.element->name && !is_shared(p.element->name);
    });
    if (at == nullptr)
        return false;
    std::swap(at->parent->children[at->index], at->parent->children[at->index + 1]);
    strike_child(d, *at->parent, at->index);
    strike_child(d, *at->parent, at->index + 1);
    return true;
}

bool duplicate_element(damage &d)
{
    place *at = pick(d, [](const place &p) {
        return p.parent != nullptr && !p.item->repeated && !is_shared(p.element->name);
    });
    if (at == nullptr)
        return false;
    const xml_element copy = *at->element;
    at->parent->children.insert(at->parent->children.begin() + static_cast<std::ptrdiff_t>(at->index), copy);
    strike_child(d, *at->parent, at->index + 1);
    return true;
}

bool unknown_attribute(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.type->is_complex && !p.type->attributes.empty(); });
    at->element->attributes.emplace_back("colour", "red");
    strike_last_attribute(d, *at->element);
    return true;
}

bool attribute_on_plain_type(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.type->attributes.empty(); });
    if (at == nullptr)
        return false;
    at->element->attributes.emplace_back("colour", "red");
    strike_last_attribute(d, *at->element);
    return true;
}

bool foreign_attribute(damage &d)
{
    place *at = pick(d, [](const place &p) { return !p.type->attributes.empty(); });
    at->element->attributes.emplace_back("xmlns:other", "urn:other");
    at->element->attributes.emplace_back("other:mark", "1");
    strike_last_attribute(d, *at->element);
    return true;
}

bool undeclared_attribute_prefix(damage &d)
{
    place *at = pick(d, [](const place &p) { return !p.type->attributes.empty(); });
    at->element->attributes.emplace_back("other:mark", "1");
    strike_last_attribute(d, *at->element);
    return true;
}

bool duplicate_attribute(damage &d)
{
    place *at = pick(d, [](const place &p) { return !p.element->attributes.empty(); });
    at->element->attributes.push_back(at->element->attributes.front());
    strike_tag(d, *at->element);
    strike_last_attribute(d, *at->element);
    return true;
}

bool undeclared_element_prefix(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.parent != nullptr; });
    if (at == nullptr)
        return false;
    at->element->name.insert(0, "other:");
    strike_tag(d, *at->element);
    return true;
}

bool foreign_namespace(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.parent != nullptr; });
    if (at == nullptr)
        return false;
    at->element->attributes.emplace_back("xmlns", "urn:other");
    strike_tag(d, *at->element);
    return true;
}

bool stray_text(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.type->is_complex && !p.element->children.empty(); });
    if (at == nullptr)
        return false;
    at->element->text = "stray";
    strike_text(d, *at->element);
    return true;
}

bool element_in_value(damage &d)
{
    place *at = pick(d, [](const place &p) { return !p.type->is_complex; });
    if (at == nullptr)
        return false;
    at->element->children.push_back({"b", {}, "", {}});
    strike_tag(d, at->element->children.back());
    return true;
}

void name_type(damage &d, xml_element &element, std::string_view type_name)
{
    if (derived_type_attribute(element) == nullptr)
        element.attributes.emplace_back("xsi:type", "");
    auto *named = derived_type_attribute(element);
    named->second = type_name;
    strike_attribute(d, element, named->first);
}

place *pick_polymorphic(damage &d)
{
    return pick(d, [&](const place &p) {
        return p.item != nullptr && !d.schema.types[p.item->type].derived.empty();
    });
}

bool unknown_derived_type(damage &d)
{
    place *at = pick_polymorphic(d);
    if (at != nullptr)
        name_type(d, *at->element, one_of(d, {"NoSuchType", "baseModuleType", "other:BaseModuleType", ""}));
    return at != nullptr;
}

bool foreign_derived_type(damage &d)
{
    place *at = pick_polymorphic(d);
    if (at == nullptr)
        return false;
    const std::vector<std::size_t> &allowed = d.schema.types[at->item->type].derived;
    std::vector<std::string_view> names;
    for (std::size_t i = 0; i < d.schema.types.size(); ++i)
        if (d.schema.types[i].is_complex && !d.schema.types[i].name.empty() && i != at->item->type &&
            std::find(allowed.begin(), allowed.end(), i) == allowed.end())
            names.push_back(d.schema.types[i].name);
    name_type(d, *at->element, names[draw_below(d.random, names.size())]);
    return true;
}

bool derived_type_on_plain_element(damage &d)
{
    place *at =
        pick(d, [&](const place &p) { return p.parent != nullptr && p.type->is_complex && !p.type->base; });
    if (at != nullptr)
        name_type(d, *at->element, "BaseLEDType");
    return at != nullptr;
}

/* The type's own hardwareVersion, behind the inherited content: right for the library, which knows both. */
bool shared_name_in_extension(damage &d)
{
    place *at = pick(d, [](const place &p) { return p.type->name == "BaseIdEEPROMType"; });
    if (at == nullptr)
        return false;
    const std::vector<schema_item> &items = at->type->elements;
    const auto row_of = [&](const xml_element &child) {
        return static_cast<std::size_t>(find_item(items, child.name) - items.data());
    };
    const std::size_t inherited_row =
        static_cast<std::size_t>(find_item(items, "hardwareVersion") - items.data());
    std::vector<xml_element> &children = at->element->children;
    const auto first_own = std::find_if(children.begin(), children.end(), [&](const xml_element &child) {
        return row_of(child) >= at->type->inherited_elements;
    });
    const bool passed = first_own != children.begin() && row_of(*(first_own - 1)) >= inherited_row;
    const auto where = children.insert(first_own, {"hardwareVersion", {}, "7", {}});
    if (!passed)
        children.insert(where, {"driverId", {}, "1", {}});
    strike_tag(d, *at->element);
    return true;
}

constexpr std::array<tree_fault, 20> table = {{
    {"rename_element", rename_element},
    {"wrong_root", wrong_root},
    {"stray_element", stray_element},
    {"drop_required_element", drop_required_element},
    {"drop_required_attribute", drop_required_attribute},
    {"swap_elements", swap_elements},
    {"duplicate_element", duplicate_element},
    {"unknown_attribute", unknown_attribute},
    {"attribute_on_plain_type", attribute_on_plain_type},
    {"foreign_attribute", foreign_attribute},
    {"undeclared_attribute_prefix", undeclared_attribute_prefix},
    {"duplicate_attribute", duplicate_attribute},
    {"undeclared_element_prefix", undeclared_element_prefix},
    {"foreign_namespace", foreign_namespace},
    {"stray_text", stray_text},
    {"element_in_value", element_in_value},
    {"unknown_derived_type", unknown_derived_type},
    {"foreign_derived_type", foreign_derived_type},
    {"derived_type_on_plain_element", derived_type_on_plain_element},
    {"shared_name_in_extension", shared_name_in_extension},
}};

}  // namespace

std::span<const tree_fault> structure_faults()
{
    return table;
}

}  // namespace inv_testing
