#include <bit>

#include "decode/recovery.h"
#include "decode/steps.h"
#include "decode/values.h"

namespace inv::decode
{
namespace
{

void record_failure(xb_context *ctx, const type_description &type, const char *name, size_t length,
                    int32_t status, uint32_t step)
{
    rtxErrAddStrParm(ctx, type.name);
    rtxErrAddStrnParm(ctx, name, length);
    rtxErrSetNewData(ctx, status, decoder_source, type.first_step + step);
}

// Null when the selected attribute is not the type's; *status tells then whether that is a failure.
const item *find_attribute(xb_context *ctx, const attribute_table &table, int32_t *row, int32_t *status)
{
    int32_t namespace_index = -1;
    *row = rtXmlpGetAttributeID(ctx, table.names, table.count, &namespace_index);
    if (*row >= 0)
        return &table.items[*row];
    if (*row == XB_E_UNDECLARED_PREFIX)
        *status = XB_E_UNDECLARED_PREFIX;
    else
        *status = namespace_index >= -1 ? XB_E_ATTRIBUTE_UNKNOWN : 0;
    return nullptr;
}

// A given attribute counts as seen whatever its value: only its own failure is recorded.
void decode_selected(xb_context *ctx, const type_description &type, void *record, uint64_t *seen)
{
    int32_t row = 0;
    int32_t status = 0;
    uint32_t step = step_unknown_attribute;
    const item *found = find_attribute(ctx, type.attributes, &row, &status);
    if (found != nullptr) {
        *seen |= uint64_t{1} << row;
        step = step_first_attribute + static_cast<uint32_t>(row);
        status = decode_value(ctx, *found, at(record, found->offset));
        if (status == 0) {
            set_present(record, *found);
            note_value(ctx, *found, at(record, found->offset));
        }
    }
    if (status < 0) {
        size_t length = 0;
        const char *name = rtXmlpGetAttributeName(ctx, &length);
        record_failure(ctx, type, name, length, status, step);
        if (found != nullptr)
            explain_value(ctx, found->kind);
        else if (status == XB_E_ATTRIBUTE_UNKNOWN)
            explain_attribute(ctx, type.attributes);
    }
}

}  // namespace

int32_t decode_attributes(xb_context *ctx, const type_description &type, void *record)
{
    const int32_t count = rtXmlpGetAttributeCount(ctx);
    if (count < 0)
        return report(ctx, count, type.first_step + step_attribute_count);
    uint64_t seen = 0;
    const attribute_table &table = type.attributes;
    for (int32_t i = 0; i < count; ++i) {
        i = rtXmlpDecPlainAttributes(ctx, table.names, table.count, table.plain, i, record, &seen);
        if (i < count && rtXmlpSelectAttribute(ctx, i) >= 0)
            decode_selected(ctx, type, record, &seen);
    }
    rtXmlpHideAttributes(ctx);
    const uint64_t missing = type.attributes.required & ~seen;
    if (missing != 0) {
        const xb_attribute_row &first = type.attributes.names[std::countr_zero(missing)];
        record_failure(ctx, type, first.name, first.name_length, XB_E_ATTRIBUTE_MISSING,
                       step_missing_attribute);
    }
    return 0;
}

}  // namespace inv::decode
