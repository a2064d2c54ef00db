#include "text_stack.h"

#include "inv_platform/system_memory.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>

namespace inv::xml
{

struct text_chunk {
    text_chunk *below;
    size_t below_used;  // octets of that chunk
    size_t capacity;
};

namespace
{

constexpr size_t least_chunk_size = 8192;

char *octets_of(text_chunk *chunk)
{
    return reinterpret_cast<char *>(chunk + 1);
}

text_chunk *obtain_chunk(text_stack &stack, size_t size)
{
    text_chunk *spare = stack.spare;
    if (spare != nullptr && spare->capacity >= size) {
        stack.spare = nullptr;
        return spare;
    }
    if (size > PTRDIFF_MAX - sizeof(text_chunk))
        return nullptr;
    size_t capacity = std::max(size, least_chunk_size);
    void *block = memory::request(sizeof(text_chunk) + capacity);
    return block == nullptr ? nullptr : new (block) text_chunk{nullptr, 0, capacity};
}

// Keeps the larger of two emptied chunks.
void retire(text_stack &stack, text_chunk *chunk)
{
    if (stack.spare != nullptr && stack.spare->capacity > chunk->capacity)
        std::swap(stack.spare, chunk);
    memory::release(stack.spare);
    stack.spare = chunk;
}

}  // namespace

char *push_octets(text_stack &stack, size_t size)
{
    if (stack.top == nullptr || size > stack.top->capacity - stack.used) {
        text_chunk *chunk = obtain_chunk(stack, size);
        if (chunk == nullptr)
            return nullptr;
        chunk->below = stack.top;
        chunk->below_used = stack.used;
        stack.top = chunk;
        stack.used = 0;
    }
    char *octets = octets_of(stack.top) + stack.used;
    stack.used += size;
    return octets;
}

bool push_text(text_stack &stack, std::string_view text, std::string_view &copy)
{
    char *octets = push_octets(stack, text.size());
    if (octets == nullptr)
        return false;
    if (!text.empty())
        memcpy(octets, text.data(), text.size());
    copy = std::string_view(octets, text.size());
    return true;
}

void pop_chunks(text_stack &stack, text_mark mark)
{
    while (stack.top != mark.top) {
        text_chunk *chunk = stack.top;
        stack.top = chunk->below;
        stack.used = chunk->below_used;
        retire(stack, chunk);
    }
}

void release_texts(text_stack &stack)
{
    pop_to(stack, {});
    memory::release(stack.spare);
    stack = {};
}

}  // namespace inv::xml
