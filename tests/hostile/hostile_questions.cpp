#include "hostile/hostile_questions.h"

#include <vector>

namespace hostile
{

namespace
{

struct i2c {
    using sequence = sch_i2c_access_seq_type;
    using pair = sch_i2c_access_seq_pair_type;
    static constexpr auto by_instance = inv_parser_get_i2c_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_i2c_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_i2c_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_i2c_access_sequence;
};

struct pcie {
    using sequence = sch_pcie_access_seq_type;
    using pair = sch_pcie_access_seq_pair_type;
    static constexpr auto by_instance = inv_parser_get_pcie_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_pcie_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_pcie_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_pcie_access_sequence;
};

std::vector<sch_eid_type> entities_of(inv_xml_handle *handle)
{
    std::vector<sch_eid_type> found;
    sch_eid_type *all = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &all, &count) == 0)
        found.assign(all, all + count);
    inv_parser_free_eid_tree(all);
    return found;
}

template <class Bus>
void ask_by_instance(inv_xml_handle *handle, int32_t instance, tally *to)
{
    typename Bus::sequence *way = nullptr;
    const uint32_t result = Bus::by_instance(handle, instance, &way);
    to->count(result, way != nullptr);
    Bus::release(way);
}

template <class Bus>
void ask_by_eid(inv_xml_handle *handle, const sch_eid_type &eid, tally *to)
{
    typename Bus::sequence *way = nullptr;
    const uint32_t result = Bus::by_eid(handle, &eid, &way);
    to->count(result, way != nullptr);
    Bus::release(way);
}

template <class Bus>
void ask_from_card(inv_xml_handle *handle, uint32_t slot, const sch_eid_type &eid, tally *to)
{
    typename Bus::pair *ways = nullptr;
    const uint32_t result = Bus::from_card(handle, handle, ORVL_NODE_TYPE_LINECARD, slot, &eid, &ways);
    to->count(result, ways != nullptr && (ways->slot0 != nullptr || ways->slot1 != nullptr));
    inv_parser_free_remote_i2c_access_sequence(ways);
}

template <class Bus>
answers every_way(inv_xml_handle *handle)
{
    answers found;
    for (int32_t instance = 1; instance <= 0xffff; ++instance)
        ask_by_instance<Bus>(handle, instance, &found.by_instance);
    for (const sch_eid_type &each : entities_of(handle)) {
        ask_by_eid<Bus>(handle, each, &found.by_eid);
        ask_from_card<Bus>(handle, 0, each, &found.from_card);
    }
    return found;
}

template <class Bus>
answers way_over_every_slot(inv_xml_handle *handle)
{
    answers found;
    const std::vector<sch_eid_type> all = entities_of(handle);
    for (uint32_t slot = 0; slot < many_slots && !all.empty(); ++slot)
        ask_from_card<Bus>(handle, slot, all.back(), &found.from_card);
    return found;
}

std::ostream &operator<<(std::ostream &out, const tally &each)
{
    return out << "{" << each.asked << ", " << each.answered << ", " << each.refused << "}";
}

}  // namespace

void PrintTo(const answers &each, std::ostream *out)
{
    *out << "asked, answered, refused: records " << each.records << ", by instance " << each.by_instance
         << ", by EID " << each.by_eid << ", from the card " << each.from_card;
}

answers every_record(inv_xml_handle *handle)
{
    answers found;
    for (const sch_eid_type &each : entities_of(handle)) {
        sch_base_entity_type *record = nullptr;
        const uint32_t result = inv_parser_get_eid_data(handle, &record, each);
        found.records.count(result, record != nullptr);
    }
    return found;
}

answers every_i2c_way(inv_xml_handle *handle)
{
    return every_way<i2c>(handle);
}

answers every_pcie_way(inv_xml_handle *handle)
{
    return every_way<pcie>(handle);
}

answers i2c_way_over_every_slot(inv_xml_handle *handle)
{
    return way_over_every_slot<i2c>(handle);
}

answers pcie_way_over_every_slot(inv_xml_handle *handle)
{
    return way_over_every_slot<pcie>(handle);
}

}  // namespace hostile
