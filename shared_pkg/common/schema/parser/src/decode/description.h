// How a schema type is described to the decode engine.
#ifndef SRC_DECODE_DESCRIPTION_H
#define SRC_DECODE_DESCRIPTION_H

#include <bit>
#include <cstddef>
#include <cstdint>

#include "inv_platform/xml_runtime.h"

namespace inv::decode
{

// Presence bits are bit-fields of single octets; bit n of a set is value 1 << n % 8 of octet n / 8.
static_assert(std::endian::native == std::endian::little, "the bit-field layout is another one here");

using child_decoder = int32_t (*)(xb_context *, void *);
using initialiser = void (*)(void *);

// Gives the decoder of one record type the type that table rows hold.
template <auto Decoder>
struct child_adapter;

template <typename Record, int32_t (*Decoder)(xb_context *, Record *)>
struct child_adapter<Decoder> {
    static int32_t call(xb_context *ctx, void *target)
    {
        return Decoder(ctx, static_cast<Record *>(target));
    }
};

template <auto Decoder>
inline constexpr child_decoder child = child_adapter<Decoder>::call;

template <auto Init>
struct init_adapter;

template <typename Record, void (*Init)(Record *)>
struct init_adapter<Init> {
    static void call(void *target)
    {
        Init(static_cast<Record *>(target));
    }
};

template <auto Init>
inline constexpr initialiser init = init_adapter<Init>::call;

// Clears the payload of a list of codes.
inline void clear_code(uint32_t *code)
{
    *code = 0;
}

enum class item_kind : uint8_t {
    int8,
    uint8,
    int16,
    uint16,
    int32,
    uint32,
    int64,
    boolean,
    text,
    octets,
    simple,  // an enumeration or an octet buffer, by its own decoder
    record,  // a complex type or a choice, by its own decoder
    group    // part of the content of the element that is open already
};

enum class occurrence : uint8_t {
    required,
    optional,
    repeated,
    counted  // optional for the lookup; at least one is demanded when the content ends
};

// One bit of a record's presence bits; no bit while the mask is 0.
struct presence_bit {
    uint32_t offset;
    uint8_t mask;
};

constexpr presence_bit bit(size_t has_offset, unsigned number)
{
    return {static_cast<uint32_t>(has_offset + number / 8), static_cast<uint8_t>(1u << number % 8)};
}

// An attribute, an element or a content group. Offsets count from the record that is decoded.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): members stand as the rows name them
struct item {
    const char *name = nullptr;
    item_kind kind = item_kind::text;
    occurrence occurs = occurrence::required;
    uint32_t offset = 0;
    presence_bit present = {0, 0};
    uint32_t node_size = 0;             // of the record behind a list node
    initialiser init = nullptr;         // of that record
    child_decoder decode = nullptr;     // for simple, record and group
    const char *counter = nullptr;      // name of the word count, for counted elements
    const xb_tokens *tokens = nullptr;  // of an enumeration
    bool has_tokens = false;            // whether they are given, for tables made at compile time
    uint16_t capacity = 0;              // of an octet buffer
};

struct attribute_table {
    const xb_attribute_row *names = nullptr;
    const item *items = nullptr;
    int32_t count = 0;
    uint64_t required = 0;  // bit n: row n is required
    const xb_plain_row *plain = nullptr;
};

struct content_table {
    const item *items = nullptr;
    const xb_sequence_row *sequence = nullptr;
    int32_t count = 0;
    int32_t last_required = -1;
    bool has_counted = false;
    bool has_groups = false;
    const xb_element_row *elements = nullptr;
    int32_t element_count = 0;
    const xb_plain_row *plain = nullptr;  // null: no item is plain
};

// Extension contents have no tag of their own: neither declarations nor attributes.
struct type_description {
    const char *name;
    uint32_t first_step;  // its failing steps are numbered from here, at most steps_per_type of them
    bool is_extension = false;
    uint32_t xmlns = 0;  // offset of the list of namespace declarations
    attribute_table attributes = {};
    content_table content = {};
};

struct choice_row {
    uint32_t size;
    initialiser init;
    child_decoder decode;
};

// The types that may stand where a base type is declared; the tag is the row number plus one.
struct choice_description {
    uint32_t first_step;
    const xb_type_name_row *names;
    const choice_row *rows;
    int32_t count;
};

struct root_description {
    const char *element;
    uint32_t first_step;
    initialiser init;
    child_decoder decode;
};

using enumeration = xb_tokens;  // rows sorted by token

using token_converter = int32_t (*)(const char *text, int32_t length, uint32_t *code);

inline constexpr uint32_t steps_per_type = 1000;

}  // namespace inv::decode

#endif
