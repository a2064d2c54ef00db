// The engine behind the generated decoders.
#ifndef SRC_DECODE_ENGINE_H
#define SRC_DECODE_ENGINE_H

#include <cstring>
#include <type_traits>

#include "decode/description.h"

namespace inv::decode
{

// Each decodes what the context's reader stands on and returns 0 or the negative status that it has
// recorded. Memory comes from the context's heap only.
int32_t decode_type(xb_context *ctx, const type_description &type, void *record);
int32_t decode_choice(xb_context *ctx, const choice_description &choices, xb_choice *choice);
int32_t decode_document(xb_context *ctx, const root_description &root, void *record);
int32_t decode_enumeration(xb_context *ctx, uint32_t first_step, token_converter convert, uint32_t *code);
int32_t decode_decimal(xb_context *ctx, uint32_t step, double *value);

// Exactly `capacity` octets, given in hexadecimal; *count is set when they are there.
int32_t decode_octet_buffer(xb_context *ctx, const char *type_name, uint32_t step, uint8_t *octets,
                            uint32_t capacity, uint32_t *count);

// Clears a record or its presence bits with everything in them: assigning an empty value leaves the unused
// bits of a bit-field as they were.
template <class Record>
void clear_octets(Record &record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    memset(&record, 0, sizeof record);
}

// Length -1: the text ends with a NUL. The code may be null; it is left alone on failure.
int32_t find_code(const enumeration &tokens, const char *text, int32_t length, uint32_t *code);
const char *find_token(const enumeration &tokens, uint32_t code);

}  // namespace inv::decode

#endif
