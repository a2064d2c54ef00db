// Eight clients of one process open, ask and close sixteen documents at once, as the contract has it: who
// asks about a file holds it open, and nothing else is serialised. Every answer is compared with that of a
// single thread. Meant for the thread sanitizer, and linked with the libraries as clients have them: the
// memory that the other tests put in place counts under a lock of its own, which would keep races from being
// seen.
#include "stress/documents.h"
#include "stress/questions.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <random>
#include <thread>

namespace
{

using namespace stress;

constexpr size_t thread_count = 8;
constexpr uint64_t least_calls = 1'000'000;

// $INV_STRESS_CALLS asks for more calls.
uint64_t wanted_calls()
{
    const char *text = getenv("INV_STRESS_CALLS");
    return std::max(least_calls, uint64_t{text == nullptr ? 0 : strtoull(text, nullptr, 10)});
}

size_t hash_of(const std::string &octets)
{
    return std::hash<std::string>()(octets);
}

struct asked_once {
    question what;
    size_t answer;
};

// What a single thread is answered, by document.
using expectations = std::array<std::vector<asked_once>, document_count>;

open_files open_all(size_t number, bool with_card, bool second_generation)
{
    open_files files = {};
    files.asked = open_document(number, second_generation);
    files.card = with_card ? open_document(control_card_number, second_generation) : nullptr;
    files.chassis = with_card ? open_document(chassis_number, second_generation) : nullptr;
    return files;
}

void close_all(const open_files &files)
{
    for (inv_xml_handle *each : {files.card, files.asked, files.chassis})
        if (each != nullptr)
            inv_parser_close_xml_file(each);
}

std::vector<asked_once> answers_of_one_thread(size_t number)
{
    std::vector<asked_once> all;
    open_files files = open_all(number, true, false);
    for (const question &each : questions_about(files))
        all.push_back({each, hash_of(answer(files, each))});
    close_all(files);
    return all;
}

// What a thread did. Nothing of it is shared while it works.
struct tally {
    uint64_t opens = 0;
    uint64_t closes = 0;
    uint64_t queries = 0;
    uint64_t wrong = 0;
    uint64_t not_opened = 0;
    std::array<uint64_t, document_count> by_document = {};
    std::array<uint64_t, question_kinds> by_kind = {};

    uint64_t calls() const
    {
        return opens + closes + queries;
    }
};

// One client's stay with a document.
void visit(const expectations &expected, std::mt19937 &random, tally &done)
{
    constexpr int questions = 60;
    size_t number = random() % document_count;
    bool with_card = random() % 2 == 0;
    open_files files = open_all(number, with_card, random() % 2 == 0);
    done.opens += with_card ? 3 : 1;
    if (files.asked == nullptr || (with_card && (files.card == nullptr || files.chassis == nullptr))) {
        ++done.not_opened;
        close_all(files);
        return;
    }
    ++done.by_document[number];
    const std::vector<asked_once> &known = expected[number];
    for (int i = 0; i < questions; ++i) {
        const asked_once &each = known[random() % known.size()];
        if (!with_card && needs_card(each.what))
            continue;
        ++done.queries;
        ++done.by_kind[static_cast<size_t>(each.what.what)];
        done.wrong += hash_of(answer(files, each.what)) == each.answer ? 0 : 1;
    }
    close_all(files);
    done.closes += with_card ? 3 : 1;
}

// What every client may do at any time, and what is refused.
void make_a_nuisance(tally &done)
{
    inv_parser_init(nullptr);
    done.not_opened += open_document(document_count, false) == nullptr ? 0 : 1;
    done.wrong += inv_parser_close_xml_file(nullptr) == 0 ? 0 : 1;
}

void work(const expectations &expected, unsigned seed, uint64_t calls, tally &done)
{
    std::mt19937 random(seed);
    for (unsigned round = 0; done.calls() < calls; ++round) {
        visit(expected, random, done);
        if (round % 16 == seed % 16)
            make_a_nuisance(done);
    }
}

tally sum_of(const std::array<tally, thread_count> &each)
{
    tally sum;
    for (const tally &one : each) {
        sum.opens += one.opens;
        sum.closes += one.closes;
        sum.queries += one.queries;
        sum.wrong += one.wrong;
        sum.not_opened += one.not_opened;
        for (size_t i = 0; i < document_count; ++i)
            sum.by_document[i] += one.by_document[i];
        for (size_t i = 0; i < question_kinds; ++i)
            sum.by_kind[i] += one.by_kind[i];
    }
    return sum;
}

tally run_threads(const expectations &expected, uint64_t calls)
{
    std::array<tally, thread_count> done;
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < thread_count; ++i)
        threads.emplace_back(work, std::cref(expected), i, calls / thread_count + 1, std::ref(done[i]));
    for (std::thread &each : threads)
        each.join();
    return sum_of(done);
}

TEST(ThreadsStress, a_million_calls_of_eight_threads_are_answered_as_those_of_one)
{
    ASSERT_TRUE(use_documents());
    ASSERT_EQ(inv_parser_init(nullptr), 0u);
    expectations expected;
    for (size_t i = 0; i < document_count; ++i)
        expected[i] = answers_of_one_thread(i);
    tally done = run_threads(expected, wanted_calls());
    printf("%llu calls: %llu opens, %llu closes, %llu queries\n",
           static_cast<unsigned long long>(done.calls()), static_cast<unsigned long long>(done.opens),
           static_cast<unsigned long long>(done.closes), static_cast<unsigned long long>(done.queries));
    EXPECT_GE(done.calls(), wanted_calls());
    EXPECT_EQ(done.wrong, 0u);
    EXPECT_EQ(done.not_opened, 0u);
    EXPECT_EQ(done.opens, done.closes);
    for (size_t i = 0; i < document_count; ++i) {
        EXPECT_GT(done.by_document[i], 0u) << "document " << i;
        EXPECT_GT(expected[i].size(), 100u) << "document " << i;
    }
    for (size_t i = 0; i < question_kinds; ++i)
        EXPECT_GT(done.by_kind[i], 0u) << "kind of question " << i;
    // Every close was counted: each file is loaded anew.
    for (size_t i = 0; i < document_count; ++i) {
        inv_xml_handle *handle = open_document(i, true);
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(handle->file_count, 1);
        inv_parser_close_xml_file(handle);
    }
}

}  // namespace
