// The open elements with the attributes and namespace declarations of their start tags.
#ifndef PLATFORM_XML_TAGS_H
#define PLATFORM_XML_TAGS_H

#include "event_source.h"
#include "inv_platform/xml_runtime.h"
#include "namespaces.h"

namespace inv::xml
{

enum class name_kind : uint8_t { plain, xsi, foreign, undeclared_prefix };

struct attribute {
    text_span name;  // with prefix
    text_span local;
    text_span value;   // followed by a NUL
    size_t tag_index;  // its place among all attributes of the tag, declarations included
    name_kind kind;
};

struct element {
    position place;  // of the '<'
    text_span name;  // with prefix
    text_span local;
    text_span markup;  // the start tag as the document has it, or empty
    // What the tag owns of the stacks below: from where its parent's part ends up to here.
    size_t text_end;
    size_t attribute_begin;
    size_t attribute_end;
    size_t binding_begin;
    size_t binding_end;
    name_kind kind;
    bool has_xsi_attributes;
    bool has_other_attributes;
    bool declarations_taken;
    bool xsi_taken;
    bool hidden;
};

// How far the search for an attribute's place has come in one start tag: errors come in document
// order, so that the next search goes on from here.
struct markup_walk {
    text_span markup;  // empty: no search yet
    size_t at;
    size_t tag_index;  // of the attribute that starts there
    position place;
};

// Elements 0 .. depth - 1 are open. The slot behind them holds the start tag that was read ahead or
// the element that was closed last; both can be entered without reading anything again.
struct tag_stack {
    growing_array<char> texts;
    growing_array<attribute> attributes;
    namespace_scope scope;
    element elements[XB_MAX_DEPTH];
    uint32_t depth;
    markup_walk walk;
};

// Puts a start tag into the slot behind the open elements: XB_OK, XB_E_DEPTH, XB_E_NO_MEMORY or
// XB_E_UNDECLARED_PREFIX (the tag is there then).
int32_t stack_tag(tag_stack &tags, const event &start);

void enter_element(tag_stack &tags);
void leave_element(tag_stack &tags);
void release_tags(tag_stack &tags);

// The innermost open element, or null.
element *current_element(tag_stack &tags);

// Where attribute tag_index of the tag starts; the tag's place when that is not known.
position place_of_attribute(tag_stack &tags, const element &tag, size_t tag_index);

}  // namespace inv::xml

#endif
