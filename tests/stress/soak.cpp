// Opens, asks about and closes all documents of the catalogue for a given time in one process, and checks
// that the process stays as it was: answers as in the first round, memory as after the first rounds, and file
// descriptors as before the first open.
//   inv_soak --seconds N
#include "stress/documents.h"
#include "stress/process_state.h"
#include "stress/questions.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

namespace
{

using namespace stress;

// Until then pools and the time zone have been set up, and the trace channel's ring has been full once.
constexpr uint64_t warm_up_rounds = 100;

struct soak {
    std::vector<size_t> expected;  // hashes of the first round's answers
    uint64_t rounds = 0;
    uint64_t opens = 0;
    uint64_t queries = 0;
    uint64_t wrong = 0;
};

void ask_all(soak &state, const open_files &files, size_t &at)
{
    for (const question &each : questions_about(files)) {
        size_t hash = std::hash<std::string>()(answer(files, each));
        if (state.rounds == 0)
            state.expected.push_back(hash);
        else if (at >= state.expected.size() || state.expected[at] != hash)
            ++state.wrong;
        ++at;
        ++state.queries;
    }
}

// Every document once. The generation of the open call changes with each round.
void run_round(soak &state)
{
    const bool second = state.rounds % 2 == 1;
    size_t at = 0;
    for (size_t i = 0; i < document_count; ++i) {
        open_files files = {open_document(i, second), open_document(control_card_number, second),
                            open_document(chassis_number, second)};
        state.opens += 3;
        if (files.asked == nullptr || files.card == nullptr || files.chassis == nullptr)
            ++state.wrong;
        else
            ask_all(state, files, at);
        for (inv_xml_handle *each : {files.card, files.asked, files.chassis})
            inv_parser_close_xml_file(each);
    }
    state.wrong += inv_parser_init(nullptr) == 0 ? 0 : 1;
    state.wrong += open_document(document_count, second) == nullptr ? 0 : 1;
    state.wrong += at == state.expected.size() ? 0 : 1;
    ++state.rounds;
}

void print_state(const char *when, const soak &state, const process_state &now)
{
    printf("%s: %llu rounds, %llu opens, %llu queries, %llu wrong; resident %zu, mapped %zu, allocated %zu + "
           "%zu "
           "octets, %zu files\n",
           when, static_cast<unsigned long long>(state.rounds), static_cast<unsigned long long>(state.opens),
           static_cast<unsigned long long>(state.queries), static_cast<unsigned long long>(state.wrong),
           now.resident, now.mapped, now.allocated, now.heap_maps, now.open_files);
    fflush(stdout);
}

// Kernel's counts may differ by one part in a hundred, what was allocated not at all.
bool is_flat(const process_state &first, const process_state &last)
{
    return last.resident <= first.resident + first.resident / 100 &&
           last.mapped <= first.mapped + first.mapped / 100 && last.allocated == first.allocated &&
           last.heap_maps == first.heap_maps;
}

int run(long seconds)
{
    using clock = std::chrono::steady_clock;
    const clock::time_point end = clock::now() + std::chrono::seconds(seconds);
    soak state;
    const process_state start = current_state();
    print_state("at the start", state, start);
    while (state.rounds < warm_up_rounds)
        run_round(state);
    const process_state first = current_state();
    print_state("after the first rounds", state, first);
    clock::time_point next_line = clock::now() + std::chrono::minutes(1);
    do {
        run_round(state);
        if (clock::now() >= next_line) {
            print_state("now", state, current_state());
            next_line += std::chrono::minutes(1);
        }
    } while (clock::now() < end);
    const process_state last = current_state();
    print_state("at the end", state, last);
    if (state.wrong != 0)
        puts("FAILED: answers differ from those of the first round");
    if (!is_flat(first, last))
        puts("FAILED: memory grew");
    // Not even the first open may keep one.
    const bool same_files = last.open_files == start.open_files;
    if (!same_files)
        puts("FAILED: file descriptors are not those of the start");
    return state.wrong == 0 && is_flat(first, last) && same_files ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv)
{
    run_without_thread_cache(argv);
    const long seconds = argc == 3 && strcmp(argv[1], "--seconds") == 0 ? strtol(argv[2], nullptr, 10) : 0;
    if (seconds <= 0 || !use_documents() || inv_parser_init(nullptr) != 0) {
        fprintf(stderr, "usage: inv_soak --seconds N\n");
        return 2;
    }
    return run(seconds);
}
