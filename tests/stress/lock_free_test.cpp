// What takes no lock and may still be used by several threads at once. See docs/concurrency.md. Linked like
// the stress beside it.
#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "inv_platform/avl.h"
#include "inv_platform/trace.h"
#include "inv_platform/xml_runtime.h"
#include "stress/documents.h"
#include "stress/questions.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <thread>
#include <tuple>

namespace
{

using namespace stress;

void run_at_once(int count, const std::function<void(int)> &work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(work, i);
    for (std::thread &each : threads)
        each.join();
}

void open_and_close(size_t number)
{
    inv_xml_handle *handle = open_document(number, true);
    if (handle != nullptr)
        inv_parser_close_xml_file(handle);
}

TEST(LockFree, sequences_of_open_files_are_built_while_other_files_come_and_go)
{
    ASSERT_TRUE(use_documents());
    const open_files files = {open_document(2, false), open_document(control_card_number, false),
                              open_document(chassis_number, false)};
    ASSERT_TRUE(files.asked != nullptr && files.card != nullptr && files.chassis != nullptr);
    const question asked[] = {{about::i2c_by_instance, false, 290, 0, 0, {}},
                              {about::pcie_by_instance, false, 204, 0, 0, {}},
                              {about::idprom, false, ORVL_NODE_TYPE_LINECARD, 0, 0, {}},
                              {about::remote_idprom, false, ORVL_NODE_TYPE_LINECARD, 3, 0, {}},
                              {about::root_eid, false, 0, 0, 0, {}}};
    std::vector<std::string> expected;
    for (const question &each : asked)
        expected.push_back(answer(files, each));
    EXPECT_GT(expected[0].size(), 100u) << "there is no way to compare";
    EXPECT_GT(expected[2].size(), 40u) << "there is no way to compare";
    std::atomic<int> wrong = 0;
    std::atomic<int> openers = 2;
    run_at_once(4, [&](int number) {
        if (number < 2) {
            for (size_t i = 0; i < 200; ++i)
                open_and_close(3 + (i + 5 * static_cast<size_t>(number)) % (document_count - 3));
            --openers;
            return;
        }
        while (openers != 0)
            for (size_t i = 0; i < std::size(asked); ++i)
                wrong += answer(files, asked[i]) == expected[i] ? 0 : 1;
    });
    EXPECT_EQ(wrong, 0);
    for (inv_xml_handle *each : {files.asked, files.card, files.chassis})
        inv_parser_close_xml_file(each);
}

// What came of decoding a chassis document: status, number of errors, text of the status, and the chassis'
// name.
using decoding = std::tuple<int32_t, uint32_t, std::string, std::string>;

decoding decode(const std::string &text, bool armed)
{
    xb_context context = {};
    int32_t status = rtXmlInitContext(&context);
    ChassisEntityType chassis;
    Init_ChassisEntityType(&chassis);
    if (status == 0 && armed)
        status = rtxArmContext(&context);
    if (status == 0)
        status = rtxStreamMemoryCreateReader(&context, text.data(), text.size());
    if (status == 0)
        status = XmlD_chassis(&context, &chassis);
    decoding done = {status, rtxErrGetCount(&context), rtxErrText(status),
                     chassis.base.name == nullptr ? "" : chassis.base.name};
    rtxFreeContext(&context);
    return done;
}

std::string chassis_with(const std::string &content)
{
    return "<chassis name=\"a chassis\" type=\"ORVL_ENTITY_TYPE_CHASSIS\" "
           "subtype=\"ORVL_ENTITY_SUBTYPE_CHASSIS_LCC\" instance=\"0\" "
           "replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"1\">" +
           content + "</chassis>";
}

TEST(LockFree, contexts_of_their_own_decode_at_once)
{
    const std::string texts[] = {chassis_with("<fruBits>x</fruBits><instanceBits>y</instanceBits>"),
                                 chassis_with("<unknown/>"), chassis_with("<fruBits>"),
                                 "<!DOCTYPE chassis>" + chassis_with("<fruBits>1</fruBits>"), "<pem/>"};
    std::vector<decoding> expected;
    for (const std::string &text : texts)
        for (bool armed : {false, true})
            expected.push_back(decode(text, armed));
    EXPECT_LT(std::get<0>(expected[0]), 0);
    EXPECT_EQ(std::get<3>(expected[0]), "a chassis");
    EXPECT_GT(std::get<1>(expected[1]), std::get<1>(expected[0])) << "arming makes no difference";
    std::atomic<int> wrong = 0;
    run_at_once(4, [&](int number) {
        for (size_t round = 0; round < 500; ++round) {
            size_t i = (round + static_cast<size_t>(number)) % expected.size();
            wrong += decode(texts[i / 2], i % 2 == 1) == expected[i] ? 0 : 1;
        }
    });
    EXPECT_EQ(wrong, 0);
}

TEST(LockFree, tokens_are_named_and_found_by_any_thread)
{
    std::atomic<int> wrong = 0;
    std::atomic<int> found = 0;
    run_at_once(4, [&](int) {
        for (uint32_t code = 0; code < 235; ++code) {
            const char *token = EidSubType_ToString(code);
            uint32_t back = ~code;
            bool good =
                token != nullptr && EidSubType_ToEnum(token, static_cast<int32_t>(strlen(token)), &back) == 0;
            wrong += good && back == code ? 0 : 1;
            found += good ? 1 : 0;
        }
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(found, 4 * 235);
}

struct tree_node {
    alignas(void *) char links[AVL_NODE_HEADER_SIZE];
    uint32_t key;
};

int32_t compare_keys(const void *a, const void *b)
{
    uint32_t left = static_cast<const tree_node *>(a)->key;
    uint32_t right = static_cast<const tree_node *>(b)->key;
    return left == right ? 1 : left < right ? 0 : 2;
}

TEST(LockFree, trees_of_their_own_are_filled_and_emptied_at_once)
{
    std::atomic<int> wrong = 0;
    run_at_once(4, [&](int) {
        std::vector<tree_node> nodes(500);
        avl_root root = nullptr;
        for (uint32_t i = 0; i < nodes.size(); ++i) {
            nodes[i].key = i * 7919 % 500;
            wrong += avl_insert(&root, &nodes[i], compare_keys, 0) == &nodes[i] ? 0 : 1;
        }
        for (uint32_t key = 0; key < nodes.size(); ++key) {
            auto *least = static_cast<tree_node *>(avl_get_first(&root));
            wrong += least != nullptr && least->key == key &&
                             avl_search(&root, least, compare_keys) == least &&
                             avl_delete(&root, least, compare_keys, 0) == least
                         ? 0
                         : 1;
        }
        wrong += root == nullptr ? 0 : 1;
    });
    EXPECT_EQ(wrong, 0);
}

TEST(LockFree, the_trace_is_read_while_files_come_and_go_and_clients_start)
{
    ASSERT_TRUE(use_documents());
    std::atomic<int> openers = 3;
    std::atomic<uint32_t> read = 0;
    std::atomic<int> wrong = 0;
    run_at_once(4, [&](int number) {
        if (number < 3) {
            for (size_t i = 0; i < 60; ++i) {
                wrong += inv_parser_init(nullptr) == 0 ? 0 : 1;
                open_and_close(5 + (i + static_cast<size_t>(number)) % 11);
            }
            --openers;
            return;
        }
        while (openers != 0) {
            void *channel = nullptr;
            if (inv_schema_get_qtrace_hdl(&channel) == 0)
                read = qtrace_read(
                    channel, [](void *, uint32_t, const char *text) { ASSERT_NE(*text, '\0'); }, nullptr);
        }
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(read, 100u);
}

}  // namespace
