#include "hostile/document_cost.h"

#include "generate_document.h"
#include "inv_platform/lookup.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

std::string only_file;  // of every unit

}  // namespace

const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return only_file.c_str();
}

const char *platform_get_inv_xml_file_name_v2(const fru_xml_loc_info *)
{
    return only_file.c_str();
}

namespace hostile
{

namespace
{

// Short measurements are disturbed most by what else the machine does, and cost least to repeat.
constexpr int least_runs = 3;
constexpr int most_runs = 15;
constexpr double enough_seconds = 0.2;
constexpr unsigned most_seconds = 120;

// A line of /proc/self/status, in octets.
uint64_t status_octets(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        uint64_t kilo = 0;
        if (word == name + ":" && status >> kilo)
            return kilo * 1024;
    }
    return 0;
}

// From here on the greatest resident size counts anew.
void reset_peak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

double processor_seconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

int64_t entities_of(inv_xml_handle *handle)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    if (handle->root != nullptr)
        inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count);
    inv_parser_free_eid_tree(eids);
    return count;
}

// A failed open leaves its handle registered, and so that of a document without tree stays allocated after
// the close.
void release_what_stays(inv_xml_handle *closed_without_tree, uint32_t pi_hw_type)
{
    inv_xml_handle *handle = closed_without_tree;
    if (handle == nullptr) {
        handle = inv_parser_get_xml_handle(0, pi_hw_type, 0, "");
        inv_schema_update_the_xml_handle_list(handle);
    }
    inv_schema_free_base_module_data(handle);
}

// Opens, asks and closes. Returns the handle if the close has left it.
inv_xml_handle *use_document(uint32_t pi_hw_type, questions ask, cost *found)
{
    inv_xml_handle *handle = inv_parser_open_xml_file(0, pi_hw_type, 0, "");
    found->entities = handle == nullptr ? refused : entities_of(handle);
    if (handle != nullptr && ask != nullptr)
        found->found = ask(handle);
    const bool stays = handle != nullptr && handle->root == nullptr && pi_hw_type != line_card;
    inv_parser_close_xml_file(handle);
    return stays ? handle : nullptr;
}

cost measure(const document &d, uint32_t pi_hw_type, questions ask)
{
    cost found;
    only_file = d.path;
    // What the making of the documents has left in the heap is not the parser's to use for nothing.
    malloc_trim(0);
    reset_peak();
    const uint64_t before = status_octets("VmRSS");
    const live_memory at_first = live_now();
    const double start = processor_seconds();
    inv_xml_handle *left = use_document(pi_hw_type, ask, &found);
    found.seconds = processor_seconds() - start;
    const uint64_t peak = status_octets("VmHWM");
    found.peak_octets = peak > before ? peak - before : 0;
    if (found.entities == refused || left != nullptr)
        release_what_stays(left, pi_hw_type);
    const live_memory at_last = live_now();
    found.left.blocks = at_last.blocks - at_first.blocks;
    found.left.mapped_octets = at_last.mapped_octets - at_first.mapped_octets;
    return found;
}

void keep_cheaper(cost *kept, const cost &next, int run)
{
    if (run == 0) {
        *kept = next;
        return;
    }
    if (kept->entities != next.entities || kept->found != next.found)
        kept->entities = died;
    kept->seconds = std::min(kept->seconds, next.seconds);
    kept->peak_octets = std::min(kept->peak_octets, next.peak_octets);
    kept->left.blocks = std::max(kept->left.blocks, next.left.blocks);
    kept->left.mapped_octets = std::max(kept->left.mapped_octets, next.left.mapped_octets);
}

}  // namespace

document make_document(const std::string &text)
{
    return make_sparse_document(text, text.size());
}

document make_sparse_document(const std::string &text, uint64_t octets)
{
    document made;
    made.descriptor = memfd_create("hostile", 0);
    made.octets = octets;
    size_t written = 0;
    while (written < text.size()) {
        ssize_t now = write(made.descriptor, text.data() + written, text.size() - written);
        if (now <= 0)
            return made;
        written += static_cast<size_t>(now);
    }
    if (ftruncate(made.descriptor, static_cast<off_t>(octets)) == 0)
        made.path = "/proc/self/fd/" + std::to_string(made.descriptor);
    return made;
}

void remove_document(document *d)
{
    close(d->descriptor);
    *d = {};
}

cost cost_of(const document &d, uint32_t pi_hw_type, questions ask)
{
    cost found;
    int ends[2];
    if (pipe(ends) != 0)
        return found;
    const pid_t child = fork();
    if (child == 0) {
        alarm(most_seconds);
        const cost measured = measure(d, pi_hw_type, ask);
        const bool told = write(ends[1], &measured, sizeof measured) == sizeof measured;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    cost measured;
    const bool told = read(ends[0], &measured, sizeof measured) == sizeof measured;
    close(ends[0]);
    int status = 0;
    const bool ended = waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return told && ended ? measured : found;
}

comparison compare(const document &of_hostile, uint32_t pi_hw_type, const document &plain, questions ask)
{
    comparison found;
    double seconds = 0;
    for (int run = 0; run < least_runs || (run < most_runs && seconds < enough_seconds); ++run) {
        const cost of_one = cost_of(of_hostile, pi_hw_type, ask);
        seconds += of_one.seconds;
        keep_cheaper(&found.of_hostile, of_one, run);
        keep_cheaper(&found.of_plain, cost_of(plain, line_card, ask), run);
        if (is_instrumented())
            break;
    }
    return found;
}

std::string plain_text(uint64_t octets)
{
    constexpr uint32_t probe = 1000;
    inv_bench::document_options options;
    options.entities = probe;
    const uint64_t of_probe = inv_bench::generate_document(options).size();
    options.entities = static_cast<uint32_t>(std::max<uint64_t>(octets * probe / of_probe, 2));
    return inv_bench::generate_document(options);
}

}  // namespace hostile
