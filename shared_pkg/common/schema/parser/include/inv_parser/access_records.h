/* Records that say how a device is reached: I2C, PCIe, SPI, hardware registers and signals.
 *
 * In every record a field whose presence bit is clear is zero. Records with a `next` stand in
 * lists; a list is the pointer to its first record, null when empty. Texts are cut to what the
 * array holds, counted in octets, and always end in NUL. Enumeration codes are those of
 * inventory_tokens.h.
 */
#ifndef INV_PARSER_ACCESS_RECORDS_H
#define INV_PARSER_ACCESS_RECORDS_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of sch_i2c_node_type.field_present. */
#define SCH_I2C_NODE_HAS_DEVICE_MODEL 0x01u
#define SCH_I2C_NODE_HAS_DEVICE_ADDRESS 0x02u
#define SCH_I2C_NODE_HAS_CONTROL_REGISTER 0x04u
#define SCH_I2C_NODE_HAS_DATA_REGISTER 0x08u
#define SCH_I2C_NODE_HAS_SECOND_CONTROL_REGISTER 0x10u
#define SCH_I2C_NODE_HAS_SECOND_DATA_REGISTER 0x20u
#define SCH_I2C_NODE_HAS_XML_INSTANCE 0x40u
#define SCH_I2C_NODE_HAS_RESET_ONLY 0x80u

/* A device on an I2C bus, or one command of an I2C sequence. The four registers are joined from
 * four octets, first octet most significant, whatever the document's number of digits. */
typedef struct sch_i2c_node_type {
    uint32_t device_type;             /* 32 bits; I2C device type; element deviceType, always */
    uint8_t device_model;             /* 8 bits; hardware model, low octet; element deviceModel, bit 0x01 */
    uint8_t device_address;           /* 8 bits; bus address; element deviceAddress, bit 0x02 */
    uint32_t control_register;        /* 32 bits; element controlRegister, bit 0x04 */
    uint32_t data_register;           /* 32 bits; element dataRegister, bit 0x08 */
    uint32_t second_control_register; /* 32 bits; element secondCtrlReg, bit 0x10 */
    uint32_t second_data_register;    /* 32 bits; element secondDataReg, bit 0x20 */
    uint16_t xml_instance;            /* 16 bits; element xmlInstance, bit 0x40 */
    uint8_t reset_only;               /* 0 or 1; serves reset only; element resetOnly, bit 0x80 */
    uint8_t field_present;            /* SCH_I2C_NODE_HAS_* */
    struct sch_i2c_node_type *next;   /* in a command list; else null */
} sch_i2c_node_type;

/* Bit of sch_node_info_type.field_present. */
#define SCH_NODE_INFO_HAS_NODE_POSITION 0x01u

/* Names a unit by kind and position. */
typedef struct sch_node_info_type {
    uint32_t node_type;     /* 32 bits; node type, 0 to 20; element nodeType, always */
    uint16_t node_position; /* 16 bits; slot, or xml instance of an entity; element nodePosition, bit 0x01 */
    uint8_t field_present;  /* SCH_NODE_INFO_HAS_NODE_POSITION */
} sch_node_info_type;

/* Values of `applicable`: from which control card the way leads. */
#define SCH_CTRL_SLOT_0 0u
#define SCH_CTRL_SLOT_1 1u
#define SCH_CTRL_SLOT_ANY 2u

/* Node type of a destination that is an entity of the same file; its position is the xml instance. */
#define SCH_NODE_TYPE_ENTITY 3u

/* What hangs on an I2C port. List element. */
typedef struct sch_i2c_dest_type {
    char description[65];   /* 64 octets + NUL; always empty: the document's text is not carried */
    uint32_t applicable;    /* 32 bits; SCH_CTRL_SLOT_*; element applicable, 0 when absent */
    uint32_t node_type;     /* 32 bits; node type; element nodeInfo/nodeType */
    uint32_t node_position; /* 32 bits; slot, or xml instance of an entity, widened with its sign;
                               element nodeInfo/nodePosition, 0 when absent */
    struct sch_i2c_dest_type *next;
} sch_i2c_dest_type;

/* A port (channel) of an I2C master or multiplexer. List element. */
typedef struct sch_i2c_port_type {
    uint8_t port_type;            /* 8 bits; 0 master, 1 mux, 2 PMBus, 3 SMBus; element portType */
    uint8_t channel_number;       /* 8 bits; first octet of element channelNumber, 0 when it has none */
    sch_i2c_dest_type *dest_list; /* elements dstInfo, document order; owned */
    struct sch_i2c_port_type *next;
} sch_i2c_port_type;

