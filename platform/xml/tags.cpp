#include "tags.h"

#include "characters.h"

#include <cstring>

namespace inv::xml
{

namespace
{

constexpr std::string_view declaration_prefix = "xmlns:";

// A colon at the end is part of the local name (split_qualified_name()).
bool is_declaration(std::string_view name)
{
    return name == "xmlns" || (name.starts_with(declaration_prefix) && name != declaration_prefix);
}

bool stack_declaration(tag_stack &tags, const attribute &item)
{
    std::string_view prefix = name_of(item);
    prefix.remove_prefix(std::min(prefix.size(), declaration_prefix.size()));
    std::string_view kept_prefix, kept_uri;
    return push_text(tags.made_texts, prefix, kept_prefix) &&
           push_text(tags.made_texts, value_of(item), kept_uri) &&
           scope_declare(tags.scope, kept_prefix, kept_uri);
}

// Declarations leave the attributes and come into scope.
bool take_declarations(tag_stack &tags, const element &tag)
{
    size_t kept = tag.attribute_begin;
    for (size_t i = tag.attribute_begin; i < tags.attributes.count; ++i) {
        const attribute &item = tags.attributes.items[i];
        if (!is_declaration(name_of(item)))
            tags.attributes.items[kept++] = item;
        else if (!stack_declaration(tags, item))
            return false;
    }
    tags.attributes.count = kept;
    return true;
}

// The default namespace is an element's only: an attribute without prefix has none.
name_kind classify(const tag_stack &tags, std::string_view name, bool is_element)
{
    std::string_view prefix = split_qualified_name(name).prefix;
    if (prefix.empty() && !is_element)
        return name_kind::plain;
    std::string_view uri;
    if (!scope_find(tags.scope, prefix, uri))
        return prefix.empty() ? name_kind::plain : name_kind::undeclared_prefix;
    return uri == xsi_uri ? name_kind::xsi : name_kind::foreign;
}

// Needs all of the tag's declarations in scope, wherever in the tag they stand.
void classify_names(tag_stack &tags, element &tag)
{
    tag.kind = classify(tags, tag.name, true);
    tag.local = split_qualified_name(tag.name).local;
    tag.has_other_attributes = false;
    for (size_t i = tag.attribute_begin; i < tag.attribute_end; ++i) {
        attribute &item = tags.attributes.items[i];
        item.kind = classify(tags, name_of(item), false);
        (item.kind == name_kind::xsi ? tag.has_xsi_attributes : tag.has_other_attributes) = true;
    }
}

}  // namespace

void cut_to_open_elements(tag_stack &tags)
{
    if (tags.depth == 0) {
        tags.attributes.count = 0;
        scope_leave(tags.scope, 0);
        pop_to(tags.made_texts, {});
        pop_to(tags.kept_texts, {});
        return;
    }
    const element &top = tags.elements[tags.depth - 1];
    tags.attributes.count = top.attribute_end;
    scope_leave(tags.scope, top.binding_end);
    pop_to(tags.made_texts, top.made_end);
    pop_to(tags.kept_texts, top.kept_end);
}

int32_t stack_tag(tag_stack &tags, const event &start)
{
    if (tags.depth == XB_MAX_DEPTH)
        return XB_E_DEPTH;
    tags.walk.tag = nullptr;
    element &tag = tags.elements[tags.depth];
    tag.place = start.place;
    tag.name = start.name;
    tag.local = start.name;
    tag.markup = start.markup;
    tag.name_hash = start.name_hash;
    tag.attribute_begin = tags.attributes.count - start.attribute_count;
    tag.binding_begin = tags.scope.bindings.count;
    tag.kind = name_kind::plain;
    tag.has_xsi_attributes = false;
    tag.has_other_attributes = start.attribute_count > 0;
    tag.kept = start.stable;
    tag.declarations_taken = tag.xsi_taken = tag.hidden = false;
    if (start.has_declarations && !take_declarations(tags, tag))
        return XB_E_NO_MEMORY;
    tag.attribute_end = tags.attributes.count;
    tag.binding_end = tags.scope.bindings.count;
    tag.made_end = mark_of(tags.made_texts);
    tag.kept_end = mark_of(tags.kept_texts);
    if (start.has_colons || has_default_namespace(tags.scope))
        classify_names(tags, tag);
    scope_leave(tags.scope, tag.binding_begin);
    return tag.kind == name_kind::undeclared_prefix ? XB_E_UNDECLARED_PREFIX : XB_OK;
}

void enter_element(tag_stack &tags)
{
    const element &tag = tags.elements[tags.depth++];
    scope_enter_again(tags.scope, tag.binding_end);
}

void leave_element(tag_stack &tags)
{
    scope_leave(tags.scope, tags.elements[--tags.depth].binding_begin);
}

void release_tags(tag_stack &tags)
{
    tags.walk = {};
    release_array(tags.attributes);
    scope_release(tags.scope);
    release_texts(tags.made_texts);
    release_texts(tags.kept_texts);
    tags.depth = 0;
}

namespace
{

bool keep_markup(tag_stack &tags, element &tag)
{
    std::string_view copy;
    if (!push_text(tags.kept_texts, tag.markup, copy))
        return false;
    auto moved = [&](const char *text) { return copy.data() + (text - tag.markup.data()); };
    tag.name = std::string_view(moved(tag.name.data()), tag.name.size());
    tag.local = std::string_view(moved(tag.local.data()), tag.local.size());
    for (size_t i = tag.attribute_begin; i < tag.attribute_end; ++i) {
        attribute &item = tags.attributes.items[i];
        item.name = moved(item.name);
        if (!item.made_value)
            item.value = moved(item.value);
    }
    tag.markup = copy;
    return true;
}

}  // namespace

bool keep_open_elements(tag_stack &tags, const event_source &source)
{
    // What is kept already lies below what is not.
    uint32_t first = tags.depth;
    while (first > 0 && !tags.elements[first - 1].kept)
        --first;
    for (uint32_t i = first; i < tags.depth; ++i) {
        element &tag = tags.elements[i];
        if (!keep_markup(tags, tag))
            return false;
        tag.kept = true;
        tag.kept_end = mark_of(tags.kept_texts);
        complete(source, tag.place);
    }
    return true;
}

namespace
{

// Columns count characters: octets that continue one do not. CR, LF and CR LF each end a line.
void step(markup_walk &walk, std::string_view markup)
{
    char c = markup[walk.at++];
    ++walk.place.offset;
    bool ends_line = c == '\n' || (c == '\r' && !markup.substr(walk.at).starts_with('\n'));
    if (ends_line) {
        ++walk.place.line;
        walk.place.column = 1;
    } else if (c != '\r' && (static_cast<unsigned char>(c) & 0xC0) != 0x80) {
        ++walk.place.column;
    }
}

}  // namespace

position place_of_attribute(tag_stack &tags, const element &tag, const attribute &item)
{
    if (item.markup_at == not_in_markup)
        return tag.place;
    markup_walk &walk = tags.walk;
    if (walk.tag != &tag || walk.at > item.markup_at)
        walk = {&tag, 0, tag.place};
    while (walk.at < item.markup_at)
        step(walk, tag.markup);
    return walk.place;
}

}  // namespace inv::xml
