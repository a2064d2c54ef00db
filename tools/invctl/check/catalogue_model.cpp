#include "catalogue_model.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <new>
#include <system_error>

namespace
{

using namespace invctl::check;

struct kind_row {
    document_kind kind;
    const char *root;
    uint32_t pi_hw_types[14];  // 0: no further one
};

// The numbers are the platform's; the library opens documents by them.
constexpr kind_row kind_rows[] = {
    {document_kind::chassis, "chassis", {1, 2, 20}},
    {document_kind::module, "module", {3, 4, 5, 6, 11, 13, 14, 15, 16, 17, 18, 19, 21}},
    {document_kind::fan_tray, "fanTray", {7}},
    {document_kind::power_shelf, "powerShelf", {8}},
    {document_kind::pem, "pem", {9}},
    {document_kind::optics, "optics", {12}},
};

uint64_t characters_in(std::string_view text)
{
    return static_cast<uint64_t>(std::count_if(text.begin(), text.end(), [](char octet) {
        return (static_cast<unsigned char>(octet) & 0xC0) != 0x80;
    }));
}

}  // namespace

namespace invctl::check
{

std::string opened_name(const catalogue_check &of, std::string_view file)
{
    std::string name = file.starts_with('/') ? "" : of.folder;
    if (!name.empty() && !name.ends_with('/'))
        name += '/';
    return name.append(file);
}

std::vector<std::string> document_names_in(const std::string &folder)
{
    std::vector<std::string> names;
    std::error_code trouble;
    for (std::filesystem::directory_iterator at(folder.empty() ? "." : folder, trouble), end;
         !trouble && at != end; at.increment(trouble))
        if (at->path().extension() == ".xml")
            names.push_back(at->path().filename().string());
    // Without memory there would be other findings than there are.
    if (trouble == std::errc::not_enough_memory)
        throw std::bad_alloc();
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<catalogued_unit> units_of(const catalogue_check &of)
{
    std::vector<catalogued_unit> units;
    for (const catalogue_line &line : of.lines) {
        catalogued_unit unit;
        const char *reason = nullptr;
        if (inv::lookup::parse_line(line.text, unit.columns, &reason) != inv::lookup::line_kind::unit)
            continue;
        unit.line = &line;
        unit.file = opened_name(of, unit.columns.file);
        auto at = of.documents.find(unit.file);
        if (at != of.documents.end())
            unit.document = at->second.get();
        units.push_back(std::move(unit));
    }
    return units;
}

finding &report_line(finding_list &found, const catalogue_check &of, const catalogue_line &line,
                     std::string_view part, std::string text)
{
    std::string_view whole = line.text;
    whole = whole.substr(0, whole.find_last_not_of(" \t\r") + 1);
    if (part.empty())
        part = whole.substr(std::min(whole.find_first_not_of(" \t"), whole.size()));
    const std::string_view before(line.text.data(), static_cast<size_t>(part.data() - line.text.data()));
    finding &reported =
        report_file(found, of.catalogue, {line.number, characters_in(before) + 1, 0}, std::move(text));
    reported.source = whole;
    reported.length = characters_in(part);
    return reported;
}

std::optional<document_kind> kind_of_hardware(uint32_t pi_hw_type)
{
    for (const kind_row &row : kind_rows)
        for (uint32_t each : row.pi_hw_types)
            if (each == pi_hw_type && each != 0)
                return row.kind;
    return std::nullopt;
}

const char *root_of_kind(document_kind kind)
{
    for (const kind_row &row : kind_rows)
        if (row.kind == kind)
            return row.root;
    return "";
}

}  // namespace invctl::check
