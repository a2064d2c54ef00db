#include "records/spent_children.h"

#include <functional>

// A platform need not have it; all that is decoded then waits for the end of the load.
#pragma weak rtxMemHeapForget

namespace inv
{

namespace
{

// Of the load in progress, until a list takes it.
xb_context *decoding_context;

}  // namespace

decoded_scope::decoded_scope(xb_context *context) noexcept
{
    decoding_context = context;
}

decoded_scope::~decoded_scope()
{
    decoding_context = nullptr;
}

spent_children::spent_children() noexcept : context_(decoding_context), from_(nullptr)
{
    decoding_context = nullptr;
}

spent_children::~spent_children()
{
    // For further lists of the same load.
    if (context_ != nullptr)
        decoding_context = context_;
}

void spent_children::add(const xb_data_node *node) noexcept
{
    const xb_data_node *next = node->next;
    if (context_ == nullptr || next == nullptr || node->data == nullptr || next->data == nullptr)
        return;
    // A node is made when what it holds is decoded and lies behind that, unless it lies elsewhere altogether.
    if (rtxMemHeapForget == nullptr || std::less<const void *>()(next, next->data))
        return;
    if (from_ == nullptr)
        from_ = node->data;
    from_ = rtxMemHeapForget(context_, from_, next->data);
}

}  // namespace inv
