// Debug walks. Two of them lost their output long ago.
#include "inv_parser/tree_internal.h"

#include <stdio.h>

namespace
{

void print_triple(const char *prefix, const sch_base_entity_type *record)
{
    if (record == nullptr)
        return;
    printf("%s.type %d\n", prefix, record->type);
    printf("%s.subtype %d\n", prefix, record->subtype);
    printf("%s.instance %d\n", prefix, record->instance);
}

}  // namespace

uint32_t parser_display_parent_child(eid_chain_node *)
{
    return 0;
}

uint16_t parser_display_global_eid_info(void)
{
    return global_eid_count;
}

void parser_display_eid_chain(void)
{
    for (const eid_chain_node *node = root_eid; node != nullptr; node = node->next_sibling) {
        if (node != root_eid && node->parent != nullptr)
            print_triple("parent_eid", node->parent->record);
        print_triple("eid", node->record);
        puts("&*&*&*&*&*&*&");
    }
}
