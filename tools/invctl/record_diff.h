// What two records of one kind differ in, field by field.
#ifndef INVCTL_RECORD_DIFF_H
#define INVCTL_RECORD_DIFF_H

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "record_table.h"

namespace invctl
{

// One side of a change. Of an absent value the text says so and the JSON is null.
struct field_value {
    std::string text;
    nlohmann::ordered_json json;
};

struct field_change {
    std::string field;  // "base.i2c_node.address", "base.i2c_port_list[2].channel"
    field_value from;
    field_value to;
};

// In the order of the record. Left out is what an entity's place in the tree says (its EID, the entities it
// holds) and whether a value was written or is the default. Of a list whose items moved up or down by
// items that came or went, these alone are told.
std::vector<field_change> diff_records(const record_table &table, const void *before, const void *after);

}  // namespace invctl

#endif
