// The part of a document that the fast source looks at: read in pieces, moved along, grown to the
// longest token. Never a mapping: a file that is cut while it is read just ends.
#ifndef PLATFORM_XML_WINDOW_H
#define PLATFORM_XML_WINDOW_H

#include "event_source.h"

namespace inv::xml
{

// Zero octets behind the data: no XML character, so that scans stop there without looking at the end,
// and room for a scan to read whole vectors.
constexpr size_t window_padding = 64;

struct window {
    input *in;
    size_t chunk_size;  // octets asked for at once
    char *octets;
    size_t capacity;  // without the padding
    char *end;        // of the data
    bool at_end;      // the document has no more than this
    int read_error;   // of the system; 0: none. Reading is over then
    position start;   // of octets[0], complete
    position found;   // last place that was completed, not before start
};

enum class refill_result : uint8_t { more, end_of_input, no_memory };

bool open_window(window &view, input &in, size_t chunk_size);
void close_window(window &view);

// Drops everything in front of `keep` and reads more behind the rest: at least as much as is kept,
// unless the document ends. `keep` goes where its octet goes, also when memory is out. Whatever else
// pointed in is invalid.
refill_result refill(window &view, const char *&keep);

inline uint64_t offset_of(const window &view, const char *at)
{
    return view.start.offset + static_cast<uint64_t>(at - view.octets);
}

// Works out line and column of a place inside the window. Places near the last one are cheap.
void locate(window &view, position &place);

}  // namespace inv::xml

#endif
