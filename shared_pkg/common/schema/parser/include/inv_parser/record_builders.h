/* Record builders: exported for this library's own parts and for tests, outside the umbrella header.
 * Clients get records from inv_parser_open_xml_file() and the queries.
 *
 * A single builder copies one decoded value into the caller's zeroed record and registers what is an
 * entity: it hangs it below `parent` in the entity tree and files it in the indexes of the current
 * file (parser_set_inv_file_instance()). Filing and hanging keep the record's address. It returns 0,
 * also for a null record or value, which is only traced; exceptions are said.
 *
 * A list builder makes one record per node of a decoded list and fills it with the single builder.
 * It appends to the list at *head, and returns 1 when memory ran out, else 0. A null list is traced;
 * a node without a value ends the walk. What was made before a failure stays in the list.
 *
 * During a load the file owns all memory. What a caller makes itself by a direct call is the
 * caller's: it goes by the release functions of release.h.
 *
 * No function takes the lock: calls are serialised with open, close and each other.
 */
#ifndef INV_PARSER_RECORD_BUILDERS_H
#define INV_PARSER_RECORD_BUILDERS_H

#include <stdint.h>

#include "inv_parser/access_records.h"
#include "inv_parser/base_entity.h"
#include "inv_parser/component_records.h"
#include "inv_parser/module_records.h"
#include "inv_parser/platform_types.h"
#include "inv_parser/power_records.h"
#include "inv_parser/unit_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decoded values; OrvelianInventorySchema.h has them in full. */
struct BackPlaneType;
struct BaseCEPortType;
struct BaseCESwitchType;
struct BaseCESwitchType_2_port;
struct BaseConsoleType;
struct BaseContainerListType;
struct BaseContainerType;
struct BaseEntityType;
struct BaseFPGAType;
struct BaseIdEEPROMType;
struct BaseKestoType;
struct BaseLEDType;
struct BaseLedInfoType;
struct BaseMemoryType;
struct BaseModuleType;
struct BasePCIePortType;
struct BasePCIeSwitchType;
struct BasePortType;
struct BaseProcessorType;
struct BaseSensorType;
struct BaseSpiFlash;
struct BaseStorageMemoryMap;
struct BaseStorageType;
struct BaseThresholdType;
struct BaseVoltageMarginType;
struct ChassisEntityType_2;
struct FanTrayType;
struct FanType;
struct HardwareRegistersType;
struct HwSignalsType;
struct I2cChipType;
struct I2cDestType;
struct I2cNodeType;
struct I2cPortType;
struct I2cSequenceType;
struct NodeInfoType;
struct OpticsType;
struct PCIeDestType;
struct PCIeNodeType;
struct PEMType;
struct PciSequenceType;
struct PemBayType;
struct PowerConsumerType;
struct PowerInfoType;
struct PowerProducerType;
struct PowerShelfType_2;
struct PowerZoneType;
struct SpiDestType;
struct SpiPortType;

/* --- Access records: how devices are reached ---
 * `owner` is the entity whose port it is, and the channel or port number that port's. Destinations are
 * filed in the current file: an entity in the xml-instance index, anything else in the slot list of its
 * node type. The destination builders return 1 when that fails (traces 132 to 134 and 142 to 144), and
 * so do their lists, which end there; ports with an incomplete list are kept and return 0.
 */

uint32_t parser_retrieve_node_info_data(sch_node_info_type *record, const struct NodeInfoType *decoded);
uint32_t parser_retrieve_i2c_node_data(sch_i2c_node_type *record, const struct I2cNodeType *decoded);
uint32_t parser_retrieve_i2c_sequence_data(sch_i2c_sequence_type *record,
                                           const struct I2cSequenceType *decoded);
uint32_t parser_retrieve_i2c_dest_data(sch_i2c_dest_type *record, const struct I2cDestType *decoded,
                                       uint32_t channel, sch_base_entity_type *owner);
uint32_t parser_retrieve_i2c_port_data(sch_i2c_port_type *record, const struct I2cPortType *decoded,
                                       sch_base_entity_type *owner);
