#include "frame/registry.h"

#include "frame/file_memory.h"
#include "frame/trace.h"
#include "inv_parser/frame.h"
#include "inv_platform/lookup.h"
#include "inv_platform/system_memory.h"

#include <string.h>

namespace inv::frame
{

inv_xml_handle *xml_file_list_handle;

namespace
{

// The two generations of the lookup do the same under different message ids.
struct first_generation {
    using no_file = msg::lookup_no_file;
    using first_no_memory = msg::lookup_first_no_memory;
    using first_created = msg::lookup_first_created;
    using known = msg::lookup_known;
    using no_memory = msg::lookup_no_memory;
    using created = msg::lookup_created;
};

struct second_generation {
    using no_file = msg::lookup_v2_no_file;
    using first_no_memory = msg::lookup_v2_first_no_memory;
    using first_created = msg::lookup_v2_first_created;
    using known = msg::lookup_v2_known;
    using no_memory = msg::lookup_v2_no_memory;
    using created = msg::lookup_v2_created;
};

struct first_opener {
    uint8_t inv_type;
    uint32_t pi_hw_type;
    uint32_t pd_hw_type;
};

bool has_name(const inv_xml_handle *handle, const char *name)
{
    return strncmp(handle->file_name, name, INV_FILE_NAME_SIZE) == 0;
}

// A handle with its side record, so that both exist or neither.
inv_xml_handle *new_handle()
{
    auto *handle = static_cast<inv_xml_handle *>(memory::request(sizeof(inv_xml_handle)));
    if (handle != nullptr && !add_side_record(handle)) {
        memory::release(handle);
        return nullptr;
    }
    return handle;
}

// `link` is where the new handle's address goes: the head or the tail's next.
template <class NoMemory, class Created>
inv_xml_handle *append(inv_xml_handle **link, const first_opener &opener, const char *name)
{
    inv_xml_handle *handle = new_handle();
    if (handle == nullptr) {
        trace<NoMemory>(name);
        return nullptr;
    }
    trace<Created>(handle, opener.pi_hw_type, opener.pd_hw_type);
    handle->inv_type = opener.inv_type;
    handle->pi_hw_type = opener.pi_hw_type;
    handle->pd_hw_type = opener.pd_hw_type;
    handle->state = INV_HANDLE_REGISTERED;
    memcpy(handle->file_name, name, strlen(name) + 1);
    *link = handle;
    return handle;
}

template <class Generation>
inv_xml_handle *find_or_append(const first_opener &opener, const char *name)
{
    // Kept: a name that does not fit its field is refused, never cut.
    if (name == nullptr || strnlen(name, INV_FILE_NAME_SIZE) == INV_FILE_NAME_SIZE) {
        trace<typename Generation::no_file>(opener.pi_hw_type, opener.pd_hw_type);
        return nullptr;
    }
    if (xml_file_list_handle == nullptr)
        return append<typename Generation::first_no_memory, typename Generation::first_created>(
            &xml_file_list_handle, opener, name);
    inv_xml_handle **link = &xml_file_list_handle;
    for (; *link != nullptr; link = &(*link)->next) {
        if (has_name(*link, name)) {
            // Kept: said of files whose load failed, too.
            trace<typename Generation::known>(name);
            return *link;
        }
    }
    return append<typename Generation::no_memory, typename Generation::created>(link, opener, name);
}

}  // namespace

}  // namespace inv::frame

using namespace inv;
using namespace inv::frame;

inv_xml_handle *inv_parser_get_xml_handle(uint8_t inv_type, uint32_t pi_hw_type, uint32_t pd_hw_type,
                                          const char *pid)
{
    return find_or_append<first_generation>({inv_type, pi_hw_type, pd_hw_type},
                                            platform_get_inv_xml_file_name(pi_hw_type, pd_hw_type, pid));
}

inv_xml_handle *inv_parser_get_xml_handle_v2(uint8_t inv_type, const fru_xml_loc_info *loc)
{
    if (loc == nullptr)
        return nullptr;
    return find_or_append<second_generation>({inv_type, loc->pi_hw_type, loc->pd_hw_type},
                                             platform_get_inv_xml_file_name_v2(loc));
}

void inv_schema_update_the_xml_handle_list(inv_xml_handle *handle)
{
    if (handle == nullptr || xml_file_list_handle == nullptr)
        return;
    // Kept: the head leaves without a line.
    if (has_name(xml_file_list_handle, handle->file_name)) {
        xml_file_list_handle = xml_file_list_handle->next;
        return;
    }
    for (inv_xml_handle *before = xml_file_list_handle; before->next != nullptr; before = before->next) {
        if (has_name(before->next, handle->file_name)) {
            trace<msg::file_closed>(before->next->file_name);
            before->next = before->next->next;
            return;
        }
    }
}

const char *inv_parser_get_file_name(inv_xml_handle *handle)
{
    return handle == nullptr ? "" : handle->file_name;
}
