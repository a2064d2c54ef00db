#include "support/trace_recorder.h"

#include "frame/channel.h"
#include "inv_parser/frame.h"
#include "inv_platform/trace.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string_view>

namespace
{

struct recorder_state {
    std::mutex guard;
    std::vector<trace_recorder::line> lines;
    std::vector<trace_recorder::open_call> opens;
    std::vector<void *> configurations;
    std::vector<uint32_t> dump_on_exit;
    int32_t open_result = 0;
    int32_t enable_result = 0;
    int32_t write_result = 0;
};

recorder_state state;
int channel_object;
int no_channel_object;

template <class Value>
Value guarded(const Value &value)
{
    std::lock_guard<std::mutex> held(state.guard);
    return value;
}

std::string formatted(const char *format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    int length = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string text(length < 0 ? 0 : static_cast<size_t>(length), '\0');
    vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

// Length of the pointer that a text begins with, as printf writes it; 0: none. Shorter hexadecimal numbers
// are values, not pointers.
size_t pointer_length(std::string_view text)
{
    constexpr std::string_view null_pointer = "(nil)", prefix = "0x";
    constexpr size_t fewest_digits = 6;
    if (text.starts_with(null_pointer))
        return null_pointer.size();
    if (!text.starts_with(prefix))
        return 0;
    size_t end = std::min(text.find_first_not_of("0123456789abcdef", prefix.size()), text.size());
    return end < prefix.size() + fewest_digits ? 0 : end;
}

// The text in one line, pointers masked.
std::string masked(std::string_view text)
{
    std::string result;
    for (size_t at = 0; at < text.size();) {
        if (size_t length = pointer_length(text.substr(at)); length != 0) {
            result += "PTR";
            at += length;
        } else {
            result += text[at] == '\n' ? std::string_view("\\n") : text.substr(at, 1);
            ++at;
        }
    }
    return result;
}

}  // namespace

namespace trace_recorder
{

void start()
{
    void *channel = nullptr;
    if (inv_schema_get_qtrace_hdl(&channel) != 0)
        inv_parser_init(nullptr);
    clear();
}

void reset()
{
    inv::frame::inv_schema_trace_handle = nullptr;
    inv::frame::trace_ready = 0;
    inv::frame::debug_console = 0;
    std::lock_guard<std::mutex> held(state.guard);
    state.lines.clear();
    state.opens.clear();
    state.configurations.clear();
    state.dump_on_exit.clear();
    state.open_result = state.enable_result = state.write_result = 0;
}

void clear()
{
    std::lock_guard<std::mutex> held(state.guard);
    state.lines.clear();
}

std::vector<line> lines()
{
    return guarded(state.lines);
}

std::vector<uint32_t> ids()
{
    std::vector<uint32_t> numbers;
    for (const line &each : lines())
        numbers.push_back(each.id);
    return numbers;
}

std::string dump()
{
    std::string all;
    for (const line &each : lines())
        all += std::to_string(each.id) + ' ' + std::to_string(each.size_word) + ' ' +
               std::to_string(each.has_string) + " \"" + each.kinds + "\" " + masked(each.text) + '\n';
    return all;
}

std::vector<open_call> open_calls()
{
    return guarded(state.opens);
}

std::vector<void *> configurations()
{
    return guarded(state.configurations);
}

std::vector<uint32_t> dump_on_exit_calls()
{
    return guarded(state.dump_on_exit);
}

void set_open_result(int32_t result)
{
    state.open_result = result;
}

void set_enable_result(int32_t result)
{
    state.enable_result = result;
}

void set_write_result(int32_t result)
{
    state.write_result = result;
}

}  // namespace trace_recorder

int32_t qtrace_open_internal(void **handle, const char *name, uint32_t buffer_size, uint32_t flags,
                             const char *path, const char *catalogue_id, uint32_t zero)
{
    std::lock_guard<std::mutex> held(state.guard);
    state.opens.push_back({name, buffer_size, flags, path, catalogue_id, zero});
    *handle = state.open_result == 0 ? &channel_object : &no_channel_object;
    return state.open_result;
}

int32_t qtrace_internal(void *handle, uint32_t id, uint32_t size_word, uint32_t has_string, const char *kinds,
                        const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::string text = formatted(format, arguments);
    va_end(arguments);
    if (handle != &channel_object)
        text = "not written to the open channel: " + text;
    std::lock_guard<std::mutex> held(state.guard);
    state.lines.push_back({id, size_word, has_string, kinds, std::move(text)});
    return state.write_result;
}

int32_t qtrace_enable_configuration(void *, void *config)
{
    std::lock_guard<std::mutex> held(state.guard);
    state.configurations.push_back(config);
    return state.enable_result;
}

int32_t qtrace_set_dump_on_exit(void *, uint32_t on)
{
    std::lock_guard<std::mutex> held(state.guard);
    state.dump_on_exit.push_back(on);
    return 0;
}

uint32_t qtrace_read(void *, qtrace_line_reader reader, void *user)
{
    std::vector<trace_recorder::line> kept = trace_recorder::lines();
    for (const trace_recorder::line &each : kept)
        reader(user, each.id, each.text.c_str());
    return static_cast<uint32_t>(kept.size());
}
