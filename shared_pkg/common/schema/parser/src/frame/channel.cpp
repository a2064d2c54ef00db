#include "frame/channel.h"

#include "frame/lock.h"
#include "frame/trace.h"
#include "inv_parser/frame.h"
#include "inv_platform/trace.h"

#include <stdio.h>

namespace inv::frame
{

void *inv_schema_trace_handle;
std::atomic<uint8_t> trace_ready;
uint8_t debug_console;

namespace
{

constexpr char channel_name[] = "inv_schema_handle";
constexpr uint32_t buffer_size = 1024000;
constexpr uint32_t channel_flags = 0x103;
constexpr char buffer_path[] = "./orvelian/shared_pkg/common/schema/parser/lib_inv_parser";

// Tells readers of a dump which catalogue its ids belong to; a new one when a row changes its meaning.
constexpr char catalogue_id[] = "5b0e6d3fa1c94e27b8d2107c93f4a86e";

}  // namespace

}  // namespace inv::frame

using namespace inv;
using namespace inv::frame;

uint32_t inv_schema_qtrace_init(void)
{
    void *before = inv_schema_trace_handle;
    if (qtrace_open_internal(&inv_schema_trace_handle, channel_name, buffer_size, channel_flags, buffer_path,
                             catalogue_id, 0) != 0) {
        // Whatever a failed open stored is no channel; without this no later call would try again.
        inv_schema_trace_handle = before;
        fprintf(stderr, "%s failed\n", "inv_schema_qtrace_init");
        return channel_not_ready;
    }
    qtrace_set_dump_on_exit(inv_schema_trace_handle, 1);
    if (inv_schema_debug_enable_console() != 0)
        fprintf(stderr, "\n%s\n", "inv_schema_qtrace_init");
    trace_ready.store(1, std::memory_order_release);
    return 0;
}

uint32_t inv_schema_qtrace_enable_config(void *config)
{
    if (inv_schema_trace_handle == nullptr) {
        uint32_t status = inv_schema_qtrace_init();
        if (status != 0) {
            fprintf(stderr, "%s failed\n", "inv_schema_qtrace_enable_config");
            return status;
        }
    }
    if (inv_schema_debug_enable_console() != 0)
        fprintf(stderr, "\n%s \n", "inv_schema_qtrace_enable_config");
    return static_cast<uint32_t>(qtrace_enable_configuration(inv_schema_trace_handle, config));
}

uint32_t inv_schema_get_qtrace_hdl(void **out)
{
    // trace_ready first: seen as 1 it makes the handle that was stored before it visible too.
    if (out == nullptr || trace_ready.load(std::memory_order_acquire) == 0 ||
        inv_schema_trace_handle == nullptr)
        return channel_not_ready;
    *out = inv_schema_trace_handle;
    return 0;
}

uint8_t inv_schema_debug_enable_console(void)
{
    return debug_console;
}

uint32_t inv_parser_init(void *config)
{
    if (!lock())
        return trace<msg::init_lock_failed>();
    // A configuration that cannot be applied is no failure of the start: the library works untraced.
    inv_schema_qtrace_enable_config(config);
    if (!unlock())
        return trace<msg::init_unlock_failed>();
    return 0;
}
