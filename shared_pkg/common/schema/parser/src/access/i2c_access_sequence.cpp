#include "inv_parser/access_sequences.h"

#include "access/control_card.h"
#include "access/sequence_families.h"

using namespace inv;

namespace
{

struct device_messages {
    using no_memory = msg::remote_i2c_no_memory;
    using slot0_failed = msg::remote_i2c_slot0_failed;
    using slot1_failed = msg::remote_i2c_slot1_failed;
    using eid_unknown = msg::remote_i2c_eid_unknown;
    using slot0_no_memory = msg::remote_i2c_slot0_no_memory;
    using slot1_no_memory = msg::remote_i2c_slot1_no_memory;
};

}  // namespace

uint32_t inv_parser_get_i2c_access_sequence_by_xml_inst(inv_xml_handle *handle, int32_t xml_instance,
                                                        sch_i2c_access_seq_type **out)
{
    return build_sequence<i2c_family>(handle, xml_instance, out);
}

uint32_t inv_parser_get_i2c_access_sequence_by_eid(inv_xml_handle *handle, const sch_eid_type *eid,
                                                   sch_i2c_access_seq_type **out)
{
    if (eid == nullptr || out == nullptr)
        return 1;
    sch_base_entity_type *entity = nullptr;
    uint32_t result = inv_parser_get_eid_data(handle, &entity, *eid);
    if (result != 0) {
        trace<msg::i2c_eid_unknown>();
        return result;
    }
    // Kept: clients judge by the pointer; the result is the lookup's.
    build_sequence<i2c_family>(handle, instance_of(entity), out);
    return result;
}

uint32_t inv_parser_get_i2c_access_sequence_from_control_card(inv_xml_handle *cc, inv_xml_handle *device,
                                                              uint32_t type, uint32_t position,
                                                              const sch_eid_type *eid,
                                                              sch_i2c_access_seq_pair_type **out)
{
    return build_from_control_card<i2c_family, device_messages>(cc, device, type, position, eid, out);
}

void inv_parser_free_i2c_access_sequence(sch_i2c_access_seq_type *sequence)
{
    memory::release(sequence);
}
