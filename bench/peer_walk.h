/* From a DOM tree to records: what a program with a DOM parser has to do before it can answer questions.
 *
 * `Dom` names the parser's types and says how a node is looked at; see peers.cpp. */
#ifndef INV_BENCH_PEER_WALK_H
#define INV_BENCH_PEER_WALK_H

#include "peer_record.h"

namespace inv_bench
{

// Where the walk stands: the innermost structure of each sort.
struct walk_place {
    peer_record *record = nullptr;
    peer_port *port = nullptr;
    peer_port **next_port = nullptr;
    peer_destination *destination = nullptr;
    peer_destination **next_destination = nullptr;
    peer_led *led = nullptr;
    peer_led **next_led = nullptr;
};

// The path of the parent and one level more; deeper than an EID goes never happens here.
inline void name_record(peer_record *record)
{
    sch_eid_type &eid = record->eid;
    if (record->parent != nullptr)
        eid = record->parent->eid;
    eid.reserved0 = eid.reserved1 = INV_EID_RESERVED_WORD;
    eid.levels[eid.depth++] = {static_cast<std::uint8_t>(record->type),
                               static_cast<std::uint8_t>(record->subtype),
                               static_cast<std::uint16_t>(record->instance)};
}

inline void hang_below(peer_record *parent, peer_record *record)
{
    record->parent = parent;
    if (parent == nullptr)
        return;
    (parent->last_child == nullptr ? parent->first_child : parent->last_child->next_sibling) = record;
    parent->last_child = record;
}

template <class Record>
Record *append_record(Record **&tail)
{
    auto *made = new_record<Record>();
    *tail = made;
    tail = &made->next;
    return made;
}

inline void *home_of(const walk_place &place, item_home home)
{
    switch (home) {
    case item_home::port:
        return place.port;
    case item_home::destination:
        return place.destination;
    case item_home::led:
        return place.led;
    default:
        return place.record;
    }
}

template <class Dom>
bool walk_content(typename Dom::node node, walk_place &place);

template <class Dom>
bool walk_entity(typename Dom::node node, peer_record *parent, peer_record **made)
{
    auto *record = new_record<peer_record>();
    for (auto each = Dom::first_attribute(node); each; each = Dom::next_attribute(each)) {
        const item *field = find_attribute(Dom::name(each));
        if (field == nullptr || !store_value(record, *field, Dom::value(each)))
            return false;
    }
    hang_below(parent, record);
    name_record(record);
    walk_place place;
    place.record = record;
    place.next_port = &record->ports;
    place.next_led = &record->leds;
    if (made != nullptr)
        *made = record;
    return walk_content<Dom>(node, place);
}

template <class Dom>
bool walk_element(typename Dom::node node, const item &what, walk_place &place)
{
    switch (what.kind) {
    case item_kind::entity:
        return walk_entity<Dom>(node, place.record, nullptr);
    case item_kind::port:
        place.port = append_record(place.next_port);
        place.next_destination = &place.port->destinations;
        return walk_content<Dom>(node, place);
    case item_kind::destination:
        if (place.port == nullptr)
            return false;
        place.destination = append_record(place.next_destination);
        return walk_content<Dom>(node, place);
    case item_kind::led:
        place.led = append_record(place.next_led);
        return walk_content<Dom>(node, place);
    case item_kind::group:
        return walk_content<Dom>(node, place);
    default:
        void *home = home_of(place, what.home);
        return home != nullptr && store_value(home, what, Dom::text(node));
    }
}

template <class Dom>
bool walk_content(typename Dom::node node, walk_place &place)
{
    for (auto each = Dom::first_element(node); each; each = Dom::next_element(each)) {
        const item *what = find_element(Dom::name(each));
        if (what == nullptr || !walk_element<Dom>(each, *what, place))
            return false;
    }
    return true;
}

/* Null when something in the document is not as it should be. */
template <class Dom>
peer_record *walk_document(typename Dom::node root)
{
    peer_record *top = nullptr;
    return root && walk_entity<Dom>(root, nullptr, &top) ? top : nullptr;
}

}  // namespace inv_bench

#endif
