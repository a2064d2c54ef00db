#include "inv_platform/avl.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <random>
#include <vector>

#include "inv_parser/handle.h"
#include "support/counting_memory.h"

namespace
{

struct node {
    void *links[3];
    uint32_t key;
};

static_assert(offsetof(node, key) == AVL_NODE_HEADER_SIZE);
static_assert(sizeof(sch_xml_inst_node_type::avl_links) == AVL_NODE_HEADER_SIZE);

const void *latest_first_argument;
uint32_t comparisons;

int32_t compare_keys(const void *a, const void *b)
{
    latest_first_argument = a;
    ++comparisons;
    uint32_t x = static_cast<const node *>(a)->key;
    uint32_t y = static_cast<const node *>(b)->key;
    return x < y ? 0 : x == y ? 1 : 2;
}

node make_node(uint32_t key)
{
    return {.links = {}, .key = key};
}

node *search(avl_root *root, uint32_t key)
{
    node wanted = make_node(key);
    return static_cast<node *>(avl_search(root, &wanted, compare_keys));
}

TEST(AvlTree, an_empty_tree_has_nothing)
{
    avl_root root = nullptr;
    node key = make_node(1);
    EXPECT_EQ(avl_search(&root, &key, compare_keys), nullptr);
    EXPECT_EQ(avl_delete(&root, &key, compare_keys, 0), nullptr);
    EXPECT_EQ(avl_get_first(&root), nullptr);
    EXPECT_EQ(root, nullptr);
}

TEST(AvlTree, the_header_comes_with_the_first_node_and_goes_with_the_last)
{
    uint64_t live = counting_memory::live();
    avl_root root = nullptr;
    node one = make_node(1);
    node two = make_node(2);
    EXPECT_EQ(avl_insert(&root, &one, compare_keys, 0), &one);
    EXPECT_EQ(counting_memory::live(), live + 1);
    EXPECT_EQ(avl_insert(&root, &two, compare_keys, 0), &two);
    EXPECT_EQ(counting_memory::live(), live + 1);
    EXPECT_EQ(avl_delete(&root, &one, compare_keys, 0), &one);
    EXPECT_NE(root, nullptr);
    EXPECT_EQ(avl_delete(&root, &two, compare_keys, 0), &two);
    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(counting_memory::live(), live);
}

TEST(AvlTree, a_second_node_with_an_equal_key_is_refused)
{
    avl_root root = nullptr;
    node first = make_node(5);
    node second = make_node(5);
    ASSERT_EQ(avl_insert(&root, &first, compare_keys, 0), &first);
    EXPECT_EQ(avl_insert(&root, &second, compare_keys, 0), nullptr);
    EXPECT_EQ(avl_insert(&root, &first, compare_keys, 0), nullptr);
    EXPECT_EQ(search(&root, 5), &first);
    EXPECT_EQ(avl_delete(&root, &second, compare_keys, 0), &first) << "deletion goes by key";
    EXPECT_EQ(root, nullptr);
}

TEST(AvlTree, a_search_passes_the_key_node_first)
{
    avl_root root = nullptr;
    std::array<node, 15> nodes;
    for (uint32_t i = 0; i < nodes.size(); ++i) {
        nodes[i] = make_node(i);
        avl_insert(&root, &nodes[i], compare_keys, 0);
    }
    for (uint32_t i = 0; i < nodes.size() + 1; ++i) {
        node key = make_node(i);
        latest_first_argument = nullptr;
        avl_search(&root, &key, compare_keys);
        EXPECT_EQ(latest_first_argument, &key);
    }
    for (node &one : nodes)
        avl_delete(&root, &one, compare_keys, 0);
}

TEST(AvlTree, null_arguments_do_nothing)
{
    avl_root root = nullptr;
    node one = make_node(1);
    EXPECT_EQ(avl_insert(nullptr, &one, compare_keys, 0), nullptr);
    EXPECT_EQ(avl_insert(&root, nullptr, compare_keys, 0), nullptr);
    EXPECT_EQ(avl_insert(&root, &one, nullptr, 0), nullptr);
    EXPECT_EQ(avl_search(nullptr, &one, compare_keys), nullptr);
    EXPECT_EQ(avl_delete(nullptr, &one, compare_keys, 0), nullptr);
    EXPECT_EQ(avl_get_first(nullptr), nullptr);
    EXPECT_EQ(root, nullptr);
}

TEST(AvlTree, without_memory_for_the_header_the_first_insertion_does_nothing)
{
    uint64_t live = counting_memory::live();
    avl_root root = nullptr;
    node one = make_node(1);
    counting_memory::fail_at(1);
    EXPECT_EQ(avl_insert(&root, &one, compare_keys, 0), nullptr);
    EXPECT_TRUE(counting_memory::failed());
    counting_memory::reset();
    EXPECT_EQ(root, nullptr);
    EXPECT_EQ(counting_memory::live(), live);
    EXPECT_EQ(avl_insert(&root, &one, compare_keys, 0), &one);
    EXPECT_EQ(avl_delete(&root, &one, compare_keys, 0), &one);
}

TEST(AvlTree, searches_stay_logarithmic_when_keys_come_in_order)
{
    constexpr uint32_t count = 1u << 16;
    std::vector<node> nodes(count);
    avl_root root = nullptr;
    for (uint32_t i = 0; i < count; ++i) {
        nodes[i] = make_node(i);
        ASSERT_EQ(avl_insert(&root, &nodes[i], compare_keys, 0), &nodes[i]);
    }
    for (uint32_t i = 0; i < count; ++i) {
        comparisons = 0;
        ASSERT_EQ(search(&root, i), &nodes[i]);
        ASSERT_LE(comparisons, 24u) << "1.44 x log2(count) is the bound";
    }
    for (uint32_t i = 0; i < count; ++i) {
        auto *first = static_cast<node *>(avl_get_first(&root));
        ASSERT_EQ(first, &nodes[i]);
        ASSERT_EQ(avl_delete(&root, first, compare_keys, 0), first);
    }
    EXPECT_EQ(root, nullptr);
}

// One step of the comparison with the model; kind 0 and 1 insert, 2 deletes, 3 searches.
void step(avl_root *root, std::map<uint32_t, std::unique_ptr<node>> &model, uint32_t kind, uint32_t key)
{
    auto known = model.find(key);
    node *expected = known == model.end() ? nullptr : known->second.get();
    if (kind <= 1) {
        auto fresh = std::make_unique<node>(make_node(key));
        void *inserted = avl_insert(root, fresh.get(), compare_keys, 0);
        ASSERT_EQ(inserted, expected == nullptr ? fresh.get() : nullptr);
        if (inserted != nullptr)
            model[key] = std::move(fresh);
    } else if (kind == 2) {
        node wanted = make_node(key);
        ASSERT_EQ(avl_delete(root, &wanted, compare_keys, 0), expected);
        model.erase(key);
    } else {
        ASSERT_EQ(search(root, key), expected);
    }
    ASSERT_EQ(avl_get_first(root), model.empty() ? nullptr : model.begin()->second.get());
    ASSERT_EQ(*root == nullptr, model.empty());
}

// Emptying from the least node on is cut short at any point, and the tree goes on as if it had not begun.
TEST(AvlTree, goes_on_as_an_ordered_map_after_any_number_of_its_least_nodes_was_deleted)
{
    for (uint32_t size : {1u, 2u, 15u, 16u, 17u, 100u, 1000u}) {
        std::mt19937 random(size);
        for (uint32_t taken = 0; taken <= size; taken += 1 + size / 20) {
            SCOPED_TRACE(std::to_string(taken) + " of " + std::to_string(size));
            std::map<uint32_t, std::unique_ptr<node>> model;
            avl_root root = nullptr;
            for (uint32_t i = 0; i < size; ++i)
                ASSERT_NO_FATAL_FAILURE(step(&root, model, 0, 2 * i));
            for (uint32_t i = 0; i < taken; ++i)
                ASSERT_NO_FATAL_FAILURE(step(&root, model, 2, 2 * i));
            for (const auto &[key, expected] : model)
                ASSERT_EQ(search(&root, key), expected.get());
            for (uint32_t i = 0; i < 200; ++i)
                ASSERT_NO_FATAL_FAILURE(step(&root, model, static_cast<uint32_t>(random() % 3),
                                             static_cast<uint32_t>(random() % (2 * size))));
            while (!model.empty())
                ASSERT_NO_FATAL_FAILURE(step(&root, model, 2, model.begin()->first));
            EXPECT_EQ(root, nullptr);
        }
    }
}

TEST(AvlTree, searches_stay_logarithmic_when_a_tree_that_was_nearly_emptied_grows_again)
{
    constexpr uint32_t count = 1u << 14;
    std::vector<node> nodes(2 * count);
    for (uint32_t i = 0; i < 2 * count; ++i)
        nodes[i] = make_node(i);
    avl_root root = nullptr;
    for (uint32_t i = 0; i < count; ++i)
        ASSERT_EQ(avl_insert(&root, &nodes[i], compare_keys, 0), &nodes[i]);
    uint32_t kept = count - count / 8;
    for (uint32_t i = 0; i < kept; ++i)
        ASSERT_EQ(avl_delete(&root, &nodes[i], compare_keys, 0), &nodes[i]);
    for (uint32_t i = count; i < 2 * count; ++i)
        ASSERT_EQ(avl_insert(&root, &nodes[i], compare_keys, 0), &nodes[i]);
    for (uint32_t i = kept; i < 2 * count; ++i) {
        comparisons = 0;
        ASSERT_EQ(search(&root, i), &nodes[i]);
        ASSERT_LE(comparisons, 21u) << "1.44 x log2(count) is the bound";
    }
    while (void *first = avl_get_first(&root))
        ASSERT_EQ(avl_delete(&root, first, compare_keys, 0), first);
}

TEST(AvlTree, behaves_as_an_ordered_map_under_random_operations)
{
    uint64_t live = counting_memory::live();
    for (uint32_t key_range : {3u, 40u, 2000u}) {
        SCOPED_TRACE(key_range);
        std::mt19937 random(key_range);
        std::map<uint32_t, std::unique_ptr<node>> model;
        avl_root root = nullptr;
        for (int i = 0; i < 40000; ++i) {
            auto kind = static_cast<uint32_t>(random() % 4);
            auto key = static_cast<uint32_t>(random() % key_range);
            ASSERT_NO_FATAL_FAILURE(step(&root, model, kind, key)) << "step " << i;
        }
        for (const auto &[key, expected] : model) {
            ASSERT_EQ(search(&root, key), expected.get());
            ASSERT_EQ(avl_delete(&root, expected.get(), compare_keys, 0), expected.get());
        }
        EXPECT_EQ(root, nullptr);
    }
    EXPECT_EQ(counting_memory::live(), live);
}

}  // namespace
