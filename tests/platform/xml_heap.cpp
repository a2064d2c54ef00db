#include "inv_platform/memory_guard.h"
#include "inv_platform/xml_runtime.h"
#include "support/counting_memory.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

struct heap_context {
    xb_context ctx = {};
    uint64_t live_before = counting_memory::live();

    heap_context()
    {
        EXPECT_EQ(rtXmlInitContext(&ctx), XB_OK);
    }
    ~heap_context()
    {
        rtxFreeContext(&ctx);
        EXPECT_EQ(counting_memory::live(), live_before);
        counting_memory::reset();
    }
};

TEST(XmlHeap, every_allocation_is_aligned_and_its_own)
{
    heap_context context;
    char *previous = nullptr;
    size_t previous_size = 0;
    for (size_t size = 0; size < 40000; size = size * 2 + 1) {
        char *block = static_cast<char *>(rtxMemHeapAlloc(&context.ctx, size));
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 16, 0U);
        memset(block, 0x5A, size);
        if (previous != nullptr && previous_size > 0) {
            EXPECT_EQ(previous[previous_size - 1], 0x33);
        }
        memset(block, 0x33, size);
        previous = block;
        previous_size = size;
    }
}

TEST(XmlHeap, size_zero_gives_unique_pointers)
{
    heap_context context;
    EXPECT_NE(rtxMemHeapAlloc(&context.ctx, 0), rtxMemHeapAlloc(&context.ctx, 0));
}

TEST(XmlHeap, sizes_beyond_reason_are_refused)
{
    heap_context context;
    EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, SIZE_MAX), nullptr);
    EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, static_cast<size_t>(PTRDIFF_MAX) + 1), nullptr);
    EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, static_cast<size_t>(PTRDIFF_MAX) - 1), nullptr);
    EXPECT_EQ(rtxErrGetCount(&context.ctx), 0U);
}

TEST(XmlHeap, only_the_newest_allocation_is_reused)
{
    heap_context context;
    void *older = rtxMemHeapAlloc(&context.ctx, 32);
    void *newest = rtxMemHeapAlloc(&context.ctx, 32);
    rtxMemHeapFreePtr(&context.ctx, older);
    rtxMemHeapFreePtr(&context.ctx, nullptr);
    rtxMemHeapFreePtr(&context.ctx, newest);
    rtxMemHeapFreePtr(&context.ctx, newest);
    EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, 32), newest);
}

TEST(XmlHeap, a_big_newest_allocation_goes_back_to_the_system_at_once)
{
    heap_context context;
    uint64_t live = counting_memory::live();
    void *big = rtxMemHeapAlloc(&context.ctx, 1U << 20);
    EXPECT_EQ(counting_memory::live(), live + 1);
    rtxMemHeapFreePtr(&context.ctx, big);
    EXPECT_EQ(counting_memory::live(), live);
}

TEST(XmlHeap, many_small_allocations_take_few_requests)
{
    heap_context context;
    counting_memory::reset();
    for (int i = 0; i < 100000; ++i)
        ASSERT_NE(rtxMemHeapAlloc(&context.ctx, 100), nullptr);
    EXPECT_LT(counting_memory::requests(), 30U);
}

TEST(XmlHeap, exhaustion_gives_null_and_the_heap_goes_on_afterwards)
{
    heap_context context;
    for (size_t size : {size_t{10}, size_t{1} << 20}) {
        counting_memory::fail_at(1);
        EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, size), nullptr);
        EXPECT_NE(rtxMemHeapAlloc(&context.ctx, size), nullptr);
    }
}

TEST(XmlHeap, a_list_keeps_the_order_of_appending)
{
    heap_context context;
    xb_data_list list = {};
    int values[3] = {};
    for (int &value : values)
        ASSERT_NE(rtxDListAppend(&context.ctx, &list, &value), nullptr);
    EXPECT_EQ(list.count, 3U);
    EXPECT_EQ(list.head->data, &values[0]);
    EXPECT_EQ(list.head->prev, nullptr);
    EXPECT_EQ(list.head->next->data, &values[1]);
    EXPECT_EQ(list.tail->data, &values[2]);
    EXPECT_EQ(list.tail->prev, list.head->next);
    EXPECT_EQ(list.tail->next, nullptr);
}

TEST(XmlHeap, a_failed_append_leaves_the_list_alone)
{
    heap_context context;
    xb_data_list list = {};
    counting_memory::fail_at(1);
    EXPECT_EQ(rtxDListAppend(&context.ctx, &list, nullptr), nullptr);
    EXPECT_EQ(list.count, 0U);
    EXPECT_EQ(list.head, nullptr);
}

// What a heap maps for `count` requests of 1000 octets when the document behind it is so long.
uint64_t mapped_for(uint64_t document_size, size_t count)
{
    const std::string document(document_size, ' ');
    heap_context context;
    const uint64_t mapped_before = counting_memory::mapped_octets();
    rtxStreamMemoryCreateReader(&context.ctx, document.data(), document.size());
    for (size_t i = 0; i < count; ++i)
        EXPECT_NE(rtxMemHeapAlloc(&context.ctx, 1000), nullptr);
    return counting_memory::mapped_octets() - mapped_before;
}

