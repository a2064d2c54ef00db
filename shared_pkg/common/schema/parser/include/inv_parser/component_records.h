/* Component records: what modules, back planes, chassis and trays carry.
 *
 * Each record of an entity begins with `base`. Records with a `next` stand in lists, in document
 * order; a list is the pointer to its first record, null when empty. "bit n" is the field's bit in
 * field_present; a field without one is copied always, and the value of an absent item is 0. Texts
 * are cut to what the array holds (or to fewer where said), counted in octets, and end in NUL. A
 * field "joined from four octets" takes the first octet as the most significant.
 */
#ifndef INV_PARSER_COMPONENT_RECORDS_H
#define INV_PARSER_COMPONENT_RECORDS_H

#include <stdint.h>

#include "inv_parser/base_entity.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A state that an LED can show. List element, no entity. */
typedef struct sch_led_info_type {
    uint8_t color;   /* 8 bits; LED colour code; element color */
    uint8_t control; /* 8 bits; LED control code; element control */
    struct sch_led_info_type *next;
} sch_led_info_type;

/* An LED. List element. */
typedef struct sch_led_type {
    sch_base_entity_type base;
    sch_led_info_type *led_info_list; /* elements ledInfo; owned */
    uint32_t ccc_addr_offset;         /* 32 bits, joined from four octets; element cccAddrOffset */
    uint32_t ccc_addr_bits;           /* 32 bits, joined from four octets; element cccAddrBits */
    struct sch_led_type *next;
} sch_led_type;

/* Bits of sch_container_type.field_present. */
#define SCH_CONTAINER_HAS_I2C_IDPROM 0x01u
#define SCH_CONTAINER_HAS_POSITION 0x02u
#define SCH_CONTAINER_HAS_HARDWARE_POSITION 0x04u

/* A slot that takes a unit. List element. */
typedef struct sch_container_type {
    sch_base_entity_type base;
    sch_i2c_sequence_type i2c_idprom; /* way to the unit's ID EEPROM; element i2cIDPROM, bit 0; owned */
    int32_t position;                 /* 32 bits; attribute position, bit 1 */
    int32_t hardware_position;        /* 32 bits; attribute hardwarePosition, bit 2 */
    struct sch_container_type *next;
    uint8_t field_present; /* SCH_CONTAINER_HAS_* */
} sch_container_type;

/* Bit of sch_port_type.field_present. */
#define SCH_PORT_HAS_CONTAINER 0x01u

/* A port. List element. */
typedef struct sch_port_type {
    sch_base_entity_type base;
    int64_t max_bandwidth;        /* 64 bits; element maxBandWidth */
    uint32_t operating_bandwidth; /* 32 bits; element operatingBandWidth */
    char hw_board_identifier[65]; /* 64 octets + NUL; element hwBoardIdentifier */
    sch_led_type *led_list;       /* elements led; owned */
    uint32_t port_usage;          /* 32 bits; port usage code; attribute portUsage */
    sch_container_type container; /* element container, bit 0; what it owns is not released with the port */
    struct sch_port_type *next;
    uint8_t field_present; /* SCH_PORT_HAS_CONTAINER */
} sch_port_type;

/* Limits of a sensor. Unit: the sensor's. */
typedef struct sch_threshold_type {
    int32_t critical_low;  /* 32 bits; attribute criticalLow */
    int32_t critical_high; /* 32 bits; attribute criticalHigh */
    int32_t major_low;     /* 32 bits; attribute majorLow */
    int32_t major_high;    /* 32 bits; attribute majorHigh */
    int32_t minor_low;     /* 32 bits; attribute minorLow */
    int32_t minor_high;    /* 32 bits; attribute minorHigh */
} sch_threshold_type;

/* A console port. List element. */
typedef struct sch_console_type {
    sch_port_type port;
    uint8_t usage; /* 8 bits; console usage code; attribute usage */
    struct sch_console_type *next;
} sch_console_type;

/* An authentication chip. List element. */
typedef struct sch_kesto_type {
    sch_base_entity_type base;
    uint8_t is_validated; /* 8 bits; validation code; element isValidated */
    struct sch_kesto_type *next;
} sch_kesto_type;

