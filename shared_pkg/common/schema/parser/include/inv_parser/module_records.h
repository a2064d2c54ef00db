/* Module, back plane, fan and fixed-optics records. Conventions as in component_records.h. */
#ifndef INV_PARSER_MODULE_RECORDS_H
#define INV_PARSER_MODULE_RECORDS_H

#include <stdint.h>

#include "inv_parser/component_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of sch_module_type.field_present. */
#define SCH_MODULE_HAS_POWER_INFO 0x01u
#define SCH_MODULE_HAS_POWER_CONTROLLER 0x02u
#define SCH_MODULE_HAS_LOGICAL_MODULE_NUM 0x04u

/* A board or any other module, plugged or fixed. Owns its lists and what hangs in them; the list it
 * stands in belongs to its parent. A bare module has only its base. */
typedef struct sch_module_type {
    sch_base_entity_type base;
    uint16_t logical_module_num;            /* 16 bits; element logicalModuleNum, bit 2 */
    sch_power_info_type power_info;         /* element powerInfo, bit 0 */
    uint16_t power_controller;              /* 16 bits; element powerController, bit 1 */
    sch_fpga_type *fpga_list;               /* elements fpga */
    sch_i2c_chip_type *i2c_chip_list;       /* elements i2c */
    sch_pcie_switch_type *pcie_switch_list; /* elements pcieSwitch */
    sch_sensor_type *sensor_list;           /* elements sensor */
    sch_volt_margin_type *volt_margin_list; /* elements voltMargin */
    sch_spi_flash_type *spi_flash_list;     /* elements storageSPI */
    sch_storage_type *storage_list;         /* elements storageHDD */
    sch_processor_type *processor_list;     /* elements processor */
    sch_memory_type *memory_list;           /* elements memory */
    sch_ce_switch_type *ce_switch_list;     /* elements ceSwitch */
    sch_kesto_type *kesto_list;             /* elements security */
    sch_console_type *console_list;         /* elements console */
    sch_container_type *container_list;     /* elements container */
    sch_ideeprom_type *ideeprom_list;       /* elements eeprom */
    sch_port_type *port_list;               /* elements fixedPorts */
    sch_led_type *led_list;                 /* elements led */
    struct sch_module_type *module_list;    /* elements module; in a back plane's chain the next module */
    struct sch_module_type *next;           /* next module of the list this one stands in */
    uint8_t field_present;                  /* SCH_MODULE_HAS_* */
} sch_module_type;

/* A back plane. */
typedef struct sch_back_plane_type {
    sch_base_entity_type base;
    sch_ideeprom_type *ideeprom_list; /* elements eeprom */
    sch_sensor_type *sensor_list;     /* elements sensor */
    sch_module_type *module_list;     /* first of elements module; each later one is the module_list of the
                                         one before, not its next */
} sch_back_plane_type;

/* A fan. List element. */
typedef struct sch_fan_type {
    sch_base_entity_type base;
    sch_sensor_type sensor; /* an entity of its own; element sensor; what it owns is not released */
    sch_module_type module; /* left zero by the builder; its next heads the fan's modules */
    struct sch_fan_type *next;
} sch_fan_type;

/* Fixed CXP optics. */
typedef struct sch_cxp_fixed_optics_type {
    sch_module_type module;
    uint16_t number_channels;              /* 16 bits; element numberChannels */
    uint8_t sensor_per_channel;            /* 0 or 1; element sensorPerChannel */
    uint16_t xml_instance_start;           /* 16 bits; first xml instance; element xmlInstanceStart */
    uint8_t summary_los_tx;                /* 0 or 1; element summaryLosTx */
    uint8_t summary_fault_tx;              /* 0 or 1; element summaryFaultTx */
    uint8_t summary_bias_tx;               /* 0 or 1; element summaryBiasTx */
    uint8_t summary_module_tx;             /* 0 or 1; element summaryModuleTx */
    uint8_t summary_los_rx;                /* 0 or 1; element summaryLosRx */
    uint8_t summary_fault_rx;              /* 0 or 1; element summaryFaultRx */
    uint8_t summary_bias_rx;               /* 0 or 1; element summaryBiasRx */
    uint8_t summary_module_rx;             /* 0 or 1; element summaryModuleRx */
    sch_threshold_type los_thresholds;     /* element sensorLosThresholds */
    sch_threshold_type bias_thresholds;    /* element sensorBiasThresholds */
    sch_threshold_type thermo_thresholds;  /* element sensorThermoThresholds */
    sch_threshold_type voltage_thresholds; /* element sensorVoltageThresholds */
} sch_cxp_fixed_optics_type;

#ifdef __cplusplus
}
#endif

#endif
