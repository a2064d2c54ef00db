#include "inv_parser/access_sequences.h"

#include "access/control_card.h"
#include "access/sequence_families.h"

using namespace inv;

namespace
{

struct device_messages {
    using no_memory = msg::remote_pcie_no_memory;
    using slot0_failed = msg::remote_pcie_slot0_failed;
    using slot1_failed = msg::remote_pcie_slot1_failed;
    using eid_unknown = msg::remote_pcie_eid_unknown;
    using slot0_no_memory = msg::remote_pcie_slot0_no_memory;
    using slot1_no_memory = msg::remote_pcie_slot1_no_memory;
};

}  // namespace

uint32_t inv_parser_get_pcie_access_sequence_by_xml_inst(inv_xml_handle *handle, int32_t xml_instance,
                                                         sch_pcie_access_seq_type **out)
{
    return build_sequence<pcie_family>(handle, xml_instance, out);
}

uint32_t inv_parser_get_pcie_access_sequence_by_eid(inv_xml_handle *handle, const sch_eid_type *eid,
                                                    sch_pcie_access_seq_type **out)
{
    if (eid == nullptr || out == nullptr)
        return 1;
    sch_base_entity_type *entity = nullptr;
    uint32_t result = inv_parser_get_eid_data(handle, &entity, *eid);
    if (result != 0) {
        trace<msg::pcie_eid_unknown>();
        return result;
    }
    uint16_t target = instance_of(entity);
    result = build_sequence<pcie_family>(handle, target, out);
    if (result != 0) {
        trace<msg::pcie_eid_failed>();
        return result;
    }
    pcie_family::name_target(*out, target);
    return 0;
}

uint32_t inv_parser_get_pcie_access_sequence_from_control_card(inv_xml_handle *cc, inv_xml_handle *device,
                                                               uint32_t type, uint32_t position,
                                                               const sch_eid_type *eid,
                                                               sch_pcie_access_seq_pair_type **out)
{
    return build_from_control_card<pcie_family, device_messages>(cc, device, type, position, eid, out);
}

void inv_parser_free_pcie_access_sequence(sch_pcie_access_seq_type *sequence)
{
    memory::release(sequence);
}
