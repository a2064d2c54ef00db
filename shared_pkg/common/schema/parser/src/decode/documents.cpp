// Type derivations and document roots.
#include "decode/engine.h"
#include "decode/recovery.h"
#include "decode/values.h"

namespace inv::decode
{

int32_t decode_choice(xb_context *ctx, const choice_description &choices, xb_choice *choice)
{
    choice->tag = 0;
    int32_t index = rtXmlpGetXSITypeIndex(ctx, choices.names, choices.count);
    if (index < 0 && index != XB_E_NO_XSI_TYPE) {
        rtxErrSetData(ctx, index, chooser_source, choices.first_step);
        explain_type(ctx, choices);
        return index;
    }
    const uint32_t chosen = index < 0 ? 0 : static_cast<uint32_t>(index);
    const choice_row &row = choices.rows[chosen];
    const uint32_t step = choices.first_step + 2 * chosen;
    void *record = rtxMemHeapAlloc(ctx, row.size);
    if (record == nullptr)
        return rtxErrSetData(ctx, XB_E_NO_MEMORY, chooser_source, step + 1);
    row.init(record);
    if (is_armed(ctx))
        *choice = {chosen + 1, record};
    int32_t status = row.decode(ctx, record);
    if (status < 0)
        return rtxErrSetData(ctx, status, chooser_source, step + 2);
    choice->value = record;
    choice->tag = chosen + 1;
    return 0;
}

namespace
{

int32_t read_document(xb_context *ctx, const root_description &root, void *record)
{
    const armed_document armed(ctx);
    int32_t status = rtXmlpCreateReader(ctx);
    if (status < 0)
        return report(ctx, status, root.first_step);
    root.init(record);
    status = rtXmlpMatchStartTag(ctx, root.element, -1);
    if (status < 0)
        return report(ctx, status, root.first_step + 1);
    status = root.decode(ctx, record);
    if (status < 0)
        return report(ctx, status, root.first_step + 2);
    status = rtXmlpMatchEndTag(ctx, -1);
    return status < 0 ? resume_behind(ctx, report(ctx, status, root.first_step + 3)) : 0;
}

}  // namespace

// The first recorded status is the result: attribute errors that the decode outlived come before the
// failure that ended it.
int32_t decode_document(xb_context *ctx, const root_description &root, void *record)
{
    int32_t status = read_document(ctx, root, record);
    int32_t recorded = rtxErrGetStatus(ctx);
    return recorded != 0 ? recorded : status;
}

}  // namespace inv::decode
