// Opens in a fresh process, and by turns in one.
#include "measure.h"
#include "our_open.h"
#include "peers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sys/mman.h>
#include <system_error>

namespace inv_bench
{
namespace
{

inv_xml_handle *card;

bool open_ours(const char *file)
{
    card = open_card(file);
    return card != nullptr;
}

void close_ours()
{
    inv_parser_close_xml_file(card);
}

void start_tracing()
{
    inv_parser_init(nullptr);
}

// A line of /proc/self/status in octets; not a number when there is none.
double own_status(std::string_view key)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == key) {
            double kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
    return std::numeric_limits<double>::quiet_NaN();
}

// Sets the greatest memory ever in use back to what is in use now, and tells it.
double begin_peak()
{
    std::ofstream("/proc/self/clear_refs") << '5';
    return own_status("VmHWM:");
}

// Takes as much memory as the hungriest candidate and gives it back, so that each finds the machine's memory
// alike: a virtual machine takes away what has been free for a while, and whoever touches it first waits.
void settle_memory(const char *file)
{
    constexpr std::size_t large_page = std::size_t{2} << 20;
    constexpr std::size_t hungriest = 6;  // times the document
    std::error_code ignored;
    const std::uintmax_t document = std::filesystem::file_size(file, ignored);
    const std::size_t size = ignored ? large_page : (document * hungriest / large_page + 1) * large_page;
    void *pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        return;
    (void)madvise(pages, size, MADV_HUGEPAGE);
    std::memset(pages, 1, size);
    munmap(pages, size);
}

}  // namespace

const open_candidate open_candidates[] = {
    {"inv", "this library", nullptr, open_ours, close_ours},
    {"inv-traced", "this library, trace on", start_tracing, open_ours, close_ours},
    {"pugixml", "pugixml, parse in place", nullptr, parse_with_pugixml, nullptr},
    {"pugixml-walk", "pugixml + walk into records", prepare_peer_tables, walk_with_pugixml, nullptr},
    {"rapidxml-walk", "rapidxml + walk into records", prepare_peer_tables, walk_with_rapidxml, nullptr},
    {"libxml2", "libxml2 SAX, empty handlers", nullptr, scan_with_libxml2, nullptr},
    {"expat", "expat, empty handlers", nullptr, scan_with_expat, nullptr},
    {},
};

double median(std::vector<double> &all)
{
    const auto half = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
    std::nth_element(all.begin(), half, all.end());
    return *half;
}

figures measure_first_open(const open_candidate &candidate, const char *file)
{
    if (candidate.prepare != nullptr)
        candidate.prepare();
    settle_memory(file);
    const double memory_before = begin_peak();
    const double begin = computing_time();
    const bool is_open = candidate.open(file);
    const double open_time = computing_time() - begin;
    if (!is_open)
        return {};
    figures all = {{"open", open_time}, {"peak", own_status("VmHWM:") - memory_before}};
    if (candidate.close != nullptr) {
        const double closing = computing_time();
        candidate.close();
        all.emplace_back("close", computing_time() - closing);
    }
    return all;
}

figures measure_warm_opens(const char *file, unsigned rounds)
{
    std::vector<double> ours, theirs;
    for (unsigned i = 0; i <= rounds; ++i) {
        double begin = computing_time();
        if (!open_ours(file))
            return {};
        ours.push_back(computing_time() - begin);
        close_ours();
        begin = computing_time();
        if (!parse_with_pugixml(file))
            return {};
        theirs.push_back(computing_time() - begin);
        forget_pugixml();
    }
    // The first of each was no re-open.
    ours.erase(ours.begin());
    theirs.erase(theirs.begin());
    return {{"inv", median(ours)}, {"pugixml", median(theirs)}};
}

}  // namespace inv_bench
