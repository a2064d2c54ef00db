// A document end to end: open as each kind, every query on what came out of it, close.
#include <cstdint>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "inv_parser/inv_parser.h"

namespace
{

std::string file_to_open;

void query_everything(inv_xml_handle *handle, uint32_t owner)
{
    sch_eid_type *all = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, owner, nullptr, &all, &count) != 0)
        return;
    for (uint32_t i = 0; i < count && i < 64; ++i) {
        sch_base_entity_type *entity = nullptr;
        inv_parser_get_eid_data(handle, &entity, all[i]);
        sch_eid_type *some = nullptr;
        uint32_t below = 0;
        if (inv_parser_get_eid_tree(handle, owner, &all[i], &some, &below) == 0)
            inv_parser_free_eid_tree(some);
    }
    inv_parser_free_eid_tree(all);
    for (unsigned type = 0; type <= 12; ++type) {
        sch_eid_type *of_type = nullptr;
        uint16_t found = 0;
        if (inv_parser_get_eid_by_type_subtype(handle, owner, static_cast<uint8_t>(type), 235, &found,
                                               &of_type) == 0)
            inv_parser_free_eid_tree(of_type);
    }
}

}  // namespace

extern "C" const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return file_to_open.c_str();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    int file = memfd_create("document", MFD_CLOEXEC);
    if (file < 0)
        return 0;
    bool written = write(file, data, size) == static_cast<ssize_t>(size);
    file_to_open = "/proc/self/fd/" + std::to_string(file);
    for (uint32_t kind : {1u, 3u, 7u, 8u, 9u, 12u}) {
        inv_xml_handle *handle = written ? inv_parser_open_xml_file(0, kind, 0, "") : nullptr;
        if (handle == nullptr) {
            // A failed open leaves its handle registered; it is found again and unlinked here.
            handle = inv_parser_get_xml_handle(0, kind, 0, "");
            inv_schema_update_the_xml_handle_list(handle);
            inv_schema_free_base_module_data(handle);
            continue;
        }
        bool has_tree = handle->root != nullptr;
        query_everything(handle, 6);
        query_everything(handle, 1);
        inv_parser_close_xml_file(handle);
        // Kept by contract: a handle without a tree stays allocated after its close.
        if (!has_tree)
            inv_schema_free_base_module_data(handle);
    }
    close(file);
    return 0;
}
