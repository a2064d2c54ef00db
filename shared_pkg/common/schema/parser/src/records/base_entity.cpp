// The base entity record, and the registration of every entity.
#include "inv_parser/base_entity.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "access/xml_instance_index.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"
#include "tree/current_file.h"
#include "tree/growth.h"

using namespace inv;

namespace
{

// First subtype of each entity type, by type.
constexpr uint8_t subtype_bases[] = {
    0,    // DUMMY
    136,  // OTHER
    233,  // UNKNOWN
    6,    // CHASSIS
    0,    // BACKPLANE
    11,   // CONTAINER
    189,  // POWERSUPPLY
    58,   // FAN
    194,  // SENSOR
    62,   // MODULE
    144,  // PORT
    227,  // STACK
    44,   // CPU
};

void fill_identity(sch_base_entity_type *record, const BaseEntityType *from)
{
    copy_text(record->name, from->name);
    copy_text(record->description, from->description);
    copy_text(record->oid, from->has.oid ? from->oid : nullptr);
    record->type = static_cast<uint8_t>(from->type);
    record->instance = static_cast<uint16_t>(from->instance);
    parser_convert_subtype(record, from);
    record->global_subtype = static_cast<uint16_t>(from->subtype);
}

void fill_driver_and_states(sch_base_entity_type *record, const BaseEntityType *from)
{
    const auto &has = from->has;
    auto &mask = record->field_present;
    copy_optional(has.driverRegistered, record->driver_registered, from->driverRegistered, mask,
                  SCH_BASE_HAS_DRIVER_REGISTERED);
    copy_optional(has.driverRequired, record->driver_required, from->driverRequired, mask,
                  SCH_BASE_HAS_DRIVER_REQUIRED);
    copy_optional(has.driverId, record->driver_id, from->driverId, mask, SCH_BASE_HAS_DRIVER_ID);
    copy_optional(has.adminState, record->admin_state, from->adminState, mask, SCH_BASE_HAS_ADMIN_STATE);
    copy_optional(has.operState, record->oper_state, from->operState, mask, SCH_BASE_HAS_OPER_STATE);
    copy_optional(has.powerAdminState, record->power_admin_state, from->powerAdminState, mask,
                  SCH_BASE_HAS_POWER_ADMIN_STATE);
    copy_optional(has.powerOperState, record->power_oper_state, from->powerOperState, mask,
                  SCH_BASE_HAS_POWER_OPER_STATE);
}

// The fields without a condition have a meaning also when the document is silent: the decoder's default.
void fill_traits(sch_base_entity_type *record, const BaseEntityType *from)
{
    const auto &has = from->has;
    auto &mask = record->field_present;
    copy_optional(has.fruable, record->is_fru, from->fruable, mask, SCH_BASE_HAS_IS_FRU);
    copy_optional(has.oir, record->oir, from->oir, mask, SCH_BASE_HAS_OIR);
    copy_optional(has.pdHardwareModel, record->pd_hw_model, from->pdHardwareModel, mask,
                  SCH_BASE_HAS_PD_HW_MODEL);
    if (has.dualRouter)
        mark_present(mask, SCH_BASE_HAS_DUAL_ROUTER);
    record->dual_router = static_cast<uint8_t>(from->dualRouter);
    record->rep_scope = static_cast<uint8_t>(from->replicationScope);
    if (has.entityOwner)
        mark_present(mask, SCH_BASE_HAS_OWNER);
    record->owner = from->entityOwner;
    if (has.snmpEntity)
        mark_present(mask, SCH_BASE_HAS_SNMP_ENTITY);
    record->snmp_entity = from->snmpEntity;
    if (has.isPrefixNeeded)
        mark_present(mask, SCH_BASE_HAS_IS_PREFIX_NEEDED);
    record->is_prefix_needed = from->isPrefixNeeded;
    copy_optional(has.replicationStateScope, record->rep_state_scope, from->replicationStateScope, mask,
                  SCH_BASE_HAS_REP_STATE_SCOPE);
    copy_optional(has.obflData, record->obfl_data, from->obflData, mask, SCH_BASE_HAS_OBFL_DATA);
    copy_optional(has.isPrimary, record->is_primary, from->isPrimary, mask, SCH_BASE_HAS_IS_PRIMARY);
    copy_optional(has.isHidden, record->is_hidden, from->isHidden, mask, SCH_BASE_HAS_IS_HIDDEN);
}

uint32_t reset_flags(const BaseEntityType *from)
{
    uint32_t flags = 0;
    if (from->has.resetBaseData && from->resetBaseData)
        flags |= SCH_RESET_BASE_DATA;
    if (from->has.resetDynamicData && from->resetDynamicData)
        flags |= SCH_RESET_DYNAMIC_DATA;
    if (from->has.resetNoData && from->resetNoData)
        flags |= SCH_RESET_NO_DATA;
    return flags == 0 ? SCH_RESET_NOTHING_SAID : flags;
}

// Of several entities with one xml instance the last one stays in the index.
template <class NoMemory, class InsertFailed>
bool index_entity(const xml_instance_index &index, sch_base_entity_type *record)
{
    auto *node = obtain_index_node<NoMemory, InsertFailed>(index, record->xml_instance);
    if (node == nullptr)
        return false;
    node->entity = record;
    node->entity_present = 1;
    return true;
}

void enter_in_chain_table(sch_base_entity_type *record)
{
    xml_instance_chain_entry *table = xml_instance_chain_list();
    if (table == nullptr)
        return;
    table[record->xml_instance].xml_instance = record->xml_instance;
    table[record->xml_instance].record = record;
}

// Without a current file the chain table alone is served.
bool index_in_current_file(sch_base_entity_type *record)
{
    inv_xml_handle *file = current_file();
    if (file != nullptr &&
        !index_entity<msg::base_entity_i2c_index_no_memory, msg::base_entity_i2c_avl_insert_failed>(
            index_of(file, bus::i2c), record))
        return false;
    enter_in_chain_table(record);
    return file == nullptr ||
           index_entity<msg::base_entity_pcie_index_no_memory, msg::base_entity_pcie_avl_insert_failed>(
               index_of(file, bus::pcie), record);
}

void fill_nested(sch_base_entity_type *record, const BaseEntityType *from)
{
    const auto &has = from->has;
    auto &mask = record->field_present;
    if (has.hwSignals) {
        parser_retrieve_hw_signals_data(&record->hw_signals, &from->hwSignals);
        mark_present(mask, SCH_BASE_HAS_HW_SIGNALS);
    }
    if (has.i2cNode) {
        parser_retrieve_i2c_node_data(&record->i2c_node, &from->i2cNode);
        mark_present(mask, SCH_BASE_HAS_I2C_NODE);
    }
    if (has.pcieNode) {
        parser_retrieve_pcie_node_data(&record->pcie_node, &from->pcieNode);
        mark_present(mask, SCH_BASE_HAS_PCIE_NODE);
    }
    if (has.powerConsumer) {
        parser_retrieve_power_consumer_data(&record->power_consumer, &from->powerConsumer);
        mark_present(mask, SCH_BASE_HAS_POWER_CONSUMER);
    }
    if (has.powerProducer) {
        parser_retrieve_power_producer_data(&record->power_producer, &from->powerProducer);
        mark_present(mask, SCH_BASE_HAS_POWER_PRODUCER);
    }
    copy_optional_text(has.hardwareVersion, record->hw_version, from->hardwareVersion, mask,
                       SCH_BASE_HAS_HW_VERSION);
    copy_optional_text(has.softwareVersion, record->sw_version, from->softwareVersion, mask,
                       SCH_BASE_HAS_SW_VERSION);
    copy_optional_text(has.firmwareVersion, record->fw_version, from->firmwareVersion, mask,
                       SCH_BASE_HAS_FW_VERSION);
    if (has.pmBusPort)
        record->pmbus_cmd = from->pmBusPort.PMBusCmd.octets[0];
    record->pmbus_valid = has.pmBusPort ? 1 : 0;
}

// What the builders say of their lists is not looked at: an entity is delivered without a port too.
void fill_ports(sch_base_entity_type *record, const BaseEntityType *from)
{
    record->i2c_port_list = nullptr;
    parser_retrieve_i2c_port_data_list(&record->i2c_port_list, &from->i2cPort, record);
    record->spi_port_list = nullptr;
    parser_retrieve_spi_port_data_list(&record->spi_port_list, &from->spiPort);
    record->pcie_port_list = nullptr;
    parser_retrieve_base_pcie_port_data_list(&record->pcie_port_list, &from->pciePort, record);
}

// Decoded records lie one after the other, each followed by its texts, and the builders take them about in
// that order. What the next two or three hold is asked for while this one is built: it was written long ago,
// and waiting for it would take as long as building. Asking for what is no memory does no harm.
void prefetch_what_follows(const BaseEntityType *from)
{
    constexpr uintptr_t usual_texts = 360;
    constexpr uintptr_t ahead = 1920;
    constexpr uintptr_t cache_line = 64;
    const uintptr_t next = reinterpret_cast<uintptr_t>(from) + sizeof *from + usual_texts;
    for (uintptr_t i = 0; i < ahead; i += cache_line)
        __builtin_prefetch(reinterpret_cast<const void *>(next + i));
}

}  // namespace