/* Bits of sch_fpga_type.field_present. Bit 10 is never set. */
#define SCH_FPGA_HAS_HW_VERSION_MAJOR (1u << 0)
#define SCH_FPGA_HAS_HW_VERSION_MINOR (1u << 1)
#define SCH_FPGA_HAS_MIN_HW_VERSION_MAJOR (1u << 2)
#define SCH_FPGA_HAS_MIN_HW_VERSION_MINOR (1u << 3)
#define SCH_FPGA_HAS_FW_VERSION_MAJOR (1u << 4)
#define SCH_FPGA_HAS_FW_VERSION_MINOR (1u << 5)
#define SCH_FPGA_HAS_MIN_FW_VERSION_MAJOR (1u << 6)
#define SCH_FPGA_HAS_MIN_FW_VERSION_MINOR (1u << 7)
#define SCH_FPGA_HAS_INSTALLED_FW_VERSION_MAJOR (1u << 8)
#define SCH_FPGA_HAS_INSTALLED_FW_VERSION_MINOR (1u << 9)
#define SCH_FPGA_HAS_CONFIG_SPI_FLASH (1u << 11)
#define SCH_FPGA_HAS_SECURE_BOOT_TYPE (1u << 12)

/* An FPGA. List element. */
typedef struct sch_fpga_type {
    sch_base_entity_type base;
    uint8_t field_upgradable;            /* 0 or 1; element fieldUpgradable */
    uint32_t size;                       /* 32 bits; image size; element size */
    uint16_t hw_version_major;           /* 16 bits; element hardwareVersionMajor, bit 0 */
    uint16_t hw_version_minor;           /* 16 bits; element hardwareVersionMinor, bit 1 */
    uint16_t min_hw_version_major;       /* 16 bits; element minimumHardwareVersionMajor, bit 2 */
    uint16_t min_hw_version_minor;       /* 16 bits; element minimumHardwareVersionMinor, bit 3 */
    uint16_t fw_version_major;           /* 16 bits; element firmwareVersionMajor, bit 4 */
    uint16_t fw_version_minor;           /* 16 bits; element firmwareVersionMinor, bit 5 */
    uint16_t min_fw_version_major;       /* 16 bits; element minimumFirmwareVersionMajor, bit 6 */
    uint16_t min_fw_version_minor;       /* 16 bits; element minimumFirmwareVersionMinor, bit 7 */
    uint16_t installed_fw_version_major; /* 16 bits; element installedFirmwareVersionMajor, bit 8 */
    uint16_t installed_fw_version_minor; /* 16 bits; element installedFirmwareVersionMinor, bit 9 */
    uint16_t config_spi_flash;           /* 16 bits; element configSpiFlash, bit 11 */
    uint32_t secure_boot_type;           /* 32 bits; element secureBootType, bit 12 */
    struct sch_fpga_type *next;
    uint16_t field_present; /* SCH_FPGA_HAS_* */
} sch_fpga_type;

/* Bits of sch_ce_port_type.field_present. */
#define SCH_CE_PORT_HAS_PD_SPECIFIC_CLIENT (1u << 0)
#define SCH_CE_PORT_HAS_CC0_NATIVE_VLAN (1u << 1)
#define SCH_CE_PORT_HAS_CC1_NATIVE_VLAN (1u << 2)
#define SCH_CE_PORT_HAS_NATIVE_VLAN (1u << 3)
#define SCH_CE_PORT_HAS_CC0_PORT_SPEED (1u << 4)
#define SCH_CE_PORT_HAS_CC1_PORT_SPEED (1u << 5)
#define SCH_CE_PORT_HAS_PORT_SPEED (1u << 6)
#define SCH_CE_PORT_HAS_CC0_PORT_MODE (1u << 7)
#define SCH_CE_PORT_HAS_CC1_PORT_MODE (1u << 8)
#define SCH_CE_PORT_HAS_PORT_MODE (1u << 9)
#define SCH_CE_PORT_HAS_CC0_MLAP_FLAGS (1u << 10)
#define SCH_CE_PORT_HAS_CC1_MLAP_FLAGS (1u << 11)
#define SCH_CE_PORT_HAS_MLAP_FLAGS (1u << 12)
#define SCH_CE_PORT_HAS_CC0_PORT_DEST (1u << 13)
#define SCH_CE_PORT_HAS_CC1_PORT_DEST (1u << 14)
#define SCH_CE_PORT_HAS_PORT_DEST (1u << 15)
#define SCH_CE_PORT_HAS_CC0_PORT_DEST_NAME (1u << 16)
#define SCH_CE_PORT_HAS_CC1_PORT_DEST_NAME (1u << 17)
#define SCH_CE_PORT_HAS_PORT_DEST_NAME (1u << 18)
#define SCH_CE_PORT_HAS_SFP_CONTROLLER (1u << 19)
#define SCH_CE_PORT_HAS_PHY_TYPE (1u << 20)

