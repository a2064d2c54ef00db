/* The I2C way to a sensor, by EID. The result is that of the lookup: the pointer says whether there is a way.
 */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_eid_type sensor = nth_eid(card, ORVL_ENTITY_TYPE_SENSOR, 0);
    sch_i2c_access_seq_type *sequence = NULL;
    check(inv_parser_get_i2c_access_sequence_by_eid(card, &sensor, &sequence), "lookup");
    print_i2c(sequence == NULL ? "no way" : "first sensor", sequence);
    inv_parser_free_i2c_access_sequence(sequence);
    inv_parser_close_xml_file(card);
    return 0;
}
