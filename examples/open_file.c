/* Opening a unit's inventory file by hardware type and PID. A second open gives the same handle. */
#include "example.h"

int main(void)
{
    check(inv_parser_init(NULL), "inv_parser_init");
    inv_xml_handle *card = open_unit(3, 17, "LC-48X10");
    inv_xml_handle *again = open_unit(3, 17, "LC-48X10-B");
    printf("same handle: %s, open %u times\n", card == again ? "yes" : "no", (unsigned)card->file_count);
    inv_parser_close_xml_file(again);
    inv_parser_close_xml_file(card);
    return 0;
}
