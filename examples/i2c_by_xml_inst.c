/* The I2C way to a sensor of a line card, by its xml instance. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_i2c_access_seq_type *sequence = NULL;
    check(inv_parser_get_i2c_access_sequence_by_xml_inst(card, 290, &sequence), "I2C sequence");
    print_i2c("sensor 290", sequence);
    inv_parser_free_i2c_access_sequence(sequence);
    inv_parser_close_xml_file(card);
    return 0;
}