TEST(XmlHeap, a_document_that_fills_a_quarter_of_a_large_page_is_given_one)
{
    constexpr uint64_t kibi = 1024;
    EXPECT_EQ(mapped_for(512 * kibi - 1, 1), 0U);
    EXPECT_EQ(mapped_for(512 * kibi, 1), 2048 * kibi);
    EXPECT_EQ(mapped_for(2560 * kibi - 1, 1), 2048 * kibi);
    EXPECT_EQ(mapped_for(2560 * kibi, 1), 4096 * kibi);
    EXPECT_EQ(mapped_for(100 * 1024 * kibi, 1), 32 * 1024 * kibi) << "no more than so much at a time";
}

TEST(XmlHeap, a_request_is_met_where_large_pages_cannot_be_had)
{
    const std::string document(size_t{8} << 20, ' ');
    heap_context context;
    rtxStreamMemoryCreateReader(&context.ctx, document.data(), document.size());
    const uint64_t mapped_before = counting_memory::mapped_octets();
    counting_memory::fail_at(1);
    auto *block = static_cast<char *>(rtxMemHeapAlloc(&context.ctx, 5000));
    EXPECT_TRUE(counting_memory::failed());
    ASSERT_NE(block, nullptr);
    memset(block, 0x5A, 5000);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before);
    counting_memory::fail_at(1, true);
    EXPECT_EQ(rtxMemHeapAlloc(&context.ctx, 50000), nullptr);
    counting_memory::reset();
}

TEST(XmlHeap, without_a_document_chunks_double_and_large_pages_follow_many_of_them)
{
    EXPECT_EQ(mapped_for(0, 1), 0U);
    EXPECT_EQ(mapped_for(0, 200), 128U * 1024);
    EXPECT_EQ(mapped_for(0, 10000), (128U + 256 + 16 * 512) * 1024 + (2048U * 1024));
}

TEST(XmlHeap, whole_pages_of_what_is_forgotten_go_back_and_the_rest_stays)
{
    constexpr size_t page = size_t{2} << 20;
    const std::string document(4 * page, ' ');
    heap_context context;
    rtxStreamMemoryCreateReader(&context.ctx, document.data(), document.size());
    std::vector<unsigned char *> blocks;
    for (size_t i = 0; i < 4 * page / 1024 - 8; ++i) {
        blocks.push_back(static_cast<unsigned char *>(rtxMemHeapAlloc(&context.ctx, 1024)));
        memset(blocks.back(), 0x5A, 1024);
    }
    const unsigned char *from = blocks[10];
    EXPECT_EQ(rtxMemHeapForget(&context.ctx, from, blocks[100]), from) << "less than a page is kept";
    const unsigned char *to = blocks[5000];
    const auto *left = static_cast<const unsigned char *>(rtxMemHeapForget(&context.ctx, from, to));
    EXPECT_EQ(reinterpret_cast<uintptr_t>(left) % page, 0U);
    EXPECT_LE(left, to);
    EXPECT_GT(left + page, to);
    inv::memory::permit(left - 8, 8);
    EXPECT_EQ(*(left - 1), 0xDD) << "as tests mark what went back";
    EXPECT_EQ(*left, 0x5A);
    EXPECT_EQ(*from, 0x5A) << "the page has what came before, too";
    EXPECT_EQ(rtxMemHeapForget(&context.ctx, left, to), left);
}

TEST(XmlHeap, what_does_not_lie_in_one_chunk_is_kept)
{
    heap_context context;
    char other = 0;
    auto *first = static_cast<char *>(rtxMemHeapAlloc(&context.ctx, 1000));
    char *last = first;
    for (int i = 0; i < 2000; ++i)
        last = static_cast<char *>(rtxMemHeapAlloc(&context.ctx, 1000));
    memset(first, 0x5A, 1000);
    EXPECT_EQ(rtxMemHeapForget(&context.ctx, first, last), last);
    EXPECT_EQ(rtxMemHeapForget(&context.ctx, first, &other), &other);
    EXPECT_EQ(rtxMemHeapForget(&context.ctx, last, last), last);
    EXPECT_EQ(first[999], 0x5A);
}

TEST(XmlContext, init_without_memory_fails_and_may_be_freed)
{
    xb_context ctx = {};
    counting_memory::fail_at(1);
    EXPECT_EQ(rtXmlInitContext(&ctx), XB_E_NO_MEMORY);
    counting_memory::reset();
    rtxFreeContext(&ctx);
}

TEST(XmlContext, freeing_null_zeroed_and_freed_contexts_does_nothing)
{
    rtxFreeContext(nullptr);
    xb_context ctx = {};
    rtxFreeContext(&ctx);
    ASSERT_EQ(rtXmlInitContext(&ctx), XB_OK);
    rtxFreeContext(&ctx);
    rtxFreeContext(&ctx);
}

}  // namespace
