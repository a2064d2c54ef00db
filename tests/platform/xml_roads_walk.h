// One walk through a whole document by way of the public runtime, written down as text, so that the two
// roads that the reader can take through a document can be compared. No test framework: fuzzers use it.
#ifndef TESTS_PLATFORM_XML_ROADS_WALK_H
#define TESTS_PLATFORM_XML_ROADS_WALK_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

struct road {
    bool slow;
    size_t chunk_size;  // 0: the usual one
};

struct walk_result {
    std::string events;
    int32_t status = 0;
    // Of a failure.
    std::string reason;
    uint64_t line = 0;
    uint64_t column = 0;
    uint64_t offset = 0;
};

// `seed` decides what is asked for on the way: places, values, open content, tags pushed back. The same
// seed asks the same of the same events.
walk_result walk(std::string_view document, road which, uint64_t seed);

// What two roads have to agree on: everything but the column and the offset of a failure. Empty when
// they do; else the first difference.
std::string difference(const walk_result &expected, const walk_result &found);

// What the two roads through a document differ in when the fast one reads pieces of these sizes (0: the
// usual one); empty: nothing.
//
// Expat is asked for the whole document at once, since it counts CR LF in front of and behind the root
// element as two line ends when the two come in different pieces. A document that the fast road leaves to
// it in small pieces has that fault too, so being at one with expat in the same pieces will do.
std::string compare_roads(std::string_view document, std::span<const size_t> chunk_sizes, uint64_t seed);

#endif
