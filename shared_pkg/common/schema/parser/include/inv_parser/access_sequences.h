/* Access sequences: the hops by which a device is reached over I2C or PCIe.
 *
 * A sequence is one block: a header with the number of hops, then the hops, topmost first, as the
 * inventory file describes them; what no field holds is zero. It belongs to the caller, refers to
 * nothing of the library, and is released by the function named for it. A pair holds the sequences as
 * seen from the control cards in slot 0 and slot 1; either is null when that card has no way to the
 * device.
 *
 * Results are 0 for success and 1 for failure. A failure leaves *out untouched, unless said otherwise,
 * and keeps nothing allocated. A null output, EID or record is a failure without trace.
 *
 * Nothing here holds the library lock while a sequence is built: calls are to be serialised with the last
 * close of the same files, and may run beside each other and beside all else. The functions that look an
 * EID up call inv_parser_get_eid_data() and those that look for a chassis also
 * inv_parser_get_eid_by_type(), which take the lock for their run and trace as described there.
 *
 * How a sequence is built: the device's xml instance is looked up in the file's index, then over and
 * over the entity whose port leads there, up to an entity that no port leads to. Each hop describes its
 * entity and says which channel or port to take on it towards the next hop. A parent that the index
 * does not know is traced and ends the chain: what was found so far is the answer. An xml instance
 * above 10000 on any hop fails the whole; so does, without trace, a chain that is longer than the limit
 * below, and therefore every loop.
 */
#ifndef INV_PARSER_ACCESS_SEQUENCES_H
#define INV_PARSER_ACCESS_SEQUENCES_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#include "inv_parser/access_records.h"
#include "inv_parser/eid.h"
#include "inv_parser/handle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Most hops of a chain in one file. */
#define INV_I2C_MAX_HOPS 25
#define INV_PCIE_MAX_HOPS 10

/* The highest xml instance that a hop may have. */
#define INV_MAX_HOP_XML_INSTANCE 10000u

/* What inv_parser_convert_node_type_to_container_type() answers for a node type without container. */
#define INV_NO_CONTAINER_TYPE 12u

/* A device on an I2C way. 40 octets. */
typedef struct sch_i2c_access_hop_type {
    uint32_t device_type;   /* 32 bits; I2C device type code, from the entity's I2C node */
    uint8_t device_model;   /* 8 bits; hardware model, low octet, from the entity's I2C node */
    uint8_t device_address; /* 8 bits; bus address, from the entity's I2C node */
    uint32_t channel;       /* 16 bits; channel to select on this device for the next hop, 0 on the last
                               hop. From an I2C sequence record: its 32-bit control register */
    uint8_t reserved[12];   /* 0 */
    uint16_t xml_instance;  /* 16 bits; of the entity */
    uint8_t reserved2[14];  /* 0 */
} sch_i2c_access_hop_type;

/* A device on a PCIe way. 20 octets. */
typedef struct sch_pcie_access_hop_type {
    uint32_t device_type;  /* 32 bits; PCIe device type code, from the entity's PCIe node */
    uint8_t device_model;  /* 8 bits; hardware model, low octet, from the entity's PCIe node */
    uint8_t reserved;      /* 0 */
    uint16_t port_number;  /* 16 bits; the device's own port, from the entity's PCIe node */
    uint16_t link_port;    /* 16 bits; port to take on this device for the next hop, 0 on the last hop */
    uint16_t reserved2;    /* 0 */
    uint16_t xml_instance; /* 16 bits; of the entity */
    uint16_t device_id;    /* 16 bits; device id of the next hop, as the port that leads there names it */
    uint8_t reserved3[4];  /* 0 */
} sch_pcie_access_hop_type;

/* Both languages end the sequences with an array of any length. */
#if defined(__cplusplus) && defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wc99-extensions"
#endif

/* An I2C way. The block behind a truncated count holds all hops: see the functions that say so. */
typedef struct sch_i2c_access_seq_type {
    uint8_t hop_count;                            /* 8 bits; hops to read, the low octet of their number */
    uint8_t reserved[7];                          /* 0 */
    __extension__ sch_i2c_access_hop_type hops[]; /* [0] the topmost */
} sch_i2c_access_seq_type;

/* A PCIe way. */
typedef struct sch_pcie_access_seq_type {
    uint8_t hop_count;                             /* 8 bits; hops to read */
    uint8_t reserved;                              /* 0 */
    uint16_t xml_instance;                         /* 16 bits; of the target; 0 in the form by xml instance */
    __extension__ sch_pcie_access_hop_type hops[]; /* [0] the topmost */
} sch_pcie_access_seq_type;

#if defined(__cplusplus) && defined(__clang__)
#pragma clang diagnostic pop
#endif

