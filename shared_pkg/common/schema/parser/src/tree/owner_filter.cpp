// Narrowing an array of EIDs to one owner.
#include "frame/trace.h"
#include "inv_parser/queries.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "tree/path_table.h"

#include <string.h>

using namespace inv;

namespace
{

// ORVL_ENTITY_OWNER_TYPE_COMMON: passes every owner.
constexpr uint32_t owner_common = 5;

// So few lookups cost less than a table.
constexpr uint32_t few_lookups = 4;

bool belongs_to(const eid_chain_node *node, uint32_t owner)
{
    return node != nullptr && node->record != nullptr &&
           (node->record->owner == owner || node->record->owner == owner_common);
}

}  // namespace

uint32_t parser_get_eid_count_by_owner(sch_eid_type *array, uint32_t count, uint32_t owner)
{
    if (array == nullptr)
        return 0;
    path_table paths;
    bool has_paths = count > few_lookups && paths.build();
    uint32_t kept = 0;
    for (uint32_t i = 0; i < count; ++i) {
        eid_chain_node *node = has_paths ? paths.find(array[i]) : parser_find_entity(root_eid, &array[i]);
        if (belongs_to(node, owner))
            array[kept++] = array[i];
    }
    return kept;
}

void parser_filter_eid_by_owner(sch_eid_type *array, uint32_t count, sch_eid_type **out, uint32_t *out_count,
                                uint32_t owner)
{
    if (out == nullptr || out_count == nullptr)
        return;
    *out = nullptr;
    *out_count = 0;
    uint32_t kept = parser_get_eid_count_by_owner(array, count, owner);
    if (kept == 0)
        return;
    size_t size = size_t{kept} * sizeof(sch_eid_type);
    auto *narrowed = static_cast<sch_eid_type *>(memory::request(size));
    if (narrowed == nullptr) {
        trace<msg::owner_filter_no_memory>();
        return;
    }
    memcpy(narrowed, array, size);
    *out = narrowed;
    *out_count = kept;
}

void inv_parser_free_eid_tree(sch_eid_type *array)
{
    memory::release(array);
}
