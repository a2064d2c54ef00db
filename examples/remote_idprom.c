/* The ways from both control cards to the ID EEPROMs of every plugged unit that they know. */
#include <string.h>

#include "example.h"

int main(void)
{
    inv_xml_handle *control = open_control_card();
    inv_xml_handle *chassis = open_chassis();
    for (uint32_t node_type = 0; node_type < ORVL_NODE_TYPE_MAX; ++node_type) {
        for (uint32_t position = 0; position < 8; ++position) {
            sch_i2c_access_seq_pair_type *ways = NULL;
            if (inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
                    control, chassis, node_type, position, &ways) != 0)
                break;
            char heading[64];
            snprintf(heading, sizeof heading, "node type %u, position %u, from slot 0", (unsigned)node_type,
                     (unsigned)position);
            if (ways->slot0 != NULL)
                print_i2c(heading, ways->slot0);
            heading[strlen(heading) - 1] = '1';
            if (ways->slot1 != NULL)
                print_i2c(heading, ways->slot1);
            inv_parser_free_remote_i2c_access_sequence(ways);
        }
    }
    inv_parser_close_xml_file(chassis);
    inv_parser_close_xml_file(control);
    return 0;
}
