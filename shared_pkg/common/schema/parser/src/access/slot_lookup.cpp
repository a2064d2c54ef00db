#include "access/slot_lookup.h"

#include "frame/side_records.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"

namespace inv
{

namespace
{

// A list that is not longer is searched as quickly without a table.
constexpr size_t least_kept_length = 64;

// Elements of one list by key: leaf by the key's high octet, entry by its low one.
struct slot_leaf {
    sch_cc_slot_xml_inst_type *entries[256];
};

struct slot_table {
    slot_leaf *leaves[256];
    sch_cc_slot_xml_inst_type *head;
    sch_cc_slot_xml_inst_type *tail;
    size_t length;
    bool is_of_load;  // every element was filed by the load in progress, so that all live as long as the file
};

struct file_tables {
    slot_table *i2c[INV_CC_SLOT_LIST_COUNT];
    slot_table *pcie[INV_CC_SLOT_LIST_COUNT];
};

struct shadowed_file {
    inv_xml_handle *file;
    bool memory_ran_out;  // literal searches until the scope ends
    file_tables tables;
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

void drop_tables(file_tables &tables)
{
    for (slot_table *&table : tables.i2c)
        drop_table(table);
    for (slot_table *&table : tables.pcie)
        drop_table(table);
}

// The tables of one of the file's arrays of lists; null for other lists.
slot_table **tables_of(file_tables &tables, inv_xml_handle *file, sch_cc_slot_xml_inst_type **heads)
{
    if (heads == file->i2c_cc_slot_lists)
        return tables.i2c;
    return heads == file->pcie_cc_slot_lists ? tables.pcie : nullptr;
}

sch_cc_slot_xml_inst_type *look_up(const slot_table *table, uint32_t key)
{
    const slot_leaf *leaf = table->leaves[key >> 8 & 0xFF];
    return leaf == nullptr ? nullptr : leaf->entries[key & 0xFF];
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
    if (table->head == nullptr)
        table->head = element;
    table->tail = element;
    ++table->length;
    return true;
}

slot_table *make_table(sch_cc_slot_xml_inst_type *list)
{
    auto *table = static_cast<slot_table *>(memory::request(sizeof(slot_table)));
    if (table != nullptr)
        table->is_of_load = list == nullptr;
    for (; table != nullptr && list != nullptr; list = list->next)
        if (!enter(table, list))
            drop_table(table);
    return table;
}

void give_up()
{
    drop_tables(shadow.tables);
    shadow.memory_ran_out = true;
}

// The table of heads[index], made when there is none; null where the literal search has to serve.
slot_table *table_of(sch_cc_slot_xml_inst_type **heads, uint32_t index)
{
    if (shadow.file == nullptr || shadow.memory_ran_out)
        return nullptr;
    slot_table **tables = tables_of(shadow.tables, shadow.file, heads);
    if (tables == nullptr)
        return nullptr;
    if (tables[index] == nullptr)
        tables[index] = make_table(heads[index]);
    if (tables[index] == nullptr)
        give_up();
    return tables[index];
}

// How many are left.
size_t drop_what_is_not_kept(slot_table *(&tables)[INV_CC_SLOT_LIST_COUNT])
{
    size_t kept = 0;
    for (slot_table *&table : tables) {
        if (table != nullptr && (table->length <= least_kept_length || !table->is_of_load))
            drop_table(table);
        kept += table != nullptr;
    }
    return kept;
}

void release_kept(void *kept)
{
    drop_tables(*static_cast<file_tables *>(kept));
    memory::release(kept);
}

// The tables of long lists go to the file's side record. Without memory for that there are none.
void keep_tables()
{
    set_side_table(shadow.file, side_table::slots, nullptr, nullptr);
    if (drop_what_is_not_kept(shadow.tables.i2c) + drop_what_is_not_kept(shadow.tables.pcie) == 0)
        return;
    auto *kept = static_cast<file_tables *>(memory::request(sizeof(file_tables)));
    if (kept != nullptr && set_side_table(shadow.file, side_table::slots, kept, release_kept)) {
        *kept = shadow.tables;
        return;
    }
    memory::release(kept);
    drop_tables(shadow.tables);
}

// Null when the list has no table, or is not what it was when the load ended.
const slot_table *kept_table(inv_xml_handle *file, sch_cc_slot_xml_inst_type **heads, uint32_t index)
{
    file_tables *kept = nullptr;
    {
        const side_records_guard held;
        kept = static_cast<file_tables *>(get_side_table(file, side_table::slots));
    }
    slot_table **tables = kept == nullptr ? nullptr : tables_of(*kept, file, heads);
    const slot_table *table = tables == nullptr ? nullptr : tables[index];
    if (table == nullptr || table->head != heads[index] || table->tail->next != nullptr)
        return nullptr;
    return table;
}

}  // namespace

slot_lookup_scope::slot_lookup_scope(inv_xml_handle *file)
{
    shadow = {};
    shadow.file = file;
}

slot_lookup_scope::~slot_lookup_scope()
{
    keep_tables();
    shadow = {};
}

sch_cc_slot_xml_inst_type *find_filed_slot(inv_xml_handle *file, sch_cc_slot_xml_inst_type **heads,
                                           uint32_t index, uint32_t key)
{
    sch_cc_slot_xml_inst_type *element = heads[index];
    for (size_t i = 0; i < least_kept_length; ++i, element = element->next) {
        if (element == nullptr || element->key == static_cast<uint16_t>(key))
            return element;
    }
    const slot_table *table = kept_table(file, heads, index);
    return table == nullptr ? parser_verify_is_slot_xml_inst_available(element, key, 0) : look_up(table, key);
}

sch_cc_slot_xml_inst_type *find_slot_element(sch_cc_slot_xml_inst_type **heads, uint32_t index, uint32_t key)
{
    const slot_table *table = table_of(heads, index);
    if (table == nullptr)
        return parser_verify_is_slot_xml_inst_available(heads[index], key, 0);
    return look_up(table, key);
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
