/* What one child process of the benchmark measures. */
#ifndef INV_BENCH_MEASURE_H
#define INV_BENCH_MEASURE_H

#include <string>
#include <time.h>
#include <utility>
#include <vector>

namespace inv_bench
{

/* Figures by name; the driver files them under the document's and the measurement's name. */
using figures = std::vector<std::pair<std::string, double>>;

/* One way to open a document, in a process that has opened none before. */
struct open_candidate {
    const char *name;
    const char *label;           // for the table of times
    void (*prepare)();           // what a program has done long before its first open; may be null
    bool (*open)(const char *);  // timed; what it made stays until the process ends
    void (*close)();             // timed apart; may be null
};

/* Ours first. Ends with a row without name. */
extern const open_candidate open_candidates[];

/* "open" and "close" in nanoseconds, "peak": octets by which the most memory ever in use during the open
 * exceeds what was in use before it. Empty when the open fails. */
figures measure_first_open(const open_candidate &candidate, const char *file);

/* Opens by turns of one process: "inv" and "pugixml", medians in nanoseconds. */
figures measure_warm_opens(const char *file, unsigned rounds);

/* Queries, sequences and their counterparts on one document, medians in nanoseconds for one question. */
figures measure_queries(const char *file, unsigned rounds);

/* Time that this process has computed, in nanoseconds. Files are in the page cache and nothing waits, so that
 * this is what a clock on the wall would show on an idle machine; on a shared one it leaves out the others.
 */
inline double computing_time()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return 1e9 * static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec);
}

/* Of at least one figure; the order of `all` is lost. */
double median(std::vector<double> &all);

}  // namespace inv_bench

#endif
