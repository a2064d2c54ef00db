/* The base entity record: the head of every entity record. */
#ifndef INV_PARSER_BASE_ENTITY_H
#define INV_PARSER_BASE_ENTITY_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#include "inv_parser/access_records.h"
#include "inv_parser/power_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of sch_base_entity_type.field_present. Bits 22 and 27 to 31 are never set. */
#define SCH_BASE_HAS_POWER_CONSUMER (1u << 0)
#define SCH_BASE_HAS_POWER_PRODUCER (1u << 1)
#define SCH_BASE_HAS_HW_VERSION (1u << 2)
#define SCH_BASE_HAS_SW_VERSION (1u << 3)
#define SCH_BASE_HAS_FW_VERSION (1u << 4)
#define SCH_BASE_HAS_PD_HW_MODEL (1u << 5)
#define SCH_BASE_HAS_HW_SIGNALS (1u << 6)
#define SCH_BASE_HAS_I2C_NODE (1u << 7)
#define SCH_BASE_HAS_PCIE_NODE (1u << 8)
#define SCH_BASE_HAS_DRIVER_REGISTERED (1u << 9)
#define SCH_BASE_HAS_DRIVER_REQUIRED (1u << 10)
#define SCH_BASE_HAS_DRIVER_ID (1u << 11)
#define SCH_BASE_HAS_ADMIN_STATE (1u << 12)
#define SCH_BASE_HAS_OPER_STATE (1u << 13)
#define SCH_BASE_HAS_POWER_ADMIN_STATE (1u << 14)
#define SCH_BASE_HAS_POWER_OPER_STATE (1u << 15)
#define SCH_BASE_HAS_IS_FRU (1u << 16)
#define SCH_BASE_HAS_OIR (1u << 17)
#define SCH_BASE_HAS_IS_PRIMARY (1u << 18)
#define SCH_BASE_HAS_IS_PREFIX_NEEDED (1u << 19)
#define SCH_BASE_HAS_IS_HIDDEN (1u << 20)
#define SCH_BASE_HAS_REP_STATE_SCOPE (1u << 21)
#define SCH_BASE_HAS_OBFL_DATA (1u << 23)
#define SCH_BASE_HAS_DUAL_ROUTER (1u << 24)
#define SCH_BASE_HAS_OWNER (1u << 25)
#define SCH_BASE_HAS_SNMP_ENTITY (1u << 26)

/* Bits of sch_base_entity_type.entity_reset_flags. */
#define SCH_RESET_NOTHING_SAID (1u << 0) /* none of the three attributes below is true */
#define SCH_RESET_BASE_DATA (1u << 1)    /* attribute resetBaseData is true */
#define SCH_RESET_DYNAMIC_DATA (1u << 2) /* attribute resetDynamicData is true */
#define SCH_RESET_NO_DATA (1u << 3)      /* attribute resetNoData is true */

/* What every entity has. A record of a loaded file stays at its address until the file is closed:
 * the entity tree and both xml-instance indexes point at it.
 *
 * "bit n" is the field's bit in field_present. "always" means copied whether or not the document
 * gives it; the value of an absent item is 0 unless said otherwise. Texts are cut to what the array
 * holds, counted in octets (a multi-octet character may be cut), and end in NUL. */
