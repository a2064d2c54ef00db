// The list builder of the components.
#ifndef RECORDS_COMPONENT_LIST_H
#define RECORDS_COMPONENT_LIST_H

#include "access/append_records.h"
#include "inv_parser/base_entity.h"

namespace inv
{

// What a node of a decoded list holds; null when it holds nothing.
template <class Decoded>
const Decoded *plain_value(const xb_data_node *node)
{
    return static_cast<const Decoded *>(node->data);
}

// The same where the document chose the type: the base part of what was chosen.
template <class Decoded>
const Decoded *chosen_value(const xb_data_node *node)
{
    const auto *choice = static_cast<const xb_choice *>(node->data);
    return choice == nullptr ? nullptr : static_cast<const Decoded *>(choice->value);
}

// Appends one record per node to the list at `head`. An element without memory is traced and left out
// of the list; its builder is called without a record all the same, and the result is 1. A node without
// a value ends the walk. A Member names record, decoded, null_list, no_memory, value and fill.
template <class Member>
unsigned append_list(typename Member::record **head, const xb_data_list *list, sch_base_entity_type *parent)
{
    if (list == nullptr)
        trace<typename Member::null_list>();
    if (list == nullptr || head == nullptr)
        return 0;
    unsigned result = 0;
    auto **end = end_of_list(head);
    for (const xb_data_node *node = list->head; node != nullptr; node = node->next) {
        auto *record = record_new<typename Member::record>();
        if (record == nullptr) {
            trace<typename Member::no_memory>();
            result = 1;
        }
        const typename Member::decoded *value = Member::value(node);
        if (value == nullptr) {
            record_free(record);
            break;
        }
        if (record != nullptr) {
            *end = record;
            end = &record->next;
        }
        Member::fill(record, value, parent);
    }
    return result;
}

}  // namespace inv

#endif
