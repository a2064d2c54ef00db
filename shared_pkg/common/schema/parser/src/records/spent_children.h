// What a load has decoded and already built goes back while the rest is built, so that most of a large file's
// decoded form and its records do not stand in memory at the same time.
//
// A document lies in the decoder's heap in its own order: from one child module up to the next there is
// nothing but that child. Only outermost lists of child modules let go, where nearly all of a large document
// is; nested lists go with the child that holds them. And only what the load itself decoded goes.
#ifndef RECORDS_SPENT_CHILDREN_H
#define RECORDS_SPENT_CHILDREN_H

#include "inv_platform/xml_runtime.h"

namespace inv
{

// While it lives, outermost lists that are built let go of what the context decoded. One at a time.
class decoded_scope
{
public:
    explicit decoded_scope(xb_context *context) noexcept;
    ~decoded_scope();
    decoded_scope(const decoded_scope &) = delete;
    decoded_scope &operator=(const decoded_scope &) = delete;
};

// One walk over a list of decoded children.
class spent_children
{
public:
    spent_children() noexcept;
    ~spent_children();
    spent_children(const spent_children &) = delete;
    spent_children &operator=(const spent_children &) = delete;

    // The child of the node is built: of it, its node and those in front nothing is looked at again.
    void add(const xb_data_node *node) noexcept;

private:
    xb_context *context_;  // null for a list that lets go of nothing
    const void *from_;
};

}  // namespace inv

#endif
