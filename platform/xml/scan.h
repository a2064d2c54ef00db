// Searches through document octets, many at a time: with the vectors that every processor of the
// target has, else with 64-bit words. They stop at octet 0 at the latest, which always follows the
// data, and may look at window_padding octets from there.
#ifndef PLATFORM_XML_SCAN_H
#define PLATFORM_XML_SCAN_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) && !defined(INV_SCAN_BY_WORDS)
#include <emmintrin.h>
#endif

namespace inv::xml
{

#if defined(__SSE2__) && !defined(INV_SCAN_BY_WORDS)

// One result bit for each octet.
struct octet_block {
    static constexpr size_t size = 16;
    __m128i octets;

    explicit octet_block(const char *at) : octets(_mm_loadu_si128(reinterpret_cast<const __m128i *>(at))) {}
};

inline __m128i splat(char c)
{
    return _mm_set1_epi8(c);
}

using octet_marks = __m128i;

inline octet_marks equal_to(const octet_block &block, char c)
{
    return _mm_cmpeq_epi8(block.octets, splat(c));
}

// Octets first .. first + span, as unsigned numbers.
inline octet_marks within(const octet_block &block, char first, char span)
{
    __m128i distance = _mm_sub_epi8(block.octets, splat(first));
    return _mm_cmpeq_epi8(_mm_min_epu8(distance, splat(span)), distance);
}

// The same for letters whatever their case.
inline octet_marks within_letters(const octet_block &block)
{
    __m128i distance = _mm_sub_epi8(_mm_or_si128(block.octets, splat(0x20)), splat('a'));
    return _mm_cmpeq_epi8(_mm_min_epu8(distance, splat('z' - 'a')), distance);
}

inline octet_marks beyond_ascii(const octet_block &block)
{
    return block.octets;
}

// What follows the first octet of a UTF-8 character: as signed numbers the least ones.
inline octet_marks continuation_marks(const octet_block &block)
{
    return _mm_cmplt_epi8(block.octets, splat(static_cast<char>(0xC0)));
}

// Control octets and those beyond ASCII: as signed numbers they all lie below the blank. The sign counts
// only, so that one saturating difference will do.
inline octet_marks not_printable(const octet_block &block)
{
    return _mm_subs_epi8(block.octets, splat(0x20));
}

inline octet_marks either(octet_marks a, octet_marks b)
{
    return _mm_or_si128(a, b);
}

// The marks as bits, and the index of the octet that the lowest one stands for.
using mark_bits = uint32_t;

inline mark_bits bits_of(octet_marks marks)
{
    return static_cast<mark_bits>(_mm_movemask_epi8(marks));
}

inline mark_bits unmarked_bits_of(octet_marks marks)
{
    return bits_of(marks) ^ 0xFFFFU;
}

inline size_t first_of(mark_bits bits)
{
    return static_cast<size_t>(std::countr_zero(bits));
}

#else

// The top bit of each octet is its result.
struct octet_block {
    static constexpr size_t size = 8;
    uint64_t octets;

