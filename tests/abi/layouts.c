/* Offsets that clients rely on and that the headers do not assert themselves, as a C compiler sees them. */
#include <stddef.h>

#include "inv_parser/inv_parser.h"

#define AT(type, member, offset) _Static_assert(offsetof(type, member) == (offset), #type "." #member)

_Static_assert(sizeof(sch_eid_level_type) == 4, "an EID has no padding");
AT(sch_eid_level_type, subtype, 1);
AT(sch_eid_level_type, instance, 2);
AT(sch_eid_type, reserved0, 0);
AT(sch_eid_type, reserved1, 2);
AT(sch_eid_type, depth, 4);
AT(sch_eid_type, reserved2, 5);

AT(eid_chain_node, record, 0);
AT(eid_chain_node, parent, 8);
AT(eid_chain_node, first_child, 16);
AT(eid_chain_node, next_sibling, 24);

AT(inv_xml_handle, next, 0);
AT(fru_xml_loc_info, pi_hw_type, 0);
AT(fru_xml_loc_info, pd_hw_type, 4);
AT(fru_xml_loc_info, hw_maj_ver, 8);
AT(fru_xml_loc_info, hw_min_ver, 12);

AT(sch_cc_slot_xml_inst_type, key, 0);
AT(sch_cc_slot_xml_inst_type, slot0_channel, 8);
AT(sch_cc_slot_xml_inst_type, slot1_parent_instance, 12);
AT(sch_cc_slot_xml_inst_type, slot1_channel, 16);

extern int layouts_hold;
int layouts_hold;
