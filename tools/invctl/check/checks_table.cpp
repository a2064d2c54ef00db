#include "checks.h"

namespace
{

using namespace invctl::check;
using enum severity;

// In the order in which they run. The last column: see check::needs_clean_schema.
constexpr check checks[] = {
    {{"instance-used-twice", error, "Two entities have one xml instance"}, check_instance_used_twice},
    {{"instance-too-large", error, "An xml instance is out of range"}, check_instance_too_large},
    {{"subtype-of-other-type", error, "A subtype belongs to another entity type"},
     check_subtype_of_other_type},
    {{"name-used-twice", warning, "Two entities under one other have one name"}, check_name_used_twice},
    {{"text-too-long", warning, "A text is longer than the library's record keeps"}, check_text_too_long},
    {{"threshold-order", warning, "Thresholds are out of order"}, check_threshold_order},
    {{"power-budget", warning, "Power figures contradict each other"}, check_power_budget},
    {{"not-in-tree", warning, "An entity will not be in the entity tree"}, check_not_in_tree},
    {{"tree-too-deep", error, "The entity tree is deeper than an EID"}, check_tree_too_deep},
    {{"destination-unknown", error, "A destination names no entity"}, check_destination_unknown, true},
    {{"no-slot-list", error, "A destination's node type has no slot list"}, check_no_slot_list},
    {{"parent-loop", error, "An access path leads back to itself"}, check_parent_loop, true},
    {{"path-too-long", error, "An access path has too many hops"}, check_path_too_long, true},
    {{"address-used-twice", error, "Two devices share an address on one bus"},
     check_address_used_twice,
     true},
};

constexpr catalogue_check_row catalogue_checks[] = {
    {{"catalogue-line", error, "A line of the catalogue cannot be read"}, check_catalogue_line},
    {{"catalogued-file-missing", error, "A catalogued file cannot be read"}, check_catalogued_file_missing},
    {{"catalogued-file-kind", error, "A catalogued file is of another kind"}, check_catalogued_file_kind},
    {{"slot-without-unit", warning, "A destination leads to a slot that no unit fits"},
     check_slot_without_unit},
    {{"slot-positions", error, "Slots and the positions used do not agree"}, check_slot_positions},
    {{"unit-unreached", warning, "The catalogue leads nobody to a unit"}, check_unit_unreached},
};

}  // namespace

namespace invctl::check
{

std::span<const check> all_checks()
{
    return checks;
}

std::span<const catalogue_check_row> all_catalogue_checks()
{
    return catalogue_checks;
}

}  // namespace invctl::check
