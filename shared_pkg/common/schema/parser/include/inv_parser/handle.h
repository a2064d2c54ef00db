/* The handle of an inventory file, and what its indexes hold. */
#ifndef INV_PARSER_HANDLE_H
#define INV_PARSER_HANDLE_H

#include <stddef.h>
#include <stdint.h>

#include "inv_parser/eid.h"
#include "inv_parser/platform_types.h"

#ifdef __cplusplus
extern "C" {
#endif

struct sch_base_entity_type;
struct sch_module_type;

/* Values of inv_xml_handle.state. */
#define INV_HANDLE_PARSED 1u     /* the document is loaded */
#define INV_HANDLE_REGISTERED 2u /* known, not (successfully) loaded */

/* Octets of inv_xml_handle.file_name, the terminating NUL included. A longer name is no file. */
#define INV_FILE_NAME_SIZE 256

/* Number of control-card slot lists of each kind: one for each node type from 0 to 20. */
#define INV_CC_SLOT_LIST_COUNT 21

/* One entry of an xml-instance index: who has this xml instance, and over which port of which
 * entity it is reached. Belongs to the handle whose index holds it. */
typedef struct sch_xml_inst_node_type {
    void *avl_links[3];                         /* the AVL library's */
    uint32_t xml_instance;                      /* key */
    uint32_t parent_xml_instance;               /* xml instance of the entity whose port leads here */
    uint32_t channel;                           /* I2C: channel of that port; PCIe: its port number */
    uint32_t pcie_dest;                         /* PCIe only: the destination's 16-bit device id */
    uint8_t entity_present;                     /* 1 once an entity with this xml instance is registered */
    struct sch_base_entity_type *entity;        /* that entity; null until it is registered */
    struct sch_base_entity_type *parent_entity; /* owner of the port; null at the topmost device */
} sch_xml_inst_node_type;

/* One element of a control-card slot list: how a destination in a slot is reached from the control
 * card in slot 0 and from the one in slot 1. Belongs to the handle. */
typedef struct sch_cc_slot_xml_inst_type {
    uint16_t key;                   /* node position of the destination */
    uint32_t slot0_parent_instance; /* xml instance on the slot-0 card whose port leads there; 0: none */
    uint32_t slot0_channel;         /* channel or port; read back as its low 8 bits */
    uint32_t slot1_parent_instance; /* the same for slot 1 */
    uint32_t slot1_channel;
    struct sch_cc_slot_xml_inst_type *next;
} sch_cc_slot_xml_inst_type;

/* One inventory file, the handle that clients hold between open and close. Clients read it and
 * pass it back; only the library writes it. Opens and closes of any thread change `next` and
 * `file_count`; nothing else changes between the open and the last close, but
 * that a handle which is only registered is filled by a later open that loads it. Units whose hardware types
 * map to one file share one handle; the type fields are the first opener's. */
typedef struct inv_xml_handle {
    struct inv_xml_handle *next;           /* next registered handle; null at the tail */
    uint32_t inv_type;                     /* inventory type given by the first opener (8 bits) */
    uint32_t pi_hw_type;                   /* platform-independent hardware type; selects the document kind */
    uint32_t pd_hw_type;                   /* platform-dependent hardware type */
    uint8_t state;                         /* INV_HANDLE_PARSED or INV_HANDLE_REGISTERED */
    uint16_t file_count;                   /* successful opens not yet closed; wraps below 0 to 65535 */
    char file_name[INV_FILE_NAME_SIZE];    /* the platform's name for the file; the registry's key */
    eid_chain_node *root;                  /* entity tree, once loaded; may be null all the same */
    struct sch_module_type *module_record; /* record of a module document; null for other kinds */
    avl_root pcie_xml_inst_index;          /* sch_xml_inst_node_type by PCIe xml instance */
    sch_cc_slot_xml_inst_type *pcie_cc_slot_lists[INV_CC_SLOT_LIST_COUNT]; /* by node type */
    avl_root i2c_xml_inst_index; /* sch_xml_inst_node_type by I2C xml instance */
    sch_cc_slot_xml_inst_type *i2c_cc_slot_lists[INV_CC_SLOT_LIST_COUNT];
} inv_xml_handle;

/* Names a unit for the second generation of the open and lookup calls. */
typedef struct fru_xml_loc_info {
    uint32_t pi_hw_type; /* platform-independent hardware type */
    uint32_t pd_hw_type; /* platform-dependent hardware type */
    uint32_t hw_maj_ver; /* hardware major version */
    uint32_t hw_min_ver; /* hardware minor version */
    char pid[64];        /* product identifier, NUL-terminated */
} fru_xml_loc_info;

#ifdef __cplusplus
}
#define INV_LAYOUT(condition) static_assert(condition, "layout that clients rely on")
#else
#define INV_LAYOUT(condition) _Static_assert(condition, "layout that clients rely on")
#endif

INV_LAYOUT(sizeof(sch_xml_inst_node_type) == 64);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, xml_instance) == 24);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, parent_xml_instance) == 28);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, channel) == 32);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, pcie_dest) == 36);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, entity_present) == 40);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, entity) == 48);
INV_LAYOUT(offsetof(sch_xml_inst_node_type, parent_entity) == 56);
INV_LAYOUT(sizeof(sch_cc_slot_xml_inst_type) == 32);
INV_LAYOUT(offsetof(sch_cc_slot_xml_inst_type, slot0_parent_instance) == 4);
INV_LAYOUT(offsetof(sch_cc_slot_xml_inst_type, next) == 24);
INV_LAYOUT(sizeof(inv_xml_handle) == 648);
INV_LAYOUT(offsetof(inv_xml_handle, inv_type) == 8);
INV_LAYOUT(offsetof(inv_xml_handle, pi_hw_type) == 12);
INV_LAYOUT(offsetof(inv_xml_handle, pd_hw_type) == 16);
INV_LAYOUT(offsetof(inv_xml_handle, state) == 20);
INV_LAYOUT(offsetof(inv_xml_handle, file_count) == 22);
INV_LAYOUT(offsetof(inv_xml_handle, file_name) == 24);
INV_LAYOUT(offsetof(inv_xml_handle, root) == 280);
INV_LAYOUT(offsetof(inv_xml_handle, module_record) == 288);
INV_LAYOUT(offsetof(inv_xml_handle, pcie_xml_inst_index) == 296);
INV_LAYOUT(offsetof(inv_xml_handle, pcie_cc_slot_lists) == 304);
INV_LAYOUT(offsetof(inv_xml_handle, i2c_xml_inst_index) == 472);
INV_LAYOUT(offsetof(inv_xml_handle, i2c_cc_slot_lists) == 480);
INV_LAYOUT(sizeof(fru_xml_loc_info) == 80);
INV_LAYOUT(offsetof(fru_xml_loc_info, pid) == 16);

#undef INV_LAYOUT

#endif
