// What is asked about a hostile document, and how it was answered.
#ifndef TESTS_HOSTILE_HOSTILE_QUESTIONS_H
#define TESTS_HOSTILE_HOSTILE_QUESTIONS_H

#include "inv_parser/inv_parser.h"

#include <cstdint>
#include <ostream>

namespace hostile
{

// Questions of one kind. Neither answered nor refused: the call succeeds and has nothing to hand out.
struct tally {
    uint64_t asked = 0;
    uint64_t answered = 0;
    uint64_t refused = 0;  // the call failed

    void count(uint32_t result, bool has_answer)
    {
        ++asked;
        answered += has_answer;
        refused += result != 0;
    }
    bool operator==(const tally &) const = default;
};

struct answers {
    tally records;      // of entities, by their EIDs
    tally by_instance;  // ways
    tally by_eid;
    tally from_card;

    bool operator==(const answers &) const = default;
};

void PrintTo(const answers &each, std::ostream *out);

using questions = answers (*)(inv_xml_handle *);

// The record of each entity.
answers every_record(inv_xml_handle *handle);

// The way to each xml instance that there can be and to each entity; to the latter also as seen from the
// control card, which is the same document, with the entities' unit in slot 0.
answers every_i2c_way(inv_xml_handle *handle);
answers every_pcie_way(inv_xml_handle *handle);

// The way from the control card to the last entity, with its unit in each of the first 30,000 slots in turn.
inline constexpr uint32_t many_slots = 30000;
answers i2c_way_over_every_slot(inv_xml_handle *handle);
answers pcie_way_over_every_slot(inv_xml_handle *handle);

}  // namespace hostile

#endif
