// The two generations of the open call. They differ in how a unit is named, in one hardware type
// and in their trace lines; what an open does is the same for both.
#include "frame/file_memory.h"
#include "frame/lock.h"
#include "frame/trace.h"
#include "inv_parser/base_entity.h"
#include "inv_parser/frame.h"
#include "inv_parser/tree_internal.h"
#include "load/document_kind.h"

#include <string.h>
#include <time.h>

namespace
{

using namespace inv;
using load::document_kind;

struct open_request {
    uint8_t inv_type;
    uint32_t pi_hw_type;
    uint32_t pd_hw_type;
    const char *pid;
    const fru_xml_loc_info *loc;  // second generation only
};

// The lines that the first generation has for each kind of its own.
struct kind_lines {
    void (*failed)(uint32_t pi_hw_type, uint32_t pd_hw_type, int32_t code);
    void (*succeeded)(uint32_t pi_hw_type, uint32_t pd_hw_type, int32_t code);
    void (*root)(const char *function, uint8_t type, uint16_t subtype, uint16_t instance);
};

template <class Failed, class Succeeded, class Root>
constexpr kind_lines lines_of()
{
    return {
        [](uint32_t pi, uint32_t pd, int32_t code) { trace<Failed>(pi, pd, code); },
        [](uint32_t pi, uint32_t pd, int32_t code) { trace<Succeeded>(pi, pd, code); },
        [](const char *function, uint8_t type, uint16_t subtype, uint16_t instance) {
            trace<Root>(function, type, subtype, instance);
        },
    };
}

// In the order of document_kind.
constexpr kind_lines first_generation_lines[] = {
    lines_of<msg::chassis_parse_failed, msg::chassis_parse_success, msg::chassis_root>(),
    lines_of<msg::module_parse_failed, msg::module_parse_success, msg::module_root>(),
    lines_of<msg::fan_tray_parse_failed, msg::fan_tray_parse_success, msg::fan_tray_root>(),
    lines_of<msg::power_shelf_parse_failed, msg::power_shelf_parse_success, msg::power_shelf_root>(),
    lines_of<msg::pem_parse_failed, msg::pem_parse_success, msg::pem_root>(),
    lines_of<msg::cxp_parse_failed, msg::cxp_parse_success, msg::cxp_root>(),
};

struct first_generation {
    static constexpr const char *name = "inv_parser_open_xml_file";
    static constexpr bool keeps_handle_of_invalid_type = true;
    using lock_failed = msg::open_lock_failed;
    using unlock_failed = msg::open_unlock_failed;
    using parsing_start = msg::open_parsing_start;
    using parsing_end = msg::open_parsing_end;
    using invalid_type = msg::open_invalid_type;

    static document_kind kind(uint32_t pi_hw_type)
    {
        return load::kind_of_first_generation(pi_hw_type);
    }
    static inv_xml_handle *find(const open_request &r)
    {
        return inv_parser_get_xml_handle(r.inv_type, r.pi_hw_type, r.pd_hw_type, r.pid);
    }
    static void trace_entry(const open_request &r)
    {
        trace<msg::open_entry>(name, r.inv_type, r.pi_hw_type, r.pd_hw_type, r.pid);
    }
    static void trace_no_handle(const open_request &r)
    {
        trace<msg::open_no_handle>(r.pi_hw_type, r.pd_hw_type);
    }
    static void trace_parsed_already(const open_request &r, const void *handle, uint16_t count)
    {
        trace<msg::open_parsed_already>(name, handle, r.inv_type, r.pi_hw_type, r.pd_hw_type, r.pid, count);
    }
    static void trace_failed(document_kind kind, const open_request &r, int32_t code)
    {
        lines(kind).failed(r.pi_hw_type, r.pd_hw_type, code);
    }
    static void trace_succeeded(document_kind kind, const open_request &r)
    {
        lines(kind).succeeded(r.pi_hw_type, r.pd_hw_type, 0);
    }
    static void trace_root(document_kind kind, const sch_base_entity_type &entity)
    {
        lines(kind).root(name, entity.type, entity.subtype, entity.instance);
    }
    static const kind_lines &lines(document_kind kind)
    {
        return first_generation_lines[static_cast<size_t>(kind) - 1];
    }
};

struct second_generation {
    static constexpr const char *name = "inv_parser_open_xml_file_v2";
    static constexpr bool keeps_handle_of_invalid_type = false;
    using lock_failed = msg::open_v2_lock_failed;
    using unlock_failed = msg::open_v2_unlock_failed;
    using parsing_start = msg::open_v2_parsing_start;
    using parsing_end = msg::open_v2_parsing_end;
    using invalid_type = msg::open_v2_invalid_type;

