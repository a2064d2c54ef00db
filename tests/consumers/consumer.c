/* A C11 client of the installed library: prints the sensors of the small line card. */
#include <stdio.h>

#include <inv_parser/inv_parser.h>
#include <inv_parser/loaders.h>
#include <inv_parser/record_builders.h>
#include <inv_parser/tree_internal.h>

static void print_sensor(inv_xml_handle *card, sch_eid_type eid)
{
    sch_base_entity_type *record = NULL;
    if (inv_parser_get_eid_data(card, &record, eid) == 0)
        printf("%u %s\n", (unsigned)record->xml_instance, record->name);
}

int main(void)
{
    if (inv_parser_init(NULL) != 0)
        return 1;
    inv_xml_handle *card = inv_parser_open_xml_file(0, 14, 19, "LC-SMALL");
    if (card == NULL)
        return 2;
    printf("opened by C\n");
    sch_eid_type *sensors = NULL;
    uint16_t count = 0;
    if (inv_parser_get_eid_by_type(card, ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_TYPE_SENSOR, &count,
                                   &sensors) != 0)
        return 3;
    for (unsigned i = 0; i < count; ++i)
        print_sensor(card, sensors[i]);
    inv_parser_free_eid_tree(sensors);
    return inv_parser_close_xml_file(card) == 0 ? 0 : 4;
}
