// The attribute names that a document has used so far. Documents repeat them in the same order from tag
// to tag: the one that followed last time is compared first, and a name that is found equal to a known
// one needs neither be checked nor hashed again.
#ifndef PLATFORM_XML_KNOWN_NAMES_H
#define PLATFORM_XML_KNOWN_NAMES_H

#include "octets.h"

#include <string_view>

namespace inv::xml
{

// A name without colon that declares no namespace.
struct known_name {
    static constexpr size_t greatest_length = 32;

    char octets[greatest_length];  // the name, then zeros
    uint64_t last_mask;            // of the octets that count in the name's last word of eight
    uint32_t length;
    uint32_t hash;
    uint64_t bit;      // one for each known name
    known_name *next;  // what followed it last time, or null
};

// Names stay where they are. Once all places are taken, further names are just not known.
struct known_names {
    static constexpr size_t limit = 64;  // one bit each
    static constexpr size_t slot_count = 4 * limit;

    known_name start;  // its `next` is a tag's first attribute
    known_name names[limit];
    uint32_t count;
    uint8_t slots[slot_count];  // by hash: number of the name plus 1, or 0
};

// Whether `at` begins with the name; may look at greatest_length octets from there.
inline bool begins_with(const char *at, const known_name &name)
{
    size_t i = 0;
    for (; i + 8 < name.length; i += 8) {
        if (!same_word<uint64_t>(at + i, name.octets + i))
            return false;
    }
    return ((word_at<uint64_t>(at + i) ^ word_at<uint64_t>(name.octets + i)) & name.last_mask) == 0;
}

// The known name, made known if there is room for it; or null.
known_name *know_name(known_names &all, std::string_view text, uint32_t hash);

}  // namespace inv::xml

#endif
