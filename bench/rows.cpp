#include "rows.h"

#include "measure.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace inv_bench
{
namespace
{

constexpr ratio_row rows[] = {
    {"first open, 1,000 entities, to pugixml parse", "1000/inv/open", "1000/pugixml/open", 0.65, 0.85, 0},
    {"first open, 10,000 entities, to pugixml parse", "10000/inv/open", "10000/pugixml/open", 0.65, 0.85, 0},
    {"first open, 100,000 entities, to pugixml parse", "100000/inv/open", "100000/pugixml/open", 0.65, 0.85,
     0},
    {"first open, 10,000 without indentation, to pugixml parse", "10000-flat/inv/open",
     "10000-flat/pugixml/open", 0.75, 1.00, 0},
    {"warm re-open, 10,000, to pugixml parse", "10000/warm/inv", "10000/warm/pugixml", 0.60, 0.80, 0},
    {"first open, 10,000, to pugixml + walk", "10000/inv/open", "10000/pugixml-walk/open", 0.35, 0.45, 0},
    {"growth exponent of open, 1,000 to 10,000", "10000/inv/open", "1000/inv/open", 1.02, 0, 10},
    {"growth exponent of open, 1,000 to 100,000", "100000/inv/open", "1000/inv/open", 1.02, 1.05, 100},
    {"close, 10,000, to open", "10000/inv/close", "10000/inv/open", 0.05, 0.10, 0},
    {"open with tracing on, 10,000, to off", "10000/inv-traced/open", "10000/inv/open", 1.20, 1.35, 0},
    {"all EIDs of a type (half of 10,000), to a walk", "10000/queries/type/inv", "10000/queries/type/walk",
     0.10, 0.25, 0},
    {"one record by EID, to std::unordered_map", "10000/queries/eid/inv", "10000/queries/eid/unordered_map",
     2.0, 4.0, 0},
    {"I2C sequence of 4 hops, to std::map and calloc", "10000/queries/i2c/inv", "10000/queries/i2c/map", 1.5,
     2.5, 0},
    {"peak memory of open, 10,000, to the data's octets", "10000/inv/peak", "10000/count/octets", 1.15, 1.15,
     0},
    {"peak memory of open, 10,000, to pugixml + walk", "10000/inv/peak", "10000/pugixml-walk/peak", 0.60,
     0.60, 0},
    {"all EIDs of a type, to pugixml XPath", "10000/queries/type/inv", "10000/queries/type/pugixml-xpath", 0,
     0, 0},
    {"all EIDs of a type, to libxml2 XPath", "10000/queries/type/inv", "10000/queries/type/libxml2-xpath", 0,
     0, 0},
};

struct summary {
    double median = 0;
    double least = 0;
};

bool summarise(const samples &all, const char *key, summary &result)
{
    const auto found = all.find(key);
    if (found == all.end() || found->second.empty())
        return false;
    std::vector<double> figures = found->second;
    result.least = *std::min_element(figures.begin(), figures.end());
    result.median = median(figures);
    return true;
}

double value_of(const ratio_row &row, double numerator, double denominator)
{
    const double ratio = numerator / denominator;
    return row.growth > 0 ? std::log(ratio) / std::log(row.growth) : ratio;
}

// Four significant places would promise more than a shared machine can keep.
std::string number(double value)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(value < 0.02 ? 4 : value < 20 ? 2 : 0) << value;
    return text.str();
}

std::string limit(double value)
{
    return value > 0 ? number(value) : "-";
}

const char *verdict(const ratio_row &row, double measured, double allowed)
{
    if (row.target > 0 && measured <= row.target)
        return "target met";
    if (allowed > 0 && !(measured <= allowed))
        return "MISSED";
    return allowed > 0 ? "within the limit" : "-";
}

}  // namespace

bool write_ratios(std::ostream &out, const samples &all, bool is_short)
{
    bool all_hold = true;
    out << "| " << std::left << std::setw(56) << "what"
        << " | target | " << (is_short ? "limit" : "must") << " | measured | of the fastest | verdict |\n"
        << "|---|---|---|---|---|---|\n";
    for (const ratio_row &row : rows) {
        summary numerator, denominator;
        if (!summarise(all, row.numerator, numerator) || !summarise(all, row.denominator, denominator)) {
            // Only the short form leaves something out.
            all_hold = all_hold && is_short;
            continue;
        }
        const double allowed = is_short ? 2 * row.target : row.must;
        const double measured = value_of(row, numerator.median, denominator.median);
        const double of_fastest = value_of(row, numerator.least, denominator.least);
        all_hold = all_hold && (allowed == 0 || measured <= allowed);
        out << "| " << std::left << std::setw(56) << row.what << " | " << std::right << std::setw(6)
            << limit(row.target) << " | " << std::setw(4) << limit(allowed) << " | " << std::setw(8)
            << number(measured) << " | " << std::setw(14) << number(of_fastest) << " | "
            << verdict(row, measured, allowed) << " |\n";
    }
    return all_hold;
}

void write_opens(std::ostream &out, const samples &all, const std::string &document)
{
    summary yardstick;
    if (!summarise(all, (document + "/pugixml/open").c_str(), yardstick))
        return;
    out << "| " << std::left << std::setw(28) << "first open"
        << " |       ms | ratio | peak MiB |\n|---|---|---|---|\n";
    for (const open_candidate *each = open_candidates; each->name != nullptr; ++each) {
        summary time, memory;
        const std::string key = document + '/' + each->name;
        if (!summarise(all, (key + "/open").c_str(), time) ||
            !summarise(all, (key + "/peak").c_str(), memory))
            continue;
        out << "| " << std::left << std::setw(28) << each->label << " | " << std::right << std::fixed
            << std::setprecision(2) << std::setw(8) << time.median / 1e6 << " | " << std::setw(5)
            << time.median / yardstick.median << " | " << std::setw(8) << std::setprecision(1)
            << memory.median / (1 << 20) << " |\n";
    }
}

}  // namespace inv_bench
