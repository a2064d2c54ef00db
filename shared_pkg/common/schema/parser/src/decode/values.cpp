#include "decode/values.h"

#include "decode/engine.h"

namespace inv::decode
{

int32_t decode_value(xb_context *ctx, const item &row, void *target)
{
    switch (row.kind) {
    case item_kind::int8:
        return rtXmlpDecInt8(ctx, static_cast<int8_t *>(target));
    case item_kind::uint8:
        return rtXmlpDecUInt8(ctx, static_cast<uint8_t *>(target));
    case item_kind::int16:
        return rtXmlpDecInt16(ctx, static_cast<int16_t *>(target));
    case item_kind::uint16:
        return rtXmlpDecUInt16(ctx, static_cast<uint16_t *>(target));
    case item_kind::int32:
        return rtXmlpDecInt(ctx, static_cast<int32_t *>(target));
    case item_kind::uint32:
        return rtXmlpDecUInt(ctx, static_cast<uint32_t *>(target));
    case item_kind::int64:
        return rtXmlpDecInt64(ctx, static_cast<int64_t *>(target));
    case item_kind::boolean:
        return rtXmlpDecBool(ctx, static_cast<uint8_t *>(target));
    case item_kind::text:
        return rtXmlpDecXmlStr(ctx, static_cast<const char **>(target));
    case item_kind::octets:
        return rtXmlpDecDynHexStr(ctx, static_cast<xb_octets *>(target));
    case item_kind::simple:
    case item_kind::record:
    case item_kind::group:
        break;
    }
    return row.decode(ctx, target);
}

int32_t decode_decimal(xb_context *ctx, uint32_t step, double *value)
{
    int32_t status = rtXmlpDecDecimal(ctx, value);
    return status < 0 ? report(ctx, status, step) : 0;
}

// The count comes last: until the octets are known to fit and to suffice, the buffer holds none.
int32_t decode_octet_buffer(xb_context *ctx, const char *type_name, uint32_t step, uint8_t *octets,
                            uint32_t capacity, uint32_t *count)
{
    uint32_t given = 0;
    int32_t status = rtXmlpDecHexStr(ctx, octets, capacity, &given);
    if (status == 0 && given != capacity)
        status = XB_E_CONSTRAINT;
    if (status == XB_E_CONSTRAINT) {
        rtxErrAddStrParm(ctx, type_name);
        rtxErrAddUIntParm(ctx, given);
    }
    if (status < 0)
        return report(ctx, status, step);
    *count = given;
    return 0;
}

}  // namespace inv::decode
