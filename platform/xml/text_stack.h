// Texts that live as long as the element they belong to: handed out and given back in stack order,
// never moved.
#ifndef PLATFORM_XML_TEXT_STACK_H
#define PLATFORM_XML_TEXT_STACK_H

#include <cstddef>
#include <string_view>

namespace inv::xml
{

struct text_chunk;

struct text_stack {
    text_chunk *top = nullptr;
    size_t used = 0;              // octets of the top chunk
    text_chunk *spare = nullptr;  // the chunk that was emptied last
};

// How full a stack was.
struct text_mark {
    text_chunk *top = nullptr;
    size_t used = 0;
};

inline text_mark mark_of(const text_stack &stack)
{
    return {stack.top, stack.used};
}

// Room for size octets, or null when memory is out.
char *push_octets(text_stack &stack, size_t size);

// A copy of the text; false when memory is out.
bool push_text(text_stack &stack, std::string_view text, std::string_view &copy);

// The newest `unused` octets of the request made last are not needed.
inline void shrink_last(text_stack &stack, size_t unused)
{
    stack.used -= unused;
}

void pop_chunks(text_stack &stack, text_mark mark);

inline void pop_to(text_stack &stack, text_mark mark)
{
    if (stack.top != mark.top)
        pop_chunks(stack, mark);
    stack.used = mark.used;
}

void release_texts(text_stack &stack);

}  // namespace inv::xml

#endif
