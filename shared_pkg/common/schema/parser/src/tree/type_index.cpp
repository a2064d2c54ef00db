#include "tree/type_index.h"

#include "frame/file_memory.h"
#include "inv_platform/system_memory.h"
#include "tree/eid_fill.h"
#include "tree/eid_lookup.h"

#include <string.h>

namespace inv
{

namespace
{

constexpr size_t type_count = UINT8_MAX + 1;

// Entities of one type and subtype that follow each other among those of their type.
struct subtype_run {
    uint32_t subtype;
    uint32_t begin;  // place of the first EID
    uint32_t count;
};

// Where the entities of a type stand; in the count pass only the numbers are right.
struct type_part {
    uint32_t begin;
    uint32_t count;
    uint32_t first_run;
    uint32_t run_count;
    uint32_t last_subtype;
};

// No subtype: they have 16 bits.
constexpr uint32_t no_subtype = UINT32_MAX;

}  // namespace

// One block with the runs and the EIDs behind it: types in order, entities of a type in pre-order.
struct type_index {
    const eid_chain_node *root;
    uint64_t made_at;
    subtype_run *runs;
    sch_eid_type *eids;
    type_part types[type_count];
};

namespace
{

// Counts an entity; true when it begins a run.
bool count_in(type_part &part, uint32_t subtype)
{
    bool is_new_run = part.last_subtype != subtype;
    part.last_subtype = subtype;
    ++part.count;
    part.run_count += is_new_run ? 1 : 0;
    return is_new_run;
}

void count_types(type_index &index)
{
    for (type_part &part : index.types)
        part.last_subtype = no_subtype;
    visit_entities(root_eid, [&](const eid_chain_node *node) {
        if (node->record != nullptr)
            count_in(index.types[node->record->type], node->record->subtype);
    });
}

// Gives each type its place and sets the counts back for filling. Returns the sums.
subtype_run place_types(type_index &index)
{
    subtype_run sums = {};
    for (type_part &part : index.types) {
        part.begin = sums.count;
        part.first_run = sums.begin;
        sums.count += part.count;
        sums.begin += part.run_count;
        part.count = part.run_count = 0;
        part.last_subtype = no_subtype;
    }
    return sums;
}

void fill_types(type_index &index)
{
    visit_eids(root_eid, [&](const eid_chain_node *node, const sch_eid_type &eid) {
        if (node->record == nullptr)
            return;
        type_part &part = index.types[node->record->type];
        uint32_t at = part.begin + part.count;
        index.eids[at] = eid;
        if (count_in(part, node->record->subtype))
            index.runs[part.first_run + part.run_count - 1] = {node->record->subtype, at, 0};
        ++index.runs[part.first_run + part.run_count - 1].count;
    });
}

type_index *make_index()
{
    type_index counted = {};
    count_types(counted);
    subtype_run sums = place_types(counted);
    size_t runs_size = sums.begin * sizeof(subtype_run);
    auto *block = static_cast<char *>(
        memory::request(sizeof(type_index) + runs_size + sums.count * sizeof(sch_eid_type)));
    if (block == nullptr)
        return nullptr;
    auto *index = reinterpret_cast<type_index *>(block);
    *index = counted;
    index->root = root_eid;
    index->made_at = tree_change_count();
    index->runs = reinterpret_cast<subtype_run *>(block + sizeof(type_index));
    index->eids = reinterpret_cast<sch_eid_type *>(block + sizeof(type_index) + runs_size);
    fill_types(*index);
    return index;
}

}  // namespace

const type_index *type_index_for(const inv_xml_handle *handle, const entity_filter &filter) noexcept
{
    if (filter.any_type || filter.type >= type_count || handle->root != root_eid || !has_side_record(handle))
        return nullptr;
    auto *kept = static_cast<type_index *>(get_side_table(handle, side_table::type_index));
    if (kept != nullptr && kept->root == root_eid && kept->made_at == tree_change_count())
        return kept;
    // The old one goes first: two at a time would be twice the memory.
    set_side_table(handle, side_table::type_index, nullptr, memory::release);
    type_index *made = may_keep_tables_of(handle, root_eid) ? make_index() : nullptr;
    set_side_table(handle, side_table::type_index, made, memory::release);
    return made;
}

size_t count_entities(const type_index &index, const entity_filter &filter) noexcept
{
    const type_part &part = index.types[filter.type];
    if (filter.any_subtype)
        return part.count;
    size_t count = 0;
    for (uint32_t i = 0; i < part.run_count; ++i) {
        const subtype_run &run = index.runs[part.first_run + i];
        count += run.subtype == filter.subtype ? run.count : 0;
    }
    return count;
}

size_t fill_eids(const type_index &index, const entity_filter &filter, sch_eid_type *array) noexcept
{
    const type_part &part = index.types[filter.type];
    if (filter.any_subtype) {
        memcpy(array, index.eids + part.begin, part.count * sizeof(sch_eid_type));
        return part.count;
    }
    size_t count = 0;
    for (uint32_t i = 0; i < part.run_count; ++i) {
        const subtype_run &run = index.runs[part.first_run + i];
        if (run.subtype != filter.subtype)
            continue;
        memcpy(array + count, index.eids + run.begin, run.count * sizeof(sch_eid_type));
        count += run.count;
    }
    return count;
}

}  // namespace inv
