// A document through the runtime and each of the six root decoders.
#include <cstdint>
#include <cstdlib>

#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_Derivations.h"

namespace
{

template <class Record, int32_t (*Decode)(xb_context *, Record *)>
int32_t decode_as(xb_context *context)
{
    Record decoded;
    return Decode(context, &decoded);
}

constexpr int32_t (*decoders[])(xb_context *) = {
    decode_as<xb_choice, XmlD_module>,          decode_as<ChassisEntityType, XmlD_chassis>,
    decode_as<PowerShelfType, XmlD_powerShelf>, decode_as<PEMType, XmlD_pem>,
    decode_as<FanTrayType, XmlD_fanTray>,       decode_as<OpticsType, XmlD_optics>,
};

// A status that is not recorded, or recorded without a text or a place, is a fault of ours.
void check_errors(const xb_context &context, int32_t status)
{
    if (status != rtxErrGetStatus(&context) || status > 0)
        abort();
    xb_error error;
    for (uint32_t i = 0; rtxErrGet(&context, i, &error); ++i)
        if (error.status >= 0 || rtxErrText(error.status)[0] == '\0' || error.line == 0 || error.column == 0)
            abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    for (auto decode : decoders) {
        xb_context context = {};
        if (rtXmlInitContext(&context) == XB_OK && rtxStreamMemoryCreateReader(&context, data, size) == XB_OK)
            check_errors(context, decode(&context));
        rtxFreeContext(&context);
    }
    return 0;
}
