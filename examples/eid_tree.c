/* The EIDs of an entity and of everything below it. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    uint32_t count = 0;
    sch_eid_type *eids = NULL;
    check(inv_parser_get_eid_tree(card, ORVL_ENTITY_OWNER_TYPE_ALL, NULL, &eids, &count), "EID tree");
    unsigned deepest = 0;
    for (uint32_t i = 0; i < count; ++i)
        deepest = eids[i].depth > deepest ? eids[i].depth : deepest;
    printf("%u entities, %u levels\n", (unsigned)count, deepest);
    inv_parser_free_eid_tree(eids);
    inv_parser_close_xml_file(card);
    return 0;
}