    static document_kind kind(uint32_t pi_hw_type)
    {
        return load::kind_of(pi_hw_type);
    }
    static inv_xml_handle *find(const open_request &r)
    {
        return inv_parser_get_xml_handle_v2(r.inv_type, r.loc);
    }
    static void trace_entry(const open_request &r)
    {
        trace<msg::open_v2_entry>(name, r.inv_type, r.pi_hw_type, r.pd_hw_type, r.pid, r.loc->hw_maj_ver,
                                  r.loc->hw_min_ver);
    }
    static void trace_no_handle(const open_request &r)
    {
        trace<msg::open_v2_no_handle>(r.pi_hw_type, r.pd_hw_type, r.pid, r.loc->hw_maj_ver,
                                      r.loc->hw_min_ver);
    }
    static void trace_parsed_already(const open_request &r, const void *handle, uint16_t count)
    {
        trace<msg::open_v2_parsed_already>(name, handle, r.inv_type, r.pi_hw_type, r.pd_hw_type, r.pid,
                                           r.loc->hw_maj_ver, r.loc->hw_min_ver, count);
    }
    static void trace_failed(document_kind kind, const open_request &r, int32_t code)
    {
        trace<msg::open_v2_parse_failed>(load::actions_of(kind).name, r.pi_hw_type, r.pd_hw_type, code);
    }
    static void trace_succeeded(document_kind kind, const open_request &r)
    {
        trace<msg::open_v2_parse_success>(load::actions_of(kind).name, r.pi_hw_type, r.pd_hw_type, 0);
    }
    static void trace_root(document_kind, const sch_base_entity_type &entity)
    {
        trace<msg::open_v2_root>(name, entity.type, entity.subtype, entity.instance);
    }
};

bool local_clock(tm *clock)
{
    time_t now = time(nullptr);
    return localtime_r(&now, clock) != nullptr;
}

// Runs the kind's loader and puts what it built into the handle. False when the loader failed.
template <class Generation>
bool load_into(inv_xml_handle *handle, document_kind kind, const open_request &request)
{
    int32_t code = load::actions_of(kind).load(handle);
    if (code != 0) {
        Generation::trace_failed(kind, request, code);
        return false;
    }
    Generation::trace_succeeded(kind, request);
    handle->state = INV_HANDLE_PARSED;
    handle->root = root_eid;
    ++handle->file_count;
    if (root_eid != nullptr)
        Generation::trace_root(kind, *root_eid->record);
    return true;
}

// The open of a file that is not loaded yet. Returns what the caller gets unless the unlock fails.
template <class Generation>
inv_xml_handle *open_first_time(inv_xml_handle *handle, const open_request &request, bool *finished)
{
    tm clock;
    if (local_clock(&clock))
        trace<typename Generation::parsing_start>(Generation::name, clock.tm_hour, clock.tm_min, clock.tm_sec,
                                                  static_cast<const void *>(handle));
    root_eid = nullptr;
    document_kind kind = Generation::kind(request.pi_hw_type);
    if (kind == document_kind::none) {
        trace<typename Generation::invalid_type>(Generation::name, request.pi_hw_type);
        // Kept: the first generation hands the handle out, unparsed and uncounted.
        if (!Generation::keeps_handle_of_invalid_type)
            return nullptr;
    } else if (!load_into<Generation>(handle, kind, request)) {
        return nullptr;
    }
    if (local_clock(&clock))
        trace<typename Generation::parsing_end>(Generation::name, clock.tm_hour, clock.tm_min, clock.tm_sec,
                                                static_cast<const void *>(handle), handle->file_count);
    if (root_eid != nullptr)
        parser_display_parent_child(root_eid);
    *finished = true;
    return handle;
}

// Opens with the lock held and releases it on every way out.
template <class Generation>
inv_xml_handle *open_locked(const open_request &request)
{
    Generation::trace_entry(request);
    inv_xml_handle *handle = Generation::find(request);
    if (handle == nullptr) {
        Generation::trace_no_handle(request);
        unlock_or_trace<typename Generation::unlock_failed>();
        return nullptr;
    }
    if (handle->state == INV_HANDLE_PARSED) {
        // Once the lock is gone another thread may close the handle: the line has its own copies.
        uint16_t count = ++handle->file_count;
        unlock_or_trace<typename Generation::unlock_failed>();
        Generation::trace_parsed_already(request, handle, count);
        return handle;
    }
    bool finished = false;
    handle = open_first_time<Generation>(handle, request, &finished);
    bool unlocked = unlock_or_trace<typename Generation::unlock_failed>();
    // Kept: only a load that went to its end gives its handle up for a failing unlock.
    return finished && !unlocked ? nullptr : handle;
}

}  // namespace

inv_xml_handle *inv_parser_open_xml_file(uint8_t inv_type, uint32_t pi_hw_type, uint32_t pd_hw_type,
                                         const char *pid)
{
    if (!lock_or_trace<first_generation::lock_failed>())
        return nullptr;
    return open_locked<first_generation>({inv_type, pi_hw_type, pd_hw_type, pid, nullptr});
}

inv_xml_handle *inv_parser_open_xml_file_v2(uint8_t inv_type, const fru_xml_loc_info *loc)
{
    if (!lock_or_trace<second_generation::lock_failed>())
        return nullptr;
    if (loc == nullptr) {
        trace<msg::open_v2_null_location>();
        unlock_or_trace<second_generation::unlock_failed>();
        return nullptr;
    }
    // A text that fills its field to the end is not terminated there.
    char pid[sizeof loc->pid + 1] = {};
    memcpy(pid, loc->pid, sizeof loc->pid);
    return open_locked<second_generation>({inv_type, loc->pi_hw_type, loc->pd_hw_type, pid, loc});
}
