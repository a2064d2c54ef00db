// Control-card slot lists.
#include "frame/file_memory.h"
#include "inv_parser/tree_internal.h"

sch_cc_slot_xml_inst_type *parser_verify_is_slot_xml_inst_available(sch_cc_slot_xml_inst_type *list,
                                                                    uint32_t key, uint32_t)
{
    auto wanted = static_cast<uint16_t>(key);
    while (list != nullptr && list->key != wanted)
        list = list->next;
    return list;
}

uint32_t parser_insert_cc_slot_xml_inst(sch_cc_slot_xml_inst_type **heads, uint32_t index,
                                        sch_cc_slot_xml_inst_type *record)
{
    if (heads == nullptr || index >= INV_CC_SLOT_LIST_COUNT)
        return 1;
    sch_cc_slot_xml_inst_type **link = &heads[index];
    while (*link != nullptr)
        link = &(*link)->next;
    *link = record;
    return 1;
}

void parser_free_cc_slot_xml_inst(sch_cc_slot_xml_inst_type **heads)
{
    for (int i = 0; heads != nullptr && i < INV_CC_SLOT_LIST_COUNT; ++i) {
        while (heads[i] != nullptr) {
            sch_cc_slot_xml_inst_type *next = heads[i]->next;
            inv::record_free(heads[i]);
            heads[i] = next;
        }
    }
}
