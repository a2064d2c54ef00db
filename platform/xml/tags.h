// The open elements with the attributes and namespace declarations of their start tags.
#ifndef PLATFORM_XML_TAGS_H
#define PLATFORM_XML_TAGS_H

#include "event_source.h"
#include "inv_platform/xml_runtime.h"
#include "namespaces.h"

namespace inv::xml
{

struct element {
    position place;         // of the '<'
    std::string_view name;  // with prefix
    std::string_view local;
    std::string_view markup;  // the start tag as the document has it, or empty
    uint32_t name_hash;
    // What the tag owns of the stacks below: from where its parent's part ends up to here.
    size_t attribute_begin;
    size_t attribute_end;
    size_t binding_begin;
    size_t binding_end;
    text_mark made_end;
    text_mark kept_end;
    name_kind kind;
    bool kept;  // its texts no longer stand in the source's memory
    bool has_xsi_attributes;
    bool has_other_attributes;
    bool declarations_taken;
    bool xsi_taken;
    bool hidden;
};

// How far the search for an attribute's place has come in one start tag: errors come in document
// order, so that the next search goes on from here.
struct markup_walk {
    const element *tag;  // null: no search yet
    size_t at;
    position place;
};

// Elements 0 .. depth - 1 are open. The slot behind them holds the start tag that was read ahead or
// the element that was closed last; both can be entered without reading anything again.
struct tag_stack {
    growing_array<attribute> attributes;
    namespace_scope scope;
    text_stack made_texts;  // namespace declarations and what sources had to rewrite
    text_stack kept_texts;  // of tags whose source has gone on
    element elements[XB_MAX_DEPTH];
    uint32_t depth;
    markup_walk walk;
};

// Frees everything behind the open elements' part: the slot's tag is gone. Comes before a source
// delivers the next tag.
void cut_to_open_elements(tag_stack &tags);

// Puts a start tag, whose attributes have been appended, into the slot behind the open elements:
// XB_OK, XB_E_DEPTH, XB_E_NO_MEMORY or XB_E_UNDECLARED_PREFIX (the tag is there then).
int32_t stack_tag(tag_stack &tags, const event &start);

void enter_element(tag_stack &tags);
void leave_element(tag_stack &tags);
void release_tags(tag_stack &tags);

// Makes the open elements independent of the source's memory and completes their places.
bool keep_open_elements(tag_stack &tags, const event_source &source);

// The innermost open element, or null.
inline element *current_element(tag_stack &tags)
{
    return tags.depth == 0 ? nullptr : &tags.elements[tags.depth - 1];
}

// Where the attribute of the tag, whose place must be complete, starts; the tag's place when that is
// not known.
position place_of_attribute(tag_stack &tags, const element &tag, const attribute &item);

}  // namespace inv::xml

#endif
