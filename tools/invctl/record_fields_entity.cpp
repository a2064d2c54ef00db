// Table of the base entity record, the head of every entity.
#include "OrvelianInventorySchema.h"
#include "record_table.h"

namespace invctl
{

// The PMBus port's presence stands in a word of its own, whose only bit follows the command.
constexpr uint32_t pmbus_word = offsetof(sch_base_entity_type, pmbus_cmd) + sizeof(uint32_t);
constexpr uint32_t pmbus_present = 1;

template <>
const record_table &table_of<sch_base_entity_type>()
{
    using record = sch_base_entity_type;
    static constexpr record_field pmbus_cmd = [] {
        record_field field = hex(INVCTL_MEMBER(pmbus_cmd), pmbus_present);
        field.presence_word = pmbus_word;
        return field;
    }();
    static constexpr record_field fields[] = {
        reserved(INVCTL_MEMBER(reserved_head)),
        flag(INVCTL_MEMBER(driver_registered), SCH_BASE_HAS_DRIVER_REGISTERED),
        flag(INVCTL_MEMBER(driver_required), SCH_BASE_HAS_DRIVER_REQUIRED),
        number(INVCTL_MEMBER(driver_id), SCH_BASE_HAS_DRIVER_ID),
        text(INVCTL_MEMBER(name)),
        text(INVCTL_MEMBER(description)),
        text(INVCTL_MEMBER(oid)),
        token(INVCTL_MEMBER(admin_state), BaseEntityType_adminState_ToString, SCH_BASE_HAS_ADMIN_STATE),
        token(INVCTL_MEMBER(oper_state), BaseEntityType_operState_ToString, SCH_BASE_HAS_OPER_STATE),
        token(INVCTL_MEMBER(power_admin_state), BaseEntityType_powerAdminState_ToString,
              SCH_BASE_HAS_POWER_ADMIN_STATE),
        token(INVCTL_MEMBER(power_oper_state), BaseEntityType_powerOperState_ToString,
              SCH_BASE_HAS_POWER_OPER_STATE),
        flag(INVCTL_MEMBER(is_fru), SCH_BASE_HAS_IS_FRU),
        flag(INVCTL_MEMBER(oir), SCH_BASE_HAS_OIR),
        flag(INVCTL_MEMBER(is_primary), SCH_BASE_HAS_IS_PRIMARY),
        defaulted(flag(INVCTL_MEMBER(snmp_entity), SCH_BASE_HAS_SNMP_ENTITY)),
        defaulted(flag(INVCTL_MEMBER(is_prefix_needed), SCH_BASE_HAS_IS_PREFIX_NEEDED)),
        flag(INVCTL_MEMBER(is_hidden), SCH_BASE_HAS_IS_HIDDEN),
        token(INVCTL_MEMBER(type), EidType_ToString),
        number(INVCTL_MEMBER(subtype)),
        number(INVCTL_MEMBER(instance)),
        token(INVCTL_MEMBER(global_subtype), EidSubType_ToString),
        defaulted(
            token(INVCTL_MEMBER(dual_router), BaseEntityType_dualRouter_ToString, SCH_BASE_HAS_DUAL_ROUTER)),
        token(INVCTL_MEMBER(rep_scope), ReplicationLevelsType_ToString),
        token(INVCTL_MEMBER(rep_state_scope), ReplicationLevelsType_ToString, SCH_BASE_HAS_REP_STATE_SCOPE),
        number(INVCTL_MEMBER(xml_instance)),
        number(INVCTL_MEMBER(obfl_data), SCH_BASE_HAS_OBFL_DATA),
        hex(INVCTL_MEMBER(entity_reset_flags)),
        defaulted(token(INVCTL_MEMBER(owner), EntityOwnerType_ToString, SCH_BASE_HAS_OWNER)),
        token(INVCTL_MEMBER(pd_hw_model), HardwareModelType_ToString, SCH_BASE_HAS_PD_HW_MODEL),
        text(INVCTL_MEMBER(hw_version), SCH_BASE_HAS_HW_VERSION),
        text(INVCTL_MEMBER(sw_version), SCH_BASE_HAS_SW_VERSION),
        text(INVCTL_MEMBER(fw_version), SCH_BASE_HAS_FW_VERSION),
        nested(INVCTL_MEMBER(power_consumer), SCH_BASE_HAS_POWER_CONSUMER),
        nested(INVCTL_MEMBER(power_producer), SCH_BASE_HAS_POWER_PRODUCER),
        nested(INVCTL_MEMBER(hw_signals), SCH_BASE_HAS_HW_SIGNALS),
        list(INVCTL_MEMBER(spi_port_list)),
        nested(INVCTL_MEMBER(i2c_node), SCH_BASE_HAS_I2C_NODE),
        nested(INVCTL_MEMBER(pcie_node), SCH_BASE_HAS_PCIE_NODE),
        pmbus_cmd,
        {"pmbus_valid", field_kind::lowest_bit, pmbus_word, sizeof(uint32_t)},
        list(INVCTL_MEMBER(i2c_port_list)),
        list(INVCTL_MEMBER(pcie_port_list)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"base_entity", sizeof(record), fields};
    return table;
}

}  // namespace invctl