/* Bits of sch_i2c_sequence_type.field_present. */
#define SCH_I2C_SEQUENCE_HAS_APPLICABLE 0x01u
#define SCH_I2C_SEQUENCE_HAS_SOURCE 0x02u
#define SCH_I2C_SEQUENCE_HAS_DESTINATION 0x04u

/* I2C commands that open the way to a device. */
typedef struct sch_i2c_sequence_type {
    uint32_t applicable;             /* 32 bits; SCH_CTRL_SLOT_*; element applicable, bit 0x01 */
    uint8_t seq_type;                /* 8 bits; I2C sequence type; element seqType, always */
    char description[9];             /* 8 octets + NUL; element description, empty when absent */
    uint32_t src_node_type;          /* 32 bits; node type; element srcInfo/nodeType, bit 0x02 */
    uint16_t src_node_position;      /* 16 bits; element srcInfo/nodePosition, bit 0x02 */
    uint32_t dst_node_type;          /* 32 bits; node type; element dstInfo/nodeType, bit 0x04 */
    uint16_t dst_node_position;      /* 16 bits; element dstInfo/nodePosition, bit 0x04 */
    sch_i2c_node_type *command_list; /* elements cmdInfo, document order; owned */
    uint8_t field_present;           /* SCH_I2C_SEQUENCE_HAS_* */
} sch_i2c_sequence_type;

/* Bits of sch_pcie_node_type.field_present. Bit 0x04 is never set. */
#define SCH_PCIE_NODE_HAS_PORT_NUMBER 0x01u
#define SCH_PCIE_NODE_HAS_DEVICE_MODEL 0x02u
#define SCH_PCIE_NODE_HAS_NUM_FUNCTIONS 0x08u

/* A device on PCIe. */
typedef struct sch_pcie_node_type {
    uint32_t device_type;   /* 32 bits; PCIe device type; element deviceType, always */
    uint8_t device_model;   /* 8 bits; hardware model, low octet; element deviceModel, bit 0x02 */
    uint16_t port_number;   /* 16 bits holding 8; element portNumber, bit 0x01 */
    uint16_t num_functions; /* 16 bits; PCI functions; element numOfFunctions, bit 0x08 */
    uint8_t field_present;  /* SCH_PCIE_NODE_HAS_* */
} sch_pcie_node_type;

/* Bit of sch_pcie_dest_type.field_present. */
#define SCH_PCIE_DEST_HAS_DEVICE_ID 0x01u

/* What hangs on a PCIe port. List element. */
typedef struct sch_pcie_dest_type {
    uint32_t applicable;    /* 32 bits; SCH_CTRL_SLOT_*; element applicable, 0 when absent */
    uint32_t node_type;     /* 32 bits; node type; element nodeInfo/nodeType */
    uint32_t node_position; /* 32 bits; slot, or xml instance of an entity, widened with its sign;
                               element nodeInfo/nodePosition, 0 when absent */
    uint16_t device_id;     /* 16 bits; last two octets of element deviceId, bit 0x01 */
    struct sch_pcie_dest_type *next;
    uint8_t field_present; /* SCH_PCIE_DEST_HAS_DEVICE_ID */
} sch_pcie_dest_type;

/* Bits of sch_pci_sequence_type.field_present. */
#define SCH_PCI_SEQUENCE_HAS_APPLICABLE 0x01u
#define SCH_PCI_SEQUENCE_HAS_DST_PCI 0x02u
#define SCH_PCI_SEQUENCE_HAS_DST_INFO 0x04u

/* A way over PCI. List element. */
typedef struct sch_pci_sequence_type {
    uint32_t applicable;         /* 32 bits; SCH_CTRL_SLOT_*; element applicable, bit 0x01 */
    char description[129];       /* 128 octets + NUL; element description, empty when absent */
    sch_pcie_node_type dst_pci;  /* target device; element dstPci, bit 0x02 */
    sch_node_info_type dst_info; /* target unit; element dstInfo, bit 0x04 */
    struct sch_pci_sequence_type *next;
    uint8_t field_present; /* SCH_PCI_SEQUENCE_HAS_* */
} sch_pci_sequence_type;

