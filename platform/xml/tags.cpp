#include "tags.h"

#include "characters.h"

namespace inv::xml
{

namespace
{

constexpr std::string_view declaration_prefix = "xmlns:";

bool is_declaration(std::string_view name)
{
    return name == "xmlns" || name.starts_with(declaration_prefix);
}

// Everything behind the open elements' part is free.
void cut_to_open_elements(tag_stack &tags)
{
    element *top = current_element(tags);
    tags.texts.count = top == nullptr ? 0 : top->text_end;
    tags.attributes.count = top == nullptr ? 0 : top->attribute_end;
    scope_leave(tags.scope, top == nullptr ? 0 : top->binding_end);
}

text_span part_of(text_span whole, std::string_view whole_text, std::string_view part)
{
    return {whole.start + static_cast<size_t>(part.data() - whole_text.data()), part.size()};
}

bool stack_declaration(tag_stack &tags, const tag_attribute &item)
{
    std::string_view prefix = item.name;
    prefix.remove_prefix(std::min(prefix.size(), declaration_prefix.size()));
    text_span prefix_span, uri_span;
    return keep_text(tags.texts, prefix, prefix_span) && keep_text(tags.texts, item.value, uri_span) &&
           scope_declare(tags.scope, tags.texts, prefix_span, uri_span);
}

bool stack_attribute(tag_stack &tags, const tag_attribute &item, size_t tag_index)
{
    attribute kept = {};
    kept.tag_index = tag_index;
    if (!keep_text(tags.texts, item.name, kept.name) || !append_text(tags.texts, std::string_view("", 1)) ||
        !keep_text(tags.texts, item.value, kept.value) || !append_text(tags.texts, std::string_view("", 1)))
        return false;
    kept.local = part_of(kept.name, item.name, split_qualified_name(item.name).local);
    return append(tags.attributes, kept);
}

bool stack_attributes(tag_stack &tags, const event &start)
{
    for (size_t i = 0; i < start.attribute_count; ++i) {
        const tag_attribute &item = start.attributes[i];
        bool kept =
            is_declaration(item.name) ? stack_declaration(tags, item) : stack_attribute(tags, item, i);
        if (!kept)
            return false;
    }
    return true;
}

// The default namespace is an element's only: an attribute without prefix has none.
name_kind classify(const tag_stack &tags, std::string_view name, bool is_element)
{
    std::string_view prefix = split_qualified_name(name).prefix;
    if (prefix.empty() && !is_element)
        return name_kind::plain;
    std::string_view uri;
    if (!scope_find(tags.scope, tags.texts, prefix, uri))
        return prefix.empty() ? name_kind::plain : name_kind::undeclared_prefix;
    return uri == xsi_uri ? name_kind::xsi : name_kind::foreign;
}

// Needs all of the tag's declarations in scope, wherever in the tag they stand.
void classify_names(tag_stack &tags, element &tag)
{
    tag.kind = classify(tags, view(tags.texts, tag.name), true);
    for (size_t i = tag.attribute_begin; i < tag.attribute_end; ++i) {
        attribute &item = tags.attributes.items[i];
        item.kind = classify(tags, view(tags.texts, item.name), false);
        (item.kind == name_kind::xsi ? tag.has_xsi_attributes : tag.has_other_attributes) = true;
    }
}

}  // namespace

int32_t stack_tag(tag_stack &tags, const event &start)
{
    if (tags.depth == XB_MAX_DEPTH)
        return XB_E_DEPTH;
    cut_to_open_elements(tags);
    tags.walk = {};
    element &tag = tags.elements[tags.depth];
    tag = {};
    tag.place = start.place;
    tag.attribute_begin = tags.attributes.count;
    tag.binding_begin = tags.scope.bindings.count;
    bool kept = keep_text(tags.texts, start.name, tag.name) &&
                keep_text(tags.texts, start.markup, tag.markup) && stack_attributes(tags, start);
    if (!kept) {
        cut_to_open_elements(tags);
        return XB_E_NO_MEMORY;
    }
    tag.local = part_of(tag.name, start.name, split_qualified_name(start.name).local);
    tag.text_end = tags.texts.count;
    tag.attribute_end = tags.attributes.count;
    tag.binding_end = tags.scope.bindings.count;
    classify_names(tags, tag);
    scope_leave(tags.scope, tag.binding_begin);
    return tag.kind == name_kind::undeclared_prefix ? XB_E_UNDECLARED_PREFIX : XB_OK;
}

void enter_element(tag_stack &tags)
{
    const element &tag = tags.elements[tags.depth++];
    tags.texts.count = tag.text_end;
    tags.attributes.count = tag.attribute_end;
    scope_enter_again(tags.scope, tag.binding_end);
}

void leave_element(tag_stack &tags)
{
    scope_leave(tags.scope, tags.elements[--tags.depth].binding_begin);
}

void release_tags(tag_stack &tags)
{
    tags.walk = {};
    release_array(tags.texts);
    release_array(tags.attributes);
    scope_release(tags.scope);
    tags.depth = 0;
}

element *current_element(tag_stack &tags)
{
    return tags.depth == 0 ? nullptr : &tags.elements[tags.depth - 1];
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

void step_to(markup_walk &walk, std::string_view markup, std::string_view stops)
{
    while (walk.at < markup.size() && stops.find(markup[walk.at]) == std::string_view::npos)
        step(walk, markup);
}

void step_over_white_space(markup_walk &walk, std::string_view markup)
{
    while (walk.at < markup.size() && is_white_space(markup[walk.at]))
        step(walk, markup);
}

// From an attribute's name to the next one's.
void step_over_attribute(markup_walk &walk, std::string_view markup)
{
    step_to(walk, markup, "\"'");
    if (walk.at == markup.size())
        return;
    std::string_view quote = markup.substr(walk.at, 1);
    step(walk, markup);
    step_to(walk, markup, quote);
    if (walk.at < markup.size())
        step(walk, markup);
    step_over_white_space(walk, markup);
    ++walk.tag_index;
}

void start_walk(markup_walk &walk, const element &tag, std::string_view markup)
{
    walk = {tag.markup, 0, 0, tag.place};
    step_to(walk, markup, white_space);
    step_over_white_space(walk, markup);
}

}  // namespace

position place_of_attribute(tag_stack &tags, const element &tag, size_t tag_index)
{
    markup_walk &walk = tags.walk;
    std::string_view markup = view(tags.texts, tag.markup);
    bool goes_on =
        walk.markup.length != 0 && walk.markup.start == tag.markup.start && walk.tag_index <= tag_index;
    if (!goes_on)
        start_walk(walk, tag, markup);
    while (walk.tag_index < tag_index && walk.at < markup.size())
        step_over_attribute(walk, markup);
    // An attribute that only the document type gives stands nowhere in the tag.
    bool found = walk.at < markup.size() && markup[walk.at] != '/' && markup[walk.at] != '>';
    return found ? walk.place : tag.place;
}

}  // namespace inv::xml
