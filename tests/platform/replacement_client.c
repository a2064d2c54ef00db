#include "platform/replacement_client.h"

#include "inv_parser/handle.h"
#include "inv_platform/lookup.h"
#include "inv_platform/trace.h"

const char *client_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid)
{
    return platform_get_inv_xml_file_name(pi_hw_type, pd_hw_type, pid);
}

const char *client_file_name_v2(uint32_t pi_hw_type, uint32_t pd_hw_type)
{
    fru_xml_loc_info loc = {.pi_hw_type = pi_hw_type, .pd_hw_type = pd_hw_type};
    return platform_get_inv_xml_file_name_v2(&loc);
}

int32_t client_trace(uint32_t *kept)
{
    void *channel = 0;
    int32_t result = qtrace_open_internal(&channel, "client", 4096, 0, "", "", 0);
    if (result != 0)
        return result;
    result = qtrace_internal(channel, 7, 4, 0, "", "line\n");
    *kept = qtrace_read(channel, 0, 0);
    return result;
}
