/* Release of records.
 *
 * Everything that opening a file builds (records, lists, tree, indexes) belongs to that file and goes
 * with it in one step at the last inv_parser_close_xml_file(). Clients release nothing of it.
 *
 * What a caller makes itself by a direct call of a record builder, outside a load, comes from the
 * zeroing heap and goes by the function named here. inv_schema_free_<thing>_data() releases what one
 * record owns, not the record; inv_schema_free_<thing>_data_list() every record of a list with what
 * it owns. Elements that a client made with calloc() may hang in these lists. Pointers into what was
 * released are left dangling. On records of an open file the functions walk the lists and give nothing
 * back.
 *
 * Deliberately not released, by any function: SPI port lists; the commands of hw_signals; what the
 * container of a port owns; what the sensor of a fan owns; the PCI sequence of a container list; the
 * ECU slot of a chassis. Records made by hand keep these until the process ends.
 *
 * All ignore null. None takes the lock: calls are serialised with open, close and each other. A record
 * that is still registered in a tree or an index must not be released.
 */
#ifndef INV_PARSER_RELEASE_H
#define INV_PARSER_RELEASE_H

#include "inv_parser/access_records.h"
#include "inv_parser/base_entity.h"
#include "inv_parser/component_records.h"
#include "inv_parser/eid.h"
#include "inv_parser/handle.h"
#include "inv_parser/module_records.h"
#include "inv_parser/power_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Access records. */
void inv_schema_free_i2c_node_data_list(sch_i2c_node_type *first);
void inv_schema_free_i2c_dest_data_list(sch_i2c_dest_type *first);
void inv_schema_free_i2c_port_data(sch_i2c_port_type *record); /* the destinations */
void inv_schema_free_i2c_port_data_list(sch_i2c_port_type *first);
void inv_schema_free_i2c_sequence_data(sch_i2c_sequence_type *record); /* the commands */
void inv_schema_free_pci_sequence_data_list(sch_pci_sequence_type *first);
void inv_schema_free_pcie_port_dest_list(sch_pcie_dest_type *first);
void inv_schema_free_pcie_port_data(sch_base_pcie_port_type *record); /* links, destinations */
void inv_schema_free_pcie_port_data_list(sch_base_pcie_port_type *first);

/* Power records. */
void inv_schema_free_power_zone_data_list(sch_power_zone_type *first);
void inv_schema_free_power_info_data(sch_power_info_type *record); /* the zones */

/* I2C and PCIe ports of an entity; not its SPI ports. */
void inv_schema_free_base_entity_data(sch_base_entity_type *record);

/* Components: the base record and what is named beside. */
void inv_schema_free_led_data(sch_led_type *record);             /* led info list */
void inv_schema_free_container_data(sch_container_type *record); /* I2C sequence */
void inv_schema_free_port_data(sch_port_type *record);           /* LED list; not the container */
void inv_schema_free_console_data(sch_console_type *record);     /* as its port */
void inv_schema_free_kesto_data(sch_kesto_type *record);
void inv_schema_free_ce_port_data(sch_ce_port_type *record);               /* container, LED list */
void inv_schema_free_ce_switch_port_data(sch_ce_switch_port_type *record); /* as its CE port */
void inv_schema_free_ce_switch_data(sch_ce_switch_type *record);           /* ports, FPGAs */
void inv_schema_free_ideeprom_data(sch_ideeprom_type *record);
void inv_schema_free_storage_data(sch_storage_type *record);     /* FPGAs */
void inv_schema_free_spi_flash_data(sch_spi_flash_type *record); /* as its storage; memory map */
void inv_schema_free_fpga_data(sch_fpga_type *record);
void inv_schema_free_fan_data(sch_fan_type *record);         /* modules; not what the sensor owns */
void inv_schema_free_pem_bay_data(sch_pem_bay_type *record); /* as its container; second base */
void inv_schema_free_sensor_data(sch_sensor_type *record);
void inv_schema_free_memory_data(sch_memory_type *record);
void inv_schema_free_container_list_data(
    sch_container_list_type *record); /* both I2C sequences, containers; no base */
void inv_schema_free_i2c_chip_data(sch_i2c_chip_type *record);
void inv_schema_free_processor_data(sch_processor_type *record);
void inv_schema_free_pcie_switch_data(sch_pcie_switch_type *record); /* sensor, FPGAs */
void inv_schema_free_volt_margin_data(sch_volt_margin_type *record);

void inv_schema_free_led_info_data_list(sch_led_info_type *first);
void inv_schema_free_storage_mem_map_data_list(sch_storage_memory_map_type *first);
void inv_schema_free_led_data_list(sch_led_type *first);
void inv_schema_free_container_data_list(sch_container_type *first);
void inv_schema_free_port_data_list(sch_port_type *first);
void inv_schema_free_console_data_list(sch_console_type *first);
void inv_schema_free_kesto_data_list(sch_kesto_type *first);
void inv_schema_free_ce_switch_port_data_list(sch_ce_switch_port_type *first);
void inv_schema_free_ce_switch_data_list(sch_ce_switch_type *first);
void inv_schema_free_ideeprom_data_list(sch_ideeprom_type *first);
void inv_schema_free_storage_data_list(sch_storage_type *first);
void inv_schema_free_spi_flash_data_list(sch_spi_flash_type *first);
void inv_schema_free_fpga_data_list(sch_fpga_type *first);
void inv_schema_free_fan_data_list(sch_fan_type *first);
void inv_schema_free_pem_bay_data_list(sch_pem_bay_type *first);
void inv_schema_free_sensor_data_list(sch_sensor_type *first);
void inv_schema_free_memory_data_list(sch_memory_type *first);
void inv_schema_free_container_list_data_list(sch_container_list_type *first);
void inv_schema_free_i2c_chip_data_list(sch_i2c_chip_type *first);
void inv_schema_free_processor_data_list(sch_processor_type *first);
void inv_schema_free_pcie_switch_data_list(sch_pcie_switch_type *first);
void inv_schema_free_volt_margin_data_list(sch_volt_margin_type *first);

/* Modules: base, power information, the sixteen component lists, child modules. Any depth. */
void inv_schema_free_module_data(sch_module_type *record);
void inv_schema_free_module_data_list(sch_module_type *first);

/* Base, EEPROMs, sensors and the whole chain of modules, however long. */
void inv_schema_free_back_plane_data(sch_back_plane_type *record);

/* A level of an entity tree with everything below it. Entity records are not touched, and nothing is
 * unlinked: what is left of the tree must not lead to these nodes any longer when it is asked next. */
void inv_schema_free_eid_chain_list(eid_chain_node *first);

/* Loading results: the handle, of which only `root` is read. Each releases the root's record with
 * what it owns, the entity tree and the handle itself, which must have come from the zeroing heap, be
 * in no registry and hold a record of the kind that is named. (A record that the library knows to be of
 * another kind, since it loaded the document, goes with the handle's memory instead.) When the handle, its
 * root or the root's record is null nothing at all is released. */
void inv_schema_free_chassis_data(inv_xml_handle *result);
void inv_schema_free_pem_data(inv_xml_handle *result);
void inv_schema_free_power_shelf_data(inv_xml_handle *result);
void inv_schema_free_fan_tray_data(inv_xml_handle *result);
void inv_schema_free_port_module_data(inv_xml_handle *result);

/* The same for a result with an entity tree and a module list (`root`, `module_record`), each of which
 * may be null. */
void inv_schema_free_base_module_data(inv_xml_handle *result);

#ifdef __cplusplus
}
#endif

#endif
