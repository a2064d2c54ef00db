#include "scan.h"

#include <algorithm>

namespace inv::xml
{

#if defined(__SSE2__) && !defined(INV_SCAN_BY_WORDS)

uint64_t count_octets(const char *from, const char *to, char wanted)
{
    constexpr ptrdiff_t octets_per_sum = ptrdiff_t{252} * 16;  // no octet of the sum overflows
    const __m128i key = splat(wanted);
    uint64_t count = 0;
    while (to - from >= 64) {
        const char *stop = from + std::min(to - from, octets_per_sum) / 64 * 64;
        __m128i sum = _mm_setzero_si128();
        for (; from < stop; from += 64) {
            __m128i first = _mm_add_epi8(_mm_cmpeq_epi8(octet_block(from).octets, key),
                                         _mm_cmpeq_epi8(octet_block(from + 16).octets, key));
            __m128i second = _mm_add_epi8(_mm_cmpeq_epi8(octet_block(from + 32).octets, key),
                                          _mm_cmpeq_epi8(octet_block(from + 48).octets, key));
            sum = _mm_sub_epi8(sum, _mm_add_epi8(first, second));
        }
        __m128i halves = _mm_sad_epu8(sum, _mm_setzero_si128());
        count += static_cast<uint64_t>(_mm_cvtsi128_si64(halves));
        count += static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(halves, halves)));
    }
    return count + static_cast<uint64_t>(std::count(from, to, wanted));
}

#else

uint64_t count_octets(const char *from, const char *to, char wanted)
{
    uint64_t count = 0;
    for (; to - from >= 8; from += 8)
        count += static_cast<uint64_t>(std::popcount(equal_to(octet_block(from), wanted)));
    return count + static_cast<uint64_t>(std::count(from, to, wanted));
}

#endif

}  // namespace inv::xml
