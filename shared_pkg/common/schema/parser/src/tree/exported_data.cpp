#include "inv_parser/tree_internal.h"

eid_chain_node *root_eid;
sch_eid_type *global_eid;
uint16_t global_eid_count;
uint16_t global_tmp_count;

eid_chain_node *chassis_root;
eid_chain_node *lc_root;
eid_chain_node *rp_root;
eid_chain_node *fc_root;
eid_chain_node *fantray_root;
eid_chain_node *pem_root;
eid_chain_node *powershelf_root;