uint32_t parser_retrieve_pcie_node_data(sch_pcie_node_type *record, const struct PCIeNodeType *decoded);
uint32_t parser_retrieve_pci_sequence_data(sch_pci_sequence_type *record,
                                           const struct PciSequenceType *decoded);
uint32_t parser_retrieve_pcie_dest_data(sch_pcie_dest_type *record, const struct PCIeDestType *decoded,
                                        uint32_t port_number, sch_base_entity_type *owner);
uint32_t parser_retrieve_base_pcie_port_data(sch_base_pcie_port_type *record,
                                             const struct BasePCIePortType *decoded,
                                             sch_base_entity_type *owner);
uint32_t parser_retrieve_spi_dest_data(sch_spi_dest_type *record, const struct SpiDestType *decoded);
uint32_t parser_retrieve_spi_port_data(sch_spi_port_type *record, const struct SpiPortType *decoded);
uint32_t parser_retrieve_hw_reg_data(sch_hw_reg_type *record, const struct HardwareRegistersType *decoded);
uint32_t parser_retrieve_hw_signals_data(sch_hw_signals_type *record, const struct HwSignalsType *decoded);

uint32_t parser_retrieve_i2c_dest_data_list(sch_i2c_dest_type **head, const xb_data_list *list,
                                            uint32_t channel, sch_base_entity_type *owner);
uint32_t parser_retrieve_i2c_port_data_list(sch_i2c_port_type **head, const xb_data_list *list,
                                            sch_base_entity_type *owner);
uint32_t parser_retrieve_pcie_dest_data_list(sch_pcie_dest_type **head, const xb_data_list *list,
                                             uint32_t port_number, sch_base_entity_type *owner);
uint32_t parser_retrieve_base_pcie_port_data_list(sch_base_pcie_port_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *owner);

/* Without appending: the first record made replaces whatever hung at *head. */
uint32_t parser_retrieve_i2c_node_data_list(sch_i2c_node_type **head, const xb_data_list *list);
uint32_t parser_retrieve_pci_sequence_data_list(sch_pci_sequence_type **head, const xb_data_list *list);

/* Returns 0 always. Destinations replace what hung at *head and end silently when memory runs out; a
 * port that gets no memory is left out and the walk goes on. Nothing releases SPI lists by name. */
uint32_t parser_retrieve_spi_dest_data_list(sch_spi_dest_type **head, const xb_data_list *list);
uint32_t parser_retrieve_spi_port_data_list(sch_spi_port_type **head, const xb_data_list *list);

/* --- Power records ---
 * The consumer builder returns its record, the producer builder nothing to rely on; neither traces a
 * null pointer. The zone list appends; the last argument of both is handed through and not used. Power
 * information returns 0 also when its list failed. */
sch_power_consumer_type *parser_retrieve_power_consumer_data(sch_power_consumer_type *record,
                                                             const struct PowerConsumerType *decoded);
uint32_t parser_retrieve_power_producer_data(sch_power_producer_type *record,
                                             const struct PowerProducerType *decoded);
uint32_t parser_retrieve_power_zone_data(sch_power_zone_type *record, const struct PowerZoneType *decoded);
uint32_t parser_retrieve_power_zone_list(sch_power_zone_type **head, const xb_data_list *list, void *ignored);
uint32_t parser_retrieve_power_info_data(sch_power_info_type *record, const struct PowerInfoType *decoded,
                                         void *passed_on);

/* --- Base entity ---
 * Fills and registers. Returns 1 when an index takes no node (traces 162 to 165): the record is then
 * partly filled and not in the tree. Without a current file it is filled and hung, but not indexed. */
uint32_t parser_retrieve_base_entity_data(sch_base_entity_type *record, const struct BaseEntityType *decoded,
                                          sch_base_entity_type *parent);

/* Sets record->subtype from the decoded subtype and record->type: counted from the type's first subtype,
 * modulo 256. A type without subtypes of its own, or above 12, counts from 0. */
void parser_convert_subtype(sch_base_entity_type *record, const struct BaseEntityType *decoded);

