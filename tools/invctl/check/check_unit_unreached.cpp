// Documents that no line of the catalogue leads to, and lines that no unit reaches.
#include <algorithm>
#include <filesystem>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "all_memory.h"
#include "catalogue_model.h"
#include "lookup/pattern.h"
#include "output.h"

namespace
{

using namespace invctl::check;
using inv::lookup::version;

// Lines with one hardware type that are compared with one another; keeps huge catalogues quick.
constexpr size_t most_compared = 200;

bool is_before(const version &a, const version &b)
{
    return a.major_number != b.major_number ? a.major_number < b.major_number
                                            : a.minor_number < b.minor_number;
}

// Whether every PID that fits the narrow pattern fits the wide one. Never says so wrongly; where wide has a
// '?' for a '*' of the other it may overlook it.
bool covers_pattern(std::string_view wide, std::string_view narrow)
{
    const bool comparable =
        wide.find('?') == std::string_view::npos || narrow.find('*') == std::string_view::npos;
    return wide == narrow || (comparable && inv::lookup::matches_pattern(narrow, wide));
}

bool covers_versions(const inv::lookup::catalogue_line &wide, const inv::lookup::catalogue_line &narrow)
{
    if (wide.any_version || narrow.any_version)
        return wide.any_version;
    return !is_before(narrow.first_version, wide.first_version) &&
           !is_before(wide.last_version, narrow.last_version);
}

using hardware_key = std::pair<uint64_t, uint64_t>;  // above 32 bits: any

struct key_hash {
    size_t operator()(const hardware_key &key) const
    {
        return std::hash<uint64_t>()(key.first * 0x9E3779B97F4A7C15u ^ key.second);
    }
};

constexpr uint64_t any_value = UINT64_MAX;

uint64_t key_of(const inv::lookup::number_column &column)
{
    return column.any ? any_value : column.value;
}

using earlier_lines = std::unordered_map<hardware_key, std::vector<const catalogued_unit *>, key_hash>;

// An earlier line that takes every unit of this one; null when there is none.
const catalogued_unit *hidden_by(const earlier_lines &earlier, const catalogued_unit &unit)
{
    const uint64_t pi = key_of(unit.columns.pi_hw_type);
    const uint64_t pd = key_of(unit.columns.pd_hw_type);
    for (const hardware_key &key :
         std::set<hardware_key>{{pi, pd}, {any_value, pd}, {pi, any_value}, {any_value, any_value}}) {
        auto at = earlier.find(key);
        if (at == earlier.end())
            continue;
        for (const catalogued_unit *each : at->second)
            if (covers_pattern(each->columns.pid_pattern, unit.columns.pid_pattern) &&
                covers_versions(each->columns, unit.columns))
                return each;
    }
    return nullptr;
}

// The files that some unit is described by; lines without units are reported.
std::unordered_set<std::string> reached_files(const catalogue_check &catalogue,
                                              const std::vector<catalogued_unit> &units, finding_list &found)
{
    std::unordered_set<std::string> reached;
    earlier_lines earlier;
    for (const catalogued_unit &unit : units) {
        if (const catalogued_unit *other = hidden_by(earlier, unit)) {
            report_line(found, catalogue, *unit.line, {},
                        "no unit reaches this line: line " + std::to_string(other->line->number) +
                            " takes all of them")
                .hint = "the first fitting line wins: put the narrower one first";
            continue;
        }
        reached.insert(std::filesystem::path(unit.file).lexically_normal().string());
        auto &same = earlier[{key_of(unit.columns.pi_hw_type), key_of(unit.columns.pd_hw_type)}];
        if (same.size() < most_compared)
            same.push_back(&unit);
    }
    return reached;
}

// Whether the file is an inventory document, by its root element.
bool is_unit(const std::string &file)
{
    xb_context context = {};
    bool found = false;
    if (rtXmlInitContext(&context) == XB_OK && rtxStreamFileCreateReader(&context, file.c_str()) == XB_OK &&
        rtXmlpCreateReader(&context) == XB_OK)
        for (document_kind kind : {document_kind::module, document_kind::chassis, document_kind::power_shelf,
                                   document_kind::pem, document_kind::fan_tray, document_kind::optics})
            found = found || rtXmlpMatchStartTag(&context, root_of_kind(kind), -1) == XB_OK;
    rtxStreamClose(&context);
    rtxFreeContext(&context);
    return found;
}

}  // namespace

namespace invctl::check
{

void check_unit_unreached(const catalogue_check &catalogue, finding_list &found)
{
    const std::vector<catalogued_unit> units = units_of(catalogue);
    const std::unordered_set<std::string> reached = reached_files(catalogue, units, found);
    for (const std::string &name : document_names_in(catalogue.folder)) {
        const std::string file = opened_name(catalogue, name);
        if (!reached.contains(std::filesystem::path(file).lexically_normal().string()) &&
            invctl::with_all_memory([&] { return is_unit(file); }))
            report_file(found, file, {},
                        "no line of " + printable(catalogue.catalogue.c_str()) + " leads to this document")
                .hint = "add a line for its unit, or move the file away";
    }
}

}  // namespace invctl::check
