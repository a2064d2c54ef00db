// The value that a typed decoder works on.
#ifndef PLATFORM_XML_VALUES_H
#define PLATFORM_XML_VALUES_H

#include "inv_platform/xml_runtime.h"

#include <string_view>

namespace inv::xml
{

// The selected attribute's value, else the current element's text, as it stands. The text stays
// valid until the next read. Sets the place of the error that may follow.
int32_t take_value(xb_context_state &state, std::string_view &text);

}  // namespace inv::xml

#endif
