// What the record builders have to know about the load around them.
#ifndef TREE_CURRENT_FILE_H
#define TREE_CURRENT_FILE_H

#include "inv_parser/handle.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// The handle whose document is being converted; null when none is.
inv_xml_handle *current_file() noexcept;

// An entry of the client's table by xml instance.
struct xml_instance_chain_entry {
    uint16_t xml_instance;
    sch_base_entity_type *record;
    void *unused;
};
static_assert(sizeof(xml_instance_chain_entry) == 24 && offsetof(xml_instance_chain_entry, record) == 8,
              "layout that clients rely on");

// That table (parser_set_xml_instance_chain_list()): 65,536 entries, or null.
xml_instance_chain_entry *xml_instance_chain_list() noexcept;

}  // namespace inv

#endif
