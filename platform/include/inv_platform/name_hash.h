/* The hash of names and tokens: the same whether a table is made at compile time or a name is read
 * from a document. Not meant to resist an attacker: whoever looks names up by it compares them, and
 * never has more candidates than rows in a table of its own. C++ only. */
#ifndef INV_PLATFORM_NAME_HASH_H
#define INV_PLATFORM_NAME_HASH_H

#ifdef __cplusplus

#include <bit>
#include <stddef.h>
#include <stdint.h>
#include <string.h>
#include <type_traits>

namespace inv
{

namespace hashing
{

constexpr uint64_t word_of(const char *text, size_t octets)
{
    uint64_t word = 0;
    for (size_t i = 0; i < octets; ++i)
        word |= static_cast<uint64_t>(static_cast<unsigned char>(text[i])) << (8 * i);
    return word;
}

template <class Word>
inline uint64_t load(const char *text)
{
    Word word;
    memcpy(&word, text, sizeof word);
    return word;
}

// The same as word_of() for up to eight octets, by whole loads where a processor has them.
constexpr uint64_t short_word(const char *text, size_t octets)
{
    if (std::is_constant_evaluated() || octets < 4 || std::endian::native != std::endian::little)
        return word_of(text, octets);
    return load<uint32_t>(text) | load<uint32_t>(text + octets - 4) << (8 * (octets - 4));
}

constexpr uint64_t full_word(const char *text)
{
    bool by_octets = std::is_constant_evaluated() || std::endian::native != std::endian::little;
    return by_octets ? word_of(text, 8) : load<uint64_t>(text);
}

constexpr uint64_t mixed(uint64_t state, uint64_t word)
{
    state = (state ^ word) * 0x9E3779B97F4A7C15U;
    return state ^ (state >> 29);
}

}  // namespace hashing

/* Never 0, which marks rows without a hash. Names and tokens differ in their last 16 octets, if not in
 * length: of longer ones no more is looked at. */
constexpr uint32_t name_hash(const char *text, size_t length)
{
    using namespace hashing;
    uint64_t state = length;
    if (length > 8)
        state = mixed(state, full_word(length > 16 ? text + length - 16 : text));
    // The last word overlaps the one before it rather than ending in the middle.
    uint64_t last = length < 8 ? short_word(text, length) : full_word(text + length - 8);
    state = mixed(state, last);
    return static_cast<uint32_t>(state >> 32) | 1U;
}

}  // namespace inv

#endif

#endif
