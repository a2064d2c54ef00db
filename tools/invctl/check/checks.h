// The checks beyond the schema, in one table.
#ifndef INVCTL_CHECK_CHECKS_H
#define INVCTL_CHECK_CHECKS_H

#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "checked_document.h"
#include "finding.h"

namespace invctl::check
{

// A line of the catalogue as it was written.
struct catalogue_line {
    uint64_t number = 0;  // 1-based
    std::string text;
};

// What the checks across files see: a catalogue and the documents that it names, each read once.
struct catalogue_check {
    std::string catalogue;              // as the user wrote it
    std::string folder;                 // where its relative file names start
    std::vector<catalogue_line> lines;  // all of them, in order
    std::map<std::string, std::unique_ptr<checked_document>> documents;  // by file name as opened
};

// Reports what is wrong with one document by report(); never exits, never prints. The document may have
// schema findings: pointers to texts may be null, required items absent.
using check_function = void (*)(const checked_document &, finding_list &);
using catalogue_function = void (*)(const catalogue_check &, finding_list &);

struct check {
    check_row row;
    check_function run;
    // True for checks that compare entities with each other: what a schema finding spoilt (a wrong
    // xml instance, a missing entity) would look like a fault of its own elsewhere. They run on documents
    // without schema findings only. Of the others nothing is reported for entities with schema findings.
    bool needs_clean_schema = false;
};

struct catalogue_check_row {
    check_row row;
    catalogue_function run;
};

std::span<const check> all_checks();
std::span<const catalogue_check_row> all_catalogue_checks();

// Each in its own file, which says what it looks for.
void check_instance_used_twice(const checked_document &document, finding_list &found);
void check_instance_too_large(const checked_document &document, finding_list &found);
void check_subtype_of_other_type(const checked_document &document, finding_list &found);
void check_name_used_twice(const checked_document &document, finding_list &found);
void check_text_too_long(const checked_document &document, finding_list &found);
void check_threshold_order(const checked_document &document, finding_list &found);
void check_power_budget(const checked_document &document, finding_list &found);
void check_not_in_tree(const checked_document &document, finding_list &found);
void check_tree_too_deep(const checked_document &document, finding_list &found);
void check_destination_unknown(const checked_document &document, finding_list &found);
void check_no_slot_list(const checked_document &document, finding_list &found);
void check_parent_loop(const checked_document &document, finding_list &found);
void check_path_too_long(const checked_document &document, finding_list &found);
void check_address_used_twice(const checked_document &document, finding_list &found);

void check_catalogue_line(const catalogue_check &catalogue, finding_list &found);
void check_catalogued_file_missing(const catalogue_check &catalogue, finding_list &found);
void check_catalogued_file_kind(const catalogue_check &catalogue, finding_list &found);
void check_slot_without_unit(const catalogue_check &catalogue, finding_list &found);
void check_slot_positions(const catalogue_check &catalogue, finding_list &found);
void check_unit_unreached(const catalogue_check &catalogue, finding_list &found);

}  // namespace invctl::check

#endif
