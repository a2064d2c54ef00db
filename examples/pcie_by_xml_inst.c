/* The PCIe way to a network processor of a line card, by its xml instance. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_pcie_access_seq_type *sequence = NULL;
    check(inv_parser_get_pcie_access_sequence_by_xml_inst(card, 204, &sequence), "PCIe sequence");
    print_pcie("processor 204, itself the last hop", sequence);
    inv_parser_free_pcie_access_sequence(sequence);
    inv_parser_close_xml_file(card);
    return 0;
}