    explicit octet_block(const char *at)
    {
        memcpy(&octets, at, sizeof octets);
        if constexpr (std::endian::native == std::endian::big)
            octets = __builtin_bswap64(octets);
    }
};

using octet_marks = uint64_t;
inline constexpr uint64_t every_octet = 0x0101010101010101U;
inline constexpr uint64_t top_bits = every_octet * 0x80;

// Exact for every octet: nothing is carried from one to the next.
inline octet_marks not_above(uint64_t octets, unsigned limit)
{
    uint64_t low = octets & ~top_bits;
    return ~(low + every_octet * (0x7F - limit)) & ~octets & top_bits;
}

inline octet_marks equal_to(const octet_block &block, char c)
{
    return not_above(block.octets ^ every_octet * static_cast<unsigned char>(c), 0);
}

inline octet_marks within(const octet_block &block, char first, char span)
{
    auto least = static_cast<unsigned char>(first);
    unsigned greatest = least + static_cast<unsigned char>(span);
    octet_marks below = least == 0 ? 0 : not_above(block.octets, least - 1U);
    return not_above(block.octets, greatest) & ~below;
}

inline octet_marks within_letters(const octet_block &block)
{
    octet_block folded = block;
    folded.octets |= every_octet * 0x20;
    return within(folded, 'a', 'z' - 'a');
}

inline octet_marks beyond_ascii(const octet_block &block)
{
    return block.octets & top_bits;
}

inline octet_marks continuation_marks(const octet_block &block)
{
    return block.octets & ~(block.octets << 1) & top_bits;
}

inline octet_marks not_printable(const octet_block &block)
{
    return not_above(block.octets, 0x1F) | beyond_ascii(block);
}

inline octet_marks either(octet_marks a, octet_marks b)
{
    return a | b;
}

using mark_bits = uint64_t;

inline mark_bits bits_of(octet_marks marks)
{
    return marks & top_bits;
}

inline mark_bits unmarked_bits_of(octet_marks marks)
{
    return ~marks & top_bits;
}

inline size_t first_of(mark_bits bits)
{
    return static_cast<size_t>(std::countr_zero(bits)) / 8;
}

#endif

// From `at` to the first octet that `marks_of` marks.
template <typename MarksOf>
inline const char *scan_to(const char *at, MarksOf marks_of)
{
    for (;; at += octet_block::size) {
        const mark_bits bits = bits_of(marks_of(octet_block(at)));
        if (bits != 0)
            return at + first_of(bits);
    }
}

template <typename MarksOf>
inline const char *scan_over(const char *at, MarksOf marks_of)
{
    for (;; at += octet_block::size) {
        const mark_bits bits = unmarked_bits_of(marks_of(octet_block(at)));
        if (bits != 0)
            return at + first_of(bits);
    }
}

inline octet_marks white_space_marks(const octet_block &block)
{
    return either(either(equal_to(block, ' '), equal_to(block, '\n')),
                  either(equal_to(block, '\t'), equal_to(block, '\r')));
}

// To the first octet that is no white space but a CR, which text has to be rewritten for.
inline const char *skip_blanks(const char *at)
{
    return scan_over(at, [](const octet_block &block) {
        return either(either(equal_to(block, ' '), equal_to(block, '\n')), equal_to(block, '\t'));
    });
}

// To the first octet that is no white space.
inline const char *skip_white_space(const char *at)
{
    return scan_over(at, white_space_marks);
}

// To the first octet that is no ASCII name character. A colon, which means more, and others are left.
inline const char *skip_name(const char *at)
{
    return scan_over(at, [](const octet_block &block) {
        octet_marks digits = within(block, '0', '9' - '0');
        octet_marks marks = either(within_letters(block), digits);
        return either(marks, either(within(block, '-', '.' - '-'), equal_to(block, '_')));
    });
}

// Within an attribute value: to its end or to what has to be looked at.
inline const char *skip_value(const char *at, char quote)
{
    return scan_to(at, [quote](const octet_block &block) {
        octet_marks markup = either(equal_to(block, '<'), equal_to(block, '&'));
        return either(either(equal_to(block, quote), markup), not_printable(block));
    });
}

// Within text: to markup or to what has to be looked at.
inline const char *skip_text(const char *at)
{
    return scan_to(at, [](const octet_block &block) {
        octet_marks markup = either(equal_to(block, '<'), equal_to(block, '&'));
        return either(either(equal_to(block, ']'), markup), not_printable(block));
    });
}

// Within a comment, a processing instruction or a CDATA section: to `mark` or what has to be looked at.
inline const char *skip_to_mark(const char *at, char mark)
{
    return scan_to(
        at, [mark](const octet_block &block) { return either(equal_to(block, mark), not_printable(block)); });
}

uint64_t count_octets(const char *from, const char *to, char wanted);

// Of UTF-8: octets that begin one.
uint64_t count_characters(const char *from, const char *to);

}  // namespace inv::xml

#endif
