// Decoding on behind failures, and noting where items stand: for armed contexts only.
//
// The engine calls in at few places. All begin with is_armed(), which is false, and one predictable
// branch, while no document is decoded in an armed context; the runtime is not asked then.
#ifndef SRC_DECODE_RECOVERY_H
#define SRC_DECODE_RECOVERY_H

#include <atomic>
#include <bitset>

#include "decode/description.h"

// A platform without armed contexts need not have it.
#pragma weak rtxNoteItem

namespace inv::decode
{

// Number of armed documents being decoded in the process.
extern std::atomic<uint32_t> armed_documents;

inline bool any_armed()
{
    return armed_documents.load(std::memory_order_relaxed) != 0;
}

bool is_armed_context(const xb_context *ctx);

inline bool is_armed(const xb_context *ctx)
{
    return any_armed() && is_armed_context(ctx);
}

// Stands around the decode of a document.
struct armed_document {
    explicit armed_document(const xb_context *ctx);
    ~armed_document();
    armed_document(const armed_document &) = delete;
    armed_document &operator=(const armed_document &) = delete;
    bool armed;
};

inline constexpr int32_t greatest_content = 128;

// The content of one type that is being decoded. Groups of one element form a chain.
struct content_scope {
    const type_description *type;
    content_scope *outer;   // of the decoder that called this one
    content_scope *around;  // of the group's content around it; null for an element's own content
    int32_t current;        // row decoded last; -1: none yet
    bool group;
    std::bitset<greatest_content> seen;      // rows decoded
    std::bitset<greatest_content> reported;  // rows reported missing

    // Of the chain's outermost scope: what is known of the element as a whole.
    uint64_t missing_at;  // offset of the tag that a missing row was reported at; ~0: none
    uint32_t unplaced;    // elements passed over that may have been meant for a required row
};

// Enters a content while it lives; costs nothing unless armed.
struct armed_content {
    armed_content(xb_context *ctx, const type_description &type, bool group);
    ~armed_content()
    {
        if (entered)
            leave();
    }
    armed_content(const armed_content &) = delete;
    armed_content &operator=(const armed_content &) = delete;
    void enter(const type_description &type, bool group);
    void leave();

    bool entered;
    content_scope scope;  // left alone unless entered
};

inline armed_content::armed_content(xb_context *ctx, const type_description &type, bool group)
    : entered(is_armed(ctx))
{
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.UninitializedObject): only looked at when entered
    if (entered)
        enter(type, group);
}

// Looks up the next row as rtXmlpGetNextSeqElemID() does, reports what stands out of place and goes on
// behind it. Returns a row, XB_END_OF_CONTENT or a status that is recorded and final.
int32_t next_row_armed(xb_context *ctx, content_scope &scope, int32_t position);

// At the head of a type's decoder: notes the record. True when the caller only asks what type it is and
// wants nothing decoded.
bool begin_armed(xb_context *ctx, const type_description &type, void *record);

inline bool begin_type(xb_context *ctx, const type_description &type, void *record)
{
    return is_armed(ctx) && begin_armed(ctx, type, record);
}

// Notes where a single value stands that has been decoded.
inline void note_value(xb_context *ctx, const item &row, const void *target)
{
    if (any_armed() && row.kind != item_kind::record && row.kind != item_kind::group)
        rtxNoteItem(ctx, target, false);
}

// Each takes a status that is recorded; 0 when the decode may go on, else the status to return.
// The rest of the current element is passed over, its end tag included.
int32_t resume_behind(xb_context *ctx, int32_t status);
// Only what stands before the next tag is passed over.
int32_t resume_at_tag(xb_context *ctx, int32_t status);

// The next element of a run behind a failure of the lookup.
int32_t next_in_run_armed(xb_context *ctx, const xb_element_row *own_name, int32_t status);

// A record that failed is kept, other values are not.
inline bool keeps_partly(const item &row)
{
    return row.kind == item_kind::record || row.kind == item_kind::group;
}

// True when an element passed over earlier may have been the one whose absence is about to be reported.
bool is_forgiven(xb_context *ctx);

// What might have stood at the place of the error recorded last.
void explain_value(xb_context *ctx, item_kind kind);
void explain_attribute(xb_context *ctx, const attribute_table &attributes);
void explain_type(xb_context *ctx, const choice_description &choices);

// Remembers the tokens that a text was not found in, for explain_failed_token().
void note_failed_lookup(const enumeration &tokens);
void explain_failed_token(xb_context *ctx);

}  // namespace inv::decode

#endif