/* --- Components ---
 * Single builders return 0 always. Components that a component contains hang below it. When a list
 * builder gets no memory for an element it goes on with the next. Nodes of container, port (fixed
 * ports), storage and module lists hold an xb_choice, the others the value itself. */
uint32_t parser_retrieve_base_led_info_data(sch_led_info_type *record, const struct BaseLedInfoType *decoded,
                                            sch_base_entity_type *parent);
uint32_t parser_retrieve_base_led_data(sch_led_type *record, const struct BaseLEDType *decoded,
                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_base_container_data(sch_container_type *record,
                                             const struct BaseContainerType *decoded,
                                             sch_base_entity_type *parent);
uint32_t parser_retrieve_base_port_data(sch_port_type *record, const struct BasePortType *decoded,
                                        sch_base_entity_type *parent);
uint32_t parser_retrieve_base_console_data(sch_console_type *record, const struct BaseConsoleType *decoded,
                                           sch_base_entity_type *parent);
uint32_t parser_retrieve_base_kesto_data(sch_kesto_type *record, const struct BaseKestoType *decoded,
                                         sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ce_switch_port_data(sch_ce_switch_port_type *record,
                                                  const struct BaseCESwitchType_2_port *decoded,
                                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ce_switch_data(sch_ce_switch_type *record,
                                             const struct BaseCESwitchType *decoded,
                                             sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ideeprom_data(sch_ideeprom_type *record, const struct BaseIdEEPROMType *decoded,
                                            sch_base_entity_type *parent);
uint32_t parser_retrieve_base_storage_memory_map_data(sch_storage_memory_map_type *record,
                                                      const struct BaseStorageMemoryMap *decoded,
                                                      sch_base_entity_type *parent);
uint32_t parser_retrieve_base_storage_data(sch_storage_type *record, const struct BaseStorageType *decoded,
                                           sch_base_entity_type *parent);
uint32_t parser_retrieve_base_spi_data(sch_spi_flash_type *record, const struct BaseSpiFlash *decoded,
                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_base_fpga_data(sch_fpga_type *record, const struct BaseFPGAType *decoded,
                                        sch_base_entity_type *parent);
uint32_t parser_retrieve_fan_data(sch_fan_type *record, const struct FanType *decoded,
                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_pem_bay_data(sch_pem_bay_type *record, const struct PemBayType *decoded,
                                      sch_base_entity_type *parent);
uint32_t parser_retrieve_base_sensor_data(sch_sensor_type *record, const struct BaseSensorType *decoded,
                                          sch_base_entity_type *parent);
uint32_t parser_retrieve_base_memory_data(sch_memory_type *record, const struct BaseMemoryType *decoded,
                                          sch_base_entity_type *parent);
uint32_t parser_retrieve_base_container_list_data(sch_container_list_type *record,
                                                  const struct BaseContainerListType *decoded,
                                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_i2c_chip_data(sch_i2c_chip_type *record, const struct I2cChipType *decoded,
                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_base_processor_data(sch_processor_type *record,
                                             const struct BaseProcessorType *decoded,
                                             sch_base_entity_type *parent);
uint32_t parser_retrieve_base_pcie_switch_data(sch_pcie_switch_type *record,
                                               const struct BasePCIeSwitchType *decoded,
                                               sch_base_entity_type *parent);
uint32_t parser_retrieve_base_volt_margin_data(sch_volt_margin_type *record,
                                               const struct BaseVoltageMarginType *decoded,
                                               sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ce_port_data(sch_ce_port_type *record, const struct BaseCEPortType *decoded,
                                           sch_base_entity_type *parent);
uint32_t parser_retrieve_base_threshold_data(sch_threshold_type *record,
                                             const struct BaseThresholdType *decoded);

uint32_t parser_retrieve_base_led_info_data_list(sch_led_info_type **head, const xb_data_list *list,
                                                 sch_base_entity_type *parent);
uint32_t parser_retrieve_base_led_data_list(sch_led_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent);
uint32_t parser_retrieve_base_container_data_list(sch_container_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_base_port_data_list(sch_port_type **head, const xb_data_list *list,
                                             sch_base_entity_type *parent);
uint32_t parser_retrieve_base_console_data_list(sch_console_type **head, const xb_data_list *list,
                                                sch_base_entity_type *parent);
uint32_t parser_retrieve_base_kesto_data_list(sch_kesto_type **head, const xb_data_list *list,
                                              sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ce_switch_port_data_list(sch_ce_switch_port_type **head,
                                                       const xb_data_list *list,
                                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ce_switch_data_list(sch_ce_switch_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_base_ideeprom_data_list(sch_ideeprom_type **head, const xb_data_list *list,
                                                 sch_base_entity_type *parent);
uint32_t parser_retrieve_base_storage_memory_map_data_list(sch_storage_memory_map_type **head,
                                                           const xb_data_list *list,
                                                           sch_base_entity_type *parent);
uint32_t parser_retrieve_base_storage_data_list(sch_storage_type **head, const xb_data_list *list,
                                                sch_base_entity_type *parent);
uint32_t parser_retrieve_base_spi_data_list(sch_spi_flash_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent);
uint32_t parser_retrieve_base_fpga_data_list(sch_fpga_type **head, const xb_data_list *list,
                                             sch_base_entity_type *parent);
uint32_t parser_retrieve_fan_data_list(sch_fan_type **head, const xb_data_list *list,
                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_pem_bay_data_list(sch_pem_bay_type **head, const xb_data_list *list,
                                           sch_base_entity_type *parent);
uint32_t parser_retrieve_base_sensor_data_list(sch_sensor_type **head, const xb_data_list *list,
                                               sch_base_entity_type *parent);
uint32_t parser_retrieve_base_memory_data_list(sch_memory_type **head, const xb_data_list *list,
                                               sch_base_entity_type *parent);
uint32_t parser_retrieve_base_container_list_data_list(sch_container_list_type **head,
                                                       const xb_data_list *list,
                                                       sch_base_entity_type *parent);
uint32_t parser_retrieve_i2c_chip_data_list(sch_i2c_chip_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent);
uint32_t parser_retrieve_base_processor_data_list(sch_processor_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent);
uint32_t parser_retrieve_base_pcie_switch_data_list(sch_pcie_switch_type **head, const xb_data_list *list,
                                                    sch_base_entity_type *parent);
uint32_t parser_retrieve_base_volt_margin_data_list(sch_volt_margin_type **head, const xb_data_list *list,
                                                    sch_base_entity_type *parent);

/* --- Modules ---
 * Both return 1 when there is no memory for a module (traces 243; 209, 210): what was made so far is
 * linked. A module's children come depth first. */
uint32_t parser_retrieve_base_module_entity_data(sch_module_type *record,
                                                 const struct BaseModuleType *decoded,
                                                 sch_base_entity_type *parent);
uint32_t parser_retrieve_back_plane_data(sch_back_plane_type *record, const struct BackPlaneType *decoded,
                                         sch_base_entity_type *parent);

/* Fills the optics part only; the module part is parser_retrieve_base_module_entity_data()'s. */
uint32_t parser_retrieve_cxp_fixed_optics_data(sch_cxp_fixed_optics_type *record,
                                               const struct OpticsType *decoded);

/* --- Units: the root record of a document ---
 * Chassis and power shelf take the extension part: their base is filled before, by
 * parser_retrieve_base_entity_data(). The others fill all of their record. A null pointer builds nothing;
 * only the optics builder traces it (254). Return 0. */
uint32_t parser_retrieve_chassis_entity_data(sch_chassis_type *record,
                                             const struct ChassisEntityType_2 *decoded);
uint32_t parser_retrieve_pem_entity_data(sch_pem_type *record, const struct PEMType *decoded);
uint32_t parser_retrieve_power_shelf_entity_data(sch_power_shelf_type *record,
                                                 const struct PowerShelfType_2 *decoded);
uint32_t parser_retrieve_cxp_fixed_optics_entity_data(sch_cxp_fixed_optics_type *record,
                                                      const struct OpticsType *decoded);
uint32_t parser_retrieve_fantray_entity_data(sch_fan_tray_type *record, const struct FanTrayType *decoded);

#ifdef __cplusplus
}
#endif

#endif
