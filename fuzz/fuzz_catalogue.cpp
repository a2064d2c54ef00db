// A catalogue of inventory files, asked for a few units by both generations of the lookup. Broken lines are
// reported on standard error, which the scripts that run the fuzzer close.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "inv_parser/handle.h"
#include "inv_platform/lookup.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    int file = memfd_create("catalogue", MFD_CLOEXEC);
    if (file < 0)
        return 0;
    if (write(file, data, size) == static_cast<ssize_t>(size)) {
        setenv("INV_CATALOG", ("/proc/self/fd/" + std::to_string(file)).c_str(), 1);
        for (uint32_t type : {0u, 1u, 3u, 0xffffffffu}) {
            platform_get_inv_xml_file_name(type, 17, "LC-48X10");
            fru_xml_loc_info loc = {type, 17, 1, 0, "LC-48X10"};
            platform_get_inv_xml_file_name_v2(&loc);
        }
    }
    close(file);
    return 0;
}
