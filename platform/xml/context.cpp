#include "context.h"

#include "inv_platform/system_memory.h"

#include <new>

namespace
{

constexpr size_t usual_chunk_size = size_t{128} * 1024;

}  // namespace

int32_t rtXmlInitContext(xb_context *ctx)
{
    ctx->state = nullptr;
    void *block = inv::memory::request(sizeof(xb_context_state));
    if (block == nullptr)
        return XB_E_NO_MEMORY;
    ctx->state = new (block) xb_context_state{};
    ctx->state->chunk_size = usual_chunk_size;
    ctx->state->reader.selected = inv::xml::no_attribute;
    return XB_OK;
}

void rtxFreeContext(xb_context *ctx)
{
    if (ctx == nullptr || ctx->state == nullptr)
        return;
    rtxStreamClose(ctx);
    inv::xml::release_array(ctx->state->errors.further);
    inv::xml::release_armed(ctx->state->armed);
    inv::xml::heap_release(ctx->state->memory);
    inv::memory::release(ctx->state);
    ctx->state = nullptr;
}
