#include "access/control_card.h"

#include "access/slot_lookup.h"

using namespace inv;

slot_ways inv::find_slot_ways(inv_xml_handle *card, sch_cc_slot_xml_inst_type **heads, uint32_t type,
                              uint32_t position)
{
    if (type >= INV_CC_SLOT_LIST_COUNT)
        return {};
    const sch_cc_slot_xml_inst_type *element = find_filed_slot(card, heads, type, position);
    if (element == nullptr)
        return {};
    // Kept: of a channel or port 8 bits are read back.
    return {{element->slot0_parent_instance, static_cast<uint8_t>(element->slot0_channel)},
            {element->slot1_parent_instance, static_cast<uint8_t>(element->slot1_channel)}};
}

void inv_parser_free_remote_i2c_access_sequence(void *pair)
{
    if (pair == nullptr)
        return;
    // Pairs of both families are two pointers to plain blocks.
    void *sequences[2];
    static_assert(sizeof sequences == sizeof(sch_i2c_access_seq_pair_type) &&
                  sizeof sequences == sizeof(sch_pcie_access_seq_pair_type));
    memcpy(sequences, pair, sizeof sequences);
    memory::release(sequences[0]);
    memory::release(sequences[1]);
    memory::release(pair);
}
