// The address ranges of all chunks of all files, sorted, so that any pointer can be told from heap memory.
#ifndef FRAME_CHUNK_RANGES_H
#define FRAME_CHUNK_RANGES_H

#include <stddef.h>

namespace inv::frame
{

// Files the range of a chunk; false when memory is out.
bool add_chunk_range(const void *chunk, size_t size) noexcept;

// chunk is one that was filed.
void remove_chunk_range(const void *chunk) noexcept;

// True when p points into a filed chunk.
bool is_in_chunk(const void *p) noexcept;

}  // namespace inv::frame

#endif
