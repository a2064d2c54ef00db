/* The PCIe way by EID: the last hop is the one above the device, the header names the device. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_eid_type cpu = nth_eid(card, ORVL_ENTITY_TYPE_CPU, 6); /* after the six of the network processors */
    sch_pcie_access_seq_type *sequence = NULL;
    check(inv_parser_get_pcie_access_sequence_by_eid(card, &cpu, &sequence), "PCIe sequence");
    printf("CPU %u\n", (unsigned)sequence->xml_instance);
    print_pcie("above it", sequence);
    inv_parser_free_pcie_access_sequence(sequence);
    inv_parser_close_xml_file(card);
    return 0;
}
