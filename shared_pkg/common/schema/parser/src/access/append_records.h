// The list builder of the access and power records.
#ifndef ACCESS_APPEND_RECORDS_H
#define ACCESS_APPEND_RECORDS_H

#include "frame/file_memory.h"
#include "frame/trace.h"
#include "inv_parser/platform_types.h"

#include <stdint.h>

namespace inv
{

// The pointer that a record appended to the list at `head` has to be stored in.
template <class Record>
Record **end_of_list(Record **head)
{
    if (head == nullptr)
        return nullptr;
    while (*head != nullptr)
        head = &(*head)->next;
    return head;
}

// Makes one record per decoded node, linked from `*end` on. `end` is end_of_list(head) for a builder
// that appends, and head itself for one whose first record replaces what hung there.
//
// Stops with 0 at a node without a value, with 1 when memory runs out or a fill fails; what was made
// so far stays linked. A Member names record, decoded, null_list, no_memory and fill.
template <class Member, class... Extra>
unsigned append_records(typename Member::record **end, const xb_data_list *list, Extra... extra)
{
    if (list == nullptr)
        trace<typename Member::null_list>();
    if (list == nullptr || end == nullptr)
        return 0;
    for (const xb_data_node *node = list->head; node != nullptr; node = node->next) {
        auto *record = record_new<typename Member::record>();
        if (record == nullptr) {
            trace<typename Member::no_memory>();
            return 1;
        }
        if (node->data == nullptr) {
            record_free(record);
            return 0;
        }
        *end = record;
        end = &record->next;
        if (Member::fill(record, static_cast<const typename Member::decoded *>(node->data), extra...) != 0)
            return 1;
    }
    return 0;
}

// Gives every record of a list back, after `release` has given back what it owns.
template <class Record, class Release>
void free_list(Record *record, Release release)
{
    while (record != nullptr) {
        release(record);
        Record *next = record->next;
        record_free(record);
        record = next;
    }
}

template <class Record>
void free_list(Record *record)
{
    free_list(record, [](Record *) {});
}

}  // namespace inv

#endif