/* A control-Ethernet port, embedded in a CE switch port. "cc0" and "cc1" name the value as the
 * control card in slot 0 or 1 has it. */
typedef struct sch_ce_port_type {
    sch_base_entity_type base;
    uint32_t port_number;         /* 32 bits; element portNumber */
    uint32_t port_usage;          /* 32 bits; port usage code; attribute portUsage */
    uint32_t operating_bandwidth; /* 32 bits; element operatingBandWidth, 0 when absent */
    uint32_t client;              /* 32 bits; client code; element client */
    uint32_t pd_specific_client;  /* 32 bits; element pd_specific_client, bit 0 */
    uint32_t cc0_native_vlan;     /* 32 bits; VLAN code; element CC0nativeVlan, bit 1 */
    uint32_t cc1_native_vlan;     /* 32 bits; VLAN code; element CC1nativeVlan, bit 2 */
    uint32_t native_vlan;         /* 32 bits; VLAN code; element nativeVlan, bit 3 */
    uint32_t cc0_port_speed;      /* 32 bits; speed code; element CC0portSpeed, bit 4 */
    uint32_t cc1_port_speed;      /* 32 bits; speed code; element CC1portSpeed, bit 5 */
    uint32_t port_speed;          /* 32 bits; speed code; element portSpeed, bit 6 */
    uint32_t cc0_port_mode;       /* 32 bits; mode code; element CC0portMode, bit 7 */
    uint32_t cc1_port_mode;       /* 32 bits; mode code; element CC1portMode, bit 8 */
    uint32_t port_mode;           /* 32 bits; mode code; element portMode, bit 9 */
    uint32_t cc0_mlap_flags;      /* 32 bits, joined from four octets; element CC0mlapFlags, bit 10 */
    uint32_t cc1_mlap_flags;      /* 32 bits, joined from four octets; element CC1mlapFlags, bit 11 */
    uint32_t mlap_flags;          /* 32 bits, joined from four octets; element mlapFlags, bit 12 */
    uint32_t serdes;              /* 32 bits; serdes code; element serdes */
    uint32_t cc0_port_dest;       /* 32 bits; destination code; element CC0portDest, bit 13 */
    uint32_t cc1_port_dest;       /* 32 bits; destination code; element CC1portDest, bit 14 */
    uint32_t port_dest;           /* 32 bits; destination code; element portDest, bit 15 */
    char cc0_port_dest_name[33];  /* 32 octets + NUL; element CC0PortDestName, bit 16 */
    char cc1_port_dest_name[33];  /* 32 octets + NUL; element CC1PortDestName, bit 17 */
    char port_dest_name[33];      /* 32 octets + NUL; element PortDestName, bit 18 */
    uint32_t policing_port_map;   /* 32 bits; element policingPortMap */
    uint32_t mdio_channel;        /* 32 bits; element mdioChannel */
    uint32_t mdio_clk_speed;      /* 32 bits; speed code; element mdioClkSpeed, 0 when absent */
    uint32_t local_switching;     /* 32 bits; switching code; element LocalSwitching, 0 when absent */
    uint32_t port_admin_state;    /* 32 bits; port state code; element portAdminState, 0 when absent */
    uint32_t sfp_controller;      /* 32 bits; controller code; element sfpController, bit 19 */
    uint32_t phy_type;            /* 32 bits; PHY code; element phyType, bit 20 */
    sch_led_type *led_list;       /* elements led; owned */
    sch_container_type container; /* element container, zero when absent (no bit); owned */
    uint32_t field_present;       /* SCH_CE_PORT_HAS_* */
} sch_ce_port_type;

/* A port of a CE switch. List element. */
typedef struct sch_ce_switch_port_type {
    sch_ce_port_type ce_port;
    uint8_t face_plate_port; /* 0 or 1; leads to the face plate; attribute facePlatePort */
    struct sch_ce_switch_port_type *next;
} sch_ce_switch_port_type;

/* Bit of sch_ce_switch_type.field_present. */
#define SCH_CE_SWITCH_HAS_MAX_PORTS 0x01u

