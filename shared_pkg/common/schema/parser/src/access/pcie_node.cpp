// PCIe devices and the ways over PCI.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/field_copy.h"

using namespace inv;

uint32_t parser_retrieve_pcie_node_data(sch_pcie_node_type *record, const PCIeNodeType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pcie_node_null>();
        return 0;
    }
    auto &mask = record->field_present;
    record->device_type = from->deviceType;
    copy_optional(from->has.deviceModel, record->device_model, from->deviceModel, mask,
                  SCH_PCIE_NODE_HAS_DEVICE_MODEL);
    copy_optional(from->has.portNumber, record->port_number, from->portNumber.octets[0], mask,
                  SCH_PCIE_NODE_HAS_PORT_NUMBER);
    copy_optional(from->has.numOfFunctions, record->num_functions, from->numOfFunctions, mask,
                  SCH_PCIE_NODE_HAS_NUM_FUNCTIONS);
    trace<msg::pcie_node_filled>(record->device_type, record->port_number, record->device_model,
                                 record->num_functions);
    return 0;
}

uint32_t parser_retrieve_pci_sequence_data(sch_pci_sequence_type *record, const PciSequenceType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pci_sequence_null>();
        return 0;
    }
    auto &mask = record->field_present;
    copy_optional(from->has.applicable, record->applicable, from->applicable, mask,
                  SCH_PCI_SEQUENCE_HAS_APPLICABLE);
    copy_text(record->description, from->description);
    if (from->has.dstPci) {
        parser_retrieve_pcie_node_data(&record->dst_pci, &from->dstPci);
        mark_present(mask, SCH_PCI_SEQUENCE_HAS_DST_PCI);
    }
    if (from->has.dstInfo) {
        parser_retrieve_node_info_data(&record->dst_info, &from->dstInfo);
        mark_present(mask, SCH_PCI_SEQUENCE_HAS_DST_INFO);
    }
    return 0;
}

namespace
{

struct pci_sequence {
    using record = sch_pci_sequence_type;
    using decoded = PciSequenceType;
    using null_list = msg::pci_sequence_list_null;
    using no_memory = msg::pci_sequence_list_no_memory;
    static constexpr auto fill = parser_retrieve_pci_sequence_data;
};

}  // namespace

uint32_t parser_retrieve_pci_sequence_data_list(sch_pci_sequence_type **head, const xb_data_list *list)
{
    // Kept: the first record becomes the head, whatever hung there.
    return append_records<pci_sequence>(head, list);
}

void inv_schema_free_pci_sequence_data_list(sch_pci_sequence_type *first)
{
    free_list(first);
}
