/* From an EID to the entity's record. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_base_entity_type *entity = NULL;
    check(inv_parser_get_eid_data(card, &entity, nth_eid(card, ORVL_ENTITY_TYPE_SENSOR, 0)), "EID data");
    printf("%s, xml instance %u\n", entity->name, (unsigned)entity->xml_instance);
    inv_parser_close_xml_file(card);
    return 0;
}
