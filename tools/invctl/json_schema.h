// The JSON Schema of what `invctl json` prints, made from the record tables that it prints by.
#ifndef INVCTL_JSON_SCHEMA_H
#define INVCTL_JSON_SCHEMA_H

#include <nlohmann/json.hpp>

namespace invctl
{

// Counts changes after which a reader of the former output would err; new keys are none.
constexpr int inventory_json_version = 1;

nlohmann::ordered_json inventory_json_schema();

}  // namespace invctl

#endif
