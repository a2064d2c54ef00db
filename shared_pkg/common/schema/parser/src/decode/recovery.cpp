// How decoding goes on behind an element that is out of place.
//
// The lookup fails at a start tag that no row from the present position on takes. What is done depends on
// where else its name is known:
//   later in the content: a required row in between is missing; it is reported and passed by;
//   later around the group: the group ends here, a required row of it is missing as before;
//   earlier, and not decoded yet: it is out of order; it is reported, and decoded from there on;
//   anything else: it is reported and passed over.
// One mistake should give one report: a row reported missing is not complained about when it comes later,
// only one row is reported missing at one tag, and an element passed over (its name may be misspelt)
// pays for one missing row.
#include "decode/recovery.h"

#include <cstring>

#include "decode/steps.h"
#include "decode/values.h"

// A platform without armed contexts need not have these; nothing is armed then.
#pragma weak rtxIsArmed
#pragma weak rtxResumeAtEnd
#pragma weak rtxResumeAtTag
#pragma weak rtxPeekTag
#pragma weak rtxErrAddWords
#pragma weak rtxErrAddMisplacement

namespace inv::decode
{

std::atomic<uint32_t> armed_documents = 0;

namespace
{

thread_local content_scope *innermost = nullptr;
thread_local const type_description **asked_type = nullptr;  // where begin_type() leaves the answer

constexpr uint64_t nowhere = ~uint64_t{0};

// A tag that is ahead.
struct tag_ahead {
    int32_t status;  // 1: start tag, 0: end tag, else why nothing can be read
    const char *local = nullptr;
    const char *name = nullptr;
    uint64_t offset = 0;

    bool is_start() const
    {
        return status == 1;
    }
};

tag_ahead peek(xb_context *ctx)
{
    tag_ahead tag;
    tag.status = rtxPeekTag(ctx, &tag.local, &tag.name, &tag.offset);
    return tag;
}

// The type behind a group's row: its decoder is called and answers instead of decoding.
const type_description *type_of_group(xb_context *ctx, const item &row)
{
    const type_description *found = nullptr;
    asked_type = &found;
    row.decode(ctx, nullptr);
    asked_type = nullptr;
    return found;
}

bool row_takes(xb_context *ctx, const item &row, const char *name);

// First row in first .. end - 1 that takes the name; -1 when there is none.
int32_t row_within(xb_context *ctx, const content_table &content, int32_t first, int32_t end,
                   const char *name)
{
    for (int32_t i = first < 0 ? 0 : first; name != nullptr && i < end; ++i)
        if (row_takes(ctx, content.items[i], name))
            return i;
    return -1;
}

bool row_takes(xb_context *ctx, const item &row, const char *name)
{
    if (row.kind != item_kind::group)
        return strcmp(row.name, name) == 0;
    const type_description *type = type_of_group(ctx, row);
    return type != nullptr && row_within(ctx, type->content, 0, type->content.count, name) >= 0;
}

content_scope &outermost(content_scope &scope)
{
    content_scope *at = &scope;
    while (at->around != nullptr)
        at = at->around;
    return *at;
}

bool is_taken_around(xb_context *ctx, const content_scope &scope, const char *name)
{
    for (const content_scope *at = scope.around; at != nullptr; at = at->around)
        if (row_within(ctx, at->type->content, at->current + 1, at->type->content.count, name) >= 0)
            return true;
    return false;
}

bool has_bit(const std::bitset<greatest_content> &bits, int32_t row)
{
    return row >= 0 && row < greatest_content && bits[static_cast<size_t>(row)];
}

void set_bit(std::bitset<greatest_content> &bits, int32_t row)
{
    if (row >= 0 && row < greatest_content)
        bits[static_cast<size_t>(row)] = true;
}

// The row that a lookup at the position demands.
int32_t required_row(const content_table &content, int32_t position)
{
    return content.sequence[position].first + content.sequence[position].count - 1;
}

bool is_repeated(const item &row)
{
    return row.occurs == occurrence::repeated || row.occurs == occurrence::counted;
}

// ---- Reports ---------------------------------------------------------------------------------------

constexpr uint32_t most_words = 64;

struct word_list {
    const char *words[most_words];
    uint32_t count = 0;

