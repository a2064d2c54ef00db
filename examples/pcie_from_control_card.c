/* The PCIe ways from both control cards to the CPU of the line card in slot 3. */
#include "example.h"

int main(void)
{
    inv_xml_handle *control = open_control_card();
    inv_xml_handle *card = open_line_card();
    sch_eid_type cpu = nth_eid(card, ORVL_ENTITY_TYPE_CPU, 6); /* after the six of the network processors */
    sch_pcie_access_seq_pair_type *ways = NULL;
    check(inv_parser_get_pcie_access_sequence_from_control_card(control, card, ORVL_NODE_TYPE_LINECARD, 3,
                                                                &cpu, &ways),
          "PCIe sequences");
    print_pcie("from slot 0", ways->slot0);
    print_pcie("from slot 1", ways->slot1);
    inv_parser_free_remote_i2c_access_sequence(ways);
    inv_parser_close_xml_file(card);
    inv_parser_close_xml_file(control);
    return 0;
}
