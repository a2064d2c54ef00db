// Hash for tables keyed by addresses and small numbers.
#ifndef TREE_POINTER_HASH_H
#define TREE_POINTER_HASH_H

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// Every bit of the result depends on every bit of both, so that a mask of any width serves.
inline size_t hash_of_number(uint64_t before, uint32_t number) noexcept
{
    uint64_t mixed = before * 0x9E3779B97F4A7C15u + number;
    mixed = (mixed ^ (mixed >> 32)) * 0xD6E8FEB86659FD93u;
    mixed = (mixed ^ (mixed >> 32)) * 0xD6E8FEB86659FD93u;
    return static_cast<size_t>(mixed ^ (mixed >> 32));
}

inline size_t hash_of_pointer(const void *address, uint32_t number) noexcept
{
    return hash_of_number(reinterpret_cast<uintptr_t>(address), number);
}

}  // namespace inv

#endif
