// Decoding of single values and reporting of failures.
#ifndef SRC_DECODE_VALUES_H
#define SRC_DECODE_VALUES_H

#include "decode/description.h"

namespace inv::decode
{

// Statuses are reported under the names of the generated sources; tools match on them.
inline constexpr const char *decoder_source =
    "orvelian/shared_pkg/common/schema/parser/src/OrvelianInventorySchemaDec";
inline constexpr const char *chooser_source =
    "orvelian/shared_pkg/common/schema/parser/src/inventory_DerivationsDec";

inline int32_t report(xb_context *ctx, int32_t status, uint32_t step)
{
    return rtxErrSetData(ctx, status, decoder_source, step);
}

inline uint8_t *at(void *record, uint32_t offset)
{
    return static_cast<uint8_t *>(record) + offset;
}

inline void set_present(void *record, const item &row)
{
    *at(record, row.present.offset) |= row.present.mask;
}

// Decodes the selected attribute or the current element's text into target, by the row's kind.
// Not for groups. What a child decoder fails with it has recorded already.
int32_t decode_value(xb_context *ctx, const item &row, void *target);

// Decodes the attributes of the current tag into the record. Only failures of the walk itself are
// returned; those of single attributes are recorded.
int32_t decode_attributes(xb_context *ctx, const type_description &type, void *record);

}  // namespace inv::decode

#endif
