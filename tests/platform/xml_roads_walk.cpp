#include "platform/xml_roads_walk.h"

#include "inv_platform/xml_runtime.h"
#include "xml/context.h"

#include <algorithm>
#include <cstdlib>

using namespace inv::xml;

namespace
{

// Tables of a name that no document has.
constexpr xb_element_row no_row = {" ", 1, 0, {}};
constexpr xb_attribute_row no_attribute_row = {" ", 1, {}};

struct walker {
    xb_context ctx = {};
    uint64_t random = 0;
    std::string log;
};

const reader &state_of(const walker &w)
{
    return w.ctx.state->reader;
}

// True in one of `chance` cases.
bool one_in(walker &w, uint64_t chance)
{
    w.random = w.random * 6364136223846793005U + 1442695040888963407U;
    return (w.random >> 33) % chance == 0;
}

void note(walker &w, std::string_view text)
{
    w.log.append(text).push_back(' ');
}

void note(walker &w, uint64_t number)
{
    note(w, std::to_string(number));
}

// The record made by reporting a status now.
xb_error report(walker &w, int32_t status)
{
    rtxErrSetNewData(&w.ctx, status, "", 0);
    xb_error error = {};
    rtxErrGet(&w.ctx, rtxErrGetCount(&w.ctx) - 1, &error);
    return error;
}

std::string parameter_of(const xb_error &error)
{
    return error.parameter_count == 0 ? "" : error.parameters[error.parameter_count - 1];
}

void note_place(walker &w, int32_t status)
{
    xb_error error = report(w, status);
    note(w, error.line);
    note(w, error.column);
    note(w, error.offset);
    note(w, parameter_of(error));
}

void note_attribute(walker &w, int32_t index)
{
    xb_context *ctx = &w.ctx;
    rtXmlpSelectAttribute(ctx, index);
    size_t length = 0;
    const char *name = rtXmlpGetAttributeName(ctx, &length);
    int32_t space = 0;
    const char *value = nullptr;
    w.log += " @";
    note(w, std::string_view(name, length));
    note(w, static_cast<uint64_t>(-rtXmlpGetAttributeID(ctx, &no_attribute_row, 1, &space)));
    note(w, static_cast<uint64_t>(space + 2));
    if (rtXmlpDecXmlStr(ctx, &value) == XB_OK)
        note(w, value);
    if (one_in(w, 2))
        note_place(w, XB_E_BAD_INTEGER);
}

// Everything that the runtime tells about the open element's start tag.
void note_tag(walker &w)
{
    xb_context *ctx = &w.ctx;
    w.log += "\n tag ";
    note(w, current_element(ctx->state->reader.tags)->name);
    note(w, rtXmlpHasAttributes(ctx) ? 1U : 0U);
    int32_t count = rtXmlpGetAttributeCount(ctx);
    for (int32_t i = 0; i < count; ++i) {
        if (count < 100 || one_in(w, 16))
            note_attribute(w, i);
    }
    rtXmlpSelectAttribute(ctx, -1);
    xb_data_list declarations = {};
    rtXmlpGetXmlnsAttrs(ctx, &declarations);
    for (const xb_data_node *node = declarations.head; node != nullptr; node = node->next) {
        const xb_xmlns &one = *static_cast<const xb_xmlns *>(node->data);
        w.log.append(" ").append(one.prefix).append("=").append(one.uri);
    }
    int32_t type = rtXmlpGetXSITypeIndex(ctx, nullptr, 0);
    w.log += " type";
    note(w, static_cast<uint64_t>(-type));
    if (type != XB_E_NO_XSI_TYPE)
        note_place(w, type);
    if (one_in(w, 3))
        note_place(w, XB_E_ATTRIBUTE_MISSING);
}

// The text in front of the event ahead, which lookups refuse unless it is white space.
void note_text(walker &w)
{
    const reader &r = state_of(w);
    // White space in front of a failure is nothing that anybody can see.
    if (!r.has_text || (r.failure != XB_OK && !r.text_significant))
        return;
    w.log += "\n text ";
    if (r.failure == XB_OK)
        note(w, r.text);
    note(w, r.text_significant ? "significant" : "blank");
    if (r.text_significant && r.tags.depth > 0 && one_in(w, 2)) {
        int32_t status = rtXmlpGetNextElemID(&w.ctx, &no_row, 1, -1);
        note(w, static_cast<uint64_t>(-status));
        if (status == XB_E_TEXT_UNEXPECTED)
            note_place(w, status);
    }
    if (r.failure == XB_OK && r.ahead_kind == event_kind::end_tag && one_in(w, 2)) {
        const char *value = nullptr;
        rtXmlpDecXmlStr(&w.ctx, &value);
        note(w, value == nullptr ? "none" : value);
        note_place(w, XB_E_BAD_INTEGER);
    }
    // Nothing public passes over text in front of an element.
    w.ctx.state->reader.text_taken = true;
}

int32_t step_into(walker &w)
{
    const reader &r = state_of(w);
    const std::string name(r.tags.elements[r.tags.depth].local);
    w.log += "\n<";
    note(w, r.tags.elements[r.tags.depth].name);
    int32_t status = rtXmlpMatchStartTag(&w.ctx, name.c_str(), -1);
    if (status == XB_OK && !one_in(w, 4))
        note_tag(w);
    return status;
}

int32_t step_out(walker &w)
{
    w.log += "\n</";
    note(w, current_element(w.ctx.state->reader.tags)->name);
    int32_t status = rtXmlpMatchEndTag(&w.ctx, -1);
    if (status == XB_OK && state_of(w).tags.depth > 0 && one_in(w, 8))
        note_tag(w);
    return status;
}

// Open content as a whole, now and then; sets *status only when it fails.
void note_open_content(walker &w, int32_t &status)
{
    char *text = nullptr;
    int32_t result = rtXmlpDecAny(&w.ctx, &text);
    w.log += "\n any ";
    note(w, text == nullptr ? "none" : text);
    if (result != XB_OK)
        status = result;
}

// Reads on by one tag.
int32_t step(walker &w)
{
    const reader &r = state_of(w);
    int32_t status = XB_OK;
    if (r.tags.depth > 0 && !r.ahead && one_in(w, 24))
        note_open_content(w, status);
    else
        note(w, rtXmlpIsEmptyElement(&w.ctx) ? "empty" : "full");
    note_text(w);
    if (status == XB_OK && r.failure != XB_OK) {
        // Any call returns it now.
        const char *value = nullptr;
        status = r.tags.depth > 0 ? rtXmlpDecXmlStr(&w.ctx, &value) : rtXmlpMatchStartTag(&w.ctx, "", -1);
    }
    if (status != XB_OK)
        return status;
    if (r.tags.depth > 0 && one_in(w, 16))
        note_tag(w);
    if (r.tags.depth > 0 && one_in(w, 4)) {
        note(w, static_cast<uint64_t>(-rtXmlpGetNextElemID(&w.ctx, &no_row, 1, -1)));
        note_place(w, XB_E_RUN_ENDED);
    }
    return r.ahead_kind == event_kind::start_tag ? step_into(w) : step_out(w);
}

}  // namespace