/* The ways from both control cards. */
typedef struct sch_i2c_access_seq_pair_type {
    sch_i2c_access_seq_type *slot0; /* from the card in slot 0; may be null */
    sch_i2c_access_seq_type *slot1; /* from the card in slot 1; may be null */
} sch_i2c_access_seq_pair_type;

typedef struct sch_pcie_access_seq_pair_type {
    sch_pcie_access_seq_type *slot0; /* from the card in slot 0; may be null */
    sch_pcie_access_seq_type *slot1; /* from the card in slot 1; may be null */
} sch_pcie_access_seq_pair_type;

/* Stores the I2C way to the entity with this xml instance, the low 16 bits of which count.
 *
 * A target whose I2C node is all zero is no hop of its own: the channel of the hop above it is the
 * target, and a target without anything above leaves a sequence of no hops. A channel is carried
 * through 16 bits.
 *
 * Takes no lock. Release with inv_parser_free_i2c_access_sequence(). Returns 1 without trace when the
 * instance is 0 or the chain longer than INV_I2C_MAX_HOPS; with a trace when the handle is null (54),
 * the index does not know the instance (55) or no entity has it (56), and when memory runs out (58).
 * Returns 1 with *out null when a hop has an instance above 10000 (59) or no entity (60). Trace 57
 * tells of a chain that was cut short and is no failure. */
uint32_t inv_parser_get_i2c_access_sequence_by_xml_inst(inv_xml_handle *handle, int32_t xml_instance,
                                                        sch_i2c_access_seq_type **out);

/* The same for the entity that *eid names, released alike.
 *
 * Kept: returns the result of the lookup whatever becomes of the sequence. Set *out to null before the
 * call and judge success by it: a failed build leaves it untouched, or null where the form by xml
 * instance sets it to null. Returns the lookup's 1 with trace 61 when no entity has the EID. */
uint32_t inv_parser_get_i2c_access_sequence_by_eid(inv_xml_handle *handle, const sch_eid_type *eid,
                                                   sch_i2c_access_seq_type **out);

/* Stores the I2C ways from the control cards to a device of another file.
 *
 * `type` and `position` say where the unit of the device is plugged: node type (ORVL_NODE_TYPE_*) and
 * node position, the low 16 bits of which count. The control card's file `cc` names the entity whose
 * port leads there, from slot 0 and from slot 1; the sequence is the way to that entity, then the way to
 * the entity *eid in the file `device`, with the slot's channel (its low 8 bits) on the hop that joins
 * them. A card whose way has no hops leaves its channel unsaid. Where the control card knows no such
 * slot, or a type above 20 was given, the pair holds two nulls and the result is 0.
 *
 * Takes the library lock to look *eid up. Release with inv_parser_free_remote_i2c_access_sequence().
 * Returns 1, *out untouched, when memory runs out (83, 87 for slot 0, 88 for slot 1), cc is null (no
 * trace), the way to slot 0 (84) or slot 1 (85) or to the device (traces of the form by xml instance)
 * cannot be built, and when no entity has the EID (86). */
uint32_t inv_parser_get_i2c_access_sequence_from_control_card(inv_xml_handle *cc, inv_xml_handle *device,
                                                              uint32_t type, uint32_t position,
                                                              const sch_eid_type *eid,
                                                              sch_i2c_access_seq_pair_type **out);

/* Turns the commands of an I2C sequence record into a sequence, one hop each, in their order: device
 * type, model and address, the control register as channel, the command's xml instance. The record is
 * any, not only one of an open file.
 *
 * The count is the low octet of the number of commands; the block holds them all. Takes no lock. Release
 * with inv_parser_free_i2c_access_sequence(). Returns 1 when memory runs out (71). */
uint32_t inv_parser_retrieve_i2c_sequence_info(const sch_i2c_sequence_type *sequence,
                                               sch_i2c_access_seq_type **out);

/* Stores the way to the ID EEPROM of the units of `node_type`, as the chassis file `handle` has it for
 * their slots. A chassis that says nothing about the ID EEPROMs of these slots gives no hops.
 *
 * Release with inv_parser_free_i2c_access_sequence(). Returns 1, *out untouched, when no container
 * holds the node type (72), the file has no entity of type chassis (73), its record cannot be found
 * (74) or is null (75), the entity is not the top one of a chassis document or has no slots of that
 * kind (76), and when memory runs out (71). */
uint32_t inv_parser_get_container_list_i2c_idprom_access_info(inv_xml_handle *handle, uint32_t node_type,
                                                              sch_i2c_access_seq_type **out);

