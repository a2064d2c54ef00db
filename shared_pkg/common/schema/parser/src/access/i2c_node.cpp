// I2C nodes: a device on a bus, or one command of a sequence.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/field_copy.h"

using namespace inv;

uint32_t parser_retrieve_i2c_node_data(sch_i2c_node_type *record, const I2cNodeType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::i2c_node_null>();
        return 0;
    }
    const auto &has = from->has;
    auto &mask = record->field_present;
    record->device_type = from->deviceType;
    copy_optional(has.deviceModel, record->device_model, from->deviceModel, mask,
                  SCH_I2C_NODE_HAS_DEVICE_MODEL);
    copy_optional(has.deviceAddress, record->device_address, from->deviceAddress.octets[0], mask,
                  SCH_I2C_NODE_HAS_DEVICE_ADDRESS);
    copy_optional(has.controlRegister, record->control_register, join_octets(from->controlRegister.octets),
                  mask, SCH_I2C_NODE_HAS_CONTROL_REGISTER);
    copy_optional(has.dataRegister, record->data_register, join_octets(from->dataRegister.octets), mask,
                  SCH_I2C_NODE_HAS_DATA_REGISTER);
    copy_optional(has.secondCtrlReg, record->second_control_register, join_octets(from->secondCtrlReg.octets),
                  mask, SCH_I2C_NODE_HAS_SECOND_CONTROL_REGISTER);
    copy_optional(has.secondDataReg, record->second_data_register, join_octets(from->secondDataReg.octets),
                  mask, SCH_I2C_NODE_HAS_SECOND_DATA_REGISTER);
    copy_optional(has.xmlInstance, record->xml_instance, from->xmlInstance, mask,
                  SCH_I2C_NODE_HAS_XML_INSTANCE);
    copy_optional(has.resetOnly, record->reset_only, from->resetOnly, mask, SCH_I2C_NODE_HAS_RESET_ONLY);
    trace<msg::i2c_node_filled>(record->device_model, record->device_address, record->control_register,
                                record->xml_instance);
    return 0;
}

namespace
{

struct i2c_node {
    using record = sch_i2c_node_type;
    using decoded = I2cNodeType;
    using null_list = msg::i2c_node_list_null;
    using no_memory = msg::i2c_node_list_no_memory;
    static constexpr auto fill = parser_retrieve_i2c_node_data;
};

}  // namespace

uint32_t parser_retrieve_i2c_node_data_list(sch_i2c_node_type **head, const xb_data_list *list)
{
    // Kept: the first record becomes the head, whatever hung there.
    return append_records<i2c_node>(head, list);
}

void inv_schema_free_i2c_node_data_list(sch_i2c_node_type *first)
{
    free_list(first);
}
