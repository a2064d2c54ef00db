/* Records of whole units: chassis, power entry module, power shelf, fan tray. Conventions as in
 * component_records.h. Each is the record of its document's root entity. */
#ifndef INV_PARSER_UNIT_RECORDS_H
#define INV_PARSER_UNIT_RECORDS_H

#include <stdint.h>

#include "inv_parser/module_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of sch_chassis_type.field_present. */
#define SCH_CHASSIS_HAS_BACK_PLANE 0x01u
#define SCH_CHASSIS_HAS_ECU_SLOT 0x02u
#define SCH_CHASSIS_HAS_CRAFT_INTERFACE_SLOT 0x04u

/* A chassis. */
typedef struct sch_chassis_type {
    sch_base_entity_type base;
    uint32_t available_power;                /* 32 bits; element availablePower */
    uint32_t rack_number;                    /* 32 bits; element rackNumber */
    uint32_t fru_bits;                       /* 32 bits; element fruBits */
    uint32_t instance_bits;                  /* 32 bits; element instanceBits */
    sch_power_info_type power_info;          /* element powerInfo */
    sch_back_plane_type back_plane;          /* element backPlane, bit 0 */
    sch_container_type ecu_slot;             /* element ecuSlot, bit 1; released by nobody but the file */
    sch_container_type craft_interface_slot; /* element craftInterfaceSlot, bit 2 */
    sch_container_list_type *container_list_list; /* elements entityContainerList */
    sch_led_type *led_list;                       /* elements led */
    uint8_t field_present;                        /* SCH_CHASSIS_HAS_* */
} sch_chassis_type;

/* A power entry module. The document's hoursUsage, faultStatus and psmState are not carried. */
typedef struct sch_pem_type {
    sch_module_type module;
    sch_fan_type *fan_list; /* elements fan */
} sch_pem_type;

/* A fan tray. */
typedef struct sch_fan_tray_type {
    sch_module_type module;
    sch_fan_type *fan_list; /* elements fan */
} sch_fan_tray_type;

/* A power shelf. */
typedef struct sch_power_shelf_type {
    sch_base_entity_type base;
    sch_power_info_type power_info;   /* element powerInfo */
    sch_i2c_chip_type *i2c_chip_list; /* elements i2c */
    sch_ideeprom_type *ideeprom_list; /* elements eeprom */
    sch_sensor_type *sensor_list;     /* elements sensor */
    int16_t max_pem_containers;       /* 16 bits, signed; element maxPemContainers */
    sch_pem_bay_type *pem_bay_list;   /* elements pemBay */
    sch_module_type module;           /* the first element module; further ones are not carried */
} sch_power_shelf_type;

#ifdef __cplusplus
}
#endif

#endif