/* Stores the ways from the control cards to the ID EEPROM of the unit of node type `type` at `position`:
 * the control card's way to the slot, then the chassis' way to the ID EEPROM, joined as for a device. The
 * count of a sequence is the low octet of the number of hops; the block holds them all.
 *
 * Release with inv_parser_free_remote_i2c_access_sequence(). Returns 1, *out untouched, when memory runs
 * out (77, 80 for slot 0, 82 for slot 1), the way to the ID EEPROM cannot be had (78 after the lines of
 * the function above), cc is null (no trace), or the way to slot 0 (79) or slot 1 (81) cannot be built. */
uint32_t inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
    inv_xml_handle *cc, inv_xml_handle *chassis, uint32_t type, uint32_t position,
    sch_i2c_access_seq_pair_type **out);

/* Stores the PCIe way to the entity with this xml instance, the low 16 bits of which count. The target
 * is the last hop, whatever its PCIe node; the header names no instance.
 *
 * Takes no lock. Release with inv_parser_free_pcie_access_sequence(). Returns 1 without trace when the
 * instance is 0 or the chain longer than INV_PCIE_MAX_HOPS; with a trace when the handle is null (62),
 * the index does not know the instance (63) or no entity has it (64), and when memory runs out (66).
 * Returns 1 with *out null when a hop has an instance above 10000 (67) or no entity (68). Trace 65
 * tells of a chain that was cut short and is no failure. */
uint32_t inv_parser_get_pcie_access_sequence_by_xml_inst(inv_xml_handle *handle, int32_t xml_instance,
                                                         sch_pcie_access_seq_type **out);

/* The same for the entity that *eid names, without the target's own hop: link port and device id of the
 * last hop lead to the target, and the header holds the target's xml instance. Release with
 * inv_parser_free_pcie_access_sequence().
 *
 * Unlike its I2C sibling it returns 1 whenever there is no sequence: no entity has the EID (69), or the
 * way cannot be built (70 after the lines of the form by xml instance, with its effect on *out). */
uint32_t inv_parser_get_pcie_access_sequence_by_eid(inv_xml_handle *handle, const sch_eid_type *eid,
                                                    sch_pcie_access_seq_type **out);

/* Stores the PCIe ways from the control cards to a device of another file, joined like the I2C ways. The
 * slot's port is the link port of the hop that joins; the header holds the target's xml instance and its
 * hop is left out, as in the form by EID.
 *
 * Takes the library lock to look *eid up. Release with inv_parser_free_remote_i2c_access_sequence(), which
 * serves both kinds of pair. Returns 1, *out untouched, when memory runs out (89, 93 for slot 0, 94 for
 * slot 1), cc is null (no trace), the way to slot 0 (90) or slot 1 (91) or to the device cannot be built,
 * and when no entity has the EID (92). */
uint32_t inv_parser_get_pcie_access_sequence_from_control_card(inv_xml_handle *cc, inv_xml_handle *device,
                                                               uint32_t type, uint32_t position,
                                                               const sch_eid_type *eid,
                                                               sch_pcie_access_seq_pair_type **out);

/* Release what the functions above stored. Each ignores null. The last one releases a pair of either
 * kind with both its sequences. */
void inv_parser_free_i2c_access_sequence(sch_i2c_access_seq_type *sequence);
void inv_parser_free_pcie_access_sequence(sch_pcie_access_seq_type *sequence);
void inv_parser_free_remote_i2c_access_sequence(void *pair);

/* The type of container (ORVL_CONTAINER_TYPE_*) that holds units of a node type, INV_NO_CONTAINER_TYPE
 * for a node type that no container holds: the control card itself (1) is one, the peer's slot (10) is
 * what holds a control card. */
uint32_t inv_parser_convert_node_type_to_container_type(uint32_t node_type);

#ifdef __cplusplus
}
#endif

static_assert(sizeof(sch_i2c_access_hop_type) == 40, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_hop_type, device_model) == 4, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_hop_type, device_address) == 5, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_hop_type, channel) == 8, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_hop_type, reserved) == 12, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_hop_type, xml_instance) == 24, "layout that clients rely on");
static_assert(sizeof(sch_pcie_access_hop_type) == 20, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_hop_type, device_model) == 4, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_hop_type, port_number) == 6, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_hop_type, link_port) == 8, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_hop_type, xml_instance) == 12, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_hop_type, device_id) == 14, "layout that clients rely on");
static_assert(sizeof(sch_i2c_access_seq_type) == 8, "layout that clients rely on");
static_assert(offsetof(sch_i2c_access_seq_type, hops) == 8, "layout that clients rely on");
static_assert(sizeof(sch_pcie_access_seq_type) == 4, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_seq_type, xml_instance) == 2, "layout that clients rely on");
static_assert(offsetof(sch_pcie_access_seq_type, hops) == 4, "layout that clients rely on");
static_assert(sizeof(sch_i2c_access_seq_pair_type) == 16, "layout that clients rely on");
static_assert(sizeof(sch_pcie_access_seq_pair_type) == 16, "layout that clients rely on");

#endif
