/* What the benchmark promises: ratios of what one run has measured, with their limits. */
#ifndef INV_BENCH_ROWS_H
#define INV_BENCH_ROWS_H

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace inv_bench
{

/* Everything measured by "document/measurement/figure". */
using samples = std::map<std::string, std::vector<double>>;

/* numerator / denominator, or with a growth the exponent by which the numerator follows it. */
struct ratio_row {
    const char *what;
    const char *numerator;
    const char *denominator;
    double target;  // 0: said for information only
    double must;    // 0: none
    double growth;  // of the input between denominator and numerator; 0: a plain ratio
};

/* Writes the table of ratios; rows that were not measured are left out, which is a failure but in the short
 * form. There a row holds up to twice its target, else up to its must. True when all rows hold. */
bool write_ratios(std::ostream &out, const samples &all, bool is_short);

/* Writes the table of times and memory of the opens of one document. */
void write_opens(std::ostream &out, const samples &all, const std::string &document);

}  // namespace inv_bench

#endif
