// How a decoded value becomes a record's field.
#ifndef ACCESS_FIELD_COPY_H
#define ACCESS_FIELD_COPY_H

#include "inv_parser/platform_types.h"

#include <stddef.h>
#include <stdint.h>
#include <string.h>

namespace inv
{

// Copies at most `limit` octets of text and terminates them. Null counts as empty.
template <size_t Size>
void copy_text(char (&to)[Size], const char *from, size_t limit = Size - 1)
{
    size_t length = from == nullptr ? 0 : strnlen(from, limit);
    if (length != 0)
        memcpy(to, from, length);
    to[length] = '\0';
}

// Bits are only ever set: who reuses a record clears it first.
template <class Mask>
void mark_present(Mask &mask, uint32_t bit)
{
    mask = static_cast<Mask>(mask | bit);
}

template <class Field, class Value, class Mask>
void copy_optional(bool given, Field &field, Value value, Mask &mask, uint32_t bit)
{
    if (!given)
        return;
    field = static_cast<Field>(value);
    mark_present(mask, bit);
}

template <size_t Size, class Mask>
void copy_optional_text(bool given, char (&field)[Size], const char *text, Mask &mask, uint32_t bit)
{
    if (!given)
        return;
    copy_text(field, text);
    mark_present(mask, bit);
}

// All four octets count, whatever number the document wrote: unwritten ones are zero.
inline uint32_t join_octets(const uint8_t (&octets)[4])
{
    return static_cast<uint32_t>(octets[0]) << 24 | static_cast<uint32_t>(octets[1]) << 16 |
           static_cast<uint32_t>(octets[2]) << 8 | octets[3];
}

inline uint8_t first_octet(const xb_octets &string)
{
    return string.count == 0 || string.octets == nullptr ? uint8_t{0} : string.octets[0];
}

}  // namespace inv

#endif
