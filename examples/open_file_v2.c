/* Opening a unit's inventory file by hardware type, PID and hardware version. */
#include <string.h>

#include "example.h"

int main(void)
{
    check(inv_parser_init(NULL), "inv_parser_init");
    fru_xml_loc_info unit = {
        .pi_hw_type = 4, .pd_hw_type = 32, .hw_maj_ver = 2, .hw_min_ver = 1, .pid = "RP-2"};
    inv_xml_handle *card = inv_parser_open_xml_file_v2(0, &unit);
    unit.hw_maj_ver = 9; /* a version that the catalogue does not have */
    inv_xml_handle *none = inv_parser_open_xml_file_v2(0, &unit);
    const char *slash = card == NULL ? NULL : strrchr(inv_parser_get_file_name(card), '/');
    printf("version 2.1: %s\nversion 9.1: %s\n", slash == NULL ? "none" : slash + 1,
           none == NULL ? "none" : "found");
    inv_parser_close_xml_file(card);
    return card == NULL;
}
