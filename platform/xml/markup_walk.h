// Where the attributes of a well-formed start tag stand in its text.
#ifndef PLATFORM_XML_MARKUP_WALK_H
#define PLATFORM_XML_MARKUP_WALK_H

#include "characters.h"

#include <algorithm>

namespace inv::xml
{

inline size_t over_white_space(std::string_view markup, size_t at)
{
    return std::min(markup.find_first_not_of(white_space, at), markup.size());
}

// Start of the first attribute's name. The tag's end or, without markup, 0 when there is none.
inline size_t first_attribute_in(std::string_view markup)
{
    return over_white_space(markup, std::min(markup.find_first_of(white_space), markup.size()));
}

// Start of the name behind that of the attribute at `at`.
inline size_t next_attribute_in(std::string_view markup, size_t at)
{
    size_t opening = std::min(markup.find_first_of("\"'", at), markup.size());
    if (opening == markup.size())
        return opening;
    size_t closing = std::min(markup.find(markup[opening], opening + 1), markup.size() - 1);
    return over_white_space(markup, closing + 1);
}

}  // namespace inv::xml

#endif
