// Joining the way from a control card to a slot with the way inside the unit plugged there.
#ifndef ACCESS_CONTROL_CARD_H
#define ACCESS_CONTROL_CARD_H

#include "access/hop_walk.h"
#include "inv_parser/queries.h"

#include <string.h>
#include <utility>

namespace inv
{

// How a control card leads into a slot. No parent: it does not.
struct slot_way {
    uint32_t parent_instance;
    uint8_t channel;
};

struct slot_ways {
    slot_way slot0;
    slot_way slot1;
};

// `heads`: the card's slot lists of one family. The first element with the low 16 bits of position counts.
slot_ways find_slot_ways(inv_xml_handle *card, sch_cc_slot_xml_inst_type **heads, uint32_t type,
                         uint32_t position);

// What a join has in hand. Whatever is left at its end goes back.
template <class Family>
struct join_parts {
    typename Family::pair *pair = static_cast<typename Family::pair *>(memory::request(sizeof(*pair)));
    typename Family::sequence *slot0 = nullptr;
    typename Family::sequence *slot1 = nullptr;
    typename Family::sequence *tail = nullptr;

    join_parts() = default;
    join_parts(const join_parts &) = delete;
    join_parts &operator=(const join_parts &) = delete;
    ~join_parts()
    {
        inv_parser_free_remote_i2c_access_sequence(pair);
        memory::release(slot0);
        memory::release(slot1);
        memory::release(tail);
    }
    typename Family::pair *hand_out()
    {
        return std::exchange(pair, nullptr);
    }
};

// The hops of a card's way to a slot, then the tail. The block holds them all; the count is cut to its
// width. Null when memory is out.
template <class Family>
typename Family::sequence *join(const typename Family::sequence *to_slot, uint8_t channel,
                                const typename Family::sequence *tail, size_t tail_count)
{
    size_t slot_count = to_slot->hop_count;
    auto *joined = request_sequence<Family>(slot_count + tail_count);
    if (joined == nullptr)
        return nullptr;
    memcpy(joined->hops, to_slot->hops, slot_count * sizeof(joined->hops[0]));
    memcpy(joined->hops + slot_count, tail->hops, tail_count * sizeof(joined->hops[0]));
    if (slot_count != 0)
        Family::select(&joined->hops[slot_count - 1], channel);
    joined->hop_count = static_cast<uint8_t>(slot_count + tail_count);
    return joined;
}

// The way to a slot, left null where the card has none. False after a traced failure.
template <class Family, class Failed>
bool build_to_slot(inv_xml_handle *card, const slot_way &way, typename Family::sequence **out)
{
    if (way.parent_instance == 0)
        return true;
    if (build_sequence<Family>(card, static_cast<int32_t>(way.parent_instance), out) == 0)
        return true;
    trace<Failed>();
    return false;
}

// Joins for a device; a slot without way is left null. False after a traced failure.
template <class Family, class NoMemory>
bool join_device(const typename Family::sequence *to_slot, const slot_way &way,
                 const typename Family::sequence *device, uint16_t target, typename Family::sequence **out)
{
    if (to_slot == nullptr)
        return true;
    *out = join<Family>(to_slot, way.channel, device, device->hop_count);
    if (*out == nullptr) {
        trace<NoMemory>();
        return false;
    }
    Family::name_target(*out, target);
    return true;
}

// An entity's xml instance; 0, which no sequence has, for a lookup that answered null.
inline uint16_t instance_of(const sch_base_entity_type *entity)
{
    return entity == nullptr ? uint16_t{0} : entity->xml_instance;
}

// The form for a device of another file. Messages names its six messages.
template <class Family, class Messages>
uint32_t build_from_control_card(inv_xml_handle *card, inv_xml_handle *device, uint32_t type,
                                 uint32_t position, const sch_eid_type *eid, typename Family::pair **out)
{
    if (eid == nullptr || out == nullptr)
        return 1;
    join_parts<Family> parts;
    if (parts.pair == nullptr) {
        trace<typename Messages::no_memory>();
        return 1;
    }
    if (card == nullptr)
        return 1;
    slot_ways ways = find_slot_ways(card, Family::slot_lists(card), type, position);
    if (!build_to_slot<Family, typename Messages::slot0_failed>(card, ways.slot0, &parts.slot0) ||
        !build_to_slot<Family, typename Messages::slot1_failed>(card, ways.slot1, &parts.slot1))
        return 1;
    sch_base_entity_type *entity = nullptr;
    uint32_t result = inv_parser_get_eid_data(device, &entity, *eid);
    if (result != 0) {
        trace<typename Messages::eid_unknown>();
        return result;
    }
    uint16_t target = instance_of(entity);
    result = build_sequence<Family>(device, target, &parts.tail);
    if (result != 0)
        return result;
    if (!join_device<Family, typename Messages::slot0_no_memory>(parts.slot0, ways.slot0, parts.tail, target,
                                                                 &parts.pair->slot0) ||
        !join_device<Family, typename Messages::slot1_no_memory>(parts.slot1, ways.slot1, parts.tail, target,
                                                                 &parts.pair->slot1))
        return 1;
    *out = parts.hand_out();
    return 0;
}

}  // namespace inv

#endif
