#include "lookup/catalogue.h"

#include <charconv>

#include "lookup/pattern.h"

namespace inv::lookup
{

namespace
{

constexpr std::string_view blanks = " \t";

// Cuts the first column off `rest`, which has no leading blank, and takes the blanks behind it.
std::string_view take_column(std::string_view &rest)
{
    std::string_view column = rest.substr(0, rest.find_first_of(blanks));
    rest.remove_prefix(column.size());
    size_t next = rest.find_first_not_of(blanks);
    rest.remove_prefix(next == std::string_view::npos ? rest.size() : next);
    return column;
}

bool parse_number(std::string_view text, uint32_t &out)
{
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    const char *end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, out, base);
    return error == std::errc{} && stop == end;
}

bool parse_number_column(std::string_view text, number_column &out)
{
    out.any = text == "*";
    return out.any || parse_number(text, out.value);
}

bool parse_version(std::string_view text, version &out)
{
    size_t dot = text.find('.');
    return dot != std::string_view::npos && parse_number(text.substr(0, dot), out.major_number) &&
           parse_number(text.substr(dot + 1), out.minor_number);
}

bool parse_versions(std::string_view text, catalogue_line &out)
{
    out.any_version = text == "*";
    if (out.any_version)
        return true;
    size_t dash = text.find('-');
    if (!parse_version(text.substr(0, dash), out.first_version))
        return false;
    out.last_version = out.first_version;
    return dash == std::string_view::npos || parse_version(text.substr(dash + 1), out.last_version);
}

bool is_before(const version &a, const version &b)
{
    if (a.major_number != b.major_number)
        return a.major_number < b.major_number;
    return a.minor_number < b.minor_number;
}

// Null when the columns make a unit, else what is wrong with them.
const char *parse_columns(std::string_view line, catalogue_line &out)
{
    std::string_view pi_hw_type = take_column(line);
    std::string_view pd_hw_type = take_column(line);
    out.pid_pattern = take_column(line);
    std::string_view versions = take_column(line);
    out.file = line;
    if (out.file.empty())
        return "five columns are needed: pi_hw_type, pd_hw_type, PID pattern, hardware versions, file";
    if (!parse_number_column(pi_hw_type, out.pi_hw_type))
        return "pi_hw_type is neither a 32-bit number nor *";
    if (!parse_number_column(pd_hw_type, out.pd_hw_type))
        return "pd_hw_type is neither a 32-bit number nor *";
    if (out.pid_pattern.size() > max_pattern_length)
        return "the PID pattern is longer than 255 octets";
    if (!parse_versions(versions, out))
        return "hardware versions are neither major.minor, a range of two nor *";
    if (!out.any_version && is_before(out.last_version, out.first_version))
        return "the range of hardware versions ends before it begins";
    return nullptr;
}

bool fits_number(const number_column &column, uint32_t value)
{
    return column.any || column.value == value;
}

}  // namespace

line_kind parse_line(std::string_view line, catalogue_line &out, const char **reason)
{
    size_t begin = line.find_first_not_of(" \t\r");
    if (begin == std::string_view::npos || line[begin] == '#')
        return line_kind::blank;
    line = line.substr(begin, line.find_last_not_of(" \t\r") + 1 - begin);
    out = {};
    *reason =
        line.find('\0') == std::string_view::npos ? parse_columns(line, out) : "the line holds a NUL octet";
    return *reason == nullptr ? line_kind::unit : line_kind::broken;
}

bool fits(const catalogue_line &line, const unit &wanted)
{
    if (!fits_number(line.pi_hw_type, wanted.pi_hw_type) || !fits_number(line.pd_hw_type, wanted.pd_hw_type))
        return false;
    if (wanted.has_version && !line.any_version &&
        (is_before(wanted.hw_version, line.first_version) || is_before(line.last_version, wanted.hw_version)))
        return false;
    return matches_pattern(wanted.pid, line.pid_pattern);
}

}  // namespace inv::lookup
