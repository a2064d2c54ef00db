#include "decode/engine.h"

#include "decode/recovery.h"
#include "decode/steps.h"
#include "decode/values.h"

namespace inv::decode
{
namespace
{

// One row of a type's content with the record it is decoded into.
struct content_row {
    const type_description &type;
    const item &row;
    int32_t index;
    void *record;
};

int32_t report_at(xb_context *ctx, const content_row &place, int32_t status, item_step step)
{
    return report(ctx, status,
                  place.type.first_step + step_first_item +
                      static_cast<uint32_t>(place.index) * steps_per_item + step);
}

// Reads the current tag: namespace declarations and attributes. In group mode the tag has been read.
int32_t decode_tag(xb_context *ctx, const type_description &type, void *record)
{
    if (rtXmlpHasAttributes(ctx)) {
        auto *xmlns = reinterpret_cast<xb_data_list *>(at(record, type.xmlns));
        int32_t status = rtXmlpGetXmlnsAttrs(ctx, xmlns);
        if (status < 0)
            return report(ctx, status, type.first_step + step_xmlns);
    }
    // Also for a tag without attributes: the required ones are missing then.
    if (type.attributes.count > 0)
        return rtXmlpNeedDecodeAttributes(ctx) ? decode_attributes(ctx, type, record) : 0;
    if (!rtXmlpHasAttributes(ctx))
        return 0;
    int32_t status = rtXmlpDecXSIAttrs(ctx);
    if (status < 0)
        return report(ctx, status, type.first_step + step_xsi);
    rtXmlpHideAttributes(ctx);
    return 0;
}

// Elements of simple types have no attributes of their own; whatever stands there is passed over.
int32_t hide_attributes(xb_context *ctx, item_kind kind)
{
    if (kind == item_kind::record || !rtXmlpHasAttributes(ctx))
        return 0;
    int32_t status = rtXmlpDecXSIAttrs(ctx);
    if (status < 0)
        return status;
    rtXmlpHideAttributes(ctx);
    return 0;
}

bool is_16_bit(item_kind kind)
{
    return kind == item_kind::int16 || kind == item_kind::uint16;
}

int32_t decode_element(xb_context *ctx, const item &row, void *target)
{
    int32_t status = hide_attributes(ctx, row.kind);
    if (status < 0)
        return status;
    // Kept: documents leave 16-bit numbers empty; such an element counts as present.
    if (is_16_bit(row.kind) && rtXmlpIsEmptyElement(ctx))
        return 0;
    return decode_value(ctx, row, target);
}

// Behind a failed element whose failure is recorded.
int32_t resume_single(xb_context *ctx, const content_row &place, int32_t status)
{
    explain_value(ctx, place.row.kind);
    if (is_armed(ctx) && keeps_partly(place.row))
        set_present(place.record, place.row);
    return resume_behind(ctx, status);
}

int32_t decode_single(xb_context *ctx, const content_row &place)
{
    int32_t status = decode_element(ctx, place.row, at(place.record, place.row.offset));
    if (status < 0)
        return resume_single(ctx, place, report_at(ctx, place, status, step_decode));
    note_value(ctx, place.row, at(place.record, place.row.offset));
    set_present(place.record, place.row);
    status = rtXmlpMatchEndTag(ctx, -1);
    return status < 0 ? resume_behind(ctx, report_at(ctx, place, status, step_end_tag)) : 0;
}

// The group's decoder reads the element that was looked up once more, as its own.
int32_t decode_group(xb_context *ctx, const content_row &place, bool is_read)
{
    if (is_read)
        rtXmlpMarkLastEventActive(ctx);
    rtXmlpForceDecodeAsGroup(ctx);
    int32_t status = place.row.decode(ctx, at(place.record, place.row.offset));
    if (status >= 0 || is_armed(ctx))
        set_present(place.record, place.row);
    return status < 0 ? report_at(ctx, place, status, step_decode) : 0;
}

// Decodes one occurrence into *node: a record of its own, or for texts the text itself.
int32_t decode_node(xb_context *ctx, const content_row &place, void **node)
{
    if (place.row.kind == item_kind::text) {
        const char *text = nullptr;
        int32_t status = decode_element(ctx, place.row, &text);
        *node = const_cast<char *>(text);
        if (status < 0)
            return report_at(ctx, place, status, step_decode);
        note_value(ctx, place.row, text);
        return 0;
    }
    *node = rtxMemHeapAlloc(ctx, place.row.node_size);
    if (*node == nullptr)
        return report_at(ctx, place, XB_E_NO_MEMORY, step_allocate);
    place.row.init(*node);
    int32_t status = decode_element(ctx, place.row, *node);
    if (status < 0)
        return report_at(ctx, place, status, step_decode);
    note_value(ctx, place.row, *node);
    return 0;
}

// The record of a failed occurrence is kept, for what is in it already.
int32_t resume_occurrence(xb_context *ctx, const content_row &place, xb_data_list *list, void *node,
                          int32_t status)
{
    explain_value(ctx, place.row.kind);
    if (is_armed(ctx) && node != nullptr && keeps_partly(place.row))
        rtxDListAppend(ctx, list, node);
    return resume_behind(ctx, status);
}

int32_t decode_occurrence(xb_context *ctx, const content_row &place, xb_data_list *list)
{
    void *node = nullptr;
    int32_t status = decode_node(ctx, place, &node);
    if (status < 0)
        return resume_occurrence(ctx, place, list, node, status);
    status = rtXmlpMatchEndTag(ctx, -1);
    if (status < 0)
        status = resume_behind(ctx, report_at(ctx, place, status, step_end_tag));
    if (status < 0)
        return status;
    if (rtxDListAppend(ctx, list, node) == nullptr)
        return report_at(ctx, place, XB_E_NO_MEMORY, step_append);
    return 0;
}

int32_t decode_run(xb_context *ctx, const content_row &place)
{
    auto *list = reinterpret_cast<xb_data_list *>(at(place.record, place.row.offset));
    const xb_element_row *own_name = &place.type.content.elements[place.index];
    int32_t next = place.index;
    while (next == place.index) {
        int32_t status = decode_occurrence(ctx, place, list);
        if (status < 0)
            return status;
        next = rtXmlpGetNextElemID(ctx, own_name, 1, -1);
        if (next < 0 && next != XB_E_RUN_ENDED)
            next = next_in_run_armed(ctx, own_name, report_at(ctx, place, next, step_next));
        if (next < 0 && next != XB_E_RUN_ENDED)
            return next;
    }
    rtXmlpMarkLastEventActive(ctx);
    rtXmlpForceDecodeAsGroup(ctx);
    return 0;
}

int32_t decode_row(xb_context *ctx, const content_row &place, bool is_read)
{
    if (place.row.kind == item_kind::group)
        return decode_group(ctx, place, is_read);
    bool is_list = place.row.occurs == occurrence::repeated || place.row.occurs == occurrence::counted;
    return is_list ? decode_run(ctx, place) : decode_single(ctx, place);
}

int32_t check_count(xb_context *ctx, const content_row &place)
{
    const auto *list = reinterpret_cast<const xb_data_list *>(at(place.record, place.row.offset));
    if (list->count > 0 || is_forgiven(ctx))
        return 0;
    rtxErrAddStrParm(ctx, place.row.counter);
    rtxErrAddIntParm(ctx, static_cast<int32_t>(list->count));
    return resume_at_tag(ctx, report_at(ctx, place, XB_E_CONSTRAINT, step_count));
}

// A group that was never begun is decoded with nothing in it, so that its own counts are checked.
// is_read: an event that was looked at may be looked at again.
int32_t check_counts(xb_context *ctx, const type_description &type, void *record, int32_t position,
                     bool is_read)
{
    for (int32_t i = 0; type.content.has_counted && i < type.content.count; ++i) {
        const content_row place = {type, type.content.items[i], i, record};
        if (place.row.occurs != occurrence::counted)
            continue;
        int32_t status = 0;
        if (place.row.kind != item_kind::group)
            status = check_count(ctx, place);
        else if (i >= position)
            status = decode_group(ctx, place, is_read);
        if (status < 0)
            return status;
    }
    return 0;
}

// Plain elements are taken as far as they go; returns the position then reached.
int32_t decode_plain(xb_context *ctx, const content_table &content, int32_t position, void *record)
{
    if (content.plain == nullptr)
        return position;
    return rtXmlpDecPlainElements(ctx, content.elements, content.element_count, content.sequence,
                                  content.plain, position, content.count, record);
}

// Looks the next element up. One that only begins a group, or ends one, is another decoder's: a plain one
// stays unread then.
int32_t find_next(xb_context *ctx, const content_table &content, int32_t position, bool group, bool *is_read)
{
    if (group || content.has_groups) {
        const int32_t index =
            rtXmlpSeePlainElement(ctx, content.elements, content.element_count, content.sequence, position);
        const bool ends = index == XB_END_OF_CONTENT;
        *is_read = false;
        if (ends ? group && position > content.last_required
                 : index >= 0 && content.items[index].kind == item_kind::group)
            return index;
    }
    *is_read = true;
    return rtXmlpGetNextSeqElemID(ctx, content.elements, content.element_count, content.sequence, position,
                                  content.last_required, group);
}

int32_t decode_content(xb_context *ctx, const type_description &type, void *record)
{
    const content_table &content = type.content;
    const bool group = rtXmlpIsDecodeAsGroup(ctx);
    armed_content armed(ctx, type, group);
    int32_t position = 0;
    bool is_read = true;
    while (position < content.count || armed.entered) {
        if (!armed.entered)
            position = decode_plain(ctx, content, position, record);
        if (position >= content.count && !armed.entered)
            break;
        is_read = true;
        int32_t index = armed.entered ? next_row_armed(ctx, armed.scope, position)
                                      : find_next(ctx, content, position, group, &is_read);
        if (index < 0)
            return report(ctx, index, type.first_step + step_lookup);
        if (index == XB_END_OF_CONTENT)
            break;
        int32_t status = decode_row(ctx, {type, content.items[index], index, record}, is_read);
        if (status < 0)
            return status;
        position = index + 1;
    }
    return check_counts(ctx, type, record, position, is_read);
}

}  // namespace

int32_t decode_type(xb_context *ctx, const type_description &type, void *record)
{
    if (begin_type(ctx, type, record))
        return 0;
    int32_t status = type.is_extension ? 0 : decode_tag(ctx, type, record);
    if (status < 0)
        return status;
    bool must_be_empty = type.content.count == 0 && type.attributes.count == 0;
    if (must_be_empty && !rtXmlpIsEmptyElement(ctx))
        return report(ctx, XB_E_NOT_EMPTY, type.first_step + step_not_empty);
    return decode_content(ctx, type, record);
}

}  // namespace inv::decode
