// PCIe ports and what hangs on them.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/destination_filing.h"
#include "access/field_copy.h"

using namespace inv;

uint32_t parser_retrieve_pcie_dest_data(sch_pcie_dest_type *record, const PCIeDestType *from,
                                        uint32_t port_number, sch_base_entity_type *owner)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pcie_dest_null>();
        return 0;
    }
    record->applicable = from->applicable;
    record->node_type = from->nodeInfo.nodeType;
    record->node_position = widened_position(from->nodeInfo);
    copy_optional(from->has.deviceId, record->device_id, join_octets(from->deviceId.octets) & 0xFFFFu,
                  record->field_present, SCH_PCIE_DEST_HAS_DEVICE_ID);
    return file_pcie_destination({.applicable = record->applicable,
                                  .node_type = record->node_type,
                                  .node_position = record->node_position,
                                  .channel = port_number,
                                  .device_id = record->device_id,
                                  .owner = owner});
}

namespace
{

struct pcie_dest {
    using record = sch_pcie_dest_type;
    using decoded = PCIeDestType;
    using null_list = msg::pcie_dest_list_null;
    using no_memory = msg::pcie_dest_list_no_memory;
    static constexpr auto fill = parser_retrieve_pcie_dest_data;
};

struct pcie_port {
    using record = sch_base_pcie_port_type;
    using decoded = BasePCIePortType;
    using null_list = msg::pcie_port_list_null;
    using no_memory = msg::pcie_port_list_no_memory;
    static constexpr auto fill = parser_retrieve_base_pcie_port_data;
};

}  // namespace

uint32_t parser_retrieve_pcie_dest_data_list(sch_pcie_dest_type **head, const xb_data_list *list,
                                             uint32_t port_number, sch_base_entity_type *owner)
{
    return append_records<pcie_dest>(end_of_list(head), list, port_number, owner);
}

uint32_t parser_retrieve_base_pcie_port_data(sch_base_pcie_port_type *record, const BasePCIePortType *from,
                                             sch_base_entity_type *owner)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pcie_port_null>();
        return 0;
    }
    const auto &has = from->has;
    auto &mask = record->field_present;
    copy_optional(has.width, record->width, from->width, mask, SCH_PCIE_PORT_HAS_WIDTH);
    copy_optional(has.isTransparentPort, record->is_transparent, from->isTransparentPort, mask,
                  SCH_PCIE_PORT_HAS_IS_TRANSPARENT);
    copy_optional(has.isPrimary, record->is_primary, from->isPrimary, mask, SCH_PCIE_PORT_HAS_IS_PRIMARY);
    copy_optional_text(has.hwPinLabel, record->hw_pin_label, from->hwPinLabel, mask,
                       SCH_PCIE_PORT_HAS_HW_PIN_LABEL);
    record->port_number = from->portNumber.octets[0];
    copy_optional(has.pciGen, record->pci_gen, from->pciGen, mask, SCH_PCIE_PORT_HAS_PCI_GEN);
    parser_retrieve_pcie_dest_data_list(&record->dest_list, &from->dstInfo,
                                        static_cast<uint8_t>(record->port_number), owner);
    return 0;
}

uint32_t parser_retrieve_base_pcie_port_data_list(sch_base_pcie_port_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *owner)
{
    return append_records<pcie_port>(end_of_list(head), list, owner);
}

void inv_schema_free_pcie_port_dest_list(sch_pcie_dest_type *first)
{
    free_list(first);
}

void inv_schema_free_pcie_port_data(sch_base_pcie_port_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_pci_sequence_data_list(record->link_list);
    inv_schema_free_pcie_port_dest_list(record->dest_list);
}

void inv_schema_free_pcie_port_data_list(sch_base_pcie_port_type *first)
{
    free_list(first, inv_schema_free_pcie_port_data);
}
