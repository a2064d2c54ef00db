/* inv_bench: measures the library against other ways to the same end and checks the ratios.
 *
 * The program starts itself anew for each sample; see README.md. */
#include "child.h"
#include "generate_document.h"
#include "machine.h"
#include "measure.h"
#include "rows.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace
{

using namespace inv_bench;

struct document_row {
    const char *name;
    std::uint32_t entities;
    bool indented;
    unsigned rounds;
    unsigned short_rounds;  // 0: not in the short form
};

constexpr document_row documents[] = {
    {"1000", 1000, true, 21, 15},
    {"10000", 10000, true, 15, 9},
    {"10000-flat", 10000, false, 15, 9},
    {"100000", 100000, true, 7, 0},
};

// What one process measures of the document of 10,000 entities, besides the opens.
struct process_row {
    const char *name;
    const char *rounds;  // within each process
    const char *short_rounds;
};

constexpr process_row processes[] = {
    {"warm", "15", "9"},
    {"queries", "200", "100"},
};

constexpr unsigned process_rounds = 7;
constexpr unsigned short_process_rounds = 5;
constexpr const char *main_document = "10000";

struct options {
    bool is_short = false;
    const char *results = nullptr;
};

// The documents, for as long as the benchmark runs.
struct document_folder {
    std::filesystem::path path;

    document_folder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "inv_bench_XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr)
            path = pattern;
    }
    ~document_folder()
    {
        std::error_code ignored;
        if (!path.empty())
            std::filesystem::remove_all(path, ignored);
    }
    document_folder(const document_folder &) = delete;
    document_folder &operator=(const document_folder &) = delete;

    std::string file(const char *name) const
    {
        return (path / (std::string(name) + ".xml")).string();
    }
};

bool write_document(const document_row &row, const std::string &file)
{
    document_options how;
    how.entities = row.entities;
    how.indented = row.indented;
    how.lean = true;
    std::ofstream out(file, std::ios::binary);
    out << generate_document(how);
    out.close();
    return out.good();
}

unsigned rounds_of(const document_row &row, bool is_short)
{
    return is_short ? row.short_rounds : row.rounds;
}

bool add_samples(samples &all, const std::string &key, const figures &measured)
{
    for (const auto &[name, value] : measured)
        all[key + '/' + name].push_back(value);
    if (measured.empty())
        std::fprintf(stderr, "inv_bench: %s could not be measured\n", key.c_str());
    return !measured.empty();
}

// Each round begins with another candidate, so that none always follows the same one.
bool measure_opens(samples &all, const document_row &row, const std::string &file, unsigned round)
{
    std::size_t count = 0;
    while (open_candidates[count].name != nullptr)
        ++count;
    for (std::size_t i = 0; i < count; ++i) {
        const char *name = open_candidates[(i + round) % count].name;
        if (!add_samples(all, std::string(row.name) + '/' + name,
                         run_child(own_program(), {"--measure", name, file, "1"})))
            return false;
    }
    return true;
}

bool measure_round(samples &all, const document_folder &folder, bool is_short, unsigned round)
{
    for (const document_row &row : documents)
        if (round < rounds_of(row, is_short) && !measure_opens(all, row, folder.file(row.name), round))
            return false;
    if (round >= (is_short ? short_process_rounds : process_rounds))
        return true;
    for (const process_row &row : processes)
        if (!add_samples(all, std::string(main_document) + '/' + row.name,
                         run_child(own_program(), {"--measure", row.name, folder.file(main_document),
                                                   is_short ? row.short_rounds : row.rounds})))
            return false;
    return true;
}

bool measure_all(samples &all, bool is_short)
{
    const document_folder folder;
    unsigned rounds = 0;
    for (const document_row &row : documents) {
        if (rounds_of(row, is_short) > 0 && !write_document(row, folder.file(row.name))) {
            std::fprintf(stderr, "inv_bench: %s: cannot write\n", folder.file(row.name).c_str());
            return false;
        }
        rounds = std::max(rounds, rounds_of(row, is_short));
    }
    if (!add_samples(all, std::string(main_document) + "/count",
                     run_child(program_beside("inv_bench_count"), {folder.file(main_document)})))
        return false;
    for (unsigned round = 0; round < rounds; ++round) {
        if (isatty(STDERR_FILENO) != 0)
            std::fprintf(stderr, "round %u of %u\r", round + 1, rounds);
        if (!measure_round(all, folder, is_short, round))
            return false;
    }
    return true;
}

bool write_report(std::ostream &out, const samples &all, bool is_short)
{
    const bool all_hold = write_ratios(out, all, is_short);
    for (const document_row &row : documents) {
        if (rounds_of(row, is_short) == 0)
            continue;
        out << '\n'
            << row.entities << " entities" << (row.indented ? "" : ", without indentation") << ", medians of "
            << rounds_of(row, is_short) << ":\n\n";
        write_opens(out, all, row.name);
    }
    return all_hold;
}

int run_benchmark(const options &how)
{
    samples all;
    if (!measure_all(all, how.is_short))
        return 2;
    std::ostringstream report;
    const bool all_hold = write_report(report, all, how.is_short);
    std::cout << report.str() << std::flush;
    if (how.results != nullptr) {
        std::ofstream out(how.results);
        out << "# Results of `make bench`\n\nWritten by the benchmark; [README.md](README.md) says how to "
               "read it.\n\n";
        write_machine(out);
        out << '\n' << report.str();
        out.close();
        if (!out.good()) {
            std::perror(how.results);
            return 2;
        }
    }
    return all_hold ? 0 : 1;
}

// The child's side: one measurement, its figures on standard output.
int run_measurement(const char *name, const char *file, const char *rounds)
{
    figures measured;
    const auto count = static_cast<unsigned>(std::strtoul(rounds, nullptr, 10));
    if (std::strcmp(name, "warm") == 0)
        measured = measure_warm_opens(file, count);
    else if (std::strcmp(name, "queries") == 0)
        measured = measure_queries(file, count);
    for (const open_candidate *each = open_candidates; each->name != nullptr; ++each)
        if (std::strcmp(name, each->name) == 0)
            measured = measure_first_open(*each, file);
    print_figures(measured);
    std::fflush(stdout);
    // Nothing is taken down: the time of that belongs to nobody.
    _exit(measured.empty() ? 1 : 0);
}

}  // namespace

int main(int argc, char **argv)
{
    if (argc == 5 && std::strcmp(argv[1], "--measure") == 0)
        return run_measurement(argv[2], argv[3], argv[4]);
    options how;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--short") == 0)
            how.is_short = true;
        else if (std::strcmp(argv[i], "--results") == 0 && i + 1 < argc)
            how.results = argv[++i];
        else {
            std::fprintf(stderr, "usage: inv_bench [--short] [--results FILE]\n");
            return 2;
        }
    }
    return run_benchmark(how);
}