walk_result walk(std::string_view document, road which, uint64_t seed)
{
    walker w;
    w.random = seed;
    if (rtXmlInitContext(&w.ctx) != XB_OK)
        abort();
    w.ctx.state->slow_road = which.slow;
    if (which.chunk_size != 0)
        w.ctx.state->chunk_size = which.chunk_size;
    rtxStreamMemoryCreateReader(&w.ctx, document.data(), document.size());
    if (rtXmlpCreateReader(&w.ctx) != XB_OK)
        abort();
    walk_result result;
    do {
        result.status = step(w);
        if (result.status == XB_OK && one_in(w, 8))
            rtXmlpMarkLastEventActive(&w.ctx);
    } while (result.status == XB_OK && (!state_of(w).ahead || state_of(w).tags.depth > 0 ||
                                        state_of(w).ahead_kind != event_kind::end_of_document));
    if (result.status != XB_OK) {
        xb_error error = report(w, result.status);
        result.reason = parameter_of(error);
        result.line = error.line;
        result.column = error.column;
        result.offset = error.offset;
    }
    result.events = std::move(w.log);
    rtxFreeContext(&w.ctx);
    return result;
}

std::string difference(const walk_result &expected, const walk_result &found)
{
    if (expected.events != found.events) {
        auto ends = std::mismatch(expected.events.begin(), expected.events.end(), found.events.begin(),
                                  found.events.end());
        auto at = static_cast<size_t>(ends.first - expected.events.begin());
        size_t from = at - std::min(at, size_t{80});
        return "events \"" + expected.events.substr(from, 160) + "\" and \"" +
               found.events.substr(from, 160) + '"';
    }
    auto outcome = [](const walk_result &result) {
        return std::to_string(result.status) + " in line " + std::to_string(result.line) + ": " +
               result.reason;
    };
    return outcome(expected) == outcome(found) ? "" : outcome(expected) + " and " + outcome(found);
}

std::string compare_roads(std::string_view document, std::span<const size_t> chunk_sizes, uint64_t seed)
{
    const walk_result expected = walk(document, {true, 0}, seed);
    for (size_t chunk_size : chunk_sizes) {
        const walk_result found = walk(document, {false, chunk_size}, seed);
        const std::string differs = difference(expected, found);
        bool is_excused =
            differs.empty() ||
            (chunk_size != 0 && difference(walk(document, {true, chunk_size}, seed), found).empty());
        if (!is_excused)
            return "in pieces of " + std::to_string(chunk_size) + ": " + differs;
    }
    return "";
}