/* A control-Ethernet switch. List element. */
typedef struct sch_ce_switch_type {
    sch_base_entity_type base;
    uint32_t max_ports;                 /* 32 bits; element maxPorts, bit 0 */
    uint16_t cores;                     /* 16 bits; low half of element cores */
    sch_ce_switch_port_type *port_list; /* elements port; owned */
    sch_fpga_type *fpga_list;           /* elements fpga; owned */
    struct sch_ce_switch_type *next;
    uint8_t field_present; /* SCH_CE_SWITCH_HAS_MAX_PORTS */
} sch_ce_switch_type;

/* Bits of sch_ideeprom_type.field_present. */
#define SCH_IDEEPROM_HAS_HARDWARE_VERSION (1u << 0)
#define SCH_IDEEPROM_HAS_SIZE (1u << 1)
#define SCH_IDEEPROM_HAS_CLEI_CODE_NUM (1u << 2)
#define SCH_IDEEPROM_HAS_MANUFACTURER_ID (1u << 3)
#define SCH_IDEEPROM_HAS_VENDOR_NAME (1u << 4)
#define SCH_IDEEPROM_HAS_VENDOR_PN (1u << 5)
#define SCH_IDEEPROM_HAS_PCB_REV_NUMBER (1u << 6)
#define SCH_IDEEPROM_HAS_PCB_SERIAL_NUMBER (1u << 7)
#define SCH_IDEEPROM_HAS_YEAR_MD (1u << 8)
#define SCH_IDEEPROM_HAS_MONTH_MD (1u << 9)
#define SCH_IDEEPROM_HAS_DAY_MD (1u << 10)
#define SCH_IDEEPROM_HAS_LOT (1u << 11)
#define SCH_IDEEPROM_HAS_CHECK_SUM (1u << 12)
#define SCH_IDEEPROM_HAS_PID (1u << 13)
#define SCH_IDEEPROM_HAS_VID (1u << 14)
#define SCH_IDEEPROM_HAS_PN (1u << 15)
#define SCH_IDEEPROM_HAS_REV (1u << 16)
#define SCH_IDEEPROM_HAS_BOARD_ID (1u << 17)

/* An ID EEPROM. List element. */
typedef struct sch_ideeprom_type {
    sch_base_entity_type base;
    uint32_t eeprom_type;       /* 32 bits; EEPROM usage code; attribute eepromType */
    uint8_t hardware_version;   /* 8 bits; the EEPROM's own element hardwareVersion, bit 0 */
    uint16_t size;              /* 16 bits; element size, bit 1 */
    char clei_code_num[26];     /* 25 octets + NUL; element CLEICodeNum, bit 2 */
    char manufacturer_id[26];   /* 25 octets + NUL; element manufacturerID, bit 3 */
    char vendor_name[26];       /* 25 octets + NUL; element vendorName, bit 4 */
    char vendor_pn[26];         /* 25 octets + NUL; element vendorPN, bit 5 */
    char pcb_rev_number[26];    /* 25 octets + NUL; element PCBRevNumber, bit 6 */
    char pcb_serial_number[26]; /* 25 octets + NUL; element PCBSerialNumber, bit 7 */
    char year_md[26];           /* 25 octets + NUL; manufacturing year; element yearMD, bit 8 */
    char month_md[26];          /* 25 octets + NUL; manufacturing month; element monthMD, bit 9 */
    char day_md[26];            /* 25 octets + NUL; manufacturing day; element dayMD, bit 10 */
    char lot[26];               /* 25 octets + NUL; element lot, bit 11 */
    char pid[26];               /* 25 octets + NUL; product identifier; element PID, bit 13 */
    char vid[26];               /* 25 octets + NUL; version identifier; element VID, bit 14 */
    char pn[26];                /* 25 octets + NUL; part number; element PN, bit 15 */
    char rev[26];               /* 25 octets + NUL; revision; element rev, bit 16 */
    uint8_t check_sum;          /* 8 bits; element checkSum, bit 12 */
    uint16_t board_id;          /* 16 bits; element boardID, bit 17 */
    struct sch_ideeprom_type *next;
    uint32_t field_present; /* SCH_IDEEPROM_HAS_* */
} sch_ideeprom_type;

