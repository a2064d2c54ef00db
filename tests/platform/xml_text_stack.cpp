#include "xml/text_stack.h"

#include "support/counting_memory.h"
#include "support/document_generator.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace inv::xml;
using namespace inv_testing;

namespace
{

struct kept_text {
    std::string expected;
    std::string_view copy;
    text_mark before;
};

TEST(XmlTextStack, texts_stay_where_they_are_until_they_are_popped)
{
    text_stack stack;
    std::vector<kept_text> texts;
    random_source random{1};
    for (int i = 0; i < 20000; ++i) {
        if (texts.empty() || !one_in(random, 3)) {
            const size_t size = one_in(random, 30) ? draw_below(random, 30000) : draw_below(random, 200);
            kept_text text = {std::string(size, static_cast<char>('a' + i % 26)), {}, mark_of(stack)};
            ASSERT_TRUE(push_text(stack, text.expected, text.copy));
            texts.push_back(text);
        } else {
            const size_t left = texts.size() - std::min(texts.size(), 1 + draw_below(random, 8));
            pop_to(stack, texts[left].before);
            texts.resize(left);
        }
        // All of them at the last, a few on the way.
        for (size_t k = i % 1000 == 0 ? 0 : texts.size() - std::min(texts.size(), size_t{3});
             k < texts.size(); ++k)
            ASSERT_EQ(texts[k].copy, texts[k].expected);
    }
    release_texts(stack);
}

TEST(XmlTextStack, what_is_not_needed_of_the_last_text_is_used_again)
{
    text_stack stack;
    char *first = push_octets(stack, 100);
    shrink_last(stack, 60);
    EXPECT_EQ(push_octets(stack, 10), first + 40);
    release_texts(stack);
}

TEST(XmlTextStack, an_empty_text_takes_no_room)
{
    text_stack stack;
    std::string_view copy;
    EXPECT_TRUE(push_text(stack, {}, copy));
    const text_mark before = mark_of(stack);
    EXPECT_TRUE(push_text(stack, {}, copy));
    EXPECT_EQ(mark_of(stack).used, before.used);
    release_texts(stack);
}

TEST(XmlTextStack, going_back_and_forth_over_the_end_of_a_chunk_asks_for_no_memory)
{
    text_stack stack;
    ASSERT_NE(push_octets(stack, 8000), nullptr);
    const text_mark mark = mark_of(stack);
    ASSERT_NE(push_octets(stack, 8000), nullptr);
    pop_to(stack, mark);
    counting_memory::reset();
    for (int i = 0; i < 100; ++i) {
        ASSERT_NE(push_octets(stack, 8000), nullptr);
        pop_to(stack, mark);
    }
    EXPECT_EQ(counting_memory::requests(), 0U);
    release_texts(stack);
}

TEST(XmlTextStack, a_request_that_memory_does_not_suffice_for_changes_nothing)
{
    text_stack stack;
    std::string_view copy;
    ASSERT_TRUE(push_text(stack, "kept", copy));
    const text_mark before = mark_of(stack);
    counting_memory::fail_at(1);
    EXPECT_EQ(push_octets(stack, 100000), nullptr);
    counting_memory::fail_at(0);
    EXPECT_EQ(push_octets(stack, SIZE_MAX), nullptr);
    EXPECT_EQ(mark_of(stack).top, before.top);
    EXPECT_EQ(mark_of(stack).used, before.used);
    EXPECT_EQ(copy, "kept");
    release_texts(stack);
}

TEST(XmlTextStack, gives_back_all_of_its_memory)
{
    const uint64_t before = counting_memory::live();
    text_stack stack;
    for (int i = 0; i < 100; ++i)
        ASSERT_NE(push_octets(stack, 3000), nullptr);
    pop_to(stack, {});
    ASSERT_NE(push_octets(stack, 50000), nullptr);
    release_texts(stack);
    EXPECT_EQ(counting_memory::live(), before);
}

}  // namespace
