// What a document costs: processor time and greatest memory of an open, some questions and the close, in a
// process of its own, with the memory that products have.
#ifndef TESTS_HOSTILE_DOCUMENT_COST_H
#define TESTS_HOSTILE_DOCUMENT_COST_H

#include "hostile/hostile_questions.h"
#include "hostile/live_memory.h"

#include <cstdint>
#include <string>

namespace hostile
{

constexpr int64_t refused = -1;  // the open gave no handle
constexpr int64_t died = -2;     // no answer, or no clean end: crashed, or not ready after two minutes

// A hardware type that is a module.
constexpr uint32_t line_card = 3;

// A document in memory that has a file's name.
struct document {
    int descriptor = -1;
    std::string path;
    uint64_t octets = 0;
};

document make_document(const std::string &text);
// Begins with `text` and goes on with zero octets that take no room.
document make_sparse_document(const std::string &text, uint64_t octets);
void remove_document(document *d);

struct cost {
    int64_t entities = died;   // of the open file, or one of the above
    double seconds = 0;        // processor time
    uint64_t peak_octets = 0;  // beyond what the process had before
    answers found;             // by the questions
    live_memory left;          // not given back by the close, nor by the release of what the contract leaves
};

cost cost_of(const document &d, uint32_t pi_hw_type, questions ask);

// The cheapest of 3 to 15 runs of each, taken in turn so that both see the same load of the machine. Runs
// that differ in what they found count as died; of what they left, the most.
struct comparison {
    cost of_hostile;
    cost of_plain;
};
comparison compare(const document &of_hostile, uint32_t pi_hw_type, const document &plain, questions ask);

// A valid line card of about this many octets.
std::string plain_text(uint64_t octets);

// Sanitizers change what time and memory mean.
constexpr bool is_instrumented()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return true;
#elif defined(__has_feature)
    return __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
    return false;
#endif
}

}  // namespace hostile

#endif
