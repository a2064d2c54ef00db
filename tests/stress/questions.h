// Every question that a client can ask about open documents, and what the library answers, in a form that can
// be compared: no pointer, only what stands behind them.
#ifndef TESTS_STRESS_QUESTIONS_H
#define TESTS_STRESS_QUESTIONS_H

#include "inv_parser/inv_parser.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace stress
{

// In the order of the table in questions.cpp.
enum class about : uint8_t {
    root_eid,
    tree,
    by_type,
    by_subtype,
    record,
    i2c_by_instance,
    i2c_by_eid,
    pcie_by_instance,
    pcie_by_eid,
    sequence_info,
    container_type,
    file_name,
    // The rest is asked with the control card and the chassis open as well.
    i2c_from_card,
    pcie_from_card,
    idprom,
    remote_idprom,
};
inline constexpr size_t question_kinds = 16;

// Held open by whoever asks. card and chassis may be null for questions that do without them.
struct open_files {
    inv_xml_handle *asked;
    inv_xml_handle *card;
    inv_xml_handle *chassis;
};

struct question {
    about what;
    bool whole_tree;  // tree: of the top entity
    uint32_t first;   // owner, xml instance, node type
    uint32_t second;  // type, position
    uint32_t third;   // subtype
    sch_eid_type eid;
};

bool needs_card(const question &asked);

// Makes one call of a query or sequence and releases what it gave. The octets of the result, of counts and of
// what was answered.
std::string answer(const open_files &files, const question &asked);

// What there is to ask about files.asked, EIDs and xml instances that it does not have included.
std::vector<question> questions_about(const open_files &files);

}  // namespace stress

#endif