/* Bits of sch_base_pcie_port_type.field_present. */
#define SCH_PCIE_PORT_HAS_WIDTH 0x01u
#define SCH_PCIE_PORT_HAS_IS_TRANSPARENT 0x02u
#define SCH_PCIE_PORT_HAS_IS_PRIMARY 0x04u
#define SCH_PCIE_PORT_HAS_HW_PIN_LABEL 0x08u
#define SCH_PCIE_PORT_HAS_PCI_GEN 0x10u

/* A PCIe port of an entity. List element. */
typedef struct sch_base_pcie_port_type {
    uint16_t width;                   /* 16 bits; lanes; element width, bit 0x01 */
    uint8_t is_transparent;           /* 0 or 1; element isTransparentPort, bit 0x02 */
    uint8_t is_primary;               /* 0 or 1; element isPrimary, bit 0x04 */
    char hw_pin_label[65];            /* 64 octets + NUL; element hwPinLabel, bit 0x08 */
    uint16_t port_number;             /* 16 bits holding 8; element portNumber, always */
    uint8_t pci_gen;                  /* 8 bits; PCI generation; element pciGen, bit 0x10 */
    sch_pcie_dest_type *dest_list;    /* elements dstInfo, document order; owned */
    sch_pci_sequence_type *link_list; /* left null by the builder (elements pciLink are not carried); owned */
    struct sch_base_pcie_port_type *next;
    uint8_t field_present; /* SCH_PCIE_PORT_HAS_* */
} sch_base_pcie_port_type;

/* Bit of sch_spi_dest_type.field_present. */
#define SCH_SPI_DEST_HAS_DEVICE_ADDRESS 0x01u

/* What hangs on an SPI port. List element. */
typedef struct sch_spi_dest_type {
    char description[65];   /* 64 octets + NUL; element description, always copied */
    uint8_t device_address; /* 8 bits; chip select; element deviceAddress, bit 0x01 */
    struct sch_spi_dest_type *next;
    uint8_t field_present; /* SCH_SPI_DEST_HAS_DEVICE_ADDRESS */
} sch_spi_dest_type;

/* An SPI port of an entity. List element. */
typedef struct sch_spi_port_type {
    uint32_t channel;             /* 32 bits holding 8; first octet of element channel, 0 when it has none */
    sch_spi_dest_type *dest_list; /* elements dstInfo, document order */
    struct sch_spi_port_type *next;
} sch_spi_port_type;

/* Bits of sch_hw_reg_type.field_present. */
#define SCH_HW_REG_HAS_WORD_OFFSET 0x01u
#define SCH_HW_REG_HAS_BIT_NUMBER 0x02u

/* One bit of a hardware register. */
typedef struct sch_hw_reg_type {
    uint32_t word_offset;  /* 32 bits; register offset in words; element wordOffset, bit 0x01 */
    uint32_t bit_number;   /* 32 bits; bit within the word; element bitNumber, bit 0x02 */
    uint8_t field_present; /* SCH_HW_REG_HAS_* */
} sch_hw_reg_type;

/* Bit of sch_hw_signals_type.field_present. */
#define SCH_HW_SIGNALS_HAS_I2C_PATH 0x01u

/* Where an entity's hardware signals are read and driven. */
typedef struct sch_hw_signals_type {
    uint8_t direct;                 /* 0 or 1; wired, not over I2C; element direct */
    sch_hw_reg_type alert;          /* element alert */
    sch_hw_reg_type present;        /* element present */
    sch_hw_reg_type reset;          /* element reset */
    sch_i2c_sequence_type i2c_path; /* element i2cPath, bit 0x01 */
    uint8_t field_present;          /* SCH_HW_SIGNALS_HAS_I2C_PATH */
} sch_hw_signals_type;

#ifdef __cplusplus
}
#endif

static_assert(sizeof(sch_i2c_node_type) == 40, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, device_model) == 4, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, device_address) == 5, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, control_register) == 8, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, data_register) == 12, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, second_control_register) == 16, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, second_data_register) == 20, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, xml_instance) == 24, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, reset_only) == 26, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, field_present) == 27, "layout that clients rely on");
static_assert(offsetof(sch_i2c_node_type, next) == 32, "layout that clients rely on");
static_assert(sizeof(sch_pcie_node_type) == 12, "layout that clients rely on");
static_assert(offsetof(sch_pcie_node_type, device_model) == 4, "layout that clients rely on");
static_assert(offsetof(sch_pcie_node_type, port_number) == 6, "layout that clients rely on");
static_assert(offsetof(sch_pcie_node_type, num_functions) == 8, "layout that clients rely on");
static_assert(offsetof(sch_pcie_node_type, field_present) == 10, "layout that clients rely on");

#endif
