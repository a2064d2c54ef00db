/* How the ID EEPROM of each kind of plugged unit answers, as the chassis has it. */
#include "example.h"

int main(void)
{
    inv_xml_handle *chassis = open_chassis();
    for (uint32_t node_type = 0; node_type < ORVL_NODE_TYPE_MAX; ++node_type) {
        sch_i2c_access_seq_type *sequence = NULL;
        if (inv_parser_get_container_list_i2c_idprom_access_info(chassis, node_type, &sequence) != 0)
            continue;
        char heading[32];
        snprintf(heading, sizeof heading, "node type %u", (unsigned)node_type);
        print_i2c(heading, sequence);
        inv_parser_free_i2c_access_sequence(sequence);
    }
    inv_parser_close_xml_file(chassis);
    return 0;
}
