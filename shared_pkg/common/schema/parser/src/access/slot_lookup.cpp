#include "access/slot_lookup.h"

#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"

namespace inv
{

namespace
{

// Elements of one list by key: leaf by the key's high octet, entry by its low one.
struct slot_leaf {
    sch_cc_slot_xml_inst_type *entries[256];
};

struct slot_table {
    slot_leaf *leaves[256];
    sch_cc_slot_xml_inst_type *tail;
};

struct shadowed_file {
    inv_xml_handle *file;
    bool memory_ran_out;  // literal searches until the scope ends
    slot_table *i2c_tables[INV_CC_SLOT_LIST_COUNT];
    slot_table *pcie_tables[INV_CC_SLOT_LIST_COUNT];
};

shadowed_file shadow;

void drop_table(slot_table *&table)
{
    if (table == nullptr)
        return;
    for (slot_leaf *leaf : table->leaves)
        memory::release(leaf);
    memory::release(table);
    table = nullptr;
}

void drop_all_tables()
{
    for (slot_table *&table : shadow.i2c_tables)
        drop_table(table);
    for (slot_table *&table : shadow.pcie_tables)
        drop_table(table);
}

// Of two elements with one key the first stays: that is the one a search from the head finds.
bool enter(slot_table *table, sch_cc_slot_xml_inst_type *element)
{
    slot_leaf *&leaf = table->leaves[element->key >> 8];
    if (leaf == nullptr)
        leaf = static_cast<slot_leaf *>(memory::request(sizeof(slot_leaf)));
    if (leaf == nullptr)
        return false;
    sch_cc_slot_xml_inst_type *&entry = leaf->entries[element->key & 0xFF];
    if (entry == nullptr)
        entry = element;
    table->tail = element;
    return true;
}

slot_table *make_table(sch_cc_slot_xml_inst_type *list)
{
    auto *table = static_cast<slot_table *>(memory::request(sizeof(slot_table)));
    for (; table != nullptr && list != nullptr; list = list->next)
        if (!enter(table, list))
            drop_table(table);
    return table;
}

void give_up()
{
    drop_all_tables();
    shadow.memory_ran_out = true;
}

// The table of heads[index], made when there is none; null where the literal search has to serve.
slot_table *table_of(sch_cc_slot_xml_inst_type **heads, uint32_t index)
{
    if (shadow.file == nullptr || shadow.memory_ran_out)
        return nullptr;
    slot_table **tables = nullptr;
    if (heads == shadow.file->i2c_cc_slot_lists)
        tables = shadow.i2c_tables;
    else if (heads == shadow.file->pcie_cc_slot_lists)
        tables = shadow.pcie_tables;
    else
        return nullptr;
    if (tables[index] == nullptr)
        tables[index] = make_table(heads[index]);
    if (tables[index] == nullptr)
        give_up();
    return tables[index];
}

}  // namespace

slot_lookup_scope::slot_lookup_scope(inv_xml_handle *file)
{
    shadow = {};
    shadow.file = file;
}

slot_lookup_scope::~slot_lookup_scope()
{
    drop_all_tables();
    shadow = {};
}

sch_cc_slot_xml_inst_type *find_slot_element(sch_cc_slot_xml_inst_type **heads, uint32_t index, uint32_t key)
{
    const slot_table *table = table_of(heads, index);
    if (table == nullptr)
        return parser_verify_is_slot_xml_inst_available(heads[index], key, 0);
    const slot_leaf *leaf = table->leaves[key >> 8 & 0xFF];
    return leaf == nullptr ? nullptr : leaf->entries[key & 0xFF];
}

void add_slot_element(sch_cc_slot_xml_inst_type **heads, uint32_t index, sch_cc_slot_xml_inst_type *element)
{
    slot_table *table = table_of(heads, index);
    if (table == nullptr) {
        parser_insert_cc_slot_xml_inst(heads, index, element);
        return;
    }
    sch_cc_slot_xml_inst_type *tail = table->tail;
    (tail == nullptr ? heads[index] : tail->next) = element;
    if (!enter(table, element))
        give_up();
}

}  // namespace inv
