// The trace lines of access sequences as they have to be written.
#ifndef TESTS_UNIT_ACCESS_SEQUENCE_LINES_H
#define TESTS_UNIT_ACCESS_SEQUENCE_LINES_H

#include "support/trace_recorder.h"

#include <gtest/gtest.h>
#include <iterator>

namespace sequence_world
{

inline constexpr uint32_t first_line_id = 54;

// By id, from first_line_id on. Clients' tools match the texts, blanks included.
inline constexpr const char *line_texts[] = {
    // I2C
    "NULL XML handle passed. \n",
    "No i2c xml instance avl node. \n",
    "NO my id_1. \n",
    "No parent i2c xml instance avl node. \n",
    "\n",
    "Exceeding Max XML Instance. \n",
    "NO my id_2. \n",
    "EID not present in DB. \n",
    // PCIe
    "NULL XML handle passed. \n",
    "No pcie xml instance avl node. \n",
    "NO my id_1. \n",
    "No parent pcie xml instance avl node. \n",
    "\n",
    "Exceeding Max XML Instance. \n",
    "NO my id_2. \n",
    "EID not present in DB. \n",
    "pcie access seq by eid failed. \n",
    // Command lists and ID EEPROMs
    "\n",
    "Unknown container type. \n",
    "Chassis EID not present in DB. \n",
    "EID data not present in DB. \n",
    "Chassis EID data NULL. \n",
    "Unknown container type passed. \n",
    "i2c_seq_temp calloc failed. \n",
    "Remote idprom access seq failed. \n",
    "cc_slot0_i2c access seq failed. \n",
    "\n",
    "cc_slot1_i2c access seq failed. \n",
    "\n",
    // Devices seen from control cards: I2C, then PCIe
    "i2c_seq_temp calloc failed. \n",
    "cc_slot0_i2c access seq failed. \n",
    "cc_slot1_i2c access seq failed. \n",
    "EID not present in DB. \n",
    "\n",
    "\n",
    "pcie_seq_temp calloc failed. \n",
    "cc_slot0_pcie access seq failed. \n",
    "cc_slot1_pcie access seq failed. \n",
    "EID not present in DB. \n",
    "\n",
    "\n",
};
static_assert(std::size(line_texts) == 41, "ids 54 to 94");

// Compares every recorded line that is one of these; the others belong to the functions called.
inline void expect_lines_as_listed()
{
    for (const trace_recorder::line &each : trace_recorder::lines()) {
        if (each.id < first_line_id || each.id - first_line_id >= std::size(line_texts))
            continue;
        trace_recorder::line listed = {each.id, 4, 0, "", line_texts[each.id - first_line_id]};
        EXPECT_TRUE(each == listed) << each.id << " size word " << each.size_word << ' ' << each.text;
    }
}

}  // namespace sequence_world

#endif