typedef struct sch_base_entity_type {
    char reserved_head[65];    /* 65 octets; never read or written by the library */
    uint8_t driver_registered; /* 0 or 1; a driver is registered; element driverRegistered, bit 9 */
    uint8_t driver_required;   /* 0 or 1; needs a driver; element driverRequired, bit 10 */
    int16_t driver_id;         /* 16 bits, signed; element driverId, bit 11 */
    char name[65];             /* 64 octets + NUL; attribute name, always */
    char description[129];     /* 128 octets + NUL; attribute description, always */
    char oid[129];             /* 128 octets + NUL; object identifier; attribute oid, empty when absent */
    uint8_t admin_state;       /* 8 bits; admin state code; attribute adminState, bit 12 */
    uint8_t oper_state;        /* 8 bits; operational state code; attribute operState, bit 13 */
    uint8_t power_admin_state; /* 8 bits; power admin state code; attribute powerAdminState, bit 14 */
    uint8_t power_oper_state;  /* 8 bits; power state code; attribute powerOperState, bit 15 */
    uint8_t is_fru;            /* 0 or 1; field-replaceable; attribute fruable, bit 16 */
    uint8_t oir;               /* 0 or 1; may be plugged while running; attribute oir, bit 17 */
    uint8_t is_primary;        /* 0 or 1; attribute isPrimary, bit 18 */
    uint8_t snmp_entity;       /* 0 or 1; shown by SNMP; attribute snmpEntity, always, 1 when absent;
                                  bit 26 when given */
    uint8_t is_prefix_needed;  /* 0 or 1; name wants its parent's in front; attribute isPrefixNeeded,
                                  always, 1 when absent; bit 19 when given */
    uint8_t is_hidden;         /* 0 or 1; attribute isHidden, bit 20 */
    uint8_t type;              /* 8 bits; entity type, ORVL_ENTITY_TYPE_*; attribute type, always */
    uint16_t subtype;          /* 16 bits, 0 to 255; subtype counted within the type, the EID's; computed
                                  from attribute subtype */
    uint16_t instance;         /* 16 bits; attribute instance, always; the EID's */
    uint16_t global_subtype;   /* 16 bits; ORVL_ENTITY_SUBTYPE_*; attribute subtype, always */
    uint8_t dual_router;       /* 8 bits; dual-router code; attribute dualRouter, always; bit 24 when given */
    uint8_t rep_scope;         /* 8 bits; replication level; attribute replicationScope, always */
    uint8_t rep_state_scope;   /* 8 bits; replication level; attribute replicationStateScope, bit 21 */
    uint16_t xml_instance;     /* 16 bits; attribute xmlInstance, always; key in both indexes */
    uint32_t obfl_data;        /* 32 bits; on-board failure logging; element obflData, bit 23 */
    uint32_t entity_reset_flags; /* 32 bits; SCH_RESET_* from attributes resetBaseData, resetDynamicData
                                    and resetNoData */
    uint32_t owner;              /* 32 bits; ORVL_ENTITY_OWNER_TYPE_*; attribute entityOwner, always, 1 when
                                    absent; bit 25 when given */
    uint16_t pd_hw_model;        /* 16 bits; ORVL_HW_MODEL_*; element pdHardwareModel, bit 5 */
    char hw_version[65];         /* 64 octets + NUL; element hardwareVersion, bit 2 */
    char sw_version[65];         /* 64 octets + NUL; element softwareVersion, bit 3 */
    char fw_version[65];         /* 64 octets + NUL; element firmwareVersion, bit 4 */
    sch_power_consumer_type power_consumer; /* element powerConsumer, bit 0 */
    sch_power_producer_type power_producer; /* element powerProducer, bit 1 */
    sch_hw_signals_type hw_signals;         /* element hwSignals, bit 6; its command list is released
                                               by nobody but the file */
    sch_spi_port_type *spi_port_list;       /* elements spiPort; released by nobody but the file */
    sch_i2c_node_type i2c_node;             /* element i2cNode, bit 7 */
    sch_pcie_node_type pcie_node;           /* element pcieNode, bit 8 */
    uint32_t pmbus_cmd;                     /* 32 bits holding 8; PMBus command; element pmBusPort/PMBusCmd */
    uint32_t pmbus_valid : 1;               /* lowest bit of a 32-bit word: element pmBusPort is present */
    sch_i2c_port_type *i2c_port_list;       /* elements i2cPort, document order; owned */
    sch_base_pcie_port_type *pcie_port_list; /* elements pciePort, document order; owned */
    uint32_t field_present;                  /* 32 bits; SCH_BASE_HAS_* */
} sch_base_entity_type;

#ifdef __cplusplus
}
#endif

static_assert(sizeof(sch_base_entity_type) == 856, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, name) == 70, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, type) == 403, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, subtype) == 404, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, instance) == 406, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, xml_instance) == 414, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, owner) == 424, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, hw_signals) == 664, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, spi_port_list) == 760, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, i2c_node) == 768, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, pcie_node) == 808, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, i2c_port_list) == 832, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, pcie_port_list) == 840, "layout that clients rely on");
static_assert(offsetof(sch_base_entity_type, field_present) == 848, "layout that clients rely on");

#endif
