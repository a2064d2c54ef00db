/* Lets the address sanitizer see into memory that both libraries hand out in pieces of larger blocks: what
 * has not been handed out, or was taken back, must not be touched, and neither may the few octets between
 * two pieces. Without the sanitizer nothing of this exists.
 */
#ifndef INV_PLATFORM_MEMORY_GUARD_H
#define INV_PLATFORM_MEMORY_GUARD_H

#include <stddef.h>

#if defined(__SANITIZE_ADDRESS__)
#define INV_GUARDS_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define INV_GUARDS_MEMORY 1
#endif
#endif

#ifdef INV_GUARDS_MEMORY
#include <sanitizer/asan_interface.h>
#endif

namespace inv::memory
{

#ifdef INV_GUARDS_MEMORY

// Left free behind each piece. The sanitizer knows memory by eights: a piece begins at a multiple of them.
inline constexpr size_t guard_size = 16;
inline constexpr size_t guard_alignment = 8;

inline void forbid(const void *begin, size_t size)
{
    __asan_poison_memory_region(begin, size);
}

inline void permit(const void *begin, size_t size)
{
    __asan_unpoison_memory_region(begin, size);
}

#else

inline constexpr size_t guard_size = 0;
inline constexpr size_t guard_alignment = 1;

inline void forbid(const void *, size_t) {}
inline void permit(const void *, size_t) {}

#endif

}  // namespace inv::memory

#endif
