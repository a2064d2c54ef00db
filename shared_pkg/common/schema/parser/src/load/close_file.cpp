#include "frame/file_memory.h"
#include "frame/lock.h"
#include "frame/trace.h"
#include "inv_parser/frame.h"
#include "inv_parser/tree_internal.h"
#include "load/document_kind.h"
#include "tree/current_file.h"
#include "tree/instance_table.h"

namespace
{

using namespace inv;
using load::document_kind;

// What remains reachable through a handle that its release leaves alone must not dangle.
void release_memory_of_kept_handle(inv_xml_handle *handle)
{
    handle->root = nullptr;
    handle->module_record = nullptr;
    release_file_memory(handle);
}

// Releases the record, the tree and the handle by the kind that was loaded, so that no record is
// ever released as another type; a handle that was never loaded goes by its hardware type.
void release_document(inv_xml_handle *handle)
{
    document_kind kind = load::kind_of(handle->pi_hw_type);
    if (kind == document_kind::none) {
        trace<msg::close_invalid_type>(handle->pi_hw_type);
        release_memory_of_kept_handle(handle);
        return;
    }
    auto loaded = static_cast<document_kind>(loaded_kind(handle));
    if (loaded == document_kind::without_unit) {
        handle_forget(handle);
        return;
    }
    if (loaded != document_kind::none)
        kind = loaded;
    const load::kind_actions &actions = load::actions_of(kind);
    bool releases = !actions.needs_tree || (handle->root != nullptr && handle->root->record != nullptr);
    // The walk over all records would find nothing to give back.
    if (releases && holds_all_records(handle))
        handle_forget(handle);
    else
        actions.release(handle);
    // Kept: without a root record the handle stays allocated. Its file's memory does not.
    if (!releases)
        release_memory_of_kept_handle(handle);
}

void close_last(inv_xml_handle *handle)
{
    inv_schema_update_the_xml_handle_list(handle);
    // A builder that is called directly afterwards must neither look for parents in the tree that goes
    // nor file anything under its handle.
    if (root_eid == handle->root)
        root_eid = nullptr;
    if (current_file() == handle)
        parser_set_inv_file_instance(nullptr);
    if (holds_all_records(handle)) {
        take_instances_out(handle, bus::i2c, parser_xml_inst_compare);
        take_instances_out(handle, bus::pcie, parser_xml_inst_compare);
    }
    drop_instance_table(handle);
    for (bus which : {bus::i2c, bus::pcie})
        empty_instance_index(index_tree(handle, which), parser_xml_inst_compare);
    parser_free_cc_slot_xml_inst(handle->i2c_cc_slot_lists);
    parser_free_cc_slot_xml_inst(handle->pcie_cc_slot_lists);
    release_document(handle);
}

}  // namespace

uint32_t inv_parser_close_xml_file(inv_xml_handle *handle)
{
    if (!lock_or_trace<msg::close_lock_failed>())
        return 0;
    if (handle == nullptr) {
        trace<msg::close_null_handle>();
    } else {
        trace<msg::close_entry>("inv_parser_close_xml_file", handle->inv_type, handle->pi_hw_type,
                                handle->pd_hw_type, handle->file_count);
        // Kept: a count of 0 wraps to 65535 and releases nothing.
        if (--handle->file_count == 0)
            close_last(handle);
    }
    unlock_or_trace<msg::close_unlock_failed>();
    return 0;
}
