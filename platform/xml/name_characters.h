// Which characters beyond ASCII may stand in names.
#ifndef PLATFORM_XML_NAME_CHARACTERS_H
#define PLATFORM_XML_NAME_CHARACTERS_H

#include <cstddef>
#include <cstdint>

namespace inv::xml
{

// For characters from U+0080 on.
bool is_name_start(uint32_t character);
bool is_name_character(uint32_t character);

}  // namespace inv::xml

#endif