void parser_convert_subtype(sch_base_entity_type *record, const BaseEntityType *from)
{
    if (record == nullptr || from == nullptr)
        return;
    uint8_t base = record->type < sizeof(subtype_bases) ? subtype_bases[record->type] : uint8_t{0};
    record->subtype = static_cast<uint8_t>(from->subtype - base);
}

uint32_t parser_retrieve_base_entity_data(sch_base_entity_type *record, const BaseEntityType *from,
                                          sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::base_entity_null>();
        return 0;
    }
    prefetch_what_follows(from);
    expect_growth(record);
    fill_identity(record, from);
    fill_driver_and_states(record, from);
    fill_traits(record, from);
    record->entity_reset_flags |= reset_flags(from);
    record->xml_instance = static_cast<uint16_t>(from->xmlInstance);
    if (!index_in_current_file(record))
        return 1;
    fill_nested(record, from);
    fill_ports(record, from);
    parser_update_eid_chain(record, parent);
    trace<msg::base_entity_filled>(record->name, record->oid, record->type, record->subtype, record->instance,
                                   record->xml_instance, record->admin_state, record->oper_state,
                                   record->is_fru, record->oir, record->is_primary, record->rep_scope,
                                   record->owner);
    return 0;
}

void inv_schema_free_base_entity_data(sch_base_entity_type *record)
{
    if (record == nullptr)
        return;
    // Kept: SPI ports have no release of their own.
    inv_schema_free_i2c_port_data_list(record->i2c_port_list);
    inv_schema_free_pcie_port_data_list(record->pcie_port_list);
}
