// Every request of memory, heap and mapping alike, fails once in every call of the interface, on every
// document.
#include "faults/fault_world.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

namespace
{

using namespace fault_world;
using load_world::fresh_library;

// The requests that failed, by entry point.
std::map<std::string, uint64_t> points;

// By generation.
constexpr const char *open_calls[] = {"inv_parser_open_xml_file", "inv_parser_open_xml_file_v2"};
constexpr const char *register_calls[] = {"inv_parser_get_xml_handle", "inv_parser_get_xml_handle_v2"};

class MemoryFaults : public testing::TestWithParam<unit>
{
protected:
    void TearDown() override
    {
        uint64_t all = 0;
        for (const auto &[what, count] : points)
            all += count;
        RecordProperty("points", static_cast<int>(all));
        printf("%llu points\n", static_cast<unsigned long long>(all));
        points.clear();
    }
};

std::string name_of(const testing::TestParamInfo<unit> &info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Units, MemoryFaults, testing::ValuesIn(units()), name_of);

// A sanitizer takes several times as long: of a large document every eighth question is asked then. Of these
// and of the small documents' questions every request fails all the same.
#if defined(__SANITIZE_ADDRESS__)
constexpr size_t stride = 8;
#elif defined(__has_feature)
constexpr size_t stride = __has_feature(address_sanitizer) ? 8 : 1;
#else
constexpr size_t stride = 1;
#endif

std::vector<question> questions_to_sweep(const files &about)
{
    const std::vector<question> all = all_questions(about);
    std::vector<question> chosen;
    for (size_t i = 0; i<all.size(); i += all.size()> 1000 ? stride : 1)
        chosen.push_back(all[i]);
    return chosen;
}

// An order for one call or for one life of a file. 0: nothing fails.
struct order {
    uint64_t n = 0;
    bool all_after = false;
};

// Runs what() with the order given. Returns whether a request has failed.
template <class What>
bool run_with(const order &given, const What &what)
{
    trace_recorder::clear();
    counting_memory::fail_at(given.n, given.all_after);
    what();
    const bool has_failed = counting_memory::failed();
    counting_memory::reset();
    return has_failed;
}

std::set<uint32_t> traced()
{
    const std::vector<uint32_t> ids = trace_recorder::ids();
    return {ids.begin(), ids.end()};
}

// An answer with the lines that were traced for it.
struct reply {
    answer given;
    std::set<uint32_t> lines;
};

reply reply_of(const question &asked, const files &about)
{
    trace_recorder::clear();
    const answer given = asked.ask(about);
    return {given, traced()};
}

std::vector<reply> replies_of(const std::vector<question> &asked, const files &about)
{
    std::vector<reply> all;
    for (const question &each : asked)
        all.push_back(reply_of(each, about));
    return all;
}

// Lines that a call without failures does not have.
bool tells_more(const std::set<uint32_t> &than, const std::set<uint32_t> &wanted)
{
    return !std::includes(wanted.begin(), wanted.end(), than.begin(), than.end());
}

// A right answer, a failure, or less than everything with a line that tells of it.
void expect_honest(const answer &given, const answer &wanted, bool is_told)
{
    if (given == wanted || given.failed)
        return;
    EXPECT_TRUE(is_told) << "a wrong answer without a word";
    EXPECT_TRUE(is_part_of(given, wanted)) << "an answer that is no part of the right one";
}

// ---- Each question, to an open file --------------------------------------------------------------------

void sweep_question(const question &each, const files &about, const bystanders &beside, bool all_after)
{
    SCOPED_TRACE(each.entry_point);
    each.ask(about);  // what lookups keep is made now
    const reply wanted = reply_of(each, about);
    const uint64_t live = counting_memory::live();
    bool has_failed = true;
    for (order given = {1, all_after}; has_failed; ++given.n) {
        reply got;
        has_failed = run_with(given, [&] { got = reply_of(each, about); });
        points[each.entry_point] += has_failed;
        expect_honest(got.given, wanted.given, tells_more(got.lines, wanted.lines));
        EXPECT_TRUE(has_failed || got.given == wanted.given);
        EXPECT_LE(counting_memory::live(), live);
        EXPECT_EQ(each.ask(about), wanted.given);
        EXPECT_TRUE(!has_failed || beside.are_whole());
        if (testing::Test::HasFailure())
            FAIL() << "request " << given.n;
    }
}

TEST_P(MemoryFaults, in_any_question_to_an_open_file_harm_nothing)
{
    fresh_library library;
    bystanders beside;
    inv_xml_handle *handle = open_unit(GetParam());
    ASSERT_NE(handle, nullptr);
    const files about = beside.beside(handle);
    for (const question &each : questions_to_sweep(about))
        for (bool all_after : {false, true}) {
            sweep_question(each, about, beside, all_after);
            if (HasFatalFailure())
                return;
        }
    inv_parser_close_xml_file(handle);
}

// ---- One question of each entry point, the first that a file is asked ----------------------------------

void sweep_first_question(const unit &which, const question &each, const bystanders &beside, bool all_after)
{
    SCOPED_TRACE(each.entry_point);
    const uint64_t live = counting_memory::live();  // tables of bystanders, which may be given up, included
    bool has_failed = true;
    for (order given = {1, all_after}; has_failed; ++given.n) {
        SCOPED_TRACE("request " + std::to_string(given.n));
        inv_xml_handle *handle = open_unit(which);
        ASSERT_NE(handle, nullptr);
        reply got;
        has_failed = run_with(given, [&] { got = reply_of(each, beside.beside(handle)); });
        points[each.entry_point] += has_failed;
        const reply wanted = reply_of(each, beside.beside(handle));
        EXPECT_FALSE(wanted.given.failed);
        expect_honest(got.given, wanted.given, tells_more(got.lines, wanted.lines));
        inv_parser_close_xml_file(handle);
        EXPECT_LE(counting_memory::live(), live);
        ASSERT_FALSE(testing::Test::HasFailure());
    }
}

TEST_P(MemoryFaults, in_the_first_question_to_a_file_harm_nothing)
{
    fresh_library library;
    bystanders beside;
    inv_xml_handle *handle = open_unit(GetParam());
    ASSERT_NE(handle, nullptr);
    const files about = beside.beside(handle);
    const std::vector<question> chosen = one_of_each(all_questions(about), about);
    EXPECT_GE(chosen.size(), 5u);
    ask_all(chosen, about);
    ask_all(chosen, about);
    inv_parser_close_xml_file(handle);
    for (const question &each : chosen)
        for (bool all_after : {false, true}) {
            sweep_first_question(GetParam(), each, beside, all_after);
            if (HasFatalFailure())
                return;
        }
}

// ---- Open, one question of each entry point, close -----------------------------------------------------

struct life {
    bool is_loaded = false;
    bool has_unit = false;
    std::set<uint32_t> lines_of_open;
    std::vector<answer> all;    // to every question, with memory, after an open that met a failure
    std::vector<reply> chosen;  // to one question of each entry point, with failures going on
    uint64_t requests_of_close = 0;
};

struct course {
    std::vector<question> all;
    std::vector<question> chosen;
    std::vector<answer> answers;  // to all
    life without_failures;
};

// What an open that met a failure has made is looked at with memory. Then the order goes on.
std::vector<answer> answers_with_memory(const order &given, const std::vector<question> &questions,
                                        const files &about)
{
    if (!counting_memory::failed())
        return {};
    counting_memory::reset();
    std::vector<answer> answers = ask_all(questions, about);
    counting_memory::fail_at(given.all_after ? 1 : 0, given.all_after);
    return answers;
}

// Leaves nothing, but for the empty handle that the contract leaves: that one is given back here. Returns
// whether a request of the open has failed.
bool live_once(const fresh_library &library, const unit &which, const course &planned,
               const bystanders &beside, size_t generation, const order &given, life &lived)
{
    trace_recorder::clear();
    inv_xml_handle *handle = open_unit(which, generation);
    const bool has_failed = counting_memory::failed();
    lived.lines_of_open = traced();
    if (handle == nullptr)
        return has_failed;
    lived.is_loaded = handle->root != nullptr;
    lived.has_unit = has_unit(*handle);
    if (lived.is_loaded) {
        const files about = beside.beside(handle);
        lived.all = answers_with_memory(given, planned.all, about);
        lived.chosen = replies_of(planned.chosen, about);
    }
    const bool stays = handle->root == nullptr && !which.is_module();
    const uint64_t before = counting_memory::requests();
    inv_parser_close_xml_file(handle);
    lived.requests_of_close = counting_memory::requests() - before;
    if (stays)
        library.release_kept(handle);
    return has_failed;
}

void expect_honest_life(const life &lived, const course &planned)
{
    const life &wanted = planned.without_failures;
    const bool is_told = tells_more(lived.lines_of_open, wanted.lines_of_open);
    EXPECT_TRUE(lived.has_unit || is_told);
    EXPECT_EQ(lived.requests_of_close, 0u) << "nothing that a close asks for may be missing";
    // EIDs begin at another entity then.
    if (!lived.has_unit)
        return;
    for (size_t i = 0; i < lived.all.size(); ++i) {
        SCOPED_TRACE(planned.all[i].entry_point);
        expect_honest(lived.all[i], planned.answers[i], is_told);
    }
    for (size_t i = 0; i < lived.chosen.size(); ++i) {
        SCOPED_TRACE(planned.chosen[i].entry_point);
        const bool is_told_now = tells_more(lived.chosen[i].lines, wanted.chosen[i].lines);
        expect_honest(lived.chosen[i].given, wanted.chosen[i].given, is_told || is_told_now);
    }
}

course plan(const fresh_library &library, const unit &which, const bystanders &beside, size_t generation)
{
    course planned;
    inv_xml_handle *handle = open_unit(which, generation);
    EXPECT_NE(handle, nullptr);
    const files about = beside.beside(handle);
    planned.all = questions_to_sweep(about);
    planned.answers = ask_all(planned.all, about);
    planned.chosen = one_of_each(all_questions(about), about);
    inv_parser_close_xml_file(handle);
    live_once(library, which, planned, beside, generation, {}, planned.without_failures);
    return planned;
}

void sweep_life(const unit &which, bool all_after, size_t generation)
{
    fresh_library library;
    bystanders beside;
    const course planned = plan(library, which, beside, generation);
    ASSERT_TRUE(planned.without_failures.is_loaded);
    const uint64_t live = library.live();
    const size_t descriptors_before = descriptors();

    bool has_failed = true;
    for (order given = {1, all_after}; has_failed; ++given.n) {
        SCOPED_TRACE("request " + std::to_string(given.n));
        life lived;
        bool in_open = false;
        has_failed = run_with(
            given, [&] { in_open = live_once(library, which, planned, beside, generation, given, lived); });
        has_failed = has_failed || in_open;
        points[open_calls[generation]] += in_open;
        points["life"] += has_failed && !in_open;
        expect_honest_life(lived, planned);
        EXPECT_EQ(descriptors(), descriptors_before);
        EXPECT_TRUE(beside.are_whole());
        // A failed module stays known to the registry; the next open loads it in full.
        inv_xml_handle *handle = open_unit(which, generation);
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(ask_all(planned.all, beside.beside(handle)), planned.answers);
        inv_parser_close_xml_file(handle);
        EXPECT_LE(library.live(), live);
        EXPECT_EQ(descriptors(), descriptors_before);
        ASSERT_FALSE(testing::Test::HasFailure());
    }
    EXPECT_GT(points[open_calls[generation]], 15u) << "the sweep met hardly any request";
}

TEST_P(MemoryFaults, any_one_in_the_life_of_a_file_harms_nothing)
{
    sweep_life(GetParam(), false, 0);
    sweep_life(GetParam(), false, 1);
}

TEST_P(MemoryFaults, all_from_any_one_on_in_the_life_of_a_file_harm_nothing)
{
    sweep_life(GetParam(), true, 0);
    sweep_life(GetParam(), true, 1);
}

// ---- No entry point is left out ------------------------------------------------------------------------

enum class memory { asked_for, never_asked_for, of_the_channel };

struct entry_point {
    const char *name;
    memory use;
};

// What a client calls. The builders and decoders run within an open.
constexpr entry_point entry_points[] = {
    {"inv_parser_close_xml_file", memory::never_asked_for},
    {"inv_parser_convert_node_type_to_container_type", memory::never_asked_for},
    {"inv_parser_free_eid_tree", memory::never_asked_for},
    {"inv_parser_free_i2c_access_sequence", memory::never_asked_for},
    {"inv_parser_free_pcie_access_sequence", memory::never_asked_for},
    {"inv_parser_free_remote_i2c_access_sequence", memory::never_asked_for},
    {"inv_parser_get_container_list_i2c_idprom_access_info", memory::asked_for},
    {"inv_parser_get_eid_by_type", memory::asked_for},
    {"inv_parser_get_eid_by_type_subtype", memory::asked_for},
    {"inv_parser_get_eid_data", memory::asked_for},
    {"inv_parser_get_eid_tree", memory::asked_for},
    {"inv_parser_get_file_name", memory::never_asked_for},
    {"inv_parser_get_i2c_access_sequence_by_eid", memory::asked_for},
    {"inv_parser_get_i2c_access_sequence_by_xml_inst", memory::asked_for},
    {"inv_parser_get_i2c_access_sequence_from_control_card", memory::asked_for},
    {"inv_parser_get_pcie_access_sequence_by_eid", memory::asked_for},
    {"inv_parser_get_pcie_access_sequence_by_xml_inst", memory::asked_for},
    {"inv_parser_get_pcie_access_sequence_from_control_card", memory::asked_for},
    {"inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card", memory::asked_for},
    {"inv_parser_get_root_eid", memory::asked_for},
    {"inv_parser_get_xml_handle", memory::asked_for},
    {"inv_parser_get_xml_handle_v2", memory::asked_for},
    {"inv_parser_init", memory::of_the_channel},  // swept by system_memory_test
    {"inv_parser_open_xml_file", memory::asked_for},
    {"inv_parser_open_xml_file_v2", memory::asked_for},
    {"inv_parser_retrieve_i2c_sequence_info", memory::asked_for},
};

TEST(EntryPoints, each_exported_one_of_clients_has_a_row)
{
    std::vector<std::string> exported;
    std::ifstream names(INV_SOURCE_DIR "/shared_pkg/common/schema/parser/lib_inv_parser/exported_names.txt");
    for (std::string name; std::getline(names, name);)
        if (name.starts_with("inv_parser_"))
            exported.push_back(name);
    std::vector<std::string> listed;
    for (const entry_point &each : entry_points)
        listed.push_back(each.name);
    EXPECT_EQ(listed, exported);
}

inv_xml_handle *register_file(size_t generation)
{
    const fru_xml_loc_info loc = {7, 107, 2, 5, "PID"};
    return generation == 0 ? inv_parser_get_xml_handle(7, 7, 107, "PID")
                           : inv_parser_get_xml_handle_v2(7, &loc);
}

void sweep_registration(size_t generation)
{
    bool has_failed = true;
    for (order given = {1, false}; has_failed; ++given.n) {
        SCOPED_TRACE("request " + std::to_string(given.n));
        fresh_library library;  // ends with an empty registry, and without anything left
        fake_platform::set_only_file_name("fan_tray.xml");
        inv_xml_handle *handle = nullptr;
        has_failed = run_with(given, [&] { handle = register_file(generation); });
        points[register_calls[generation]] += has_failed;
        EXPECT_TRUE(handle != nullptr || (has_failed && !trace_recorder::ids().empty()));
        handle = register_file(generation);
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(register_file(generation), handle);
    }
}

// The first question of each entry point that has no points yet.
void sweep_missing_questions(const unit &which)
{
    fresh_library library;
    bystanders beside;
    inv_xml_handle *handle = open_unit(which);
    ASSERT_NE(handle, nullptr);
    const files about = beside.beside(handle);
    const std::vector<question> chosen = one_of_each(all_questions(about), about);
    ask_all(chosen, about);
    ask_all(chosen, about);
    inv_parser_close_xml_file(handle);
    for (const question &each : chosen)
        if (points[each.entry_point] == 0)
            sweep_first_question(which, each, beside, false);
}

TEST(EntryPoints, each_that_asks_for_memory_is_swept_over_some_unit)
{
    points.clear();
    for (const unit &which : units())
        sweep_missing_questions(which);
    for (size_t generation : {size_t{0}, size_t{1}}) {
        sweep_life(small_units()[0], false, generation);
        sweep_registration(generation);
    }
    points.erase("life");
    for (const entry_point &each : entry_points)
        EXPECT_EQ(points[each.name] > 0, each.use == memory::asked_for) << each.name;
    EXPECT_EQ(points.size(), std::size(entry_points)) << "a question to an entry point without a row";
}

// What their sweeps could not make fail: they ask for nothing.
TEST(EntryPoints, those_without_points_make_no_request)
{
    fresh_library library;
    inv_xml_handle *handle = open_unit(units().back());
    ASSERT_NE(handle, nullptr);
    sch_eid_type *eid = nullptr;
    ASSERT_EQ(inv_parser_get_root_eid(handle, &eid), 0u);
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_i2c_sequence_type commands = {};
    ASSERT_EQ(inv_parser_retrieve_i2c_sequence_info(&commands, &i2c), 0u);
    const uint64_t before = counting_memory::requests();
    EXPECT_NE(inv_parser_get_file_name(handle), nullptr);
    inv_parser_convert_node_type_to_container_type(3);
    inv_parser_free_eid_tree(eid);
    inv_parser_free_i2c_access_sequence(i2c);
    inv_parser_free_pcie_access_sequence(nullptr);
    inv_parser_free_remote_i2c_access_sequence(nullptr);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(counting_memory::requests(), before);
}

}  // namespace
