// Comparing short runs of octets where they stand, without a call: names and tokens have few.
#ifndef PLATFORM_XML_OCTETS_H
#define PLATFORM_XML_OCTETS_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace inv::xml
{

template <typename Word>
inline Word word_at(const char *at)
{
    Word word;
    memcpy(&word, at, sizeof word);
    return word;
}

template <typename Word>
inline bool same_word(const char *a, const char *b)
{
    return word_at<Word>(a) == word_at<Word>(b);
}

// The last word overlaps the one before it, so that nothing behind the octets is looked at.
inline bool same_octets(const char *a, const char *b, size_t count)
{
    if (count < 8) {
        if (count >= 4)
            return same_word<uint32_t>(a, b) && same_word<uint32_t>(a + count - 4, b + count - 4);
        bool same = true;
        for (size_t i = 0; i < count; ++i)
            same = same && a[i] == b[i];
        return same;
    }
    for (size_t at = 0; at + 8 < count; at += 8) {
        if (!same_word<uint64_t>(a + at, b + at))
            return false;
    }
    return same_word<uint64_t>(a + count - 8, b + count - 8);
}

}  // namespace inv::xml

#endif
