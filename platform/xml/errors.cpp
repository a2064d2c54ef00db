#include "errors.h"

#include "context.h"

#include <charconv>
#include <cstring>

namespace inv::xml
{

namespace
{

xb_error &record_at(error_log &log, uint32_t index)
{
    return index == 0 ? log.first : log.further.items[index - 1];
}

// Null when there is no memory for another record.
xb_error *new_record(error_log &log)
{
    if (log.count > 0 && !append(log.further, xb_error{}))
        return nullptr;
    return &record_at(log, log.count++);
}

// Moves the collected parameters to the end of a record's own. The array of pointers is made anew
// since records handed out earlier may still point to the old one.
void adopt_parameters(xb_context_state &state, xb_error &record)
{
    error_log &log = state.errors;
    size_t old_size = record.parameter_count * sizeof(const char *);
    size_t added_size = log.parameter_count * sizeof(const char *);
    uint32_t added = log.parameter_count;
    log.parameter_count = 0;
    if (added == 0)
        return;
    void *block = heap_allocate(state.memory, old_size + added_size);
    if (block == nullptr)
        return;
    if (old_size != 0)
        memcpy(block, record.parameters, old_size);
    memcpy(static_cast<char *>(block) + old_size, log.parameters, added_size);
    record.parameters = static_cast<const char *const *>(block);
    record.parameter_count += added;
}

template <typename Integer>
void add_integer(xb_context *ctx, Integer value)
{
    char digits[24];
    auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    add_parameter(*ctx->state, std::string_view(digits, static_cast<size_t>(end - digits)));
}

// True while `status` is the one that the failure on its way up was recorded with.
bool is_travelling(error_log &log, int32_t status)
{
    return log.travelling != 0 && record_at(log, log.travelling - 1).status == status;
}

}  // namespace

void add_parameter(xb_context_state &state, std::string_view text)
{
    error_log &log = state.errors;
    if (log.parameter_count == max_pending_parameters)
        return;
    const char *copy = heap_copy_text(state.memory, text);
    // The order of parameters has a meaning: one that cannot be kept leaves an empty text.
    log.parameters[log.parameter_count++] = copy == nullptr ? "" : copy;
}

int32_t record_error(xb_context_state &state, int32_t status, bool fatal, const char *source, uint32_t line)
{
    xb_error *record = may_record(state) ? new_record(state.errors) : nullptr;
    if (record == nullptr) {
        state.errors.parameter_count = 0;
        return status;
    }
    position place = error_place(state, status);
    *record = {};
    record->status = status;
    record->fatal = fatal;
    record->line = place.line;
    record->column = place.column;
    record->offset = place.offset;
    record->source = source;
    record->source_line = line;
    adopt_parameters(state, *record);
    state.errors.travelling = fatal ? state.errors.count : 0;
    if (state.armed != nullptr)
        note_error(state);
    return status;
}

void end_travel(error_log &log)
{
    log.travelling = 0;
}

}  // namespace inv::xml

using namespace inv::xml;

void rtxErrAddStrParm(xb_context *ctx, const char *text)
{
    add_parameter(*ctx->state, text == nullptr ? std::string_view() : std::string_view(text));
}

void rtxErrAddStrnParm(xb_context *ctx, const char *text, size_t length)
{
    add_parameter(*ctx->state, text == nullptr ? std::string_view() : std::string_view(text, length));
}

void rtxErrAddIntParm(xb_context *ctx, int32_t value)
{
    add_integer(ctx, value);
}

void rtxErrAddUIntParm(xb_context *ctx, uint32_t value)
{
    add_integer(ctx, value);
}

int32_t rtxErrSetData(xb_context *ctx, int32_t status, const char *source, uint32_t source_line)
{
    error_log &log = ctx->state->errors;
    if (is_travelling(log, status)) {
        log.parameter_count = 0;
        return status;
    }
    return record_error(*ctx->state, status, true, source, source_line);
}

int32_t rtxErrSetNewData(xb_context *ctx, int32_t status, const char *source, uint32_t source_line)
{
    error_log &log = ctx->state->errors;
    if (!is_travelling(log, status))
        return record_error(*ctx->state, status, false, source, source_line);
    xb_error &record = record_at(log, log.travelling - 1);
    record.fatal = false;
    adopt_parameters(*ctx->state, record);
    end_travel(log);
    return status;
}

int32_t rtxErrGetStatus(const xb_context *ctx)
{
    return ctx->state->errors.count == 0 ? XB_OK : ctx->state->errors.first.status;
}

uint32_t rtxErrGetCount(const xb_context *ctx)
{
    return ctx->state->errors.count;
}

bool rtxErrGet(const xb_context *ctx, uint32_t index, xb_error *error)
{
    error_log &log = ctx->state->errors;
    if (index >= log.count)
        return false;
    *error = record_at(log, index);
    return true;
}
