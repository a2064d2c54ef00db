#include <cstring>

#include "decode/engine.h"
#include "decode/name_links.h"
#include "decode/recovery.h"
#include "decode/values.h"

namespace inv::decode
{

int32_t find_code(const enumeration &tokens, const char *text, int32_t length, uint32_t *code)
{
    if (text == nullptr)
        return XB_E_UNKNOWN_TOKEN;
    size_t text_length = length < 0 ? std::strlen(text) : static_cast<size_t>(length);
    const uint32_t hash = name_hash(text, text_length);
    for (uint32_t row = tokens.links[bucket_of(hash, tokens.count)].first; row != 0;
         row = tokens.links[row - 1].next) {
        const xb_enum_row &found = tokens.rows[row - 1];
        if (tokens.links[row - 1].hash != hash || found.token_length != text_length ||
            std::memcmp(found.token, text, text_length) != 0)
            continue;
        if (code != nullptr)
            *code = found.code;
        return 0;
    }
    note_failed_lookup(tokens);
    return XB_E_UNKNOWN_TOKEN;
}

const char *find_token(const enumeration &tokens, uint32_t code)
{
    if (code >= tokens.count)
        return "_UNKNOWN_";
    return tokens.rows[tokens.rows[code].inverse_index].token;
}

int32_t decode_enumeration(xb_context *ctx, uint32_t first_step, token_converter convert, uint32_t *code)
{
    const char *text = nullptr;
    size_t length = 0;
    int32_t status = rtXmlpDecView(ctx, &text, &length);
    if (status < 0)
        return report(ctx, status, first_step);
    status = convert(text, static_cast<int32_t>(length), code);
    if (status >= 0)
        return 0;
    rtxErrAddStrnParm(ctx, text, length);
    report(ctx, status, first_step + 1);
    explain_failed_token(ctx);
    return status;
}

}  // namespace inv::decode
