#include "records/spent_children.h"

#include <gtest/gtest.h>
#include <vector>

// What is let go of, as the decoder's heap is told.
namespace
{

struct let_go {
    const xb_context *context;
    const void *from;
    const void *to;
    bool operator==(const let_go &) const = default;
};

std::vector<let_go> told;

}  // namespace

extern "C" const void *__wrap_rtxMemHeapForget(xb_context *ctx, const void *from, const void *to)
{
    told.push_back({ctx, from, to});
    return to;
}

namespace
{

using inv::decoded_scope;
using inv::spent_children;

// A list of three children as a decoder lays them down: each child, then its node.
struct children_in_order {
    struct {
        char child[16];
        xb_data_node node;
    } each[3] = {};

    children_in_order()
    {
        for (int i = 0; i < 3; ++i)
            each[i].node = {each[i].child, i < 2 ? &each[i + 1].node : nullptr, nullptr};
    }

    // Builds them all.
    void walk() const
    {
        spent_children spent;
        for (const auto &one : each)
            spent.add(&one.node);
    }

    std::vector<let_go> all_but_last(const xb_context &context) const
    {
        return {{&context, each[0].child, each[1].child}, {&context, each[1].child, each[2].child}};
    }
};

struct SpentChildren : testing::Test {
    xb_context context = {};
    children_in_order first, second;

    SpentChildren()
    {
        told.clear();
    }
};

TEST_F(SpentChildren, let_go_of_each_child_when_its_sibling_follows)
{
    decoded_scope load(&context);
    first.walk();
    EXPECT_EQ(told, first.all_but_last(context));
}

TEST_F(SpentChildren, of_a_second_list_of_the_same_load_go_too)
{
    decoded_scope load(&context);
    first.walk();
    told.clear();
    second.walk();
    EXPECT_EQ(told, second.all_but_last(context));
}

TEST_F(SpentChildren, of_a_list_within_a_list_wait_for_the_child_that_holds_them)
{
    decoded_scope load(&context);
    spent_children outer;
    second.walk();
    EXPECT_EQ(told, std::vector<let_go>());
    outer.add(&first.each[0].node);
    outer.add(&first.each[1].node);
    EXPECT_EQ(told, first.all_but_last(context));
}

TEST_F(SpentChildren, stay_where_no_load_is_in_progress)
{
    first.walk();
    {
        decoded_scope load(&context);
    }
    second.walk();
    EXPECT_EQ(told, std::vector<let_go>());
}

TEST_F(SpentChildren, stay_where_the_next_child_lies_behind_its_node_or_nowhere)
{
    decoded_scope load(&context);
    struct {
        xb_data_node node[2];
        char child[16];
    } behind = {{{first.each[0].child, &behind.node[1], nullptr}, {behind.child, nullptr, nullptr}}, {}};
    xb_data_node without[2] = {{nullptr, &without[1], nullptr}, {nullptr, nullptr, nullptr}};
    spent_children spent;
    spent.add(&behind.node[0]);
    spent.add(&without[0]);
    EXPECT_EQ(told, std::vector<let_go>());
}

}  // namespace
