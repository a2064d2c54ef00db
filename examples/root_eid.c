/* The EID of a file's top entity. */
#include "example.h"

int main(void)
{
    inv_xml_handle *card = open_line_card();
    sch_eid_type *root = NULL;
    check(inv_parser_get_root_eid(card, &root), "root EID");
    printf("depth %u: type %u, subtype %u, instance %u\n", (unsigned)root->depth,
           (unsigned)root->levels[0].type, (unsigned)root->levels[0].subtype,
           (unsigned)root->levels[0].instance);
    inv_parser_free_eid_tree(root);
    inv_parser_close_xml_file(card);
    return 0;
}
