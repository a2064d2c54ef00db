// Open content, written out again from its events: comments and processing instructions are gone,
// CDATA sections are plain text, an empty element has two tags. What was declared outside of the
// content is not repeated in it.
#include "reading.h"
#include "values.h"

using namespace inv::xml;

namespace
{

using text_buffer = growing_array<char>;

std::string_view escaped(char c, bool in_attribute)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '\r':
        return "&#13;";
    case '"':
        return in_attribute ? "&quot;" : "";
    case '\n':
        return in_attribute ? "&#10;" : "";
    case '\t':
        return in_attribute ? "&#9;" : "";
    default:
        return {};
    }
}

bool write_escaped(text_buffer &out, std::string_view text, bool in_attribute)
{
    for (char c : text) {
        std::string_view replacement = escaped(c, in_attribute);
        if (!append_text(out, replacement.empty() ? std::string_view(&c, 1) : replacement))
            return false;
    }
    return true;
}

bool write_attribute(text_buffer &out, std::string_view prefix, std::string_view name, std::string_view value)
{
    return append_text(out, " ") && append_text(out, prefix) && append_text(out, name) &&
           append_text(out, "=\"") && write_escaped(out, value, true) && append_text(out, "\"");
}

bool write_start_tag(text_buffer &out, const tag_stack &tags, const element &tag)
{
    bool written = append_text(out, "<") && append_text(out, tag.name);
    for (size_t i = tag.binding_begin; written && i < tag.binding_end; ++i) {
        const namespace_binding &binding = tags.scope.bindings.items[i];
        std::string_view prefix = binding.prefix;
        written = write_attribute(out, prefix.empty() ? "xmlns" : "xmlns:", prefix, binding.uri);
    }
    for (size_t i = tag.attribute_begin; written && i < tag.attribute_end; ++i) {
        const attribute &item = tags.attributes.items[i];
        written = write_attribute(out, {}, name_of(item), value_of(item));
    }
    return written && append_text(out, ">");
}

bool write_end_tag(text_buffer &out, const element &tag)
{
    return append_text(out, "</") && append_text(out, tag.name) && append_text(out, ">");
}

// Up to the end tag of the current element, which stays ahead.
int32_t write_content(xb_context_state &state, text_buffer &out)
{
    reader &r = state.reader;
    uint32_t depth = r.tags.depth;
    for (;;) {
        int32_t status = read_event(state);
        if (status != XB_OK)
            return status;
        if (!write_escaped(out, r.has_text ? r.text : std::string_view(), false))
            return XB_E_NO_MEMORY;
        bool is_start = r.ahead_kind == event_kind::start_tag;
        if (!is_start && r.tags.depth == depth)
            return XB_OK;
        if (!is_start && !write_end_tag(out, *current_element(r.tags)))
            return XB_E_NO_MEMORY;
        consume_tag(r);
        if (is_start && !write_start_tag(out, r.tags, *current_element(r.tags)))
            return XB_E_NO_MEMORY;
    }
}

}  // namespace

int32_t rtXmlpDecAny(xb_context *ctx, char **text)
{
    xb_context_state &state = *ctx->state;
    reader &r = state.reader;
    if (r.selected != no_attribute)
        return rtXmlpDecDynUTF8Str(ctx, text);
    if (r.tags.depth == 0)
        return XB_E_BAD_STATE;
    bool group = r.group_mode;
    text_buffer out;
    int32_t status = write_content(state, out);
    r.group_mode = group;
    r.text_taken = true;
    if (status == XB_OK) {
        char *copy = heap_copy_text(state.memory, std::string_view(out.items, out.count));
        status = copy == nullptr ? XB_E_NO_MEMORY : XB_OK;
        if (copy != nullptr)
            *text = copy;
    }
    release_array(out);
    return status;
}
