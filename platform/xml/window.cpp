#include "window.h"

#include "inv_platform/system_memory.h"
#include "scan.h"

#include <algorithm>
#include <cstring>

namespace inv::xml
{

namespace
{

constexpr size_t least_capacity = 4096;
// Longer tokens do not fit the runtime's counters, nor expat's.
constexpr size_t greatest_capacity = size_t{1} << 30;

// CR, LF and CR LF each end a line; the last octet may look at what follows it.
uint64_t count_line_ends(const char *from, const char *to)
{
    uint64_t count = count_octets(from, to, '\n');
    auto size = static_cast<size_t>(to - from);
    if (size == 0 || memchr(from, '\r', size) == nullptr)
        return count;
    for (const char *at = from; at < to; ++at)
        count += at[0] == '\r' && at[1] != '\n';
    return count;
}

// Moves `from` to where the line of `at` starts; false when that is before `from`, which stays.
bool find_line_start(const char *&from, const char *at)
{
    while (at > from) {
        char before = at[-1];
        if (before == '\n' || (before == '\r' && *at != '\n')) {
            from = at;
            return true;
        }
        --at;
    }
    return false;
}

// The place of `at`, from that of an octet in front of it.
position counted_from(const position &known, const char *known_at, const char *at)
{
    position place = known;
    place.offset += static_cast<uint64_t>(at - known_at);
    place.line += count_line_ends(known_at, at);
    if (place.line != known.line && find_line_start(known_at, at))
        place.column = 1;
    place.column += count_characters(known_at, at);
    return place;
}

// The place of `at`, from that of an octet behind it.
position counted_back(const window &view, const char *at, const char *found_at)
{
    position place = view.found;
    place.offset -= static_cast<uint64_t>(found_at - at);
    place.line -= count_line_ends(at, found_at);
    if (place.line == view.found.line) {
        place.column -= count_characters(at, found_at);
        return place;
    }
    const char *start = view.octets;
    place.column = find_line_start(start, at) ? 1 : view.start.column;
    place.column += count_characters(start, at);
    return place;
}

// Makes room for as many octets behind the data as there are, at least a chunk.
bool grow(window &view)
{
    auto used = static_cast<size_t>(view.end - view.octets);
    size_t wanted = std::max({used + std::max(used, view.chunk_size), least_capacity});
    if (wanted <= view.capacity)
        return true;
    if (used > greatest_capacity)
        return false;
    void *grown = memory::resize(view.octets, wanted + window_padding);
    if (grown == nullptr)
        return false;
    view.octets = static_cast<char *>(grown);
    view.end = view.octets + used;
    view.capacity = wanted;
    return true;
}

void drop(window &view, const char *keep)
{
    // Whether a CR at the very end is a line end of its own shows only with the next octet.
    if (keep == view.end && keep > view.octets && keep[-1] == '\r')
        --keep;
    if (keep == view.octets)
        return;
    const char *found_at = view.octets + (view.found.offset - view.start.offset);
    bool is_ahead = found_at <= keep;
    view.start =
        is_ahead ? counted_from(view.found, found_at, keep) : counted_from(view.start, view.octets, keep);
    if (is_ahead)
        view.found = view.start;
    auto kept = static_cast<size_t>(view.end - keep);
    memmove(view.octets, keep, kept);
    view.end = view.octets + kept;
}

}  // namespace

bool open_window(window &view, input &in, size_t chunk_size)
{
    view = {};
    view.in = &in;
    view.chunk_size = std::clamp(chunk_size, size_t{1}, greatest_capacity / 2);
    view.start = view.found = {1, 1, 0};
    view.octets = view.end = nullptr;
    if (!grow(view))
        return false;
    memset(view.end, 0, window_padding);
    return true;
}

void close_window(window &view)
{
    memory::release(view.octets);
    view = {};
}

refill_result refill(window &view, const char *&keep)
{
    uint64_t keep_offset = offset_of(view, keep);
    drop(view, keep);
    if (!grow(view)) {
        memset(view.end, 0, window_padding);
        keep = view.octets + (keep_offset - view.start.offset);
        return refill_result::no_memory;
    }
    auto kept = static_cast<size_t>(view.end - view.octets);
    // Twice the token at least: a token that comes in small pieces is then not looked at too often.
    size_t wanted = std::max(kept, size_t{1});
    size_t taken = 0;
    while (taken < wanted && !view.at_end && view.read_error == 0) {
        auto room = static_cast<size_t>(view.octets + view.capacity - view.end);
        ptrdiff_t count = input_read(*view.in, view.end, std::min(room, view.chunk_size), &view.read_error);
        view.at_end = count == 0;
        taken += static_cast<size_t>(std::max(count, ptrdiff_t{0}));
        view.end += std::max(count, ptrdiff_t{0});
    }
    memset(view.end, 0, window_padding);
    keep = view.octets + (keep_offset - view.start.offset);
    return taken > 0 ? refill_result::more : refill_result::end_of_input;
}

void locate(window &view, position &place)
{
    const char *at = view.octets + (place.offset - view.start.offset);
    const char *found_at = view.octets + (view.found.offset - view.start.offset);
    place = at >= found_at ? counted_from(view.found, found_at, at) : counted_back(view, at, found_at);
    view.found = place;
}

}  // namespace inv::xml