    void add(const char *word)
    {
        for (uint32_t i = 0; i < count; ++i)
            if (strcmp(words[i], word) == 0)
                return;
        if (count < most_words)
            words[count++] = word;
    }
};

// Adds the names of the rows from the position on; true when a required one ends them.
bool add_allowed(xb_context *ctx, const content_table &content, int32_t position, word_list &list)
{
    for (int32_t i = position; i < content.count; ++i) {
        const item &row = content.items[i];
        if (row.kind != item_kind::group) {
            list.add(row.name);
            if (row.occurs == occurrence::required)
                return true;
            continue;
        }
        const type_description *type = type_of_group(ctx, row);
        if (type != nullptr && add_allowed(ctx, type->content, 0, list))
            return true;
    }
    return false;
}

void explain_position(xb_context *ctx, const content_scope &scope, int32_t position)
{
    word_list list;
    bool ends = add_allowed(ctx, scope.type->content, position, list);
    for (const content_scope *at = scope.around; !ends && at != nullptr; at = at->around)
        ends = add_allowed(ctx, at->type->content, at->current + 1, list);
    rtxErrAddWords(ctx, list.words, list.count);
}

void report_lookup(xb_context *ctx, const content_scope &scope, int32_t position, int32_t status)
{
    report(ctx, status, scope.type->first_step + step_lookup);
    explain_position(ctx, scope, position);
}

// What the decoders around a group would report for an element that none of them takes.
int32_t verdict_around(xb_context *ctx, const content_scope &scope, const tag_ahead &tag)
{
    const content_scope *at = scope.around;
    for (; at != nullptr; at = at->around) {
        const content_table &content = at->type->content;
        int32_t next = at->current + 1;
        if (next < content.count && next <= content.last_required) {
            word_list list;
            add_allowed(ctx, content, required_row(content, next), list);
            rtxErrAddStrParm(ctx, list.count > 0 ? list.words[0] : "");
            rtxErrAddStrParm(ctx, tag.name);
            return XB_E_ELEMENT_MISSING;
        }
    }
    rtxErrAddStrParm(ctx, tag.name);
    return XB_E_ELEMENT_UNEXPECTED;
}

// True when the missing row need not be reported: it has been, or is paid for.
bool is_known_missing(content_scope &scope, int32_t row, uint64_t tag_offset)
{
    content_scope &element = outermost(scope);
    if (has_bit(scope.seen, row) || has_bit(scope.reported, row) || element.missing_at == tag_offset)
        return true;
    if (element.unplaced == 0)
        return false;
    --element.unplaced;
    return true;
}

int32_t pass_missing_row(xb_context *ctx, content_scope &scope, int32_t *position, const tag_ahead &tag)
{
    const int32_t row = required_row(scope.type->content, *position);
    if (!is_known_missing(scope, row, tag.offset)) {
        report_lookup(ctx, scope, *position, XB_E_ELEMENT_MISSING);
        outermost(scope).missing_at = tag.offset;
    }
    set_bit(scope.reported, row);
    *position = row + 1;
    return resume_at_tag(ctx, XB_E_ELEMENT_MISSING);
}

// True when the element was complained about already: where it was missing.
bool was_reported(xb_context *ctx, const content_scope &scope, const char *name)
{
    for (const content_scope *at = &scope; at != nullptr && name != nullptr; at = at->around)
        for (int32_t i = 0; i < at->type->content.count; ++i)
            if (has_bit(at->reported, i) && row_takes(ctx, at->type->content.items[i], name))
                return true;
    return false;
}

// True when the element's type has such an element somewhere.
bool is_known(xb_context *ctx, const content_scope &scope, const char *name)
{
    for (const content_scope *at = &scope; at != nullptr; at = at->around)
        if (row_within(ctx, at->type->content, 0, at->type->content.count, name) >= 0)
            return true;
    return false;
}

// An element that fits nowhere from here on.
int32_t pass_misplaced(xb_context *ctx, content_scope &scope, int32_t *position, const tag_ahead &tag,
                       int32_t status)
{
    const content_table &content = scope.type->content;
    const bool known = is_known(ctx, scope, tag.local);
    if (!was_reported(ctx, scope, tag.local)) {
        if (status == XB_END_OF_CONTENT)
            status = verdict_around(ctx, scope, tag);
        report_lookup(ctx, scope, *position, status);
        rtxErrAddMisplacement(ctx, tag.local == nullptr ? XB_NAME_FOREIGN
                                   : known              ? XB_NAME_ELSEWHERE
                                                        : XB_NAME_UNKNOWN);
    } else if (status == XB_END_OF_CONTENT) {
        status = XB_E_ELEMENT_UNEXPECTED;
    }
    const int32_t earlier = row_within(ctx, content, 0, *position, tag.local);
    const bool direct = earlier >= 0 && content.items[earlier].kind != item_kind::group;
    if (direct && (is_repeated(content.items[earlier]) || !has_bit(scope.seen, earlier))) {
        *position = earlier;
        return resume_at_tag(ctx, status);
    }
    if (!known)
        ++outermost(scope).unplaced;
    // A run that the element interrupts may go on behind it.
    if (*position > 0 && *position == scope.current + 1 && is_repeated(content.items[*position - 1]))
        --*position;
    return rtxResumeAtTag(ctx, status, true);
}

// Where an element that this content knows goes to; -1: nowhere from the position on.
int32_t later_row(xb_context *ctx, const content_scope &scope, int32_t position, const tag_ahead &tag)
{
    return row_within(ctx, scope.type->content, position, scope.type->content.count, tag.local);
}

// Deals with a lookup that found no row; *row is set when the tag ahead leads into a group all the same.
int32_t pass_fault(xb_context *ctx, content_scope &scope, int32_t *position, const tag_ahead &tag,
                   int32_t status, int32_t *row)
{
    const content_table &content = scope.type->content;
    if (status == XB_E_TEXT_UNEXPECTED) {
        report_lookup(ctx, scope, *position, status);
        return resume_at_tag(ctx, status);
    }
    const int32_t later = tag.is_start() ? later_row(ctx, scope, *position, tag) : -1;
    // A group behind a required row that is missing has to wait until that one was reported.
    const bool is_next = later >= 0 && later <= required_row(content, *position);
    if (is_next && content.items[later].kind == item_kind::group) {
        resume_at_tag(ctx, XB_E_ELEMENT_MISSING);  // the group's own lookup says what is missing
        *row = later;
        return 0;
    }
    const bool fits = !tag.is_start() || later >= 0 || is_taken_around(ctx, scope, tag.local);
    if (status == XB_E_ELEMENT_MISSING && fits)
        return pass_missing_row(ctx, scope, position, tag);
    return pass_misplaced(ctx, scope, position, tag, status);
}

bool is_fault_of_place(int32_t status)
{
    return status == XB_E_ELEMENT_MISSING || status == XB_E_ELEMENT_UNEXPECTED ||
           status == XB_E_TEXT_UNEXPECTED;
}

int32_t look_up(xb_context *ctx, const content_scope &scope, int32_t position)
{
    const content_table &content = scope.type->content;
    if (position >= content.count) {
        // A group ends in front of the tag ahead; text in between comes first.
        const xb_sequence_row no_row = {0, 0, -1};
        return scope.group ? rtXmlpGetNextSeqElemID(ctx, content.elements, content.element_count, &no_row, 0,
                                                    -1, true)
                           : XB_END_OF_CONTENT;
    }
    return rtXmlpGetNextSeqElemID(ctx, content.elements, content.element_count, content.sequence, position,
                                  content.last_required, scope.group);
}

// True when the content ends here and all is well.
bool ends_well(xb_context *ctx, const content_scope &scope, const tag_ahead &tag)
{
    return !tag.is_start() || is_taken_around(ctx, scope, tag.local);
}

}  // namespace

int32_t next_row_armed(xb_context *ctx, content_scope &scope, int32_t position)
{
    for (;;) {
        int32_t index = look_up(ctx, scope, position);
        if (index >= 0 && index != XB_END_OF_CONTENT) {
            scope.current = index;
            set_bit(scope.seen, index);
            return index;
        }
        if (index < 0 && !is_fault_of_place(index))
            return report(ctx, index, scope.type->first_step + step_lookup);
        // Text is complained about with the tag behind it unread; a look at that tag would move the place.
        const tag_ahead tag = index == XB_E_TEXT_UNEXPECTED ? tag_ahead{0} : peek(ctx);
        if (tag.status < 0)
            return report(ctx, tag.status, scope.type->first_step + step_lookup);
        if (index == XB_END_OF_CONTENT && ends_well(ctx, scope, tag))
            return XB_END_OF_CONTENT;
        int32_t row = -1;
        int32_t status = pass_fault(ctx, scope, &position, tag, index, &row);
        if (status < 0)
            return status;
        if (row >= 0) {
            scope.current = row;
            set_bit(scope.seen, row);
            return row;
        }
    }
}

int32_t next_in_run_armed(xb_context *ctx, const xb_element_row *own_name, int32_t status)
{
    while (status < 0 && status != XB_E_RUN_ENDED && resume_at_tag(ctx, status) == 0)
        status = rtXmlpGetNextElemID(ctx, own_name, 1, -1);
    return status;
}

// ---- Frame -----------------------------------------------------------------------------------------

bool is_armed_context(const xb_context *ctx)
{
    return rtxIsArmed(ctx);
}

armed_document::armed_document(const xb_context *ctx) : armed(rtxIsArmed != nullptr && rtxIsArmed(ctx))
{
    if (armed)
        armed_documents.fetch_add(1, std::memory_order_relaxed);
}

armed_document::~armed_document()
{
    if (armed)
        armed_documents.fetch_sub(1, std::memory_order_relaxed);
}

void armed_content::enter(const type_description &type, bool group)
{
    scope = {&type, innermost, group ? innermost : nullptr, -1, group, {}, {}, nowhere, 0};
    innermost = &scope;
}

void armed_content::leave()
{
    innermost = scope.outer;
}

bool begin_armed(xb_context *ctx, const type_description &type, void *record)
{
    if (asked_type != nullptr) {
        *asked_type = &type;
        return true;
    }
    if (!type.is_extension)
        rtxNoteItem(ctx, record, true);
    return false;
}

int32_t resume_behind(xb_context *ctx, int32_t status)
{
    if (is_armed(ctx))
        status = rtxResumeAtEnd(ctx, status);
    return status < 0 ? status : rtXmlpMatchEndTag(ctx, -1);
}

int32_t resume_at_tag(xb_context *ctx, int32_t status)
{
    return is_armed(ctx) ? rtxResumeAtTag(ctx, status, false) : status;
}

bool is_forgiven(xb_context *ctx)
{
    if (!is_armed(ctx) || innermost == nullptr || outermost(*innermost).unplaced == 0)
        return false;
    --outermost(*innermost).unplaced;
    return true;
}

}  // namespace inv::decode
