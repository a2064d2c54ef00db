// Container lists: all slots of one kind.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_container_list_data(sch_container_list_type *record,
                                                  const BaseContainerListType *from,
                                                  sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::container_list_null>();
        return 0;
    }
    const auto &has = from->has;
    auto &mask = record->field_present;
    record->container_type = static_cast<uint8_t>(from->containerType);
    record->max_containers = static_cast<uint16_t>(from->maxContainers);
    if (has.i2cAccess) {
        parser_retrieve_i2c_sequence_data(&record->i2c_access, &from->i2cAccess);
        mark_present(mask, SCH_CONTAINER_LIST_HAS_I2C_ACCESS);
    }
    if (has.i2cIDPROM) {
        parser_retrieve_i2c_sequence_data(&record->i2c_idprom, &from->i2cIDPROM);
        mark_present(mask, SCH_CONTAINER_LIST_HAS_I2C_IDPROM);
    }
    if (has.pciAccess) {
        parser_retrieve_pci_sequence_data(&record->pci_access, &from->pciAccess);
        mark_present(mask, SCH_CONTAINER_LIST_HAS_PCI_ACCESS);
    }
    // A container list is no entity: its containers hang where it would.
    parser_retrieve_base_container_data_list(&record->container_list, &from->entityContainer, parent);
    trace<msg::container_list_filled>(has.i2cIDPROM ? 1 : 0, has.pciAccess ? 1 : 0, has.i2cAccess ? 1 : 0);
    return 0;
}

namespace
{

struct container_list {
    using record = sch_container_list_type;
    using decoded = BaseContainerListType;
    using null_list = msg::container_list_list_null;
    using no_memory = msg::container_list_list_no_memory;
    static constexpr auto value = plain_value<BaseContainerListType>;
    static constexpr auto fill = parser_retrieve_base_container_list_data;
};

}  // namespace

uint32_t parser_retrieve_base_container_list_data_list(sch_container_list_type **head,
                                                       const xb_data_list *list, sch_base_entity_type *parent)
{
    return append_list<container_list>(head, list, parent);
}

void inv_schema_free_container_list_data(sch_container_list_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_i2c_sequence_data(&record->i2c_access);
    inv_schema_free_i2c_sequence_data(&record->i2c_idprom);
    inv_schema_free_container_data_list(record->container_list);
}

void inv_schema_free_container_list_data_list(sch_container_list_type *first)
{
    free_list(first, inv_schema_free_container_list_data);
}
