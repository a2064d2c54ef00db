/* All entities of a type and subtype. EIDs count the subtype within its type. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    const uint8_t i2c_mux = ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX - ORVL_ENTITY_SUBTYPE_MODULE_DUMMY;
    const uint8_t subtypes[] = {i2c_mux, INV_ANY_SUBTYPE};
    for (int i = 0; i < 2; ++i) {
        uint16_t count = 0;
        sch_eid_type *eids = NULL;
        check(inv_parser_get_eid_by_type_subtype(card, ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_TYPE_MODULE,
                                                 subtypes[i], &count, &eids),
              "query by type and subtype");
        printf("subtype %u: %u modules\n", (unsigned)subtypes[i], (unsigned)count);
        inv_parser_free_eid_tree(eids);
    }
    inv_parser_close_xml_file(card);
    return 0;
}
