// Hash for tables keyed by an address and a small number.
#ifndef TREE_POINTER_HASH_H
#define TREE_POINTER_HASH_H

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// Every bit of the result depends on every bit of both, so that a mask of any width serves.
inline size_t hash_of_pointer(const void *address, uint32_t number) noexcept
{
    uint64_t mixed = reinterpret_cast<uintptr_t>(address) * 0x9E3779B97F4A7C15u + number;
    mixed = (mixed ^ (mixed >> 32)) * 0xD6E8FEB86659FD93u;
    mixed = (mixed ^ (mixed >> 32)) * 0xD6E8FEB86659FD93u;
    return static_cast<size_t>(mixed ^ (mixed >> 32));
}

}  // namespace inv

#endif
