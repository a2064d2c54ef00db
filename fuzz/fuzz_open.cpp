// A document end to end, as the one kind that FUZZ_HARDWARE_TYPE names: open, every query and every access
// sequence on what came out of it, close.
#include "memory_file.h"
#include "query_everything.h"

#include "inv_parser/frame.h"
#include "inv_parser/release.h"

namespace
{

void query_and_close(inv_xml_handle *handle)
{
    bool has_tree = handle->root != nullptr;
    query_everything(handle);
    inv_parser_close_xml_file(handle);
    // Kept by contract: a handle without a tree stays allocated after its close.
    if (!has_tree && FUZZ_HARDWARE_TYPE != 3)
        inv_schema_free_base_module_data(handle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const memory_file document = make_memory_file(data, size);
    file_to_open = document.name;
    inv_xml_handle *handle =
        document.name.empty() ? nullptr : inv_parser_open_xml_file(0, FUZZ_HARDWARE_TYPE, 0, "");
    if (handle != nullptr) {
        query_and_close(handle);
    } else if (!document.name.empty()) {
        // A failed open leaves its handle registered; it is found again and unlinked here.
        handle = inv_parser_get_xml_handle(0, FUZZ_HARDWARE_TYPE, 0, "");
        inv_schema_update_the_xml_handle_list(handle);
        inv_schema_free_base_module_data(handle);
    }
    remove_memory_file(document);
    return 0;
}
