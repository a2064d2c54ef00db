#include <cstring>

#include "decode/engine.h"
#include "decode/recovery.h"
#include "decode/values.h"

namespace inv::decode
{

int32_t find_code(const enumeration &tokens, const char *text, int32_t length, uint32_t *code)
{
    size_t text_length = 0;
    if (text != nullptr)
        text_length = length < 0 ? std::strlen(text) : static_cast<size_t>(length);
    int32_t row = rtxLookupEnum(text, text_length, tokens.rows, tokens.count);
    if (row < 0) {
        note_failed_lookup(tokens);
        return row;
    }
    if (code != nullptr)
        *code = tokens.rows[row].code;
    return 0;
}

const char *find_token(const enumeration &tokens, uint32_t code)
{
    if (code >= tokens.count)
        return "_UNKNOWN_";
    return tokens.rows[tokens.rows[code].inverse_index].token;
}

int32_t decode_enumeration(xb_context *ctx, uint32_t first_step, token_converter convert, uint32_t *code)
{
    char *text = nullptr;
    int32_t status = rtXmlpDecDynUTF8Str(ctx, &text);
    if (status < 0)
        return report(ctx, status, first_step);
    status = convert(text, -1, code);
    if (status < 0)
        rtxErrAddStrParm(ctx, text);
    rtxMemHeapFreePtr(ctx, text);
    if (status >= 0)
        return 0;
    report(ctx, status, first_step + 1);
    explain_failed_token(ctx);
    return status;
}

}  // namespace inv::decode
