// The units of a catalogue with the documents that describe them.
#ifndef INVCTL_CHECK_CATALOGUE_MODEL_H
#define INVCTL_CHECK_CATALOGUE_MODEL_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks.h"
#include "lookup/catalogue.h"

namespace invctl::check
{

struct catalogued_unit {
    const catalogue_line *line = nullptr;
    inv::lookup::catalogue_line columns = {};    // views into the line
    std::string file;                            // as it is opened
    const checked_document *document = nullptr;  // null: not to be had
};

// The name by which a file that the catalogue names is opened: relative ones start at the catalogue's folder.
std::string opened_name(const catalogue_check &of, std::string_view file);

// The *.xml in a folder (empty: the current one), sorted. A folder that cannot be read has none.
std::vector<std::string> document_names_in(const std::string &folder);

// Lines that cannot be read are left out.
std::vector<catalogued_unit> units_of(const catalogue_check &of);

// Reports at a part of a catalogue's line, the whole line where the part is empty.
finding &report_line(finding_list &found, const catalogue_check &of, const catalogue_line &line,
                     std::string_view part, std::string text);

// The kind of document that a pi_hw_type stands for; nothing for one that names no kind.
std::optional<document_kind> kind_of_hardware(uint32_t pi_hw_type);

const char *root_of_kind(document_kind kind);  // its root element's name

}  // namespace invctl::check

#endif