/* A stretch of a flash memory. List element, no entity. */
typedef struct sch_storage_memory_map_type {
    uint8_t memory_usage; /* 8 bits; usage code; element memoryUsage */
    uint32_t blocks;      /* 32 bits; number of blocks; element blocks */
    uint32_t start_addr;  /* 32 bits; only the first octet of element startAddr */
    uint32_t end_addr;    /* 32 bits; only the first octet of element endAddr */
    struct sch_storage_memory_map_type *next;
} sch_storage_memory_map_type;

/* Bit of sch_storage_type.field_present. */
#define SCH_STORAGE_HAS_SPEED 0x01u

/* A storage device. List element. */
typedef struct sch_storage_type {
    sch_base_entity_type base;
    uint32_t max_capacity;    /* 32 bits; only the first octet of element maxCapacity */
    uint32_t speed;           /* 32 bits; in the document's own unit; element speed, bit 0 */
    sch_fpga_type *fpga_list; /* elements fpga; owned */
    struct sch_storage_type *next;
    uint8_t field_present; /* SCH_STORAGE_HAS_SPEED */
} sch_storage_type;

/* An SPI flash. List element. */
typedef struct sch_spi_flash_type {
    sch_storage_type storage;                     /* its `next` stays null */
    uint32_t channel;                             /* 32 bits; SPI channel; element channel */
    uint32_t block_size_kb;                       /* 32 bits; only the first octet of element blockSizeKB */
    sch_storage_memory_map_type *memory_map_list; /* elements memoryRow; owned */
    struct sch_spi_flash_type *next;
} sch_spi_flash_type;

/* Bits of sch_sensor_type.field_present. */
#define SCH_SENSOR_HAS_THRESHOLD (1u << 0)
#define SCH_SENSOR_HAS_USER_DEFINED_UNIT (1u << 1)
#define SCH_SENSOR_HAS_IS_MARGINABLE (1u << 2)
#define SCH_SENSOR_HAS_IS_ROV (1u << 3)
#define SCH_SENSOR_HAS_MARGIN_REGISTER (1u << 4)
#define SCH_SENSOR_HAS_PRECISION (1u << 5)
#define SCH_SENSOR_HAS_PD_DATA1 (1u << 6)
#define SCH_SENSOR_HAS_PD_DATA2 (1u << 7)
#define SCH_SENSOR_HAS_POWERDOMAIN (1u << 8)
#define SCH_SENSOR_HAS_HW_POLL_REGISTER_OFFSET (1u << 9)

/* A sensor. List element. The document's value and lastValue are not carried. */
typedef struct sch_sensor_type {
    sch_base_entity_type base;
    sch_threshold_type threshold;     /* element threshold, bit 0 */
    uint32_t user_defined_unit;       /* 32 bits; unit code; element userDefinedUnit, bit 1 */
    uint32_t pd_data1;                /* 32 bits, joined from four octets; element pd_data1, bit 6 */
    uint32_t pd_data2;                /* 32 bits, joined from four octets; element pd_data2, bit 7 */
    uint32_t powerdomain;             /* 32 bits, joined from four octets; element powerdomain, bit 8 */
    uint32_t hw_poll_register_offset; /* 32 bits, joined from four octets; element hwPollRegisterOffset,
                                         bit 9 */
    uint32_t is_core_autopolled;      /* 0 or 1 in 32 bits; element isCoreAutopolled, 0 when absent */
    int32_t sensor_data_length;       /* 32 bits; octets; element sensorDataLength, 0 when absent */
    uint8_t unit;                     /* 8 bits; unit code; element unit */
    uint8_t scale;                    /* 8 bits; scale code; element scale */
    uint8_t precision;                /* 8 bits; low octet of element precision, bit 5 */
    uint8_t is_marginable;            /* 0 or 1; attribute isMarginable, bit 2 */
    uint8_t is_rov;                   /* 0 or 1; attribute isRov, bit 3 */
    uint32_t margin_register;         /* 32 bits, joined from four octets; attribute marginRegister, bit 4 */
    struct sch_sensor_type *next;
    uint16_t field_present; /* SCH_SENSOR_HAS_* */
} sch_sensor_type;

/* Bit of sch_pem_bay_type.field_present. */
#define SCH_PEM_BAY_HAS_SENSOR_ACCESS 0x01u

