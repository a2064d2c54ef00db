// Trace sites: trace<msg::led_list_null>() writes one line of the catalogue on the library's channel.
// The compiler rejects a wrong number or kind of arguments.
#ifndef FRAME_TRACE_H
#define FRAME_TRACE_H

#include "frame/channel.h"
#include "inv_parser/frame.h"
#include "inv_platform/trace.h"

#include <stddef.h>
#include <stdint.h>
#include <type_traits>
#include <utility>

namespace inv::trace_rules
{

consteval uint32_t count(const char *kinds, char kind)
{
    uint32_t found = 0;
    for (; *kinds != '\0'; ++kinds)
        found += *kinds == kind ? 1 : 0;
    return found;
}

consteval uint32_t size_word(const char *kinds)
{
    uint32_t words = count(kinds, 'd') + 2 * count(kinds, 'D');
    return 4 + words + (words >= 6 ? 1 : 0);
}

// Kind of the argument that a conversion takes; '\0' for one the catalogue does not use.
consteval char kind_of(char conversion)
{
    switch (conversion) {
    case 's':
        return 's';
    case 'd':
    case 'x':
        return 'd';
    case 'p':
        return 'D';
    default:
        return '\0';
    }
}

// True when every conversion of the format (flags and field widths allowed) takes the next kind, none is
// left over and the line ends with a newline.
consteval bool agrees(const char *format, const char *kinds)
{
    char last = '\0';
    for (; *format != '\0'; ++format) {
        last = *format;
        if (*format != '%')
            continue;
        ++format;
        while (*format >= '0' && *format <= '9')
            ++format;
        if (*kinds == '\0' || kind_of(*format) != *kinds)
            return false;
        ++kinds;
    }
    return *kinds == '\0' && last == '\n';
}

template <class Argument>
concept text_argument = std::is_convertible_v<Argument, const char *>;

template <class Argument>
concept word_argument = (std::is_integral_v<Argument> || std::is_enum_v<Argument>)&&sizeof(Argument) <= 4;

template <class Argument>
concept wide_argument = std::is_pointer_v<Argument> ||
    (std::is_integral_v<Argument> && sizeof(Argument) == sizeof(void *));

template <char Kind, class Argument>
concept fits = (Kind == 's' && text_argument<Argument>) || (Kind == 'd' && word_argument<Argument>) ||
               (Kind == 'D' && wide_argument<Argument>);

template <class Message, class... Arguments, size_t... Index>
consteval bool fit_all(std::index_sequence<Index...>)
{
    return (fits<Message::kinds[Index], Arguments> && ...);
}

template <class Message, class... Arguments>
consteval bool takes()
{
    if constexpr (sizeof...(Arguments) == sizeof(Message::kinds) - 1)
        return fit_all<Message, Arguments...>(std::index_sequence_for<Arguments...>());
    else
        return false;
}

// The argument as the trace library takes it.
template <char Kind, class Argument>
auto passed(Argument argument) noexcept
{
    if constexpr (Kind == 's') {
        const char *text = argument;
        return text != nullptr ? text : "";
    } else if constexpr (Kind == 'd') {
        return static_cast<int32_t>(argument);
    } else if constexpr (std::is_pointer_v<Argument>) {
        return static_cast<const void *>(argument);
    } else {
        return reinterpret_cast<const void *>(static_cast<uintptr_t>(argument));
    }
}

template <class Message, size_t... Index, class... Arguments>
int32_t write(void *channel, std::index_sequence<Index...>, Arguments... arguments) noexcept
{
    return qtrace_internal(channel, Message::id, Message::size_word, Message::has_string, Message::kinds,
                           Message::format, passed<Message::kinds[Index]>(arguments)...);
}

}  // namespace inv::trace_rules

// One type per row of the catalogue.
namespace inv::msg
{

#define INV_TRACE_MESSAGE(number, size, argument_kinds, name, text)                                          \
    struct name {                                                                                            \
        static constexpr uint32_t id = number;                                                               \
        static constexpr uint32_t size_word = size;                                                          \
        static constexpr char kinds[] = argument_kinds;                                                      \
        static constexpr char format[] = text;                                                               \
        static constexpr uint32_t has_string = trace_rules::count(argument_kinds, 's') > 0 ? 1 : 0;          \
        static_assert(trace_rules::agrees(text, argument_kinds), "the format disagrees with the kinds");     \
        static_assert(trace_rules::size_word(argument_kinds) == (size), "wrong size word for the kinds");    \
    };
#include "frame/trace_messages.def"
#undef INV_TRACE_MESSAGE

}  // namespace inv::msg

namespace inv
{

// Writes the line and returns the trace library's result. Without an open channel: nothing is written, 22.
// A null text is written as an empty one.
template <class Message, class... Arguments>
requires(trace_rules::takes<Message, Arguments...>()) uint32_t trace(Arguments... arguments)
noexcept
{
    // Most sites are silent most of the time: that is decided here, without a call.
    if (frame::trace_ready.load(std::memory_order_relaxed) == 0)
        return frame::channel_not_ready;
    void *channel = nullptr;
    uint32_t not_ready = inv_schema_get_qtrace_hdl(&channel);
    if (not_ready != 0)
        return not_ready;
    return static_cast<uint32_t>(
        trace_rules::write<Message>(channel, std::index_sequence_for<Arguments...>(), arguments...));
}

}  // namespace inv

#endif
