// Lookup in control-card slot lists that stays quick while a load fills them, and afterwards.
//
// The lists are searched from their heads and extended at their ends: by contract, and too slow for
// a document with thousands of slots. Between the constructor and the destructor of a scope the lists
// of one file are shadowed by tables from key to element, made with the first lookup in a list; those of
// long lists stay with the handle. The answers are those of the literal search, which serves every other
// case, and memory running out too.
#ifndef ACCESS_SLOT_LOOKUP_H
#define ACCESS_SLOT_LOOKUP_H

#include "inv_parser/handle.h"

namespace inv
{

// While it lives, only add_slot_element() may change the slot lists of `file`. One at a time.
class slot_lookup_scope
{
public:
    explicit slot_lookup_scope(inv_xml_handle *file);
    ~slot_lookup_scope();
    slot_lookup_scope(const slot_lookup_scope &) = delete;
    slot_lookup_scope &operator=(const slot_lookup_scope &) = delete;
};

// `heads`: one of a file's two arrays of lists; `index` below INV_CC_SLOT_LIST_COUNT. The first
// element with the low 16 bits of key, or null.
sch_cc_slot_xml_inst_type *find_slot_element(sch_cc_slot_xml_inst_type **heads, uint32_t index, uint32_t key);

// The same once the file is loaded, without the lock as long as it is open.
sch_cc_slot_xml_inst_type *find_filed_slot(inv_xml_handle *file, sch_cc_slot_xml_inst_type **heads,
                                           uint32_t index, uint32_t key);

// Appends.
void add_slot_element(sch_cc_slot_xml_inst_type **heads, uint32_t index, sch_cc_slot_xml_inst_type *element);

}  // namespace inv

#endif
