#include "scan.h"

#include <algorithm>

namespace inv::xml
{

namespace
{

bool is_continuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

#if defined(__SSE2__) && !defined(INV_SCAN_BY_WORDS)

// How many octets of the whole blocks from `from` on are marked, all bits of each; goes behind them.
template <typename MarksOf>
uint64_t count_marked(const char *&from, const char *to, MarksOf marks_of)
{
    constexpr ptrdiff_t octets_per_sum = ptrdiff_t{252} * 16;  // no octet of the sum overflows
    uint64_t count = 0;
    while (to - from >= 64) {
        const char *stop = from + std::min(to - from, octets_per_sum) / 64 * 64;
        __m128i sum = _mm_setzero_si128();
        for (; from < stop; from += 64) {
            __m128i first = _mm_add_epi8(marks_of(octet_block(from)), marks_of(octet_block(from + 16)));
            __m128i second = _mm_add_epi8(marks_of(octet_block(from + 32)), marks_of(octet_block(from + 48)));
            sum = _mm_sub_epi8(sum, _mm_add_epi8(first, second));
        }
        __m128i halves = _mm_sad_epu8(sum, _mm_setzero_si128());
        count += static_cast<uint64_t>(_mm_cvtsi128_si64(halves));
        count += static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(halves, halves)));
    }
    return count;
}

#else

template <typename MarksOf>
uint64_t count_marked(const char *&from, const char *to, MarksOf marks_of)
{
    uint64_t count = 0;
    for (; to - from >= 8; from += 8)
        count += static_cast<uint64_t>(std::popcount(marks_of(octet_block(from))));
    return count;
}

#endif

}  // namespace

uint64_t count_octets(const char *from, const char *to, char wanted)
{
    uint64_t count =
        count_marked(from, to, [wanted](const octet_block &block) { return equal_to(block, wanted); });
    return count + static_cast<uint64_t>(std::count(from, to, wanted));
}

uint64_t count_characters(const char *from, const char *to)
{
    auto octets = static_cast<uint64_t>(to - from);
    uint64_t count = count_marked(from, to, continuation_marks);
    return octets - count - static_cast<uint64_t>(std::count_if(from, to, is_continuation));
}

}  // namespace inv::xml
