// A growing array over the memory door that reports exhaustion instead of throwing.
#ifndef PLATFORM_XML_GROWING_ARRAY_H
#define PLATFORM_XML_GROWING_ARRAY_H

#include "inv_platform/system_memory.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace inv::xml
{

// Items may move whenever the array grows: whoever keeps a reference across that uses indexes.
template <typename T>
struct growing_array {
    static_assert(std::is_trivially_copyable_v<T>);
    T *items = nullptr;
    size_t count = 0;
    size_t capacity = 0;
};

template <typename T>
bool make_room(growing_array<T> &array, size_t extra)
{
    if (extra <= array.capacity - array.count)
        return true;
    constexpr size_t limit = PTRDIFF_MAX / sizeof(T) / 2;
    if (extra > limit || array.count > limit - extra)
        return false;
    size_t wanted = std::max({array.count + extra, array.capacity * 2, size_t{16}});
    void *grown = memory::resize(array.items, wanted * sizeof(T));
    if (grown == nullptr)
        return false;
    array.items = static_cast<T *>(grown);
    array.capacity = wanted;
    return true;
}

template <typename T>
bool append(growing_array<T> &array, const T &item)
{
    if (!make_room(array, 1))
        return false;
    array.items[array.count++] = item;
    return true;
}

inline bool append_text(growing_array<char> &array, std::string_view text)
{
    if (!make_room(array, text.size()))
        return false;
    if (!text.empty())
        // NOLINTNEXTLINE(clang-analyzer-core.NonNullParamChecker): there is room, so there are items
        memcpy(array.items + array.count, text.data(), text.size());
    array.count += text.size();
    return true;
}

template <typename T>
void release_array(growing_array<T> &array)
{
    memory::release(array.items);
    array = {};
}

// A piece of text inside a growing_array<char>, valid however often the array moves.
struct text_span {
    size_t start = 0;
    size_t length = 0;
};

inline std::string_view view(const growing_array<char> &array, text_span span)
{
    return span.length == 0 ? std::string_view() : std::string_view(array.items + span.start, span.length);
}

// Appends a text and says where it went; false when memory is out.
inline bool keep_text(growing_array<char> &array, std::string_view text, text_span &span)
{
    span = {array.count, text.size()};
    return append_text(array, text);
}

}  // namespace inv::xml

#endif
