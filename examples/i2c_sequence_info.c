/* Commands of an I2C sequence record as a sequence: here two commands made by hand. */
#include "example.h"

int main(void)
{
    sch_i2c_node_type eeprom = {.device_type = ORVL_I2CDEV_TYPE_I2CSLAVEADDRESS, .device_address = 0x50};
    sch_i2c_node_type mux = {.device_type = ORVL_I2CDEV_TYPE_I2CMUX,
                             .device_address = 0x70,
                             .control_register = 4,
                             .next = &eeprom};
    sch_i2c_sequence_type record = {.command_list = &mux};
    sch_i2c_access_seq_type *sequence = NULL;
    check(inv_parser_retrieve_i2c_sequence_info(&record, &sequence), "conversion");
    print_i2c("commands", sequence);
    inv_parser_free_i2c_access_sequence(sequence);
    return 0;
}
