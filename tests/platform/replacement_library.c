/* Preloaded by the test: a product's own file lookup and trace writer. */
#include "inv_platform/lookup.h"
#include "inv_platform/trace.h"

const char *platform_get_inv_xml_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid)
{
    (void)pi_hw_type;
    (void)pd_hw_type;
    (void)pid;
    return "preloaded.xml";
}

const char *platform_get_inv_xml_file_name_v2(const struct fru_xml_loc_info *loc)
{
    (void)loc;
    return "preloaded_v2.xml";
}

int32_t qtrace_internal(void *handle, uint32_t id, uint32_t size_word, uint32_t has_string, const char *kinds,
                        const char *format, ...)
{
    (void)handle;
    (void)size_word;
    (void)has_string;
    (void)kinds;
    (void)format;
    return 1000 + (int32_t)id;
}
