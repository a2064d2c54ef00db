// Every trace line of every scenario, compared with tests/documents/golden. INV_REGENERATE_GOLDEN=1 in
// the environment rewrites the files; read the difference before it is committed.
#include "load_world.h"

#include "frame/registry.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;

void replace_all(std::string &text, const std::string &what, const std::string &by)
{
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

// The lines written since the last call.
std::string lines_now(bool with_builders)
{
    std::istringstream all(trace_recorder::dump());
    trace_recorder::clear();
    std::string kept;
    for (std::string line; std::getline(all, line);) {
        int id = atoi(line.c_str());
        if (with_builders || id < 121 || id > 243)
            kept += line + '\n';
    }
    replace_all(kept, std::string(INV_SOURCE_DIR) + "/tests/documents/data/", "DATA/");
    replace_all(kept, scratch_folder() + "/", "SCRATCH/");
    return kept;
}

// Collects sections of lines and compares them with a file.
class transcript
{
public:
    explicit transcript(std::string file_name)
        : path(std::string(INV_SOURCE_DIR) + "/tests/documents/golden/" + file_name)
    {
    }
    ~transcript()
    {
        if (const char *rewrite = getenv("INV_REGENERATE_GOLDEN"); rewrite != nullptr && rewrite[0] == '1')
            std::ofstream(path, std::ios::binary) << text;
        else
            EXPECT_EQ(text, text_of(path)) << path;
    }
    transcript(const transcript &) = delete;
    transcript &operator=(const transcript &) = delete;

    void section(const std::string &title, bool with_builders = false)
    {
        text += "# " + title + '\n' + lines_now(with_builders);
    }

private:
    std::string path;
    std::string text;
};

std::string title_of(const generation &by, const std::string &what)
{
    return by.name + std::string(" generation: ") + what;
}

TEST(Golden, first_open_of_each_kind_with_every_record_builder)
{
    for (const document_case &each : documents()) {
        transcript written(std::string("open_") + each.name + ".txt");
        fresh_library library;
        EXPECT_NE(open_document(each), nullptr);
        written.section(each.file, true);
    }
}

TEST(Golden, first_open_by_the_second_generation)
{
    transcript written("open_second_generation.txt");
    for (const document_case &each : documents()) {
        fresh_library library;
        EXPECT_NE(open_file(generations()[1], path_of(each), each.pi_hw_type), nullptr);
        written.section(each.name);
    }
}

TEST(Golden, further_opens_and_closes)
{
    transcript written("open_again_and_close.txt");
    for (const generation &by : generations()) {
        fresh_library library;
        inv_xml_handle *handle = open_file(by, path_of(module_document()), 3);
        open_file(by, path_of(chassis_document()), 1);
        fake_platform::set_only_file_name(path_of(module_document()).c_str());
        trace_recorder::clear();
        by.open(3);
        written.section(title_of(by, "second open"));
        inv_parser_close_xml_file(handle);
        written.section(title_of(by, "first close of two"));
        inv_parser_close_xml_file(xml_file_list_handle->next);
        written.section(title_of(by, "last close of a file that is not the first"));
        inv_parser_close_xml_file(handle);
        written.section(title_of(by, "last close of the first file"));
    }
    fresh_library library;
    inv_parser_close_xml_file(nullptr);
    written.section("close of null");
    failing_lock::fail_next_lock();
    inv_parser_close_xml_file(nullptr);
    written.section("close, lock fails");
    failing_lock::fail_next_unlock();
    inv_parser_close_xml_file(nullptr);
    written.section("close, unlock fails");
    inv_xml_handle *handle = open_file(generations()[0], path_of(module_document()), 22);
    generations()[0].open(3);
    trace_recorder::clear();
    inv_parser_close_xml_file(handle);
    written.section("close of a handle with an invalid type");
    library.release_kept(handle);
}

TEST(Golden, closes_of_each_kind)
{
    transcript written("close.txt");
    for (const document_case &each : documents()) {
        fresh_library library;
        inv_xml_handle *handle = open_document(each);
        trace_recorder::clear();
        inv_parser_close_xml_file(handle);
        written.section(each.name);
    }
}

TEST(Golden, documents_that_cannot_be_loaded)
{
    transcript written("open_unusable_documents.txt");
    for (const document_case &each : documents()) {
        for (const fault_case &fault : faults()) {
            for (const generation &by : generations()) {
                fresh_library library;
                inv_xml_handle *handle = open_file(by, fault.file_for(each), each.pi_hw_type);
                inv_parser_close_xml_file(handle == nullptr ? xml_file_list_handle : handle);
                written.section(title_of(by, each.name + std::string(", ") + fault.name + ", then close"),
                                true);
                if (handle != nullptr)
                    library.release_kept(handle);
            }
        }
    }
}

// Opens with the n-th request failing and writes what came of it.
void open_without_memory(transcript &written, const generation &by, const document_case &document, uint64_t n,
                         const char *what)
{
    fresh_library library;
    fake_platform::set_only_file_name("DATA/other.xml");
    if (n == 0)
        inv_parser_get_xml_handle(0, 0, 0, "");
    fake_platform::set_only_file_name(path_of(document).c_str());
    trace_recorder::clear();
    counting_memory::fail_at(n == 0 ? 1 : n);
    EXPECT_EQ(by.open(document.pi_hw_type), nullptr);
    EXPECT_TRUE(counting_memory::failed());
    written.section(title_of(by, what));
}

TEST(Golden, opens_that_fail)
{
    transcript written("open_failures.txt");
    for (const generation &by : generations()) {
        fresh_library library;
        by.open(3);
        written.section(title_of(by, "no file"));
        open_file(by, path_of(module_document()), 22);
        written.section(title_of(by, "invalid type"));
        failing_lock::fail_next_lock();
        by.open(3);
        written.section(title_of(by, "lock fails"));
        failing_lock::fail_next_unlock();
        by.open(3);
        written.section(title_of(by, "unlock fails after the load"));
        failing_lock::fail_next_unlock();
        by.open(3);
        written.section(title_of(by, "unlock fails, parsed already"));
        failing_lock::fail_next_unlock();
        open_file(by, scratch_folder() + "/none.xml", 3);
        written.section(title_of(by, "unlock fails after a failed load"));
        failing_lock::fail_next_unlock();
        fake_platform::set_only_file_name(nullptr);
        by.open(3);
        written.section(title_of(by, "unlock fails, no file"));
    }
    for (const generation &by : generations()) {
        open_without_memory(written, by, module_document(), 1, "no memory for the first handle");
        open_without_memory(written, by, module_document(), 0, "no memory for a further handle");
    }
    fresh_library library;
    inv_parser_open_xml_file_v2(0, nullptr);
    written.section("second generation: null location");
    failing_lock::fail_next_unlock();
    inv_parser_open_xml_file_v2(0, nullptr);
    written.section("second generation: null location, unlock fails");
}

TEST(Golden, loads_without_memory)
{
    transcript written("open_without_memory.txt");
    for (const document_case &each : documents()) {
        // The request of the record, and the one of the parser context behind it.
        bool met_record = false;
        for (uint64_t n = 1; n < 12; ++n) {
            fresh_library library;
            fake_platform::set_only_file_name(path_of(each).c_str());
            inv_parser_get_xml_handle(0, each.pi_hw_type, 0, "");
            trace_recorder::clear();
            counting_memory::fail_at(n);
            if (generations()[0].open(each.pi_hw_type) != nullptr)
                break;
            bool is_record = text_of_line(each.failed_id).find("rc 1 ") != std::string::npos;
            if (!is_record || !met_record)
                written.section(std::string(each.name) + (is_record ? ": record" : ": parser context"));
            met_record = met_record || is_record;
            if (!is_record)
                break;
        }
        EXPECT_TRUE(met_record);
    }
}

struct answer {
    uint32_t status = 1;
    uint32_t count = 0;
};

// A query of any kind; the owner is ignored by those that have none.
struct query_case {
    const char *name;
    answer (*ask)(inv_xml_handle *handle, uint32_t owner);
};

// Asks a query with a count of its own width and releases what it gave.
template <class Count, class Ask>
answer ask_and_release(Ask ask)
{
    sch_eid_type *eids = nullptr;
    Count count = 0;
    uint32_t status = ask(&eids, &count);
    inv_parser_free_eid_tree(eids);
    return {status, count};
}

answer ask_root(inv_xml_handle *handle, uint32_t)
{
    return ask_and_release<uint16_t>([=](sch_eid_type **out, uint16_t *count) {
        uint32_t status = inv_parser_get_root_eid(handle, out);
        *count = status == 0 ? 1 : 0;
        return status;
    });
}

answer ask_type(inv_xml_handle *handle, uint32_t owner)
{
    return ask_and_release<uint16_t>([=](sch_eid_type **out, uint16_t *count) {
        return inv_parser_get_eid_by_type(handle, owner, 9, count, out);
    });
}

answer ask_subtype(inv_xml_handle *handle, uint32_t owner)
{
    return ask_and_release<uint16_t>([=](sch_eid_type **out, uint16_t *count) {
        return inv_parser_get_eid_by_type_subtype(handle, owner, 8, 25, count, out);
    });
}

answer ask_any_subtype(inv_xml_handle *handle, uint32_t owner)
{
    return ask_and_release<uint16_t>([=](sch_eid_type **out, uint16_t *count) {
        return inv_parser_get_eid_by_type_subtype(handle, owner, 8, INV_ANY_SUBTYPE, count, out);
    });
}

// The top entity of the module document.
sch_eid_type top_eid()
{
    sch_eid_type eid = {};
    eid.depth = 1;
    eid.levels[0] = {9, 33, 0};
    return eid;
}

// An entity below it that has no children.
sch_eid_type leaf_eid()
{
    sch_eid_type eid = top_eid();
    eid.depth = 2;
    eid.levels[1] = {8, 25, 0};
    return eid;
}

answer ask_data(inv_xml_handle *handle, uint32_t)
{
    sch_base_entity_type *entity = nullptr;
    uint32_t status = inv_parser_get_eid_data(handle, &entity, top_eid());
    return {status, entity != nullptr ? 1u : 0u};
}

answer ask_tree(inv_xml_handle *handle, uint32_t owner)
{
    return ask_and_release<uint32_t>([=](sch_eid_type **out, uint32_t *count) {
        return inv_parser_get_eid_tree(handle, owner, nullptr, out, count);
    });
}

const query_case queries[] = {
    {"root EID", ask_root},
    {"by type", ask_type},
    {"by type and subtype", ask_subtype},
    {"by type and any subtype", ask_any_subtype},
    {"EID data", ask_data},
    {"EID tree", ask_tree},
};

TEST(Golden, queries_that_succeed)
{
    transcript written("queries.txt");
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    trace_recorder::clear();
    for (const query_case &each : queries) {
        for (uint32_t owner : {6u, 2u, 4u}) {
            answer given = each.ask(handle, owner);
            EXPECT_EQ(given.status, 0u) << each.name;
            written.section(each.name + std::string(", owner ") + std::to_string(owner) + ": " +
                                std::to_string(given.count) + " entities",
                            true);
        }
    }
    sch_eid_type leaf = leaf_eid();
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    EXPECT_EQ(inv_parser_get_eid_tree(handle, 6, &leaf, &eids, &count), 0u);
    EXPECT_EQ(count, 1u);
    inv_parser_free_eid_tree(eids);
    written.section("EID tree of a leaf", true);
}

TEST(Golden, queries_that_fail)
{
    transcript written("query_failures.txt");
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    inv_xml_handle without_tree = {};
    trace_recorder::clear();
    for (const query_case &each : queries) {
        EXPECT_EQ(each.ask(nullptr, 6).status, 1u);
        written.section(each.name + std::string(", null handle"), true);
        EXPECT_EQ(each.ask(&without_tree, 6).status, 1u);
        written.section(each.name + std::string(", no tree"), true);
        failing_lock::fail_next_lock();
        uint32_t expected = each.ask == ask_root ? 0 : 1;
        EXPECT_EQ(each.ask(handle, 6).status, expected);
        written.section(each.name + std::string(", lock fails"), true);
        failing_lock::reset();
        failing_lock::fail_next_unlock();
        EXPECT_EQ(each.ask(handle, 6).status, 0u);
        written.section(each.name + std::string(", unlock fails"), true);
        failing_lock::reset();
        if (each.ask == ask_data)
            continue;
        counting_memory::fail_at(1, true);
        EXPECT_EQ(each.ask(handle, 6).status, 1u);
        written.section(each.name + std::string(", no memory"), true);
        if (each.ask != ask_root) {
            // Kept: without memory for the narrowed answer it is empty, not a failure.
            counting_memory::fail_at(2, true);
            answer given = each.ask(handle, 2);
            EXPECT_EQ(given.status, 0u);
            EXPECT_EQ(given.count, 0u);
            written.section(each.name + std::string(", no memory for the owner filter"), true);
        }
        counting_memory::reset();
    }
    sch_eid_type nobody = top_eid();
    nobody.levels[0].instance = 77;
    sch_base_entity_type *entity = nullptr;
    EXPECT_EQ(inv_parser_get_eid_data(handle, &entity, nobody), 1u);
    written.section("EID data, not found", true);
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    EXPECT_EQ(inv_parser_get_eid_tree(handle, 6, &nobody, &eids, &count), 1u);
    written.section("EID tree, not found", true);
    sch_eid_type leaf = leaf_eid();
    counting_memory::fail_at(1, true);
    EXPECT_EQ(inv_parser_get_eid_tree(handle, 6, &leaf, &eids, &count), 1u);
    counting_memory::reset();
    written.section("EID tree of a leaf, no memory", true);
}

}  // namespace
