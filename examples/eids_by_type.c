/* All entities of a type, of every owner and of one. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    const uint32_t owners[] = {ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_OWNER_TYPE_QZ_SDR};
    for (int i = 0; i < 2; ++i) {
        uint16_t count = 0;
        sch_eid_type *eids = NULL;
        check(inv_parser_get_eid_by_type(card, owners[i], ORVL_ENTITY_TYPE_PORT, &count, &eids),
              "query by type");
        printf("owner %u: %u ports\n", (unsigned)owners[i], (unsigned)count);
        inv_parser_free_eid_tree(eids);
    }
    inv_parser_close_xml_file(card);
    return 0;
}
