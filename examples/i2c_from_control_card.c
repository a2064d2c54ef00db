/* The I2C ways from both control cards to a sensor of the line card in slot 3. */
#include "example.h"

int main(void)
{
    inv_xml_handle *control = open_control_card();
    inv_xml_handle *card = open_line_card();
    sch_eid_type sensor = nth_eid(card, ORVL_ENTITY_TYPE_SENSOR, 0);
    sch_i2c_access_seq_pair_type *ways = NULL;
    check(inv_parser_get_i2c_access_sequence_from_control_card(control, card, ORVL_NODE_TYPE_LINECARD, 3,
                                                               &sensor, &ways),
          "I2C sequences");
    print_i2c("from slot 0", ways->slot0);
    print_i2c("from slot 1", ways->slot1);
    inv_parser_free_remote_i2c_access_sequence(ways);
    inv_parser_close_xml_file(card);
    inv_parser_close_xml_file(control);
    return 0;
}
