#include "characters.h"
#include "context.h"
#include "name_lookup.h"

#include <new>

using namespace inv::xml;

namespace
{

const attribute *selected_attribute(const reader &r)
{
    if (r.selected == no_attribute || r.tags.depth == 0)
        return nullptr;
    const element &tag = r.tags.elements[r.tags.depth - 1];
    return &r.tags.attributes.items[tag.attribute_begin + r.selected];
}

size_t attribute_count(const element &tag)
{
    return tag.attribute_end - tag.attribute_begin;
}

bool append_declaration(xb_context *ctx, xb_data_list *list, const namespace_binding &binding)
{
    heap &memory = ctx->state->memory;
    void *block = heap_allocate(memory, sizeof(xb_xmlns));
    char *prefix = heap_copy_text(memory, binding.prefix);
    char *uri = heap_copy_text(memory, binding.uri);
    if (block == nullptr || prefix == nullptr || uri == nullptr)
        return false;
    return rtxDListAppend(ctx, list, new (block) xb_xmlns{prefix, uri}) != nullptr;
}

// The xsi:type of the tag, counted from its first attribute; no_attribute when there is none.
size_t find_xsi_type(const tag_stack &tags, const element &tag)
{
    if (!tag.has_xsi_attributes)
        return no_attribute;
    for (size_t i = tag.attribute_begin; i < tag.attribute_end; ++i) {
        const attribute &item = tags.attributes.items[i];
        if (item.kind == name_kind::xsi && split_qualified_name(name_of(item)).local == "type")
            return i - tag.attribute_begin;
    }
    return no_attribute;
}

// Types of inventory documents have no namespace: any that is in force makes the name another one.
int32_t find_type(const tag_stack &tags, std::string_view name, const xb_type_name_row *table,
                  int32_t row_count)
{
    split_name parts = split_qualified_name(name);
    std::string_view uri;
    bool bound = scope_find(tags.scope, parts.prefix, uri);
    if (!bound && !parts.prefix.empty())
        return XB_E_UNDECLARED_PREFIX;
    for (int32_t i = 0; !bound && i < row_count; ++i) {
        if (std::string_view(table[i].name, table[i].name_length) == parts.local)
            return i;
    }
    return XB_E_UNKNOWN_TYPE;
}

}  // namespace

bool rtXmlpHasAttributes(xb_context *ctx)
{
    const element *tag = current_element(ctx->state->reader.tags);
    if (tag == nullptr || tag->hidden)
        return false;
    bool has_declarations = tag->binding_end > tag->binding_begin;
    return tag->has_other_attributes || (tag->has_xsi_attributes && !tag->xsi_taken) ||
           (has_declarations && !tag->declarations_taken);
}

int32_t rtXmlpGetXmlnsAttrs(xb_context *ctx, xb_data_list *list)
{
    tag_stack &tags = ctx->state->reader.tags;
    element *tag = current_element(tags);
    if (tag == nullptr)
        return XB_E_BAD_STATE;
    for (size_t i = tag->binding_begin; i < tag->binding_end; ++i) {
        if (!append_declaration(ctx, list, tags.scope.bindings.items[i]))
            return XB_E_NO_MEMORY;
    }
    tag->declarations_taken = true;
    return XB_OK;
}

int32_t rtXmlpDecXSIAttrs(xb_context *ctx)
{
    element *tag = current_element(ctx->state->reader.tags);
    if (tag == nullptr)
        return XB_E_BAD_STATE;
    tag->xsi_taken = true;
    return XB_OK;
}

void rtXmlpHideAttributes(xb_context *ctx)
{
    ctx->state->reader.selected = no_attribute;
    element *tag = current_element(ctx->state->reader.tags);
    if (tag != nullptr)
        tag->hidden = true;
}

bool rtXmlpNeedDecodeAttributes(xb_context *ctx)
{
    const element *tag = current_element(ctx->state->reader.tags);
    return tag != nullptr && !tag->hidden;
}

int32_t rtXmlpGetAttributeCount(xb_context *ctx)
{
    const element *tag = current_element(ctx->state->reader.tags);
    if (tag == nullptr)
        return XB_E_BAD_STATE;
    return static_cast<int32_t>(std::min(attribute_count(*tag), size_t{INT32_MAX}));
}

int32_t rtXmlpSelectAttribute(xb_context *ctx, int32_t index)
{
    reader &r = ctx->state->reader;
    r.selected = no_attribute;
    const element *tag = current_element(r.tags);
    if (tag == nullptr || index < 0 || static_cast<size_t>(index) >= attribute_count(*tag))
        return XB_E_BAD_STATE;
    end_travel(ctx->state->errors);
    r.selected = static_cast<size_t>(index);
    return XB_OK;
}

int32_t rtXmlpGetAttributeID(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                             int32_t *namespace_index)
{
    const reader &r = ctx->state->reader;
    const attribute *item = selected_attribute(r);
    *namespace_index = -1;
    if (item == nullptr)
        return XB_E_BAD_STATE;
    switch (item->kind) {
    case name_kind::undeclared_prefix:
        return XB_E_UNDECLARED_PREFIX;
    case name_kind::xsi:
        *namespace_index = -2;
        return XB_E_ATTRIBUTE_UNKNOWN;
    case name_kind::foreign:
        *namespace_index = 0;
        return XB_E_ATTRIBUTE_UNKNOWN;
    case name_kind::plain:
        break;
    }
    int32_t row = find_name(table, row_count, name_of(*item), item->name_hash,
                            [](const xb_attribute_row &) { return true; });
    return row >= 0 ? row : XB_E_ATTRIBUTE_UNKNOWN;
}

const char *rtXmlpGetAttributeName(xb_context *ctx, size_t *length)
{
    const reader &r = ctx->state->reader;
    const attribute *item = selected_attribute(r);
    std::string_view name =
        item == nullptr ? std::string_view("") : split_qualified_name(name_of(*item)).local;
    if (length != nullptr)
        *length = name.size();
    return name.data();
}

int32_t rtXmlpGetXSITypeIndex(xb_context *ctx, const xb_type_name_row *table, int32_t row_count)
{
    reader &r = ctx->state->reader;
    element *tag = current_element(r.tags);
    if (tag == nullptr)
        return XB_E_BAD_STATE;
    size_t index = find_xsi_type(r.tags, *tag);
    if (index == no_attribute)
        return XB_E_NO_XSI_TYPE;
    const attribute &item = r.tags.attributes.items[tag->attribute_begin + index];
    std::string_view name = collapsed(value_of(item));
    int32_t result = find_type(r.tags, name, table, row_count);
    if (result < 0) {
        complete(r.source, tag->place);
        r.place = place_of_attribute(r.tags, *tag, item);
        add_parameter(*ctx->state, name);
    }
    return result;
}