/* A bay for a power entry module. List element. */
typedef struct sch_pem_bay_type {
    sch_container_type container;       /* its `next` stays null */
    sch_base_entity_type sensor_access; /* an entity of its own; element i2cSensorAccess, bit 0; owned */
    struct sch_pem_bay_type *next;
    uint8_t field_present; /* SCH_PEM_BAY_HAS_SENSOR_ACCESS */
} sch_pem_bay_type;

/* A memory. List element. */
typedef struct sch_memory_type {
    sch_base_entity_type base;
    char capacity[65];         /* 8 octets + NUL, whatever the array could hold; element capacity */
    char serial_number[65];    /* 8 octets + NUL; element serialNumber */
    char firmware_version[65]; /* 8 octets + NUL; the memory's own element firmwareVersion */
    struct sch_memory_type *next;
} sch_memory_type;

/* Bits of sch_container_list_type.field_present. */
#define SCH_CONTAINER_LIST_HAS_I2C_ACCESS 0x01u
#define SCH_CONTAINER_LIST_HAS_I2C_IDPROM 0x02u
#define SCH_CONTAINER_LIST_HAS_PCI_ACCESS 0x04u

/* All slots of one kind in a chassis. List element, no entity: its containers hang in the tree
 * below the chassis. */
typedef struct sch_container_list_type {
    uint8_t container_type;           /* 8 bits; container type code; element containerType */
    uint16_t max_containers;          /* 16 bits; element maxContainers */
    sch_i2c_sequence_type i2c_access; /* element i2cAccess, bit 0; owned */
    sch_i2c_sequence_type
        i2c_idprom; /* way to the ID EEPROMs of the units; element i2cIDPROM, bit 1; owned */
    sch_pci_sequence_type pci_access;   /* element pciAccess, bit 2 */
    sch_container_type *container_list; /* elements entityContainer; owned */
    struct sch_container_list_type *next;
    uint8_t field_present; /* SCH_CONTAINER_LIST_HAS_* */
} sch_container_list_type;

/* An I2C chip. List element. */
typedef struct sch_i2c_chip_type {
    sch_base_entity_type base;
    struct sch_i2c_chip_type *next;
} sch_i2c_chip_type;

/* Bits of sch_processor_type.field_present. */
#define SCH_PROCESSOR_HAS_BUS_SPEED 0x01u
#define SCH_PROCESSOR_HAS_CPU_SPEED 0x02u
#define SCH_PROCESSOR_HAS_OSCILLATION_SPEED 0x04u

/* A processor. List element. Speeds are in the document's own unit. */
typedef struct sch_processor_type {
    sch_base_entity_type base;
    uint32_t cores;             /* 32 bits; element cores */
    uint32_t bus_speed;         /* 32 bits; element busSpeed, bit 0 */
    uint32_t cpu_speed;         /* 32 bits; element cpuSpeed, bit 1 */
    uint32_t oscillation_speed; /* 32 bits; element oscillationSpeed, bit 2 */
    char clock_speed[65];       /* 64 octets + NUL; element clockSpeed */
    char cache_size_l1[65];     /* 64 octets + NUL; element cacheSizeL1 */
    char cache_size_l2[65];     /* 64 octets + NUL; element cacheSizeL2 */
    char cache_size_l3[65];     /* 64 octets + NUL; element cacheSizeL3 */
    struct sch_processor_type *next;
    uint8_t field_present; /* SCH_PROCESSOR_HAS_* */
} sch_processor_type;

/* Bit of sch_pcie_switch_type.field_present. */
#define SCH_PCIE_SWITCH_HAS_SENSOR 0x01u

/* A PCIe switch. List element. */
typedef struct sch_pcie_switch_type {
    sch_base_entity_type base;
    sch_sensor_type sensor;   /* an entity of its own; element sensor, bit 0; owned */
    sch_fpga_type *fpga_list; /* elements fpga; owned */
    struct sch_pcie_switch_type *next;
    uint8_t field_present; /* SCH_PCIE_SWITCH_HAS_SENSOR */
} sch_pcie_switch_type;

/* A voltage margin. List element. */
typedef struct sch_volt_margin_type {
    sch_base_entity_type base;
    int32_t high_value; /* 32 bits; element highValue */
    int32_t low_value;  /* 32 bits; element lowValue */
    uint8_t operation;  /* 8 bits; operation code; element operation */
    struct sch_volt_margin_type *next;
} sch_volt_margin_type;

#ifdef __cplusplus
}
#endif

#endif
